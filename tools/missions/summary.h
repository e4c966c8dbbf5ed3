// What many missions come to, as a table for people and as JSON for programs.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "tools/missions/falls.h"
#include "tools/player/scripted_player.h"

constexpr std::array<const char*, 3> Verdicts = {"Victory", "Defeat", "Withdrawal"};

struct PlayedMission {
    std::uint32_t seed = 0;
    MissionResult result;
    std::string error;  // why it didn't end as missions do; empty when it did
    std::vector<Fall> falls;
};

/// Where the last enemy fell, or the last soldier; none for a withdrawal.
std::optional<Spot> DecidingCell(const PlayedMission& mission);

/// Of the missions that ended, one row a verdict and one for all: how many, the turns that they took
/// (percentiles by nearest rank), the mean losses, and how many cost a wounded or dead soldier; and the share
/// of the missions that were decided in each quarter of the field.
std::string MissionTable(const std::vector<PlayedMission>& missions);

/// The row of the table in docs/map.md.
std::string MissionMarkdown(const std::string& player, const std::vector<PlayedMission>& missions);

/// The same figures as in the table, null where there are none, and every mission's own.
std::string MissionJson(const std::vector<PlayedMission>& missions);
