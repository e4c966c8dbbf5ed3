#include "state/pace.h"

#include <chrono>
#include <cstdint>

#include "platform/host.h"
#include "state/audience.h"
#include "state/operation.h"
#include "state/state.h"

namespace {

using Picoseconds = std::chrono::duration<std::int64_t, std::pico>;

struct DelayMode {
    std::string_view word;
    std::int64_t passes;    // for n = 1; they grow with the square of n
    std::int64_t passTime;  // picoseconds
    bool pumps;
};

// The lengths of a pass are ours. Without events: so that a running step, 20 pixels of 400,000 passes, takes
// a tenth of a second. With events: so that the selection's flash, 65,000 passes, takes one second and a
// half; a bullet's trail, 1,000 passes, is then seen for 23 ms.
constexpr DelayMode Modes[] = {
    {"normal", 1000, 12'500, false},
    {"mode1", 1000, 23'077'000, true},
    {"mode2", 100, 23'077'000, true},
};

std::chrono::nanoseconds LengthOf(int n, const DelayMode& mode) {
    const Picoseconds time(std::int64_t{n} * n * mode.passes * mode.passTime);
    return std::chrono::duration_cast<std::chrono::nanoseconds>(time);
}

void PlayFrames(Overlay overlay, int wait, std::string_view mode) {
    constexpr int FrameCount = 5;
    for (int frame = 1; frame <= FrameCount; ++frame) {
        TheAudience().OverlayFrame(overlay, frame);
        Delay(wait, mode);
    }
}

// Waits with the frame shown or hidden. False when events have begun another flash meanwhile, which this one
// then leaves the frame to.
bool WaitInFlash(int unit, int flash, bool shown, int wait) {
    TheAudience().SelectionFlashed(unit, shown);
    Delay(wait, "mode1");
    return flash == flashCount;
}

}  // namespace

void Delay(int n, std::string_view mode) {
    for (const DelayMode& entry : Modes) {
        if (entry.word != mode || n <= 0) continue;
        if (entry.pumps)
            PumpKeepingOrder([&] { TheHost().Wait(LengthOf(n, entry), true); });
        else
            TheHost().Wait(LengthOf(n, entry), false);
    }
}

void DelayThen(int n, const std::function<void()>& putBack) {
    constexpr const DelayMode& Shown = Modes[1];
    TheAudience().ShowNow();
    TheHost().Wait(LengthOf(n, Shown), false);
    putBack();
    PumpKeepingOrder([] { TheHost().PumpEvents(); });
}

void ShowBlowup(int /*n*/, int x, int y) {
    TheAudience().OverlayBegins(Overlay::Blowup, x, y);
    PlayFrames(Overlay::Blowup, 1, "mode1");
    TheAudience().OverlayEnds(Overlay::Blowup);
}

void ShowTarget(int /*n*/, int x, int y) {
    constexpr int Rounds = 3;
    TheAudience().OverlayBegins(Overlay::Target, x, y);
    for (int round = 1; round <= Rounds; ++round)
        PlayFrames(Overlay::Target, round, "mode2");
    TheAudience().OverlayEnds(Overlay::Target);
}

void FlashSelection(int unit) {
    constexpr int Passes = 5;
    constexpr int HiddenWait = 3;
    constexpr int ShownWait = 2;
    const int flash = ++flashCount;
    for (int i = 0; i < Passes; ++i) {
        if (!WaitInFlash(unit, flash, false, HiddenWait)) return;
        if (!WaitInFlash(unit, flash, true, ShownWait)) return;
    }
    TheAudience().SelectionFlashed(unit, false);
}
