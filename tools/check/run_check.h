// The whole of a check from its command line to its report, for every program that offers it.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

/// What is checked when the command line names nothing.
struct CheckedFolders {
    std::filesystem::path game;
    std::filesystem::path sources;
};

/// Prints the findings to standard output, and how many there are to standard error. Gives the exit code: 0
/// for no fault, 1 for faults. Throws UsageError for a command line that it can't follow.
int RunCheck(const std::vector<std::string>& arguments, const CheckedFolders& built);
