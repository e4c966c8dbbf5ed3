#include "combat/things.h"

#include <string>

#include "combat/fire_modes.h"
#include "data/weapons_file.h"
#include "platform/rounding.h"
#include "state/audience.h"
#include "state/log.h"
#include "state/state.h"
#include "state/status.h"

namespace {

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
    TheAudience().CellChanged(x, y);
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
    TheAudience().CellChanged(x, y);
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
    if (hand.name != fireModes.weapon)
        ListActions();
    else
        HandSync("real2fake");
    // ODDITY: also for the computer's units, so the panel shows the enemy's weapon in his turn.
    TheAudience().HandChanged();
    ShowStatus("durab");
    TheAudience().MakerChanged(hand);
}
