// The game's command line.
#pragma once

#include <filesystem>
#include <optional>

struct Arguments {
    std::optional<int> exitCode;    // the process ends with it: what was asked for has been printed
    std::filesystem::path watched;  // a recording to be played back; empty for none
};

/// Reads main's arguments, and answers those that need no display.
Arguments ReadArguments(int count, const char* const* arguments);
