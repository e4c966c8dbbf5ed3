#include "shell/slips.h"

#include <cmath>
#include <string_view>

#include "platform/keys.h"
#include "state/state.h"

namespace {

constexpr std::chrono::milliseconds Pause(300);

bool Is(const InputEvent& event, EventKind kind, std::string_view control) {
    return event.kind == kind && event.control == control;
}

bool EndsTurn(const InputEvent& event) {
    return Is(event, EventKind::Click, "frmField.cmdNextTurn");
}

bool IsKey(const InputEvent& event) {
    return Is(event, EventKind::KeyDown, "frmField");
}

bool IsFieldPress(const InputEvent& event) {
    return Is(event, EventKind::MouseDown, "frmField.area");
}

bool IsOrder(const InputEvent& event) {
    return event.kind == EventKind::KeyDown || event.kind == EventKind::MouseDown ||
           event.kind == EventKind::Click || event.kind == EventKind::Choose;
}

bool IsOnSoldier(const InputEvent& press) {
    const int column = static_cast<int>(std::floor(press.x)) / CellSize;
    const int row = static_cast<int>(std::floor(press.y)) / CellSize;
    if (column < 0 || column >= FieldWidth || row < 0 || row >= FieldHeight) return false;
    const int occupant = cellGrid[row][column].occupant;
    return occupant >= 0 && TeamOfUnit(occupant) == SquadTeam;
}

// Whether the player means to go on with another soldier.
bool Selects(const InputEvent& event) {
    if (IsKey(event)) return event.code == SpaceKey || event.code == EscapeKey;
    if (IsFieldPress(event)) return event.code == LeftButton && IsOnSoldier(event);
    return EndsTurn(event) || Is(event, EventKind::Click, "frmInfo.cmdPrev") ||
           Is(event, EventKind::Click, "frmInfo.cmdNext");
}

}  // namespace

void Slips::Note(Moment now) {
    if (curTeam == SquadTeam && away) cameBack = now;
    away = curTeam == EnemyTeam;
    if (curTeam == SquadTeam && TeamOfUnit(curUnit) == SquadTeam) NoteUnit(now);
}

void Slips::NoteUnit(Moment now) {
    if (curUnit == shown) return;
    if (shown >= 0 && !selects) {
        handOver = {curUnit, now};
        outlasted = held;
    }
    shown = curUnit;
}

void Slips::SeeHandOver(Moment now) {
    if (handOver) handOver->when = now;
}

bool Slips::Swallows(const InputEvent& event, Moment now) const {
    if (EndsTurn(event)) return now - cameBack < Pause;
    if (IsKey(event) && outlasted.contains(event.code)) return true;
    return handOver && now - handOver->when < Pause && (IsKey(event) || IsFieldPress(event));
}

// What lets the turn end is noted too, for nothing need be shown of the computer's turn.
void Slips::Enters(const InputEvent& event) {
    if (EndsTurn(event)) away = true;
    if (IsOrder(event) && curTeam == SquadTeam) selects = Selects(event);
    if (IsKey(event)) held.insert(event.code);
    if (event.kind != EventKind::KeyUp) return;
    held.erase(event.code);
    outlasted.erase(event.code);
}
