// What the player sets at the windows themselves: their keys, their menu "Help" and the words for it. None of
// it reaches the game.
#pragma once

#include <optional>
#include <span>
#include <string>

#include "shell/key_input.h"
#include "shell/settings.h"

enum class FrontCommand {
    Help,
    FirstSteps,
    Larger,
    Smaller,
    Fit,
    FullScreen,
    Mute,
    Louder,
    Softer,
    Ambience,
    SquadWindow,
    AskBeforeEndTurn,
};

struct FrontKey {
    FrontCommand command;
    bool repeats;  // while the key is held
};

/// What the key does on every window, before the game gets it; nothing for a key of the game.
std::optional<FrontKey> FrontKeyOf(const KeyInput& key);

struct FrontEntry {
    FrontCommand command;
    const char* caption;             // "&" stands before the letter of its shortcut
    const char* keys;                // as menus show them, as "Ctrl+M"; empty for none
    bool Settings::*tick = nullptr;  // whether the entry is ticked; nullptr for one that is run
    bool endsGroup = false;
};

/// The entries of the menu "Help", from the top.
std::span<const FrontEntry> FrontMenu();

/// What is set after `command`, one of sound or one that turns a tick over; others change nothing here.
Settings AfterCommand(FrontCommand command, Settings now);

/// Whether `command` sets how loud all is, which is then said.
bool SetsLoudness(FrontCommand command);

/// What is said for a moment when the loudness was set, as "Volume 70 %".
std::string LoudnessNote(const Settings& now);

enum class SizeRemark { None, Fits, Largest, Smallest };

/// The same of the size, as "Size 1.5, as large as fits".
std::string SizeNote(SizeRemark remark, double factor);
