#include "mission/orders.h"

#include <string>

#include "combat/actions.h"
#include "field/walking.h"
#include "mission/turns.h"
#include "platform/rounding.h"
#include "state/log.h"
#include "state/operation.h"
#include "state/state.h"

namespace {

constexpr int LongestWalk = 100;  // steps of one order

void SelectClicked(int clicked) {
    curUnit = clicked - 1;
    AddToLog("Selected " + LogName(clicked) + "  from team #" + std::to_string(curTeam), 1);
    SelectNextUnit();
}

}  // namespace

bool BeginOrder() {
    if (curTeam != SquadTeam || curUnit >= ChargeBase) return false;
    if (UnitTable[curUnit].status == Dead) SelectNextUnit();
    return true;
}

void PassOverUnfit() {
    if (UnitTable[curUnit].status != Active) SelectNextUnit();
}

bool SelectAt(int cellX, int cellY) {
    ++orderCount;
    const int occupant = cellGrid[cellY][cellX].occupant;
    if (occupant < 0) return false;
    const int team = TeamOfUnit(occupant);
    if (team == TeamOfUnit(curUnit)) {
        SelectClicked(occupant);
        return true;
    }
    AddToLog(LogName(occupant) + " from team #" + std::to_string(team) + ", waiting for its turn.", 1);
    return false;
}

void GoTo(int cellX, int cellY, float x, float y) {
    walkOn = 1;
    if (cellX == lastClickX && cellY == lastClickY) {
        WalkTo(cellX, cellY, LongestWalk);
        return;
    }
    lastClickX = cellX;
    lastClickY = cellY;
    TurnTowards(x, y);
}

void ActAt(float x, float y) {
    ++orderCount;
    RunOperation([x, y] {
        TurnTowards(x, y);
        ActOnTarget(WholePixel(x), WholePixel(y));
    });
}

void StepTo(int facing) {
    ++orderCount;
    TurnOrStep(true, facing);
}
