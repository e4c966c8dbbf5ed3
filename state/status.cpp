#include "state/status.h"

#include <array>
#include <string>

#include "state/audience.h"
#include "state/log.h"
#include "state/operation.h"
#include "state/state.h"

namespace {

// Health at or above these is...
constexpr int HealthActive = 31;
constexpr int HealthWounded = 16;
constexpr int HealthAlive = 1;

// What accuracy is left of a perfect marksmanship, in percent, by stance.
constexpr std::array<int, 4> StoppedAccuracy = {140, 130, 100, 80};  // stop for fire
constexpr std::array<int, 4> MovingAccuracy = {40, 60, 80, 60};      // fire in motion

void WorkOutAccuracy(Unit& unit) {
    const auto& table = fireInMotion ? MovingAccuracy : StoppedAccuracy;
    unit.aimChance = table.at(static_cast<std::size_t>(static_cast<int>(unit.stance)));
    unit.aimChance = unit.marksmanship / 100.0 * unit.aimChance;
}

}  // namespace

void CheckStatus() {
    Unit& unit = UnitTable[curUnit];
    if (unit.health >= HealthActive) unit.status = Active;
    if (unit.health < HealthActive) {
        unit.status = Wounded;
        unit.wasWounded = True;
    }
    if (unit.health < HealthWounded) unit.status = Immobile;
    if (unit.health < HealthAlive) {
        unit.health = 0;
        unit.status = Dead;
    }
    ShowStatus("health");
}

void ShowStatus(std::string_view what) {
    if (!HasPanel(curUnit)) return;
    Unit& unit = UnitTable[curUnit];
    if (what.empty() || what == "stance") WorkOutAccuracy(unit);
    TheAudience().FiguresChanged(what);
    if (what.empty() || what == "health")
        AddToLog("Selected " + unit.name + " [" + UnitStatusText(curUnit) + "]", 1);
    if (IsSpentSoldier(unit)) AskHandOver();
}
