// Short animations over the field, shown in image controls of their own.
#pragma once

#include <string>

#include "state/audience.h"

struct ImageControl;

// Does with an overlay's control what the audience is told of the overlay.
void PutOverlay(Overlay overlay, int x, int y);
void ShowOverlayFrame(Overlay overlay, int frame);
void RestOverlay(Overlay overlay);

/// Puts an overlay's control away: hidden, without a picture, at its place of rest.
void RestOverlay(ImageControl& image);

/// A number of a picture file: two digits at least.
std::string TwoDigits(int number);
