#include "combat/things.h"

#include <string>

#include "combat/actions.h"
#include "combat/costs.h"
#include "data/countries_file.h"
#include "data/weapons_file.h"
#include "field/geometry.h"
#include "platform/rounding.h"
#include "state/state.h"
#include "view/field_form.h"
#include "view/log.h"
#include "view/painting.h"
#include "view/panel.h"

namespace {

using Pile = Array<InvItem, 0, CellItemSlots - 1>;

constexpr int LastDroppedSlot = 9;

// The first free place of a pile, nullptr when all thirty are taken.
InvItem* FreePlace(Pile& pile) {
    for (InvItem& place : pile)
        if (place.name.empty()) return &place;
    return nullptr;
}

void ClearMarker(Unit& marker) {
    marker.name = "";
    marker.cellX = 0;
    marker.cellY = 0;
}

// What the current unit fights with: the thing in slot 0, or bare hands.
std::string FightingName() {
    const std::string& name = UnitTable[curUnit].items[0].name;
    if (name.empty()) return "hand";
    return ItemClass(name) == "Thing" && name != "med" ? "hand" : name;
}

// Bare hands are nobody's make.
void ShowMakersFlag(const WeaponInfo& hand) {
    const bool bare = hand.name == "hand";
    LoadPicture(frmField.imgFlag, bare ? "" : "\\pic\\flags\\" + hand.country + ".gif");
    frmField.imgFlag.ToolTipText = bare ? "" : CountryName(hand.country);
}

ImageControl& SlotImage(int slot, Form& form) {
    Control* image = form.Find("imgInv", slot);
    if (image == nullptr)
        throw RunTimeError(Fault::Subscript, "imgInv(" + std::to_string(slot) + ") of " + form.name);
    return *static_cast<ImageControl*>(image);
}

// The end of a thing's picture name: weapons and magazines are shown by their capacity.
std::string PictureSuffix(const InvItem& item, const WeaponInfo& row) {
    if (item.name == "40gren") return "he";
    return row.kind == "m" || row.kind == "a" ? std::to_string(item.capMain) : "";
}

}  // namespace

// ODDITY: the second feed and the condition stay in an emptied slot; the next thing there that doesn't set
// them has them.
void ClearItem(int slot) {
    InvItem& item = UnitTable[curUnit].items[slot];
    item.name = "";
    item.ammoMain = "";
    item.count = 0;
    item.capMain = 0;
    item.roundsMain = 0;
}

int CountAt(int x, int y, int base) {
    const int team = static_cast<int>(RoundHalfEven(base / static_cast<double>(TeamStride)));
    int count = 0;
    for (int i = base; i <= base + teamLast[team]; ++i)
        if (UnitTable[i].cellX == x && UnitTable[i].cellY == y) ++count;
    return count;
}

void WeaponAdd(int x, int y) {
    if (CountAt(x, y, PileBase) > 0) return;
    if (teamLast[PileList] + 1 == MaxPiles) return AddToLog("no room for another pile of things", 1);
    AddToLog("weapon dropped", 1);
    ++teamLast[PileList];
    Unit& marker = UnitTable[PileBase + teamLast[PileList]];
    marker.name = "weapon";
    marker.cellX = x;
    marker.cellY = y;
    PaintCell(x, y, frmField.area.canvas);
}

void WeaponRemove(int x, int y) {
    const int last = PileBase + teamLast[PileList];
    for (int i = PileBase; i <= last; ++i) {
        if (UnitTable[i].cellX != x || UnitTable[i].cellY != y) continue;
        AddToLog("weapon picked up", 1);
        ClearMarker(UnitTable[i]);
        for (int j = i; j < PileBase + teamLast[PileList]; ++j) {
            UnitTable[j] = UnitTable[j + 1];
            ClearMarker(UnitTable[j + 1]);
        }
        --teamLast[PileList];
    }
    PaintCell(x, y, frmField.area.canvas);
}

void DropAll(int unit) {
    const Unit& dropper = UnitTable[unit];
    for (int slot = 0; slot <= LastDroppedSlot; ++slot) {
        if (dropper.items[slot].name.empty()) continue;
        InvItem* place = FreePlace(groundItems[dropper.cellY][dropper.cellX]);
        if (place == nullptr) continue;
        *place = dropper.items[slot];
        ClearItem(slot);
    }
    WeaponAdd(dropper.cellX, dropper.cellY);
    if (TeamOfUnit(unit) == SquadTeam) RefreshHand();
}

// ODDITY: the row is copied anew, so a worn weapon is as new whenever its soldier is selected or takes it up
// again.
void RefreshHand() {
    WeaponInfo& hand = UnitTable[curUnit].hand;
    hand = WeaponInfoByName(FightingName());
    if (hand.name != game.modes.weapon)
        ListActions();
    else
        HandSync("real2fake");
    // ODDITY: also for the computer's units, so the panel shows the enemy's weapon in his turn.
    ShowSlot(0, frmField);
    ShowStatus("durab");
    ShowMakersFlag(hand);
}

void ShowHand() {
    const Unit& unit = UnitTable[curUnit];
    ShowModes();
    ShowWeaponBox(unit.handRounds);
    ShowSlot(0, frmField);
    ShowMakersFlag(unit.hand);
    RedrawPanel();
}

void ShowSlot(int slot, Form& form) {
    const InvItem& item = UnitTable[curUnit].items[slot];
    ImageControl& image = SlotImage(slot, form);
    if (item.name.empty()) {
        image.ToolTipText = "";
        return LoadPicture(image, "");
    }
    FitSlot(slot, form);
    const WeaponInfo& row = WeaponInfoByName(item.name);
    image.ToolTipText = row.fullName;
    LoadPicture(image, "\\pic\\inv\\" + item.name + PictureSuffix(item, row) + ".gif");
}

void FitSlot(int slot, Form& form) {
    constexpr int LongWidth = 117;
    constexpr int SmallWidth = 42;
    constexpr int Shift = 37;  // from a long place's left edge to a small thing in its middle
    const InvItem& item = UnitTable[curUnit].items[slot];
    ImageControl& image = SlotImage(slot, form);
    const bool isBase = image.Tag.find("base") != std::string::npos;
    const bool isLarge = image.Tag.find("large") != std::string::npos;
    const int wide = item.name.empty() && isLarge ? 1 : static_cast<int>(item.count);
    if (!isBase && !isLarge) return;
    if (wide == 1) {
        if (!isBase) image.Left -= Shift;
        image.Width = LongWidth;
        image.Tag = "base-large";
    } else if (wide == 0 && isLarge) {
        if (isBase) image.Left += Shift;
        image.Width = SmallWidth;
        image.Tag = "offset-large";
    }
}
