#include "shell/onlooker.h"

#include <cstdlib>
#include <utility>

#include "field/moving.h"
#include "view/forms.h"

namespace {

// The middle of a unit.
Happening At(HappeningKind kind, int unit) {
    const Unit& who = UnitTable[unit];
    return {.kind = kind, .unit = unit, .x = who.pixelX + HalfCell, .y = who.pixelY + HalfCell};
}

bool IsSeen(int unit) {
    const Unit& who = UnitTable[unit];
    return unit >= ChargeBase || TeamOfUnit(unit) == SquadTeam || ThisVisible(who.cellX, who.cellY);
}

// Whether a shot ends so near to a living soldier of the squad that he can't miss it.
bool EndsNearOurs(const Happening& shot) {
    constexpr int Near = 3 * CellSize;
    for (int i = 0; i <= teamLast[SquadTeam]; ++i) {
        const Unit& soldier = UnitTable[i];
        if (soldier.status != Dead && std::abs(soldier.pixelX + HalfCell - shot.toX) < Near &&
            std::abs(soldier.pixelY + HalfCell - shot.toY) < Near)
            return true;
    }
    return false;
}

}  // namespace

Onlooker::Onlooker(Witness whoListens) : witness(std::move(whoListens)) {
    WatchThrough(this);
}

Onlooker::~Onlooker() {
    WatchThrough(nullptr);
}

void Onlooker::MissionBegins() {
    FieldAudience::MissionBegins();
    statuses.fill(Active);
    wounds.fill({});
    flying.clear();
    meanwhile.clear();
    witness({.kind = HappeningKind::MissionBegins});
}

void Onlooker::MissionReady() {
    FieldAudience::MissionReady();
    for (std::size_t unit = 0; unit < statuses.size(); ++unit)
        statuses[unit] = UnitTable[static_cast<int>(unit)].status;
}

void Onlooker::TurnBegins() {
    FieldAudience::TurnBegins();
    witness({.kind = HappeningKind::TurnBegins, .unit = curTeam});
}

void Onlooker::LineLogged(const std::string& line) {
    FieldAudience::LineLogged(line);
    NoteDeaths();
}

void Onlooker::UnitHurt(int by, int damage) {
    FieldAudience::UnitHurt(by, damage);
    Happening hit = At(HappeningKind::Hit, curUnit);
    hit.by = by;
    hit.amount = damage;
    hit.seen = IsSeen(curUnit);
    hit.text = UnitTable[by].hand.name;
    hit.mode = fireModes.Text();
    if (UnitTable[curUnit].health == 0)
        wounds.at(static_cast<std::size_t>(int{curUnit})) = {by, hit.text, hit.mode};
    Report(hit);
}

void Onlooker::UnitSighted(int x, int y) {
    FieldAudience::UnitSighted(x, y);
    const int sighted = cellGrid[y][x].occupant;
    if (TeamOfUnit(curUnit) != SquadTeam || sighted < 0) return;
    Happening sighting = At(HappeningKind::Sighting, sighted);
    sighting.by = curUnit;
    witness(sighting);
}

void Onlooker::FiguresChanged(std::string_view what) {
    FieldAudience::FiguresChanged(what);
    NoteDeaths();
}

void Onlooker::OverlayBegins(Overlay overlay, int x, int y) {
    FieldAudience::OverlayBegins(overlay, x, y);
    if (overlay != Overlay::Blowup) return;
    witness({.kind = HappeningKind::Blast,
             .unit = curUnit,
             .x = (x + 1) * CellSize + HalfCell,
             .y = (y + 1) * CellSize + HalfCell});
}

void Onlooker::TrailChanged(std::string_view mode) {
    FieldAudience::TrailChanged(mode);
    if (mode == "initialize") {
        flying.push_back({.kind = HappeningKind::Shot,
                          .unit = curUnit,
                          .x = muzzleX,
                          .y = muzzleY,
                          .toX = muzzleX,
                          .toY = muzzleY,
                          .text = UnitTable[curUnit].hand.name,
                          .mode = fireModes.Text()});
    } else if (mode == "finalize" && !flying.empty()) {
        Land();
    }
}

void Onlooker::Land() {
    Happening shot = flying.back();
    flying.pop_back();
    shot.seen = IsSeen(shot.unit) || EndsNearOurs(shot);
    witness(shot);
    for (const Happening& happening : std::exchange(meanwhile, {}))
        Report(happening);
}

void Onlooker::Settle() {
    while (!flying.empty())
        Land();
}

void Onlooker::TrailDrawn(int pixelX, int pixelY) {
    FieldAudience::TrailDrawn(pixelX, pixelY);
    if (flying.empty()) return;
    flying.back().toX = pixelX;
    flying.back().toY = pixelY;
}

void Onlooker::UnitBroughtIntoView(int unit) {
    if (TeamOfUnit(unit) == SquadTeam) witness(At(HappeningKind::Selected, unit));
    FieldAudience::UnitBroughtIntoView(unit);
}

void Onlooker::Report(const Happening& happening) {
    flying.empty() ? witness(happening) : meanwhile.push_back(happening);
}

void Onlooker::NoteDeaths() {
    for (std::size_t place = 0; place < statuses.size(); ++place) {
        const int unit = static_cast<int>(place);
        const int status = UnitTable[unit].status;
        if (std::exchange(statuses[place], status) == status || status != Dead) continue;
        Happening death = At(HappeningKind::Death, unit);
        death.by = wounds[place].by;
        death.text = wounds[place].weapon;
        death.mode = wounds[place].mode;
        death.seen = IsSeen(unit);
        Report(death);
    }
}
