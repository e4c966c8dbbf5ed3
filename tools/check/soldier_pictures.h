// The pictures that a soldier's file shows.
#pragma once

#include <filesystem>
#include <vector>

#include "campaign_rules.h"

/// Those that the folder `gameFolder` lacks, as flaws of the fields "faceNo" and "country". A folder without
/// such pictures at all says nothing.
std::vector<Flaw> SoldierPictureFlaws(const Unit& soldier, const std::filesystem::path& gameFolder);
