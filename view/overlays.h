// Short animations over the field, shown in image controls of their own.
#pragma once

#include <string>

#include "state/audience.h"

struct ImageControl;

// What the rules report of an overlay, done to its control.
void PutOverlay(Overlay overlay, int x, int y);
void ShowOverlayFrame(Overlay overlay, int frame);
void RestOverlay(Overlay overlay);

/// Puts an overlay's control away: hidden, without a picture, at its place of rest.
void RestOverlay(ImageControl& image);

/// A number of a picture file: two digits at least.
std::string TwoDigits(int number);
