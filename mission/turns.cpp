#include "mission/turns.h"

#include <algorithm>
#include <string>

#include "ai/computer_player.h"
#include "combat/explosions.h"
#include "combat/fire_modes.h"
#include "combat/things.h"
#include "field/sightings.h"
#include "mission/mission_end.h"
#include "platform/run_time_error.h"
#include "state/audience.h"
#include "state/log.h"
#include "state/operation.h"
#include "state/state.h"
#include "state/status.h"

namespace {

constexpr int TeamsWithTurns = 2;

void PassToNextTeam() {
    do {
        ++curTeam;
        if (curTeam == TeamsWithTurns) curTeam = 0;
    } while (teamLast[curTeam] == -1);
}

// ODDITY: energy that passes twice the strength jumps to three times it; a rested soldier suddenly has
// plenty.
void Refill(Unit& unit) {
    unit.time = TimeOfTurn(unit);
    unit.energy = unit.strength / 2.0 + unit.energy;
    if (unit.energy > unit.strength * 2) unit.energy = unit.strength * 3;
}

// A squad in which no living soldier ever gets time to act would pass its turns on for ever.
void CheckSquadCanAct() {
    bool anyAlive = false;
    for (int i = 0; i <= teamLast[SquadTeam]; ++i) {
        if (UnitTable[i].status == Dead) continue;
        if (TimeOfTurn(UnitTable[i]) >= TimeToAct) return;
        anyAlive = true;
    }
    if (anyAlive)
        throw RunTimeError(
            Fault::BadData,
            "the squad: expected a living soldier of agility 2 or more, found none; nobody can act");
}

// The health step of a wounded or immobile unit.
// ODDITY: it comes at each pass of the selection, so often that a soldier may heal several points in one
// turn.
void PassInvalid(const char* report, int healthStep) {
    AddToLog(LogName(curUnit) + report, 1);
    UnitTable[curUnit].health += healthStep;
    HoldHandOver(CheckStatus);
}

// How many of the team have been passed over in one selection.
struct Passed {
    int done = 0;
    int dead = 0;
};

// Steps past the current unit. At the squad's end the count of the dead starts again, so that only a team
// that is dead to the last member loses; at any other team's end the turn passes on, and play goes on with
// the unit then current.
void StepSelection(Passed& passed) {
    ++curUnit;
    if (curUnit != FirstOf(curTeam) + teamLast[curTeam] + 1) return;
    if (curTeam == SquadTeam) {
        curUnit = 0;
        passed.dead = 0;
    } else {
        NewTurn();
    }
}

// Takes the current unit's weapon in its hand and chooses the fire mode that it had.
void TakeUpWeapon(Unit& unit) {
    const int kept = unit.fireMode;
    RefreshHand();
    const bool offered = kept < static_cast<int>(fireModes.offered.size());
    ChooseMode(offered ? kept : 0);
}

// What a unit that can act does first. True when the game now waits for the player.
bool BeginAct(Unit& unit) {
    CheckStatus();
    ShowSelection();
    if (unit.team == EnemyTeam) AiAct();
    return unit.team == SquadTeam;
}

void SpendAll(i16 Unit::*purse, const char* what) {
    UnitTable[curUnit].*purse = 0;
    ShowStatus(what);
    SelectNextUnit();
}

void Grant(i16 Unit::*purse, const char* what) {
    constexpr int Granted = 200;
    constexpr int Limit = 800;
    UnitTable[curUnit].*purse = std::min(UnitTable[curUnit].*purse + Granted, Limit);
    ShowStatus(what);
}

}  // namespace

int TimeOfTurn(const Unit& unit) {
    return unit.agility * 2;
}

void NewTurn() {
    ChargeTick();
    PassToNextTeam();
    AddToLog("New turn for team #" + std::to_string(curTeam), 1);
    for (int i = 0; i <= teamLast[curTeam]; ++i)
        Refill(UnitTable[FirstOf(curTeam) + i]);
    curUnit = FirstOf(curTeam) - 1;
    if (curTeam == SquadTeam) {
        ++squadTurns;
        CheckSquadCanAct();
    }
    TheAudience().TurnBegins();
    if (curTeam == EnemyTeam) ClearSightings();
    SelectNextUnit();
}

void SelectNextUnit() {
    walkOn = 0;
    ++orderCount;
    Passed passed;
    for (;;) {
        const int members = teamLast[curTeam] + 1;
        if (passed.done == members) return NewTurn();
        if (passed.dead == members) return EndGame();
        StepSelection(passed);
        Unit& unit = UnitTable[curUnit];
        if (unit.status == Dead) {
            AddToLog(LogName(curUnit) + " is dead. Selecting the next one.", 1);
            ++passed.dead;
            continue;
        }
        if (unit.status == Immobile) {
            PassInvalid(" is immobile and now -1", -1);
        } else if (unit.status == Wounded) {
            PassInvalid(" is wounded and now +1", +1);
        } else if (unit.time < TimeToAct) {
            AddToLog("0 time for " + LogName(curUnit), 1);
        } else if (BeginAct(unit)) {
            return;
        }
        ++passed.done;
    }
}

void ShowSelection() {
    Unit& unit = UnitTable[curUnit];
    TakeUpWeapon(unit);
    TheAudience().StanceChanged(unit.stance);
    ShowStatus("");
    if (unit.team == SquadTeam) ScrollToUnit(curUnit);
    EnemyCounter("clear");
    UnitLookEnemies();
}

void TimeSpendAll() {
    SpendAll(&Unit::time, "time");
}

void TimeGrant() {
    Grant(&Unit::time, "time");
}

void EnergySpendAll() {
    SpendAll(&Unit::energy, "energy");
}

void EnergyGrant() {
    Grant(&Unit::energy, "energy");
}

void ClearSightings() {
    for (int i = 0; i <= teamLast[SquadTeam]; ++i) {
        for (int j = 0; j <= teamLast[EnemyTeam]; ++j) {
            if (UnitTable[i].seen[j] != 1) continue;
            UnitTable[i].seen[j] = 0;
            const Unit& enemy = UnitTable[FirstOf(EnemyTeam) + j];
            TheAudience().CellChanged(enemy.cellX, enemy.cellY);
        }
    }
}
