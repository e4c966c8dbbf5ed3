#include "personal/inventory.h"

#include <algorithm>
#include <string>

#include "combat/explosions.h"
#include "combat/things.h"
#include "data/countries_file.h"
#include "data/weapons_file.h"
#include "field/geometry.h"
#include "state/state.h"
#include "view/slots.h"

namespace {

Unit& Owner() {
    return UnitTable[curUnit];
}

// The place of the ground, or of the vehicle store, that a slot from 30 on stands for.
InvItem& PlaceBehind(int place) {
    if (Owner().itemCount != False) return storeItems[place];
    return groundItems[Owner().cellY][Owner().cellX][place];
}

// A charge that passed through the file has stopped ticking and must be armed anew.
void MarkGround() {
    const int x = Owner().cellX;
    const int y = Owner().cellY;
    int things = 0;
    int charges = 0;
    for (const InvItem& item : groundItems[y][x]) {
        if (!item.name.empty()) ++things;
        if (item.name == "c4") ++charges;
    }
    if (things - CountAt(x, y, ChargeBase) > 0)
        WeaponAdd(x, y);
    else
        WeaponRemove(x, y);
    if (charges > 0) ChargeRemove(x, y);
}

int PocketCount() {
    constexpr int SmallestPack = 3;
    const int capacity = Owner().items[BackSlot].capMain;
    return capacity < SmallestPack ? 0 : std::min(capacity, LastPocket - FirstPocket + 1);
}

}  // namespace

void ShowSlots() {
    for (int slot = 0; slot < FirstPocket; ++slot)
        ShowSlot(slot, frmInfo);
}

void ShowPack() {
    const InvItem& pack = Owner().items[BackSlot];
    const int pockets = PocketCount();
    const std::string board = "\\pic\\inv\\infoP" +
                              pack.name.substr(std::min<std::size_t>(1, pack.name.size())) +
                              std::to_string(pack.capMain) + ".bmp";
    LoadPicture(frmInfo.imgPack, pockets > 0 ? board : "");
    for (int slot = FirstPocket; slot <= LastPocket; ++slot) {
        frmInfo.imgInv[slot].Visible = slot < FirstPocket + pockets;
        if (frmInfo.imgInv[slot].Visible) ShowSlot(slot, frmInfo);
    }
}

void ShowOrigin() {
    const std::string& held = Owner().items[0].name;
    const WeaponInfo& row = WeaponInfoByName(held);
    LoadPicture(frmInfo.imgFlag, held.empty() ? "" : "\\pic\\flags\\" + row.country + ".gif");
    frmInfo.imgFlag.ToolTipText = held.empty() ? "" : CountryName(row.country) + " [" + row.title + "]";
}

void SyncGroundSlots(bool load) {
    auto& items = Owner().items;
    if (load) {
        Owner().itemCount = FacingStoreTile(curUnit) ? True : False;
        frmInfo.txtAPC.Visible = Owner().itemCount != False;
        for (int place = 0; place < CellItemSlots; ++place)
            items[FirstGround + place] = PlaceBehind(place);
        return ShowGroundPage();
    }
    for (int place = 0; place < CellItemSlots; ++place)
        PlaceBehind(place) = items[FirstGround + place];
    if (Owner().itemCount == False) MarkGround();
}

void ShowGroundPage() {
    for (int page = 0; page < GroundPages; ++page)
        frmInfo.cmdGndPage[page].Enabled = page != groundPage;
    for (int slot = FirstGround; slot <= LastBoardSlot; ++slot) {
        const int page = (slot - FirstGround) / GroundPageSize;
        frmInfo.imgInv[slot].Visible = page == groundPage;
        if (frmInfo.imgInv[slot].Visible) ShowSlot(slot, frmInfo);
    }
}

void cmdGndPage_Click(int page) {
    groundPage = page;
    ShowGroundPage();
}

void ClearSlot(int slot) {
    InvItem& item = Owner().items[slot];
    const i16 durab = item.durab;
    item = InvItem();
    item.durab = durab;
    ShowSlot(slot, frmInfo);
}
