#include "shell/settings.h"

#include <charconv>
#include <cstdio>
#include <filesystem>
#include <system_error>

#include "platform/files.h"
#include "platform/quoted.h"
#include "shell/scale.h"

namespace {

constexpr const char* Fitting = "auto";

struct Row {
    std::string_view name;
    int Settings::*number;  // one of the two
    bool Settings::*tick;
    int first;
    int last;
    const char* expected;
};

constexpr Row Rows[] = {
    // clang-format off
    // name                   number             tick                         range          what it can be
    {"scale",                &Settings::halves, nullptr, SingleSize, LargestSize,            "auto, 1, 1.5, 2 ... 4"},
    {"full screen",           nullptr, &Settings::fullScreen,              0, 0,             "yes or no"},
    {"volume",               &Settings::volume, nullptr,                   0, 100,           "0 to 100"},
    {"muted",                 nullptr, &Settings::muted,                   0, 0,             "yes or no"},
    {"ambience",              nullptr, &Settings::ambience,                0, 0,             "yes or no"},
    {"ask before end turn",   nullptr, &Settings::askBeforeEndTurn,        0, 0,             "yes or no"},
    {"first card seen",       nullptr, &Settings::firstCardSeen,           0, 0,             "yes or no"},
    {"squad window shown",    nullptr, &Settings::squadWindowShown,        0, 0,             "yes or no"},
    // clang-format on
};

bool IsScale(const Row& row) {
    return row.number == &Settings::halves;
}

std::string ValueText(const Row& row, const Settings& settings) {
    if (row.tick != nullptr) return settings.*row.tick ? "yes" : "no";
    const int number = settings.*row.number;
    if (!IsScale(row)) return std::to_string(number);
    if (number == 0) return Fitting;
    return std::to_string(number / 2) + (number % 2 != 0 ? ".5" : "");
}

// Values are known by their text: whatever writes a value reads it.
bool TakeValue(const Row& row, std::string_view value, Settings& settings) {
    Settings tried = settings;
    if (row.tick != nullptr) {
        tried.*row.tick = value == "yes";
    } else if (value == Fitting) {
        tried.*row.number = 0;
    } else {
        int number = 0;
        const auto read = std::from_chars(value.data(), value.data() + value.size(), number);
        if (read.ec != std::errc()) return false;
        if (IsScale(row) && number <= LargestSize) number = 2 * number + (value.ends_with(".5") ? 1 : 0);
        if (number < row.first || number > row.last) return false;
        tried.*row.number = number;
    }
    if (ValueText(row, tried) != value) return false;
    settings = tried;
    return true;
}

std::string_view Trimmed(std::string_view text) {
    constexpr std::string_view Blank = " \t\r";
    const std::size_t first = text.find_first_not_of(Blank);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(Blank) + 1 - first);
}

// What is wrong with the line; empty where nothing is.
std::string TakeLine(std::string_view line, Settings& settings) {
    if (line.empty()) return {};
    const std::size_t equals = line.find('=');
    const std::string_view name = Trimmed(line.substr(0, equals));
    for (const Row& row : Rows) {
        if (row.name != name || equals == std::string_view::npos) continue;
        if (TakeValue(row, Trimmed(line.substr(equals + 1)), settings)) return {};
        return "expected " + std::string(row.name) + " = " + row.expected + ", found " + Quoted(line);
    }
    return "expected a setting, as " + Quoted("volume = 70") + ", found " + Quoted(line);
}

bool Lies(std::string_view name) {
    std::error_code ignored;
    return std::filesystem::exists(std::filesystem::symlink_status(PlayersPath(name), ignored));
}

std::string ReadTrouble(Settings& settings) {
    if (!Lies(SettingsFileName)) return {};
    try {
        const std::string trouble = TakeSettings(ReadWholeFile(SettingsFileName, MaxDataFile), settings);
        return trouble.empty() ? "" : ShownName(SettingsFileName) + ", " + trouble;
    } catch (const RunTimeError& error) {
        return error.About();
    }
}

}  // namespace

std::string SettingsText(const Settings& settings) {
    std::string text;
    for (const Row& row : Rows)
        text += std::string(row.name) + " = " + ValueText(row, settings) + "\n";
    return text;
}

std::string TakeSettings(std::string_view text, Settings& settings) {
    std::string trouble;
    for (int number = 1; !text.empty(); ++number) {
        const std::size_t end = text.find('\n');
        const std::string problem = TakeLine(Trimmed(text.substr(0, end)), settings);
        if (!problem.empty() && trouble.empty()) trouble = "line " + std::to_string(number) + ": " + problem;
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return trouble;
}

std::string SettingsFile::Load() {
    kept = true;
    const std::string trouble = ReadTrouble(now);
    if (trouble.empty()) return {};
    std::fprintf(stderr, "Sarnoth III: settings: %s\n", trouble.c_str());
    return "Not all of your settings could be read: " + trouble + ". What is broken has its usual value.";
}

void SettingsFile::Change(const Settings& to) {
    if (to == now) return;
    now = to;
    if (!kept) return;
    try {
        ReplaceFile(SettingsFileName, SettingsText(now));
    } catch (const RunTimeError& error) {
        if (!refused) std::fprintf(stderr, "Sarnoth III: settings: %s\n", error.About().c_str());
        refused = true;
    }
}
