#include "shell/forecast.h"

#include "field/geometry.h"

namespace {

LeftClick LeftClickAt(int cellX, int cellY) {
    const int occupant = cellGrid[cellY][cellX].occupant;
    if (occupant >= 0 && TeamOfUnit(occupant) == TeamOfUnit(curUnit)) return LeftClick::Selects;
    if (IsStoreTile(cellX, cellY) && FacingStoreTile(curUnit)) return LeftClick::OpensStore;
    return LeftClick::Goes;
}

Refusal WhyNotSelected(const Unit& unit) {
    if (unit.status != Active) return {Why::CannotAct, 0, 0, unit.name};
    if (unit.time < TimeToAct) return {Why::SpentTime, 0, 0, unit.name};
    return {};
}

}  // namespace

bool MayForecast() {
    return curTeam == SquadTeam && TeamOfUnit(curUnit) == SquadTeam && operationDepth == 0 &&
           missionVerdict.empty() && UnitTable[curUnit].status != Dead;
}

Forecast ForecastAt(int x, int y) {
    Forecast forecast;
    const int cellX = CellOfPixel(x);
    const int cellY = CellOfPixel(y);
    forecast.cell = {cellX, cellY};
    Rehearsal rehearsal;
    forecast.left = LeftClickAt(cellX, cellY);
    forecast.act = ForecastAct(rehearsal, x, y);
    forecast.occupant = forecast.act.target;
    if (forecast.left == LeftClick::Goes)
        forecast.walk = ForecastWalk(rehearsal, cellX, cellY, static_cast<float>(x), static_cast<float>(y));
    if (forecast.left == LeftClick::Selects && forecast.occupant >= 0)
        forecast.selection = WhyNotSelected(rehearsal.Before().UnitTable[forecast.occupant]);
    return forecast;
}

void CountOdds(Forecast& forecast, int x, int y) {
    Rehearsal rehearsal;
    forecast.odds = CountOdds(rehearsal, forecast.act, x, y);
}

std::uint64_t StateMark() {
    std::uint64_t mark = 1469598103934665603U;
    const auto add = [&mark](int value) { mark = (mark ^ static_cast<unsigned>(value)) * 1099511628211U; };
    for (const int value : {int{curTeam}, int{curUnit}, int{orderCount}, int{lastClickX}, int{lastClickY},
                            int{fireModes.chosen}, static_cast<int>(fireInMotion), int{squadTurns}})
        add(value);
    for (int unit = 0; unit < FightingUnits; ++unit) {
        const Unit& who = UnitTable[unit];
        for (const int value : {int{who.pixelX}, int{who.pixelY}, int{who.facing}, int{who.stance},
                                int{who.status}, int{who.time}, int{who.energy}, int{who.health},
                                int{who.load}, int{who.handRounds}, int{who.hand.durab}})
            add(value);
        add(static_cast<int>(SquadHasSighted(unit)));
    }
    return mark;
}
