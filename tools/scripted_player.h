// A simple player in code, who gives his orders through the door for input like any other: soldiers that see
// an enemy past their comrades fire at the nearest, the others walk toward him.
#pragma once

#include <string>

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
MissionResult PlayMission(int turns);
