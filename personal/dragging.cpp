#include "personal/dragging.h"

#include <string>
#include <utility>

#include "data/weapons_file.h"
#include "personal/inventory.h"
#include "platform/keys.h"
#include "platform/picture_file.h"
#include "platform/rounding.h"
#include "state/state.h"
#include "view/slots.h"
#include "view/sound.h"

namespace {

constexpr Colour HintColour = Rgb(255, 255, 153);
constexpr int LongHalf = 58;  // from the pointer to the left edge of a long thing
constexpr int SmallHalf = 21;

InvItem& ItemIn(int slot) {
    return UnitTable[curUnit].items[slot];
}

std::string FeedText(int rounds, int capacity, const std::string& kind) {
    if (kind.empty()) return "";
    return "(" + std::to_string(rounds) + " of " + std::to_string(capacity) + ") " + kind;
}

std::string ItemText(int slot) {
    const InvItem& item = ItemIn(slot);
    if (item.name.empty()) return "";
    const std::string both = item.ammoMain.empty() || item.ammoSecond.empty() ? "" : ", ";
    return item.name + " " + FeedText(item.roundsMain, item.capMain, item.ammoMain) + both +
           FeedText(item.roundsSecond, item.capSecond, item.ammoSecond) + " [" + std::to_string(slot) + "] " +
           std::to_string(item.durab);
}

// Whether the carried thing would feed the weapon in the slot.
bool Feeds(const InvItem& carried, const InvItem& weapon) {
    const std::string& kind = carried.ammoMain;
    if (ItemClass(weapon.name) != "Weapon" || ItemClass(carried.name) != "Thing") return false;
    if (kind.empty() || kind == "knife") return false;
    return kind == weapon.ammoMain || kind == weapon.ammoSecond;
}

// The whole place of the hand in the window, whatever size the thing in it has, so that the bin at its edge
// can be reached.
bool IsOverHand(float x, float y) {
    constexpr float Left = 152;
    constexpr float Right = 269;
    constexpr float Top = 218;
    constexpr float Bottom = 260;
    return x >= Left && x <= Right && y >= Top && y <= Bottom;
}

void TakeUp(int slot) {
    ImageControl& image = frmInfo.imgInv[slot];
    const PictureRef picture = image.Picture;
    const int left = image.Left;
    const int top = image.Top;
    if (!DropItem(PointerSlot, slot)) return;
    frmInfo.imgDrag.Left = left;
    frmInfo.imgDrag.Top = top;
    ShowCarried(picture);
    ShowSlot(slot, frmInfo);
    dragSlot = slot;
}

// What lay in the slot, if anything, is carried on.
void LayDown(int slot) {
    const PictureRef lying = frmInfo.imgInv[slot].Picture;
    if (!DropItem(slot, PointerSlot)) return;
    ShowSlot(slot, frmInfo);
    if (lying == nullptr) return EndDrag();
    ShowCarried(lying);
    dragSlot = slot;
}

void PressAt(int slot) {
    const bool carries = dragSlot != NoSlot;
    if (slot != NoSlot && carries)
        LayDown(slot);
    else if (slot != NoSlot && frmInfo.imgInv[slot].Picture != nullptr)
        TakeUp(slot);
    else if (slot == NoSlot && carries && frmInfo.imgInv[dragSlot].Picture == nullptr)
        LayDown(dragSlot);  // the thing goes home
}

// The magazine of the weapon in the slot comes into the pointer's hand.
void TakeMagazineOut(int slot) {
    InvItem& weapon = ItemIn(slot);
    InvItem& carried = ItemIn(PointerSlot);
    if (!carried.name.empty() || WeaponInfoByName(weapon.name).kind != "m" || weapon.capMain == 0) return;
    PlaySoundAt("weapons\\reload", AtScreenCentre);
    carried.name = weapon.ammoMain;
    carried.ammoMain = weapon.ammoMain;
    carried.count = 0;
    carried.capMain = std::exchange(weapon.capMain, 0);
    carried.roundsMain = std::exchange(weapon.roundsMain, 0);
    ShowSlot(slot, frmInfo);
    frmInfo.imgDrag.Left = frmInfo.imgInv[slot].Left;
    frmInfo.imgDrag.Top = frmInfo.imgInv[slot].Top;
    ShowCarried(
        ReadPictureFile("\\pic\\inv\\" + std::to_string(carried.capMain) + carried.ammoMain + ".gif"));
    dragSlot = slot;
}

}  // namespace

int SlotAt(float x, float y) {
    const auto within = [](float at, int from, int length) {
        return at >= static_cast<float>(from) && at <= static_cast<float>(from + length);
    };
    for (int slot = 0; slot <= LastBoardSlot; ++slot) {
        const ImageControl& image = frmInfo.imgInv[slot];
        if (image.Visible && within(x, image.Left, image.Width) && within(y, image.Top, image.Height))
            return slot;
    }
    return NoSlot;
}

bool Dragging() {
    return frmInfo.imgDrag.Picture != nullptr;
}

void EndDrag() {
    constexpr int RestLeft = 328;
    constexpr int RestTop = 168;
    constexpr int RestWidth = 42;
    ClearSlot(PointerSlot);
    LoadPicture(frmInfo.imgDrag, "");
    frmInfo.imgDrag.Left = RestLeft;
    frmInfo.imgDrag.Top = RestTop;
    frmInfo.imgDrag.Width = RestWidth;
    dragSlot = NoSlot;
}

void ShowCarried(PictureRef picture) {
    frmInfo.imgDrag.Width = picture->Width();
    frmInfo.imgDrag.Picture = std::move(picture);
}

void imgDel_Click() {
    ClearSlot(0);
    ShowOrigin();
}

void personal::Form_MouseMove(float x, float y) {
    const int slot = SlotAt(x, y);
    frmInfo.txtFullname.Text = slot == NoSlot ? "" : ItemText(slot);
    if (slot != NoSlot)
        frmInfo.txtFullname.ForeColor = Feeds(ItemIn(PointerSlot), ItemIn(slot)) ? HintColour : PaleBlue;
    // The catalogue's bin lies over the maker's flag, so it shows only where it is needed.
    frmInfo.imgDel.Visible = frmInfo.imgUpDn[1].Visible && IsOverHand(x, y);
    if (dragSlot == NoSlot) return;
    const int half = ItemIn(PointerSlot).count == 1 ? LongHalf : SmallHalf;
    frmInfo.imgDrag.Left = WholePixel(x) - half;
    frmInfo.imgDrag.Top = WholePixel(y) - SmallHalf;
}

void personal::Form_MouseDown(int button, float x, float y) {
    const int slot = SlotAt(x, y);
    if (button != RightButton)
        PressAt(slot);
    else if (slot != NoSlot && dragSlot == NoSlot)
        TakeMagazineOut(slot);
}
