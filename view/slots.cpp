#include "view/slots.h"

#include <string>

#include "data/countries_file.h"
#include "data/weapons_file.h"
#include "platform/run_time_error.h"
#include "state/state.h"
#include "view/field_form.h"

namespace {

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

// Bare hands are nobody's make.
void ShowMakersFlag(const WeaponInfo& hand) {
    const bool bare = hand.name == "hand";
    LoadPicture(frmField.imgFlag, bare ? "" : "\\pic\\flags\\" + hand.country + ".gif");
    frmField.imgFlag.ToolTipText = bare ? "" : CountryName(hand.country);
}
