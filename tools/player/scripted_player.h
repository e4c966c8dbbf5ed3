// A mission played by code, whose orders go through the door for input like any other's. The simple player's
// soldiers fire at the nearest enemy whom they see past their comrades, the others walk toward one, seen or
// not; the players with habits know only what a person would.
#pragma once

#include <optional>
#include <string>

#include "tools/player/squad_player.h"

/// Plays the running mission turn by turn.
class ScriptedPlayer {
  public:
    /// `habits` is the player's row, nullptr for the simple one.
    explicit ScriptedPlayer(const Habits* habits);
    ScriptedPlayer(const ScriptedPlayer&) = delete;
    ScriptedPlayer& operator=(const ScriptedPlayer&) = delete;

    /// The orders of one turn of the squad's, to its end. What ends the process comes through.
    void PlayTurn();

  private:
    std::optional<SquadPlayer> squad;  // none: the simple player
};

struct MissionResult {
    std::string verdict;   // as the end's message names it: "Victory", "Defeat" or "Withdrawal"
    int turns = 0;         // that the squad had
    int squadWounded = 0;  // hurt at some time, and alive
    int squadDead = 0;
    int enemiesDead = 0;
};

/// Plays the running mission, in which the squad has the turn, to its end; after `turns` turns of the squad
/// the player leaves by the menu. The host's EndProcess must throw ProcessEnded; one with another exit code
/// than 0 comes through, as does any RunTimeError.
MissionResult PlayMission(int turns, const Habits* habits = nullptr);
