#include "state/operation.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "state/state.h"
#include "state/turns.h"

namespace {

// Counts an operation for as long as it runs, also when an error ends it.
class Running {
  public:
    Running() { ++game.operationDepth; }
    ~Running() { game.operationDepth -= 1; }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;
};

// What was selected in the middle of the operation becomes current at its end.
void SettleSelection() {
    if (game.selectedMeanwhile < 0) return;
    curUnit = game.selectedMeanwhile;
    game.selectedMeanwhile = -1;
}

void SettleHandOver() {
    const std::vector<int> askers = std::exchange(game.handOverAsked, {});
    const bool asked = std::find(askers.begin(), askers.end(), curUnit) != askers.end();
    if (asked && IsSpentSoldier(UnitTable[curUnit])) SelectNextUnit();
}

}  // namespace

void RunOperation(const std::function<void()>& body) {
    {
        const Running running;
        body();
    }
    if (game.operationDepth > 0) return;
    SettleSelection();
    SettleHandOver();
}

void AskHandOver() {
    if (game.operationDepth > 0)
        game.handOverAsked.push_back(curUnit);
    else
        SelectNextUnit();
}

void HoldHandOver(const std::function<void()>& body) {
    const std::vector<int> askedBefore = game.handOverAsked;
    {
        const Running running;
        body();
    }
    game.handOverAsked = askedBefore;
}

void PumpKeepingUnit(const std::function<void()>& pump) {
    const int unit = curUnit;
    pump();
    if (game.operationDepth == 0 || curUnit == unit) return;
    game.selectedMeanwhile = curUnit;
    curUnit = unit;
}
