// What the two buttons of the mouse would come to at a place of the field, and whom it may hurt. It is worked
// out on a copy (shell/rehearsal) and leaves the game as it is. It knows of no enemy that the squad hasn't
// sighted.
#pragma once

#include <optional>

#include "shell/act_forecast.h"
#include "shell/walk_forecast.h"

enum class LeftClick { Goes, Selects, OpensStore };

struct Forecast {
    Spot cell;
    LeftClick left = LeftClick::Goes;
    int occupant = -1;  // who stands there, as far as the squad knows
    WalkForecast walk;  // where the left button goes
    Refusal selection;  // where it selects
    ActForecast act;
    std::optional<Odds> odds;  // once they were counted
};

/// Whether the squad awaits an order and nothing runs that a rehearsal would get in the way of.
bool MayForecast();

/// For the current unit and a pixel of the field, without the odds; those take longer.
Forecast ForecastAt(int x, int y);

void CountOdds(Forecast& forecast, int x, int y);

/// Everything that a forecast depends on, as a number: while it stays the same, so do the forecasts.
std::uint64_t StateMark();
