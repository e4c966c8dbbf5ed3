// What the command line of sarnoth-missions asks for.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

#include "tools/command_line.h"

struct MissionOptions {
    SeedRange seeds{1, 1000};
    int turns = 22;  // after which the player leaves a mission
    std::optional<std::uint32_t> log;
    std::filesystem::path game = GAME_FOLDER;
    int limit = 60;  // seconds
    std::string player = "simple";
    bool json = false;
    bool markdown = false;
    std::filesystem::path heat;  // empty for none
    bool time = false;
};

/// The line's reading sets `options`, which must stay where they are.
void AddMissionOptions(CLI::App& app, MissionOptions& options);
