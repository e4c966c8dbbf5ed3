#include "tools/missions/falls.h"

#include <algorithm>

#include "field/geometry.h"

void FallWatch::LineLogged(const std::string& /*line*/) {
    for (const int team : {SquadTeam, EnemyTeam})
        for (int unit = FirstOf(team); unit <= FirstOf(team) + teamLast[team]; ++unit)
            if (UnitTable[unit].status == Dead) Note(unit);
}

void FallWatch::Note(int unit) {
    const bool known =
        std::any_of(falls.begin(), falls.end(), [unit](const Fall& fall) { return fall.unit == unit; });
    if (!known) falls.push_back({unit, {UnitTable[unit].cellX, UnitTable[unit].cellY}});
}

int QuarterOf(Spot cell) {
    return (cell.y < FieldHeight / 2 ? 0 : 2) + (cell.x < FieldWidth / 2 ? 0 : 1);
}
