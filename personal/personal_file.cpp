#include "personal/personal_file.h"

#include <memory>
#include <string>

#include "combat/fire_modes.h"
#include "combat/things.h"
#include "mission/turns.h"
#include "personal/awards_page.h"
#include "personal/catalogue.h"
#include "personal/dossier.h"
#include "personal/dragging.h"
#include "personal/info_form.h"
#include "personal/inventory.h"
#include "platform/host.h"
#include "platform/keys.h"
#include "state/operation.h"
#include "state/state.h"
#include "view/depot_form.h"
#include "view/field_form.h"
#include "view/sound.h"

namespace {

// What is in slot 0 comes into the hand on the field. A weapon that was not changed keeps its fire mode.
void TakeUpHand() {
    const Unit& unit = UnitTable[curUnit];
    const std::string before = unit.hand.name;
    const int mode = unit.fireMode;
    RefreshHand();
    if (unit.hand.name == before && mode < static_cast<int>(fireModes.offered.size())) ChooseMode(mode);
}

void Unload() {
    TakeUpHand();
    SyncGroundSlots(false);
}

// The next place of the current team's ring.
int Neighbour(int unit, int step) {
    const int first = FirstOf(curTeam);
    const int last = first + teamLast[curTeam];
    unit += step;
    if (unit > last) return first;
    return unit < first ? last : unit;
}

bool IsFit(const Unit& unit) {
    return unit.status != Dead && unit.status != Immobile;
}

}  // namespace

void OpenInfo() {
    const int opened = curUnit;
    LoadInfo();
    TheHost().ShowModal(frmInfo);
    if (shownUnit != opened && curUnit == shownUnit) ShowSelection();
}

void LoadInfo() {
    std::destroy_at(&frmInfo);
    std::construct_at(&frmInfo);
    shownUnit = curUnit;
    dragSlot = NoSlot;
    arrowCode = NoStep;
    ShowButtonFace();
    FillInfoPanel();
    ShowSlots();
    ShowOrigin();
    ShowPack();
    SyncGroundSlots(true);
    ShowAwards();
    FillDossier();
    frmInfo.Visible = true;
}

bool CloseInfo() {
    if (Dragging()) return false;
    RunOperation([] {
        Unload();
        frmInfo.Visible = false;
        TheHost().Refresh(frmInfo);  // gone before the next soldier is selected
    });
    return true;
}

// The window is shown anew under the running modal loop, so paging through the squad all day nests nothing.
void PageUnit(int step) {
    if (Dragging()) return;
    RunOperation([step] {
        Unload();
        int next = Neighbour(curUnit, step);
        while (!IsFit(UnitTable[next]) && next != curUnit)
            next = Neighbour(next, step);
        curUnit = next;
        LoadInfo();
    });
}

void picB1_MouseDown() {
    PlaySoundAt("click", AtScreenCentre);
    frmInfo.picB1.canvas = *frmDepot.imgBut[std::stoi(frmInfo.picB1.Tag) + 1].Picture;
}

void picB1_MouseUp() {
    const bool second = frmInfo.picB1.Tag == "6";
    frmInfo.picB1.Tag = second ? "8" : "6";
    ShowButtonFace();
    frmInfo.Picture2.Visible = !second;
    if (!second) return;
    groundPage = 0;
    CloseInfo();
}

void personal::Form_KeyDown(int code, int shift) {
    if (code == EnterKey)
        CloseInfo();
    else
        PressCatalogueKey(code, shift);
}
