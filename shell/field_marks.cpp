#include "shell/field_marks.h"

#include <algorithm>

namespace {

constexpr Colour Shadow = Faded(Rgb(0, 0, 0), 0.55);
constexpr Colour Selection = Rgb(244, 255, 232);
constexpr Colour Healthy = Rgb(128, 220, 112);
constexpr Colour Hurt = Rgb(255, 200, 64);
constexpr Colour Dying = Rgb(255, 92, 72);
constexpr Colour Way = Rgb(214, 244, 170);
constexpr Colour PartOfWay = Rgb(255, 206, 92);
constexpr Colour BeyondPurse = Faded(Rgb(190, 190, 190), 0.6);
constexpr Colour Target = Rgb(255, 236, 170);
constexpr Colour Refused = Faded(Rgb(190, 190, 190), 0.8);
constexpr Colour InDanger = Rgb(255, 64, 48);
constexpr Colour Blast = Faded(Rgb(255, 150, 60), 0.85);

float MiddleOf(int cell) {
    return static_cast<float>(cell * CellSize + HalfCell);
}

// An angle at a corner, with its arms towards the middle of the cell.
void AddCorner(float x, float y, float right, float down, float breadth, Colour colour, Sketch& sketch) {
    constexpr float Arm = 5;
    sketch.push_back(Line(x, y, x + Arm * right, y, breadth, colour));
    sketch.push_back(Line(x, y, x, y + Arm * down, breadth, colour));
}

void DrawCorners(const Unit& unit, Sketch& sketch) {
    constexpr float Inset = 0.5F;
    constexpr float Thin = 1.2F;
    const float left = static_cast<float>(unit.pixelX) + Inset;
    const float top = static_cast<float>(unit.pixelY) + Inset;
    const float side = CellSize - 2 * Inset;
    for (const auto& [breadth, colour] : {std::pair(2.6F, Shadow), std::pair(Thin, Selection)}) {
        AddCorner(left, top, 1, 1, breadth, colour, sketch);
        AddCorner(left + side, top, -1, 1, breadth, colour, sketch);
        AddCorner(left, top + side, 1, -1, breadth, colour, sketch);
        AddCorner(left + side, top + side, -1, -1, breadth, colour, sketch);
    }
}

void DrawHealth(const Unit& unit, Sketch& sketch) {
    constexpr float Width = 16;
    constexpr float Height = 2;
    const float share = static_cast<float>(unit.health) / static_cast<float>(unit.vitality);
    const float x = static_cast<float>(unit.pixelX) + 2;
    const float y = static_cast<float>(unit.pixelY) - 4;
    sketch.push_back(Box(x - 1, y - 1, Width + 2, Height + 2, Shadow));
    const Colour colour = unit.status == Active ? share > 0.75F ? Healthy : Hurt : Dying;
    sketch.push_back(Box(x, y, Width * share, Height, colour));
}

void AddDot(Spot cell, float across, Colour colour, Sketch& sketch) {
    const float x = MiddleOf(cell.x);
    const float y = MiddleOf(cell.y);
    sketch.push_back(Disc(x, y, across + 2, Faded(Shadow, 0.7)));
    sketch.push_back(Disc(x, y, across, colour));
}

void AddRing(float x, float y, float across, Colour colour, Sketch& sketch) {
    sketch.push_back(Ring(x, y, across + 2, Shadow));
    sketch.push_back(Ring(x, y, across, colour));
}

void DrawWay(const WalkForecast& walk, Sketch& sketch) {
    constexpr float Across = 4;
    const bool whole = walk.paid >= walk.steps.size();
    for (std::size_t i = 0; i < walk.steps.size(); ++i)
        AddDot(walk.steps[i].cell, Across, i >= walk.paid ? BeyondPurse : whole ? Way : PartOfWay, sketch);
    if (walk.paid == 0) return;
    const Spot end = walk.steps[std::min(walk.paid, walk.steps.size()) - 1].cell;
    AddRing(MiddleOf(end.x), MiddleOf(end.y), 12, whole ? Way : PartOfWay, sketch);
}

void RingUnit(int unit, Colour colour, Sketch& sketch) {
    const Unit& who = UnitTable[unit];
    AddRing(static_cast<float>(who.pixelX + HalfCell), static_cast<float>(who.pixelY + HalfCell), 25, colour,
            sketch);
}

void DrawBlast(Spot cell, Sketch& sketch) {
    const auto x = static_cast<float>((cell.x - 1) * CellSize);
    const auto y = static_cast<float>((cell.y - 1) * CellSize);
    constexpr float Side = 3 * CellSize;
    sketch.push_back(Outline(x, y, Side, Side, 2.5F, Faded(Shadow, 0.6)));
    sketch.push_back(Outline(x, y, Side, Side, 1.2F, Blast));
}

}  // namespace

void DrawSquadMarks(int selected, Sketch& onField) {
    for (int soldier = 0; soldier <= teamLast[SquadTeam]; ++soldier) {
        const Unit& unit = UnitTable[soldier];
        if (unit.status == Dead || unit.status == NotLanded) continue;
        if (unit.health < unit.vitality) DrawHealth(unit, onField);
        if (soldier == selected) DrawCorners(unit, onField);
    }
}

void DrawForecast(const Forecast& forecast, Sketch& onField) {
    if (forecast.left == LeftClick::Goes && forecast.occupant < 0) DrawWay(forecast.walk, onField);
    const ActForecast& act = forecast.act;
    if (!act.known) return;
    if (act.blasts && act.paid > 0 && act.refusal.why != Why::BeyondReach) DrawBlast(forecast.cell, onField);
    if (act.target >= 0 && TeamOfUnit(act.target) == EnemyTeam)
        RingUnit(act.target, act.refusal ? Refused : Target, onField);
    if (!forecast.odds) return;
    for (const Danger& danger : forecast.odds->ours)
        RingUnit(danger.unit, InDanger, onField);
}
