#include "view/overlays.h"

#include <chrono>
#include <cstdint>

#include "platform/host.h"
#include "state/operation.h"
#include "state/state.h"
#include "view/field_form.h"

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

constexpr int FrameCount = 5;
constexpr int RestLeft = 660;
constexpr int RestTop = 20;

void ShowFrames(ImageControl& image, const std::string& folder, int wait, std::string_view mode) {
    for (int frame = 1; frame <= FrameCount; ++frame) {
        LoadPicture(image, "\\pic\\" + folder + "\\" + TwoDigits(frame) + ".gif");
        Delay(wait, mode);
    }
}

void PutOnCell(ImageControl& image, int x, int y) {
    image.Left = x * CellSize;
    image.Top = y * CellSize;
    image.Visible = true;
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
    TheHost().Refresh(frmField.area);
    TheHost().Wait(LengthOf(n, Shown), false);
    putBack();
    PumpKeepingOrder([] { TheHost().PumpEvents(); });
}

void RestOverlay(ImageControl& image) {
    image.Visible = false;
    LoadPicture(image, "");
    image.Left = RestLeft;
    image.Top = RestTop;
}

void ShowBlowup(int /*n*/, int x, int y) {
    PutOnCell(frmField.imgBlowup, x, y);
    ShowFrames(frmField.imgBlowup, "blowup", 1, "mode1");
    RestOverlay(frmField.imgBlowup);
}

void ShowTarget(int /*n*/, int x, int y) {
    constexpr int Rounds = 3;
    PutOnCell(frmField.imgCover, x, y);
    for (int round = 1; round <= Rounds; ++round)
        ShowFrames(frmField.imgCover, "target", round, "mode2");
    RestOverlay(frmField.imgCover);
}

std::string TwoDigits(int number) {
    return (number < 10 ? "0" : "") + std::to_string(number);
}
