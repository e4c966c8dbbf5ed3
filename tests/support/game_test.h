// What tests of the rules stand on: a program folder of their own, a headless host and a game put to its
// start.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "platform/headless_host.h"
#include "platform/run_time_error.h"
#include "tools/game_copy.h"

/// A copy of the built game with a stock store.
class ProgramFolder : public GameCopy {
  public:
    ProgramFolder();

    /// Content of a file, named as "dat/apc.dat".
    std::string Read(const std::string& name) const;
    void Write(const std::string& name, const std::string& content) const;
    void Remove(const std::string& name) const;
};

class GameTest : public testing::Test {
  protected:
    GameTest();

    /// Starts the game as a player does, with a seed of the test's.
    void StartGame(unsigned seed = 1);

    /// All lines of the log from line `first` on, each with a line feed.
    std::string Log(std::size_t first = 0) const;

    /// Puts a thing with rounds in both feeds into the current unit's hand, under the mode that begins so.
    static void Hold(const std::string& name, const std::string& mode = "", int rounds = 20);

    ProgramFolder folder;
    HeadlessHost host;
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
