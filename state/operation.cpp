#include "state/operation.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "state/audience.h"
#include "state/higher_rules.h"
#include "state/state.h"

namespace {

// Counts an operation for as long as it runs, also when an error ends it.
class Running {
  public:
    Running() { ++operationDepth; }
    ~Running() { operationDepth -= 1; }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;
};

// What an operation goes on with when a pump in its middle has ended.
struct Order {
    i16 unit = curUnit;
    ModeChoice modes = fireModes;
    FlightValues flight = flightValues;

    bool IsCurrent() const { return curUnit == unit && fireModes == modes; }
};

// The unit's weapon may have been taken from it meanwhile, and its modes with it.
void TakeUp(int unit, ModeChoice modes) {
    curUnit = unit;
    fireModes = std::move(modes);
    if (fireModes.weapon == UnitTable[unit].hand.name)
        TheHigherRules().handSync("real2fake");
    else
        TheHigherRules().listActions();
}

// What was selected in the middle of the operation becomes current.
void SettleSelection() {
    if (selectedMeanwhile < 0) return;
    TakeUp(std::exchange(selectedMeanwhile, -1), std::exchange(selectedModes, {}));
    TheAudience().PanelChanged();
}

// A soldier whose time is used up hands over, and so does one who was selected in the middle and fell there.
void SettleHandOver() {
    const std::vector<int> askers = std::exchange(handOverAsked, {});
    const Unit& unit = UnitTable[curUnit];
    const bool asked = std::find(askers.begin(), askers.end(), curUnit) != askers.end();
    const bool fell = unit.status == Dead && TeamOfUnit(curUnit) == SquadTeam;
    if (fell || (asked && IsSpentSoldier(unit))) TheHigherRules().selectNextUnit();
}

// Between the pumps of an operation nothing shows whose modes its rounds are fired with.
void GoOnWith(const Order& order) {
    flightValues = order.flight;
    if (order.IsCurrent()) return;
    selectedMeanwhile = curUnit;
    selectedModes = fireModes;
    curUnit = order.unit;
    fireModes = order.modes;
    TheHigherRules().handSync("real2fake");
}

}  // namespace

void RunOperation(const std::function<void()>& body) {
    {
        const Running running;
        body();
    }
    if (operationDepth > pumpedDepth) return;
    SettleSelection();
    if (operationDepth == 0) SettleHandOver();
}

void AskHandOver() {
    if (operationDepth > 0)
        handOverAsked.push_back(curUnit);
    else
        TheHigherRules().selectNextUnit();
}

void HoldHandOver(const std::function<void()>& body) {
    const std::vector<int> askedBefore = handOverAsked;
    {
        const Running running;
        body();
    }
    handOverAsked = askedBefore;
}

void PumpKeepingOrder(const std::function<void()>& pump) {
    if (operationDepth == pumpedDepth) return pump();
    const Order order;
    const i16 outer = std::exchange(pumpedDepth, operationDepth);
    SettleSelection();
    pump();
    pumpedDepth = outer;
    GoOnWith(order);
}
