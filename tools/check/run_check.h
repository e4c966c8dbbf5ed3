// The whole of a check from its command line to its report, for every program that offers it.
#pragma once

#include <filesystem>

#include "tools/command_line.h"

/// What is checked when the command line names nothing.
struct CheckedFolders {
    std::filesystem::path game;
    std::filesystem::path sources;
};

/// Adds the options of a check. Its work prints the findings to standard output, and how many there are to
/// standard error.
Work AddCheck(CLI::App& app, const CheckedFolders& built);
