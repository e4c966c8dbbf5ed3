// What tests of the rules stand on: a program folder of their own, a headless host, a game put to its start,
// the state that they look at and the door for input that they go through.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>

#include "platform/headless_host.h"
#include "platform/run_time_error.h"
#include "state/state.h"
#include "tests/support/open_field.h"
#include "tools/game_copy.h"
#include "view/events.h"
#include "view/field_form.h"

/// A copy of the built game with a stock store.
class ProgramFolder : public GameCopy {
  public:
    ProgramFolder();

    /// Content of a file, named as "dat/apc.dat".
    std::string Read(const std::string& name) const;
    void Write(const std::string& name, const std::string& content) const;
    void Remove(const std::string& name) const;
};

/// Lets a test look in at each pump, after its events, and while a message stands.
class WatchedHost : public HeadlessHost {
  public:
    using HeadlessHost::HeadlessHost;

    void PumpEvents() override {
        HeadlessHost::PumpEvents();
        atPump();
    }
    void ShowMessage(const std::string& text) override {
        HeadlessHost::ShowMessage(text);
        atMessage();
    }

    std::function<void()> atPump = [] {};
    std::function<void()> atMessage = [] {};
};

class GameTest : public testing::Test {
  protected:
    GameTest();

    /// Starts the game as a player does, with a seed of the test's.
    void StartGame(unsigned seed = 1);

    /// All lines of the log from line `first` on, each with a line feed.
    std::string Log(std::size_t first = 0) const;

    /// A button pressed in the middle of a cell, and a key, both on the field.
    static InputEvent PressOn(int cellX, int cellY, int button);
    static InputEvent Key(int code);

    /// Puts a thing with rounds in both feeds into the current unit's hand, under the mode that begins so.
    static void Hold(const std::string& name, const std::string& mode = "", int rounds = 20);

    ProgramFolder folder;
    WatchedHost host;
};

/// The text of the RunTimeError that `action` ends with; empty when it ends well.
template <typename Action>
std::string ErrorOf(Action action) {
    try {
        action();
    } catch (const RunTimeError& error) {
        return error.what();
    }
    return "";
}
