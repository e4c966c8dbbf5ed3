// What the command line of sarnoth-missions asks for.
#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "tools/arguments.h"

struct Habits;

struct MissionOptions {
    SeedRange seeds{1, 1000};
    int turns = 0;  // after which the player leaves a mission
    std::optional<std::uint32_t> log;
    std::filesystem::path game;  // empty: the one that was built beside the program
    std::chrono::seconds limit{0};
    const Habits* habits = nullptr;  // of the player; nullptr for the simple one
    bool json = false;
    bool time = false;
    bool help = false;
};

/// What --help prints.
extern const char* const MissionUsage;

/// Reads the arguments after the program's name. Throws UsageError.
MissionOptions ReadMissionOptions(const std::vector<std::string>& arguments);
