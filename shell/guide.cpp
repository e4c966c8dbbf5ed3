#include "shell/guide.h"

#include "field/geometry.h"
#include "personal/info_form.h"
#include "platform/rounding.h"
#include "shell/field_marks.h"
#include "shell/order_check.h"
#include "view/field_form.h"

namespace {

using std::chrono::milliseconds;

constexpr milliseconds Rest(60);       // of the pointer, before the odds are counted
constexpr milliseconds SaidFor(4000);  // the least that a refusal is read

// What an order to move changes.
struct Standing {
    i16 unit = curUnit;
    i16 team = curTeam;
    i16 time = UnitTable[curUnit].time;
    i16 energy = UnitTable[curUnit].energy;
    i16 pixelX = UnitTable[curUnit].pixelX;
    i16 pixelY = UnitTable[curUnit].pixelY;
    u8 facing = UnitTable[curUnit].facing;

    bool operator==(const Standing&) const = default;
};

// The squad's turn, with the field in sight.
bool IsOurView() {
    return curTeam == SquadTeam && frmField.area.Visible && !frmField.bigMapShown && !frmInfo.Visible;
}

std::vector<ReadoutLine> EnemysTurn() {
    return {{"The enemy's turn", Tone::Warning}};
}

}  // namespace

Refusal Guide::Pass(const InputEvent& event, Moment now, const std::function<void()>& door) {
    NotePointer(event, now);
    if (!IsOrder(event) || frmInfo.Visible) {
        door();
        return {};
    }
    Refusal refusal = RefusalOf(event);
    const bool moves = MayForecast() && IsMove(event);
    const Standing before;
    said = {};
    door();
    if (!refusal && moves && before == Standing()) refusal = {Why::Nothing};
    if (!refusal) return {};
    said = refusal;
    saidAt = now;
    return refusal;
}

void Guide::NotePointer(const InputEvent& event, Moment now) {
    const bool onField = event.control == "frmField.area";
    if (event.kind != EventKind::MouseMove && !(onField && event.kind == EventKind::MouseDown)) return;
    pointer.reset();
    if (onField)
        pointer = Place{WholePixel(event.x) + frmField.area.Left, WholePixel(event.y) + frmField.area.Top};
    if (event.kind == EventKind::MouseMove && now - saidAt >= SaidFor) said = {};
}

std::optional<Spot> Guide::PixelUnderPointer() const {
    if (!pointer) return {};
    const int x = pointer->x - frmField.area.Left;
    const int y = pointer->y - frmField.area.Top;
    if (!InField(CellOfPixel(x), CellOfPixel(y))) return {};
    return Spot{x, y};
}

void Guide::Renew(Moment now) {
    const std::optional<Spot> pixel = PixelUnderPointer();
    if (!pixel) return forecast.reset();
    if (!MayForecast()) return;
    // One place stands for a whole cell, so that moving within it changes nothing.
    const int x = CellOfPixel(pixel->x) * CellSize + HalfCell;
    const int y = CellOfPixel(pixel->y) * CellSize + HalfCell;
    const std::uint64_t mark = StateMark() * 31 + static_cast<std::uint64_t>(x * FieldHeight * CellSize + y);
    if (!forecast || mark != forecastMark) {
        forecast = ForecastAt(x, y);
        forecastMark = mark;
        forecastBegun = now;
    } else if (!forecast->odds && now - forecastBegun >= Rest) {
        CountOdds(*forecast, x, y);
    }
}

void Guide::Look(Moment now, Sketch& onField) {
    if (operationDepth == 0 || TeamOfUnit(selected) != SquadTeam)
        selected = curTeam == SquadTeam && TeamOfUnit(curUnit) == SquadTeam ? int{curUnit} : -1;
    if (IsOurView()) {
        Renew(now);
        DrawSquadMarks(selected, onField);
        if (forecast) DrawForecast(*forecast, onField);
    } else {
        forecast.reset();
    }
    FillReadout(readout, curTeam == SquadTeam ? selected : -1, Lines());
}

void Guide::LookAway() {
    forecast.reset();
    FillReadout(readout, -1, EnemysTurn());
}

bool Guide::IsWaiting() const {
    return forecast && !forecast->odds && IsOurView() && MayForecast();
}

std::vector<ReadoutLine> Guide::Lines() const {
    if (curTeam == EnemyTeam && !said) return EnemysTurn();
    std::vector<ReadoutLine> lines = Wrapped(WordsOf(said), Tone::Warning);
    std::vector<ReadoutLine> below;
    if (forecast && selected == curUnit)
        below = LinesOf(*forecast);
    else if (selected >= 0 && squadTurns > 0)
        below = LinesOf(UnitTable[selected]);
    lines.insert(lines.end(), below.begin(), below.end());
    return lines;
}
