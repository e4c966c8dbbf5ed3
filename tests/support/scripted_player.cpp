#include "tests/support/scripted_player.h"

#include <cstdlib>

#include "platform/input_event.h"
#include "state/state.h"
#include "view/events.h"

namespace {

void Click(int button, const Unit& on) {
    Dispatch({EventKind::MouseDown, "frmField.area", -1, button, 0, static_cast<float>(on.pixelX + 10),
              static_cast<float>(on.pixelY + 10)});
}

// The nearest living enemy, of those that the soldier sees when `seen` is set; -1 for none.
int NearestEnemy(const Unit& soldier, bool seen) {
    int nearest = -1;
    int best = 1000;
    for (int i = 0; i <= teamLast[EnemyTeam]; ++i) {
        const Unit& enemy = UnitTable[FirstOf(EnemyTeam) + i];
        if (enemy.status == Dead || (seen && soldier.seen[i] != 1)) continue;
        const int distance = std::abs(enemy.cellX - soldier.cellX) + std::abs(enemy.cellY - soldier.cellY);
        if (distance >= best) continue;
        best = distance;
        nearest = FirstOf(EnemyTeam) + i;
    }
    return nearest;
}

// One soldier's turn: at most so many orders, for as long as he stays selected.
void PlaySoldier(int soldier) {
    constexpr int Orders = 12;
    for (int order = 0; order < Orders && curUnit == soldier && UnitTable[soldier].time >= TimeToAct;
         ++order) {
        const int target = NearestEnemy(UnitTable[soldier], true);
        const int goal = NearestEnemy(UnitTable[soldier], false);
        if (target >= 0)
            Click(2, UnitTable[target]);
        else if (goal >= 0)
            Click(1, UnitTable[goal]);
    }
}

}  // namespace

void PlayMission(int turns) {
    for (int turn = 0; turn < turns; ++turn) {
        for (int i = 0; i <= teamLast[SquadTeam]; ++i) {
            PlaySoldier(curUnit);
            Dispatch({EventKind::KeyDown, "frmField", -1, 32});
        }
        Dispatch({EventKind::Click, "frmField.cmdNextTurn"});
    }
    Dispatch({EventKind::Click, "frmField.mnuExit"});
    std::abort();
}
