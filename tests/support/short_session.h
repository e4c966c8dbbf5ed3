// A few minutes of a player's session in few events, in stages: what a test of closing or killing the game
// needs to come through all its waits.
#pragma once

#include <functional>
#include <string_view>

struct Stage {
    const char* name;
    void (*play)();  // gives orders through the door for input and returns when they are carried out
};

/// Calls `play` for the stage of that name, or for all in their order when it is empty. The mission must have
/// been started by Main(1); the last stage leaves it.
void PlayStages(std::string_view wanted, const std::function<void(const Stage&)>& play);

/// The next thing that the player does in a soldier's file, which must be open: he takes up a grenade, lays
/// it in the hand and what was there elsewhere, leafs, holds an arrow down and closes it. To be called from
/// time to time while the modal window lets events in.
void NextInFile();
