// The thin grey trail that a flight draws into the field, and takes away again without a trace.
#pragma once

#include <string_view>

/// Changes the trail as Audience::TrailChanged says.
void ChangeTrail(std::string_view mode);

/// Draws a pixel of the trail of the flight that runs.
void DrawTrail(int pixelX, int pixelY);

/// Forgets all trails, as a mission may have ended in the middle of a flight.
void ForgetTrails();
