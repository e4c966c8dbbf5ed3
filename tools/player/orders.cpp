#include "tools/player/orders.h"

#include "view/events.h"

namespace {

constexpr int LeftButton = 1;
constexpr int RightButton = 2;
constexpr int SpaceKey = 32;

// By facing: the arrows, Page Up, Page Down, End and Home.
constexpr int StepKeys[] = {39, 37, 38, 40, 33, 34, 35, 36};

void (*orderDoor)(const InputEvent&) = Dispatch;

void ClickCell(int button, int cellX, int cellY) {
    orderDoor({EventKind::MouseDown, "frmField.area", -1, button, 0,
               static_cast<float>(cellX * CellSize + HalfCell),
               static_cast<float>(cellY * CellSize + HalfCell)});
}

void PressKey(int key) {
    orderDoor({EventKind::KeyDown, "frmField", -1, key});
}

}  // namespace

void SendOrdersTo(void (*door)(const InputEvent&)) {
    orderDoor = door;
}

void SelectOrWalkTo(int cellX, int cellY) {
    ClickCell(LeftButton, cellX, cellY);
}

void ActOn(int cellX, int cellY) {
    ClickCell(RightButton, cellX, cellY);
}

void TurnOrStepTo(Facing facing) {
    PressKey(StepKeys[facing]);
}

void TakeStance(Stance stance) {
    orderDoor({EventKind::Click, "frmField.imgStance", stance});
}

void PassToNext() {
    PressKey(SpaceKey);
}

void EndTurn() {
    orderDoor({EventKind::Click, "frmField.cmdNextTurn"});
}

void LeaveMission() {
    orderDoor({EventKind::Click, "frmField.mnuExit"});
}
