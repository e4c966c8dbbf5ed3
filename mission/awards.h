// Awards: granting one under its rules, and those of a finished mission.
#pragma once

#include <string>
#include <string_view>
#include <vector>

struct Unit;

/// The keys of the awards that a finished mission has for a soldier: one for the wounded and the dead, one
/// for everybody.
std::vector<std::string_view> AwardsOfMission(const Unit& unit);

/// The awards of a mission for the whole squad. Nothing in the game calls it.
void AwardMissionEnd();

/// The row that the unit would get for the key; -1 for none.
int AwardRowFor(const Unit& unit, std::string_view code);

/// Grants the current unit the award with this key, or the next one of its chain when it is held already and
/// can't be given again; logs it and shows it in the unit's file. An unknown key grants the empty row.
void AwardGive(std::string_view code);

/// How often the current unit holds the row: "2nd ", "3rd ", "4th ", ... "100th "; empty for once, and for
/// more.
std::string AwardOrdinal(int row);

/// The same for a count.
std::string AwardOrdinalOf(int count);
