#include "shell/order_check.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <optional>
#include <string_view>

#include "field/geometry.h"
#include "field/stances.h"
#include "field/walking.h"
#include "platform/keys.h"
#include "platform/rounding.h"
#include "shell/forecast.h"
#include "view/commands.h"
#include "view/field_form.h"

namespace {

const Unit& Current() {
    return UnitTable[curUnit];
}

// A turn is always paid for: who has less time than the longest takes isn't selected.
Refusal OfStep(int facing) {
    const Unit& unit = Current();
    if (unit.facing != facing) return {};
    const int x = unit.cellX + WayOf(facing).dx;
    const int y = unit.cellY + WayOf(facing).dy;
    if (!InField(x, y)) return {Why::FieldEnds};
    if (!CellFreeToStep(x, y)) return {Why::WayClosed, 0, 0, ObstacleAt(x, y)};
    if (unit.energy < EnergyOfStep(unit)) return {Why::StepEnergy, EnergyOfStep(unit), unit.energy};
    const int time = StepCosts.at(static_cast<std::size_t>(int{unit.stance})).time;
    if (unit.time < time) return {Why::StepTime, time, unit.time};
    return {};
}

Refusal OfMode(int by) {
    const int modes = static_cast<int>(fireModes.offered.size());
    if (modes <= 1) return {Why::OnlyMode, 0, 0, Current().hand.title};
    const int wanted = fireModes.chosen + by;
    return {wanted < 0 || wanted >= modes ? Why::LastMode : Why::None};
}

Refusal OfKey(const InputEvent& event) {
    if (frmField.bigMapShown || Current().status != Active) return {};
    if (event.code == OpenBracketKey) return OfMode(-1);
    if (event.code == CloseBracketKey) return OfMode(+1);
    const std::optional<int> facing = FacingOfKey(event.code);
    return facing ? OfStep(*facing) : Refusal{};
}

Refusal OfPress(const InputEvent& event) {
    const int x = WholePixel(event.x);
    const int y = WholePixel(event.y);
    if (!InField(CellOfPixel(x), CellOfPixel(y))) return {};
    const Forecast forecast = ForecastAt(x, y);
    if (event.code == RightButton) return forecast.act.refusal;
    if (event.code != LeftButton) return {};
    if (forecast.left == LeftClick::Selects) return forecast.selection;
    const bool walks = forecast.left == LeftClick::Goes && !forecast.walk.turnsFirst;
    return walks ? forecast.walk.refusal : Refusal{};
}

Refusal OfStance(const InputEvent& event) {
    const int steps = std::abs(Current().stance - event.index);
    if (steps == 0) return {Why::SameStance};
    if (Current().time < steps * StanceTime) return {Why::StanceTime, steps * StanceTime, Current().time};
    return {};
}

Refusal OfSwitch(const InputEvent& /*event*/) {
    if (Current().time < SwitchingTime) return {Why::SwitchTime, SwitchingTime, Current().time};
    return {};
}

Refusal Nothing(const InputEvent& /*event*/) {
    return {};
}

struct Check {
    std::string_view control;
    EventKind event;
    Refusal (*refusalOf)(const InputEvent& event);
};

constexpr Check Checks[] = {
    // clang-format off
    {"frmField",               EventKind::KeyDown,   OfKey},
    {"frmField.area",          EventKind::MouseDown, OfPress},
    {"frmField.imgStance",     EventKind::Click,     OfStance},
    {"frmField.imgStop",       EventKind::Click,     OfSwitch},
    {"frmField.cmdNextTurn",   EventKind::Click,     Nothing},
    {"frmField.comboMode",     EventKind::Choose,    Nothing},
    {"frmField.imgEnemyCount", EventKind::Click,     Nothing},
    {"frmField.mnuInfo",       EventKind::Click,     Nothing},
    {"frmField.picBarWeapon",  EventKind::Click,     Nothing},
    {"frmField.imgInv",        EventKind::Click,     Nothing},
    // clang-format on
};

const Check* CheckOf(const InputEvent& event) {
    const auto* const row = std::find_if(std::begin(Checks), std::end(Checks), [&event](const Check& check) {
        return check.event == event.kind && check.control == event.control;
    });
    return row == std::end(Checks) ? nullptr : row;
}

}  // namespace

bool IsOrder(const InputEvent& event) {
    return CheckOf(event) != nullptr;
}

bool IsMove(const InputEvent& event) {
    if (event.kind == EventKind::KeyDown) return event.control == "frmField" && FacingOfKey(event.code);
    if (event.kind != EventKind::MouseDown || event.control != "frmField.area") return false;
    const int x = CellOfPixel(WholePixel(event.x));
    const int y = CellOfPixel(WholePixel(event.y));
    return event.code == LeftButton && x == lastClickX && y == lastClickY && InField(x, y) &&
           TeamOfUnit(cellGrid[y][x].occupant) != SquadTeam;
}

Refusal RefusalOf(const InputEvent& event) {
    const Check* const check = CheckOf(event);
    if (check == nullptr) return {};
    if (curTeam != SquadTeam) return {Why::NotOurTurn};
    return MayForecast() ? check->refusalOf(event) : Refusal{};
}
