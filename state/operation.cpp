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
    Running() { ++game.operationDepth; }
    ~Running() { game.operationDepth -= 1; }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;
};

// What an operation goes on with when a pump in its middle has ended.
struct Order {
    i16 unit = curUnit;
    ModeChoice modes = game.modes;
    FlightValues flight = game.flight;

    bool IsCurrent() const { return curUnit == unit && game.modes == modes; }
};

// The unit's weapon may have been taken from it meanwhile, and its modes with it.
void TakeUp(int unit, ModeChoice modes) {
    curUnit = unit;
    game.modes = std::move(modes);
    if (game.modes.weapon == UnitTable[unit].hand.name)
        TheHigherRules().handSync("real2fake");
    else
        TheHigherRules().listActions();
}

// What was selected in the middle of the operation becomes current.
void SettleSelection() {
    if (game.selectedMeanwhile < 0) return;
    TakeUp(std::exchange(game.selectedMeanwhile, -1), std::exchange(game.selectedModes, {}));
    TheAudience().PanelChanged();
}

// A soldier whose time is used up hands over, and so does one who was selected in the middle and fell there.
void SettleHandOver() {
    const std::vector<int> askers = std::exchange(game.handOverAsked, {});
    const Unit& unit = UnitTable[curUnit];
    const bool asked = std::find(askers.begin(), askers.end(), curUnit) != askers.end();
    const bool fell = unit.status == Dead && TeamOfUnit(curUnit) == SquadTeam;
    if (fell || (asked && IsSpentSoldier(unit))) TheHigherRules().selectNextUnit();
}

// Between the pumps of an operation nothing shows whose modes its rounds are fired with.
void GoOnWith(const Order& order) {
    game.flight = order.flight;
    if (order.IsCurrent()) return;
    game.selectedMeanwhile = curUnit;
    game.selectedModes = game.modes;
    curUnit = order.unit;
    game.modes = order.modes;
    TheHigherRules().handSync("real2fake");
}

}  // namespace

void RunOperation(const std::function<void()>& body) {
    {
        const Running running;
        body();
    }
    if (game.operationDepth > game.pumpedDepth) return;
    SettleSelection();
    if (game.operationDepth == 0) SettleHandOver();
}

void AskHandOver() {
    if (game.operationDepth > 0)
        game.handOverAsked.push_back(curUnit);
    else
        TheHigherRules().selectNextUnit();
}

void HoldHandOver(const std::function<void()>& body) {
    const std::vector<int> askedBefore = game.handOverAsked;
    {
        const Running running;
        body();
    }
    game.handOverAsked = askedBefore;
}

void PumpKeepingOrder(const std::function<void()>& pump) {
    if (game.operationDepth == game.pumpedDepth) return pump();
    const Order order;
    const i16 outer = std::exchange(game.pumpedDepth, game.operationDepth);
    SettleSelection();
    pump();
    game.pumpedDepth = outer;
    GoOnWith(order);
}
