// Short animations over the field, shown in image controls of their own, and the one wait that paces
// everything seen.
#pragma once

#include <functional>
#include <string>
#include <string_view>

struct ImageControl;

/// Waits for a time that grows with the square of `n`. "normal" lets no events run; "mode1" and "mode2" do,
/// and "mode2" is a tenth of "mode1". Any other word returns at once.
void Delay(int n, std::string_view mode);

/// Delay(n, "mode1") for something that is shown only meanwhile: `putBack` takes it away before any event
/// runs.
void DelayThen(int n, const std::function<void()>& putBack);

/// Plays the explosion over three by three cells, its top left one at (x, y), which may lie outside the
/// field. The first argument is not looked at, here and below.
void ShowBlowup(int n, int x, int y);

/// Plays the target marker on cell (x, y), three times, slower each time. A forest overlay on show is
/// displaced.
void ShowTarget(int n, int x, int y);

/// Puts an overlay's control away: hidden, without a picture, at its place of rest.
void RestOverlay(ImageControl& image);

/// A number of a picture file: two digits at least.
std::string TwoDigits(int number);
