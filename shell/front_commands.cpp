#include "shell/front_commands.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "platform/keys.h"

namespace {

constexpr int VolumeStep = 10;
constexpr int FullVolume = 100;
constexpr int F11Key = F1Key + 10;

struct KeyRow {
    int code;     // of the key's place, or 0
    char sign;    // what stands on it, or '\0'
    int held;     // but for those that don't matter
    int ignored;  // a sign may need Shift on one keyboard and none on another
    bool repeats;
    FrontCommand command;
};

// Letters and digits also by their place, on keyboards of other alphabets.
constexpr KeyRow Keys[] = {
    // clang-format off
    // code  sign   held                     ignored    repeats
    {F1Key,   '\0', 0,                       0,         false, FrontCommand::Help},
    {F11Key,  '\0', 0,                       0,         false, FrontCommand::FullScreen},
    {0,       '+',  ControlHeld,             ShiftHeld, true,  FrontCommand::Larger},
    {0,       '=',  ControlHeld,             ShiftHeld, true,  FrontCommand::Larger},
    {0,       '-',  ControlHeld,             ShiftHeld, true,  FrontCommand::Smaller},
    {'0',     '0',  ControlHeld,             ShiftHeld, false, FrontCommand::Fit},
    {'M',     'M',  ControlHeld,             0,         false, FrontCommand::Mute},
    {UpKey,   '\0', ControlHeld | ShiftHeld, 0,         true,  FrontCommand::Louder},
    {DownKey, '\0', ControlHeld | ShiftHeld, 0,         true,  FrontCommand::Softer},
    // clang-format on
};

constexpr FrontEntry Entries[] = {
    // clang-format off
    {FrontCommand::Help,             "&Keys",                  "F1"},
    {FrontCommand::FirstSteps,       "&First steps",           "",                nullptr, true},
    {FrontCommand::Larger,           "&Larger",                "Ctrl++"},
    {FrontCommand::Smaller,          "&Smaller",               "Ctrl+-"},
    {FrontCommand::Fit,              "As large as f&its",      "Ctrl+0"},
    {FrontCommand::FullScreen,       "Full s&creen",           "F11",             &Settings::fullScreen, true},
    {FrontCommand::Mute,             "Sound &off",             "Ctrl+M",          &Settings::muted},
    {FrontCommand::Louder,           "Lo&uder",                "Ctrl+Shift+Up"},
    {FrontCommand::Softer,           "Sof&ter",                "Ctrl+Shift+Down"},
    {FrontCommand::Ambience,         "&Water, wind and birds", "",                &Settings::ambience, true},
    {FrontCommand::SquadWindow,      "S&quad and log",         "Ctrl+B",          &Settings::squadWindowShown},
    {FrontCommand::AskBeforeEndTurn, "&End Turn asks",         "",                &Settings::askBeforeEndTurn},
    // clang-format on
};

bool IsKey(const KeyRow& row, const KeyInput& key) {
    const bool isMeant =
        (row.code != 0 && key.code == row.code) || (row.sign != '\0' && key.sign == row.sign);
    return isMeant && !key.isMetaHeld && (key.shift & ~row.ignored) == row.held;
}

}  // namespace

std::optional<FrontKey> FrontKeyOf(const KeyInput& key) {
    for (const KeyRow& row : Keys)
        if (IsKey(row, key)) return FrontKey{row.command, row.repeats};
    return std::nullopt;
}

std::span<const FrontEntry> FrontMenu() {
    return Entries;
}

// Who makes it louder wants to hear it.
Settings AfterCommand(FrontCommand command, Settings now) {
    if (command == FrontCommand::Louder) {
        now.volume = std::min(now.volume + VolumeStep, FullVolume);
        now.muted = false;
    } else if (command == FrontCommand::Softer) {
        now.volume = std::max(now.volume - VolumeStep, 0);
    } else {
        for (const FrontEntry& entry : Entries)
            if (entry.command == command && entry.tick != nullptr) now.*entry.tick = !(now.*entry.tick);
    }
    return now;
}

bool SetsLoudness(FrontCommand command) {
    return command == FrontCommand::Mute || command == FrontCommand::Louder ||
           command == FrontCommand::Softer;
}

std::string LoudnessNote(const Settings& now) {
    return now.muted ? "Sound off" : "Volume " + std::to_string(now.volume) + " %";
}

std::string SizeNote(SizeRemark remark, double factor) {
    static constexpr std::array Remarks = {"", ", as large as fits", ": no larger one fits",
                                           ": the smallest"};
    const auto tenths = std::lround(10 * factor);
    std::string note = "Size " + std::to_string(tenths / 10);
    if (tenths % 10 != 0) note += "." + std::to_string(tenths % 10);
    return note + Remarks.at(static_cast<std::size_t>(remark));
}
