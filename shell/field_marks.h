// Thin marks over the field that help to aim and to walk: who is selected, who of the squad is hurt, the way
// of a walk, a target, a blast, and own men in danger.
#pragma once

#include "shell/forecast.h"
#include "shell/sketch.h"

/// Corners around `selected`, a soldier of the squad or -1, and a bar over each of the squad who lives and is
/// hurt.
void DrawSquadMarks(int selected, Sketch& onField);

void DrawForecast(const Forecast& forecast, Sketch& onField);
