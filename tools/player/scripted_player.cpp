#include "tools/player/scripted_player.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <stdexcept>

#include "platform/quiet_host.h"
#include "state/state.h"
#include "tools/player/orders.h"
#include "tools/player/squad_player.h"

namespace {

// Whether no comrade stands between two cells.
bool LineIsClear(const Unit& from, const Unit& to) {
    const int dx = to.pixelX - from.pixelX;
    const int dy = to.pixelY - from.pixelY;
    const int steps = std::max(std::abs(dx), std::abs(dy)) / HalfCell;
    for (int i = 1; i < steps; ++i) {
        const int x = from.pixelX + HalfCell + dx * i / steps;
        const int y = from.pixelY + HalfCell + dy * i / steps;
        const int occupant = cellGrid[y / CellSize][x / CellSize].occupant;
        if (occupant >= 0 && occupant < FirstOf(EnemyTeam) && &UnitTable[occupant] != &from) return false;
    }
    return true;
}

enum class Choice { Target, Goal };

// The nearest living enemy to fire at, which he must see past his comrades, or to walk to; nullptr for none.
const Unit* NearestEnemy(const Unit& soldier, Choice choice) {
    const Unit* nearest = nullptr;
    int best = std::numeric_limits<int>::max();
    for (int i = 0; i <= teamLast[EnemyTeam]; ++i) {
        const Unit& enemy = UnitTable[FirstOf(EnemyTeam) + i];
        if (enemy.status == Dead) continue;
        if (choice == Choice::Target && (soldier.seen[i] != 1 || !LineIsClear(soldier, enemy))) continue;
        const int distance = std::abs(enemy.cellX - soldier.cellX) + std::abs(enemy.cellY - soldier.cellY);
        if (distance >= best) continue;
        best = distance;
        nearest = &enemy;
    }
    return nearest;
}

// The orders of one soldier, a few at most, for as long as he stays selected.
void PlaySoldier(int soldier) {
    constexpr int Orders = 12;
    const Unit& unit = UnitTable[soldier];
    for (int order = 0; order < Orders && curUnit == soldier && unit.time >= TimeToAct; ++order) {
        if (const Unit* target = NearestEnemy(unit, Choice::Target))
            ActOn(target->cellX, target->cellY);
        else if (const Unit* goal = NearestEnemy(unit, Choice::Goal))
            SelectOrWalkTo(goal->cellX, goal->cellY);
    }
}

// Orders for each soldier, and the end of the turn, unless the last one's orders have brought it already. A
// soldier without time has handed over to the next by himself.
void PlaySimpleTurn() {
    const i32 turn = squadTurns;
    for (int i = 0; i <= teamLast[SquadTeam] && squadTurns == turn; ++i) {
        const int soldier = curUnit;
        PlaySoldier(soldier);
        if (squadTurns == turn && curUnit == soldier) PassToNext();
    }
    if (squadTurns == turn) EndTurn();
}

void PlayToTheEnd(int turns, ScriptedPlayer& player) {
    try {
        while (squadTurns <= turns)
            player.PlayTurn();
        LeaveMission();
    } catch (const ProcessEnded& end) {
        if (end.exitCode == 0) return;
        throw;
    }
    throw std::logic_error("\"Exit\" didn't end the mission");
}

int DeadOf(int team) {
    int dead = 0;
    for (int i = 0; i <= teamLast[team]; ++i)
        dead += UnitTable[FirstOf(team) + i].status == Dead ? 1 : 0;
    return dead;
}

int WoundedOfSquad() {
    int wounded = 0;
    for (int i = 0; i <= teamLast[SquadTeam]; ++i)
        wounded += UnitTable[i].wasWounded == True && UnitTable[i].status != Dead ? 1 : 0;
    return wounded;
}

}  // namespace

ScriptedPlayer::ScriptedPlayer(const Habits* habits) {
    if (habits != nullptr) squad.emplace(*habits);
}

void ScriptedPlayer::PlayTurn() {
    if (squad)
        squad->PlayTurn();
    else
        PlaySimpleTurn();
}

MissionResult PlayMission(int turns, const Habits* habits) {
    ScriptedPlayer player(habits);
    PlayToTheEnd(turns, player);
    const int had = std::min<int>(squadTurns, turns);  // one more has begun when he leaves
    return {missionVerdict, had, WoundedOfSquad(), DeadOf(SquadTeam), DeadOf(EnemyTeam)};
}
