#include "tools/player/orders.h"

#include "field/stances.h"
#include "mission/mission_end.h"
#include "mission/orders.h"
#include "mission/turns.h"
#include "platform/keys.h"

namespace {

// By facing.
constexpr int StepKeys[] = {RightKey, LeftKey, UpKey, DownKey, PageUpKey, PageDownKey, EndKey, HomeKey};

void (*orderDoor)(const InputEvent&) = nullptr;

// The input that gives an order, and the order itself.
template <typename Order>
void Give(const InputEvent& event, Order order) {
    if (orderDoor != nullptr)
        orderDoor(event);
    else if (BeginOrder())
        order();
}

float CentreOf(int cell) {
    return static_cast<float>(cell * CellSize + HalfCell);
}

InputEvent Press(int button, int cellX, int cellY) {
    return {EventKind::MouseDown, "frmField.area", -1, button, 0, CentreOf(cellX), CentreOf(cellY)};
}

InputEvent Key(int code) {
    return {EventKind::KeyDown, "frmField", -1, code};
}

}  // namespace

void SendOrdersTo(void (*door)(const InputEvent&)) {
    orderDoor = door;
}

void SelectOrWalkTo(int cellX, int cellY) {
    Give(Press(LeftButton, cellX, cellY), [cellX, cellY] {
        if (!SelectAt(cellX, cellY)) GoTo(cellX, cellY, CentreOf(cellX), CentreOf(cellY));
    });
}

void ActOn(int cellX, int cellY) {
    Give(Press(RightButton, cellX, cellY), [cellX, cellY] { ActAt(CentreOf(cellX), CentreOf(cellY)); });
}

void TurnOrStepTo(Facing facing) {
    Give(Key(StepKeys[facing]), [facing] {
        PassOverUnfit();
        StepTo(facing);
    });
}

void TakeStance(Stance stance) {
    Give({EventKind::Click, "frmField.imgStance", stance}, [stance] { SetStance(stance); });
}

void PassToNext() {
    Give(Key(SpaceKey), [] {
        PassOverUnfit();
        ++orderCount;
        SelectNextUnit();
    });
}

void EndTurn() {
    Give({EventKind::Click, "frmField.cmdNextTurn"}, NewTurn);
}

void LeaveMission() {
    if (orderDoor != nullptr)
        orderDoor({EventKind::Click, "frmField.mnuExit"});
    else
        EndGame();
}
