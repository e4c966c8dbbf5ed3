#include "field/moving.h"

#include "state/audience.h"
#include "state/pace.h"
#include "state/state.h"

namespace {

// The cells learn where the unit stands from its pixels.
void SettleInCell(Unit& unit) {
    cellGrid[unit.cellY][unit.cellX].occupant = -1;
    unit.cellX = unit.pixelX / CellSize;
    unit.cellY = unit.pixelY / CellSize;
    cellGrid[unit.cellY][unit.cellX].occupant = curUnit;
}

void WaitForPixel(const Unit& unit) {
    constexpr int SlowestWaits = 4;
    constexpr int Wait = 20;
    for (int i = 0; i < SlowestWaits - unit.stance; ++i)
        Delay(Wait, "normal");
}

void MoveSeen(Unit& unit, int dx, int dy) {
    const int fromX = unit.cellX;
    const int fromY = unit.cellY;
    TheAudience().StepBegins(fromX + dx, fromY + dy);
    TheAudience().SoundPlayed("bump/step1", AtCurrentUnit);
    TheAudience().SoundPlayed("bump/step2", AtCurrentUnit);
    for (int pixel = 0; pixel < CellSize; ++pixel) {
        WaitForPixel(unit);
        unit.pixelX += dx;
        unit.pixelY += dy;
        TheAudience().UnitMoved(dx, dy);
    }
    SettleInCell(unit);
    TheAudience().StepEnds(fromX, fromY);
}

void MoveUnseen(Unit& unit, int dx, int dy) {
    unit.pixelX += dx * CellSize;
    unit.pixelY += dy * CellSize;
    TheAudience().UnitMovedUnseen(dx, dy);
    SettleInCell(unit);
}

// Whether any soldier has the enemy of that place in his record.
bool IsSighted(int place) {
    for (int soldier = 0; soldier <= teamLast[SquadTeam]; ++soldier)
        if (UnitTable[soldier].seen[place] == 1) return true;
    return false;
}

}  // namespace

void PaintUnit(int dx, int dy) {
    Unit& unit = UnitTable[curUnit];
    const bool seen = ThisVisible(unit.cellX, unit.cellY);
    if (dx == 0 && dy == 0) {
        TheAudience().UnitChanged(seen);
        return SettleInCell(unit);
    }
    seen ? MoveSeen(unit, dx, dy) : MoveUnseen(unit, dx, dy);
}

bool ThisVisible(int x, int y) {
    // The dead keep their cells. Whoever has stepped on one since is the one who may be seen.
    for (const bool dead : {false, true}) {
        const auto standsHere = [x, y, dead](int index) {
            const Unit& unit = UnitTable[index];
            return unit.cellX == x && unit.cellY == y && (unit.status == Dead) == dead;
        };
        bool anyEnemy = false;
        for (int i = 0; i < TeamStride; ++i)
            if (standsHere(i)) return true;
        for (int i = 0; i < TeamStride; ++i) {
            if (!standsHere(FirstOf(EnemyTeam) + i)) continue;
            if (IsSighted(i)) return true;
            anyEnemy = true;
        }
        if (anyEnemy) return false;
    }
    return false;
}
