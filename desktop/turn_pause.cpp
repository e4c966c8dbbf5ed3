#include "desktop/turn_pause.h"

#include "state/state.h"

namespace {

constexpr std::chrono::milliseconds Pause(300);

bool EndsTurn(const InputEvent& event) {
    return event.kind == EventKind::Click && event.control == "frmField.cmdNextTurn";
}

}  // namespace

void TurnPause::Note(int team, Moment now) {
    if (team == SquadTeam && away) cameBack = now;
    away = team == EnemyTeam;
}

// What lets the turn end is noted too, for nothing need be shown of the computer's turn.
bool TurnPause::Swallows(const InputEvent& event, Moment now) {
    if (!EndsTurn(event)) return false;
    if (now - cameBack < Pause) return true;
    away = true;
    return false;
}
