// Plays missions with random events, sensible ones, hasty ones and nonsense, and looks after each whether the
// game is still in order.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

struct SoakedMission {
    std::uint32_t seed = 0;
    int events = 0;
    std::string end;    // "Victory", "Defeat", "Withdrawal", "closed", or what the rules end the program with
    std::string fault;  // what was out of order; empty for nothing
};

/// One mission of at most `events` events, with the data of the program's folder. With `recording` its lines
/// are written there.
SoakedMission Soak(std::uint32_t seed, int events, const std::filesystem::path& recording = {});
