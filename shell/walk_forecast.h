// What the left button would come to on a free cell of the field: a turn, and a walk.
#pragma once

#include <string>
#include <vector>

#include "shell/refusal.h"
#include "shell/rehearsal.h"

struct WalkForecast {
    bool known = false;           // there is such an order
    bool turnsFirst = false;      // a click only turns; one more walks
    int turnTime = 0;             // of that click
    bool closed = false;          // nobody can stand on the cell: he stops beside it
    std::vector<Footstep> steps;  // all steps of the way
    std::size_t paid = 0;         // of them, as far as his time and energy go
    int time = 0;                 // of the whole, with the turn
    int energy = 0;
    int timeLeft = 0;  // after what he pays
    int energyLeft = 0;
    Refusal refusal;
};

/// For the current unit and a cell of the field on which no comrade stands.
WalkForecast ForecastWalk(Rehearsal& rehearsal, int cellX, int cellY, float x, float y);

/// What stands in the way on a cell, as far as the squad knows: a name, or a class of ground.
std::string ObstacleAt(int cellX, int cellY);

/// What a step costs the unit in energy, by its stance and its load.
int EnergyOfStep(const Unit& unit);
