// What sarnoth-check looks at: a game folder, or the sources that one is made of.
#pragma once

#include <filesystem>

#include "tools/check/findings.h"

/// All of dat/ and map/ of the folder `gameFolder`, whose pictures and sounds they name.
Findings CheckGame(const std::filesystem::path& gameFolder);

/// All of dat/, map/ and campaign/ of the folder `sources`; pictures and sounds are looked for in
/// `gameFolder`.
Findings CheckSources(const std::filesystem::path& sources, const std::filesystem::path& gameFolder);
