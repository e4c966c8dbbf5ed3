// The soldiers: three teams, four stances, eight facings.
#pragma once

#include <QImage>

namespace art {

constexpr int TeamCount = 3;
constexpr int StanceCount = 4;
constexpr int FacingCount = 8;

// One soldier, see-through around him.
QImage Soldier(int team, int stance, int facing);

// A soldier of the team lying dead.
QImage DeadSoldier();

// 640 by 320: column team * 4 + stance, row facing, masks 160 pixels below.
QImage PeopleSheet();

}  // namespace art
