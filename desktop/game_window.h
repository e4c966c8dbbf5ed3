// The game in its window: what a program needs to show it, without the toolkit.
#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "platform/input_event.h"
#include "shell/session.h"

class Companion;
class SettingsFile;

struct WindowRun {
    std::function<void()> begin;                       // starts the game, its folder too unless that was set
    std::function<void(const InputEvent&)> dispatch;   // takes what a person does
    std::function<void(int pump)> playBack = nullptr;  // see DesktopHost::PlayBack; empty for a person's play
    std::function<int(int exitCode)> atEnd = nullptr;  // see DesktopHost::AtEnd; may be empty
    std::function<void()> atMessage = nullptr;         // see DesktopHost::AtMessage; may be empty
    std::function<void()> atVerdict = nullptr;         // see DesktopHost::AtVerdict; may be empty
    Companion* companion = nullptr;                    // goes along with the game; nullptr for none
    std::function<bool(const InputEvent&)> mayEnter = nullptr;  // see DesktopHost::AskBefore; may be empty
    SettingsFile* settings = nullptr;  // null: nothing is remembered, and no card is shown
};

/// Runs until the process ends. `arguments` are main's. The result is an exit code: with nowhere to show a
/// window it says so on standard error and is 1.
int RunInWindow(char** arguments, const WindowRun& run);

/// Shows `text` in a box with the buttons "Continue", "Watch it" and "New game", of which closing the box
/// presses the first.
Resumption AskToContinue(const std::string& text);

/// Saves a window of the running game, named as "frmField", as it would be shown. False when it can't be
/// written.
bool SaveWindow(const std::string& form, const std::filesystem::path& file);
