// The one wait that paces everything seen, and the short shows that wait and let events run: the explosion,
// the card, the selection's flash, the moment in which a trail is seen. The audience draws, these wait.
#pragma once

#include <functional>
#include <string_view>

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

/// Flashes the selection's frame on a unit, on which the frame must lie. A flash that events begin meanwhile
/// ends this one.
void FlashSelection(int unit);
