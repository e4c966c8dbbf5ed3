// What many missions come to, as a table for people and as JSON for programs.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "tools/player/scripted_player.h"

constexpr std::array<const char*, 3> Verdicts = {"Victory", "Defeat", "Withdrawal"};

struct PlayedMission {
    std::uint32_t seed = 0;
    MissionResult result;
    std::string error;  // why it didn't end as missions do; empty when it did
};

/// Of the missions that ended, one row a verdict and one for all: how many, the turns that they took
/// (percentiles by nearest rank), the mean losses, and how many cost a wounded or dead soldier.
std::string MissionTable(const std::vector<PlayedMission>& missions);

/// The same figures, null where there are none, and every mission's own.
std::string MissionJson(const std::vector<PlayedMission>& missions);
