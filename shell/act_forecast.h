// What the right button would come to on a cell of the field: a shot, a throw, a blow, a cure, a spadeful,
// by what is in hand and its chosen mode. The chance is counted over many orders on a copy, as the lab counts
// it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/refusal.h"
#include "shell/rehearsal.h"

/// One of the squad who may be hurt, and in which share of the orders he is; below 0: not counted, he is
/// within a blast to come.
struct Danger {
    int unit = -1;
    double share = 0;

    bool operator==(const Danger&) const = default;
};

/// Shares are of the orders, 0 to 1.
struct Odds {
    double hits = 0;  // orders that cost the target some health
    double kills = 0;
    double disables = 0;  // left it immobile or dead
    double damage = 0;    // health that an order costs it, on average; below 0 it is given back
    std::vector<Danger> ours;

    bool operator==(const Odds&) const = default;
};

struct ActForecast {
    bool known = false;  // something is in hand that acts
    std::string_view family;
    std::string mode;  // as the list has it
    int time = 0;      // for turning and all rounds
    int rounds = 0;    // of the order, 0 for what fires none
    int paid = 0;      // of them, as far as time, condition and load go
    int range = 0;     // cells
    int distance = 0;  // cells, the longer of the two ways
    bool blasts = false;
    int target = -1;  // who stands there, as far as the squad knows
    Refusal refusal;
};

/// For the current unit and a pixel of the field.
ActForecast ForecastAct(Rehearsal& rehearsal, int x, int y);

/// The odds of that order; the same ones for the same state.
Odds CountOdds(Rehearsal& rehearsal, const ActForecast& act, int x, int y);
