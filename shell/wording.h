// What happens in a mission in a person's words. Nothing here names what the squad can't know.
#pragma once

#include <string>
#include <string_view>

#include "shell/happening.h"

/// How a person names a unit: a soldier of the squad by his name, the enemy's by their numbers, from 1.
std::string NameOf(int unit);

/// How a person names what a thing does to somebody in a mode, as "AK fire", "a grenade"; "a charge" for a
/// thing without a name.
std::string MeansOf(const std::string& weapon, const std::string& mode);

/// The family of action of a thing in a mode, as far as its key decides it; empty otherwise.
std::string_view FamilyOf(std::string_view weapon, std::string_view mode);

/// As "Ingrid Solberg sights Enemy 3, [45,9]".
std::string SightingText(const Happening& sighting);

/// As "Enemy 3 hit twice by M4A1 fire of Ingrid Solberg, -41 health, [45,9]", where `amount` is what the
/// `times` hits cost together.
std::string HitText(const Happening& hit, int times, int amount);

/// As "Diego Salinas killed by AK fire, [45,9]".
std::string DeathText(const Happening& death);
