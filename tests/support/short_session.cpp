#include "tests/support/short_session.h"

#include <cstddef>
#include <iterator>

#include "personal/info_form.h"
#include "state/state.h"
#include "tools/player/orders.h"
#include "view/events.h"

namespace {

constexpr int EnterKey = 13;
constexpr int GrenadeSlot = 13;
constexpr int FreeLongSlot = 2;

void PressSlot(int slot) {
    const ImageControl& image = frmInfo.imgInv[slot];
    const auto x = static_cast<float>(image.Left + 5);
    const auto y = static_cast<float>(image.Top + 5);
    Dispatch({EventKind::MouseMove, "frmInfo", -1, 0, 0, x, y});
    Dispatch({EventKind::MouseDown, "frmInfo", -1, 1, 0, x, y});
}

void PressKeyOn(const char* form, int code) {
    Dispatch({EventKind::KeyDown, form, -1, code});
    Dispatch({EventKind::KeyUp, form, -1, code});
}

void OnFile(EventKind kind, const char* control, int index = -1) {
    Dispatch({kind, control, index, 1});
}

constexpr void (*InFile[])() = {
    [] { PressSlot(GrenadeSlot); },
    [] { PressSlot(0); },
    [] { PressSlot(FreeLongSlot); },
    [] { OnFile(EventKind::Click, "frmInfo.cmdNext"); },
    [] { OnFile(EventKind::Click, "frmInfo.cmdPrev"); },
    [] { OnFile(EventKind::MouseDown, "frmInfo.imgUpDn", 0); },
    [] {},  // the arrow's timer ticks
    [] { OnFile(EventKind::MouseUp, "frmInfo.imgUpDn", 0); },
    [] { PressKeyOn("frmInfo", EnterKey); },
};

std::size_t doneInFile = 0;

void FireEast(int cells) {
    const Unit& unit = UnitTable[curUnit];
    ActOn(unit.cellX + cells, unit.cellY);
}

// The first click on a cell turns to it, the second goes there.
void Walk() {
    const int x = UnitTable[curUnit].cellX + 1;
    const int y = UnitTable[curUnit].cellY + 4;
    SelectOrWalkTo(x, y);
    SelectOrWalkTo(x, y);
}

constexpr Stage Stages[] = {
    {"walk", Walk},
    {"fire", [] { FireEast(8); }},
    {"file", [] { PressKeyOn("frmField", EnterKey); }},
    {"throw", [] { FireEast(6); }},
    {"select", [] { PassToNext(); }},
    {"computer", [] { EndTurn(); }},
    {"leave", [] { LeaveMission(); }},
};

}  // namespace

void PlayStages(std::string_view wanted, const std::function<void(const Stage&)>& play) {
    doneInFile = 0;
    for (const Stage& stage : Stages)
        if (wanted.empty() || wanted == stage.name) play(stage);
}

void NextInFile() {
    if (frmInfo.Visible && doneInFile < std::size(InFile)) InFile[doneInFile++]();
}
