#include "personal/catalogue.h"

#include <algorithm>
#include <array>

#include "data/new_item.h"
#include "data/tables.h"
#include "data/weapons_file.h"
#include "personal/info_form.h"
#include "personal/inventory.h"
#include "platform/keys.h"
#include "platform/rounding.h"
#include "view/slots.h"

namespace {

constexpr int KeyPause = 800;    // milliseconds before a held key steps again, once one was let go
constexpr int ArrowPause = 400;  // the same for an arrow under the mouse

struct CatalogueKey {
    int code;
    CatalogueStep step;
    CatalogueStep shifted;
};

constexpr std::array<CatalogueKey, 4> CatalogueKeys = {{
    {UpKey, PreviousRow, PreviousFeed},
    {Pad8Key, PreviousRow, PreviousFeed},
    {DownKey, NextRow, NextFeed},
    {Pad2Key, NextRow, NextFeed},
}};

InvItem& Held() {
    return UnitTable[curUnit].items[0];
}

const WeaponInfo& Row() {
    return weaponTable[static_cast<std::size_t>(static_cast<int>(weaponPage))];
}

// The capacity of a feed step of the row; 0 where there is none. Step 0 of a weapon is the weapon without a
// feed.
int FeedSize(int step) {
    const auto& sizes = ItemKindByName(Row().weaponClass).sizes;
    const int place = ItemClass(Row().name) == "Weapon" ? step - 1 : step;
    return place < 0 ? 0 : static_cast<int>(sizes[place]);
}

void StepRow(int by) {
    constexpr int FirstRow = 1;  // before it is the bare hand
    const int last = static_cast<int>(weaponTable.size()) - 1;
    weaponPage = std::clamp(weaponPage + by, FirstRow, last);
    feedStep = 0;
    const bool hasSizes = Row().kind == "m" || Row().kind == "a";
    frmInfo.imgUpDn[2].Visible = hasSizes;
    frmInfo.imgUpDn[3].Visible = hasSizes;
    frmInfo.imgUpDn[1].Visible = true;  // the catalogue's own arrow comes up with its first step
    Held() = MakeItem(Row());
}

void StepFeed(int by) {
    // The sizes are those of the catalogue's row, and fit nothing else that may be in the hand.
    if (Held().name != Row().name) return;
    constexpr int LastStep = 6;
    if (by < 0 && feedStep > 0) --feedStep;
    if (by > 0 && feedStep < LastStep && FeedSize(feedStep + 1) != 0) ++feedStep;
    Held().capMain = FeedSize(feedStep);
    Held().roundsMain = Held().capMain;
}

void Hold(int step, bool held) {
    arrowCode = step;
    frmInfo.timerArrow.Enabled = held;
}

void Press(CatalogueStep step) {
    Hold(step, true);
    StepCatalogue();
}

// ODDITY: the window opens with no pause set, so the first key held in it doesn't repeat; once a key or an
// arrow was let go, they do.
void Release(int pause) {
    Hold(NoStep, false);
    frmInfo.timerArrow.Interval = pause;
}

}  // namespace

void StepCatalogue() {
    switch (arrowCode) {
        case PreviousRow:
            StepRow(-1);
            break;
        case NextRow:
            StepRow(+1);
            break;
        case PreviousFeed:
            StepFeed(-1);
            break;
        case NextFeed:
            StepFeed(+1);
            break;
        default:
            break;
    }
    ShowSlot(0, frmInfo);
    ShowOrigin();
}

void imgUpDn_MouseDown(int arrow) {
    Press(static_cast<CatalogueStep>(arrow + 1));
}

void imgUpDn_MouseUp() {
    Release(ArrowPause);
}

void timerArrow_Timer() {
    if (arrowCode == NoStep) return;
    constexpr double Quicker = 10;  // a tenth less each time
    int& pause = frmInfo.timerArrow.Interval;
    pause -= static_cast<int>(RoundHalfEven(pause / Quicker));
    StepCatalogue();
}

void PressCatalogueKey(int code, int shift) {
    for (const CatalogueKey& key : CatalogueKeys) {
        if (key.code != code) continue;
        const CatalogueStep step = shift == 0 ? key.step : key.shifted;
        // The keyboard's own repeat of a held key isn't another press.
        if (arrowCode != step) Press(step);
    }
}

void personal::Form_KeyUp() {
    Release(KeyPause);
}
