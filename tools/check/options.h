// What the command line of sarnoth-check asks for.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "tools/usage_error.h"

struct CheckOptions {
    std::filesystem::path game;     // empty: not checked
    std::filesystem::path sources;  // the same
    bool json = false;
    bool help = false;
};

/// What --help prints.
extern const char* const CheckUsage;

/// Reads the arguments after the program's name. Throws UsageError.
CheckOptions ReadCheckOptions(const std::vector<std::string>& arguments);
