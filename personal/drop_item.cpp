// What happens when one thing is laid on another.
#include <algorithm>
#include <array>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

#include "data/weapons_file.h"
#include "personal/dragging.h"
#include "personal/inventory.h"
#include "platform/picture_file.h"
#include "state/state.h"
#include "view/slots.h"
#include "view/sound.h"

namespace {

enum class Meeting {
    Trade,        // the two change places
    Magazine,     // a magazine goes into a weapon, and the one in it comes out
    SecondFeed,   // rounds go into a weapon's second feed
    Stack,        // rounds go to a stack of the same kind
    LooseRounds,  // rounds go into a weapon that is loaded one by one
};

bool IsOneOf(std::string_view text, std::initializer_list<std::string_view> words) {
    return std::find(words.begin(), words.end(), text) != words.end();
}

// The slots of head, body and back take one kind each; behind the long places nothing long fits.
bool Refused(const InvItem& thing, int target) {
    struct Wearable {
        int slot;
        std::string_view kind;
    };
    static constexpr std::array<Wearable, 3> Wearables = {{{4, "helmet"}, {5, "vest"}, {6, "pack"}}};
    constexpr int FirstSmall = 4;
    if (thing.count == 1 && target >= FirstSmall && target < FirstGround) return true;
    return std::any_of(Wearables.begin(), Wearables.end(), [&](const Wearable& place) {
        return place.slot == target && place.kind != thing.ammoMain;
    });
}

// Later rules overrule the earlier ones.
Meeting MeetingOf(const InvItem& thing, const InvItem& target) {
    const std::string& kind = thing.ammoMain;
    const std::string_view thingClass = ItemClass(thing.name);
    const std::string_view targetClass = ItemClass(target.name);
    Meeting meeting = Meeting::Trade;
    if (!kind.empty() && !target.name.empty()) {
        if (target.ammoMain == kind) meeting = Meeting::Magazine;
        if (target.ammoSecond == kind) meeting = Meeting::SecondFeed;
    }
    if (targetClass == "Weapon" && kind == "knife") meeting = Meeting::Trade;
    if (meeting != Meeting::Trade && thingClass == "Thing" && targetClass == "Thing")
        meeting = Meeting::Stack;
    if (thingClass == "Weapon") meeting = Meeting::Trade;
    if (IsOneOf(kind, {"vest", "helmet", "pack", "med"})) meeting = Meeting::Trade;
    if (meeting == Meeting::Magazine && WeaponInfoByName(target.name).kind == "w")
        meeting = Meeting::LooseRounds;
    return meeting;
}

void SoundReload() {
    PlaySoundAt("weapons\\reload", AtScreenCentre);
}

void SwapMagazine(InvItem& thing, InvItem& target) {
    SoundReload();
    std::swap(thing.capMain, target.capMain);
    std::swap(thing.roundsMain, target.roundsMain);
    if (thing.capMain == 0) EndDrag();
}

// Rounds go from the thing to a feed until it is full. An emptied hand carries nothing any more.
void FillFeed(InvItem& thing, u8& rounds, int capacity) {
    const i16 rest = rounds + thing.roundsMain - capacity;
    if (rest == thing.roundsMain) return;
    SoundReload();
    if (rest < 1) {
        rounds += thing.roundsMain;
        EndDrag();
    } else {
        rounds = capacity;
        thing.roundsMain = rest;
    }
}

// ODDITY: the sum is taken in bytes, so two stacks that together don't fill the target end the program.
void FillStack(InvItem& thing, InvItem& target) {
    const u8 sum = thing.roundsMain + target.roundsMain;
    const u8 rest = sum - target.capMain;
    if (rest == thing.roundsMain) return;
    SoundReload();
    if (rest > 0) {
        target.roundsMain = target.capMain;
        thing.roundsMain = rest;
        return;
    }
    target.roundsMain = sum;
    // ODDITY: only of these kinds is a used-up stack gone; of any other an empty one stays in the hand.
    if (IsOneOf(target.ammoMain, {"40gren", "knife", "12gauge", "arrows", "darts"}))
        EndDrag();
    else
        thing.roundsMain = rest;
}

void Meet(Meeting meeting, InvItem& thing, InvItem& target) {
    switch (meeting) {
        case Meeting::Trade:
            std::swap(thing, target);
            break;
        case Meeting::Magazine:
            SwapMagazine(thing, target);
            break;
        case Meeting::SecondFeed:
            FillFeed(thing, target.roundsSecond, target.capSecond);
            break;
        case Meeting::Stack:
            FillStack(thing, target);
            break;
        case Meeting::LooseRounds:
            FillFeed(thing, target.roundsMain, target.capMain);
            break;
    }
}

// The hand may hold another magazine now, or nothing.
void ShowCarriedFeed(const InvItem& thing) {
    if (thing.name.empty()) return;
    const bool grenade = thing.ammoMain.starts_with("40gren");
    const std::string name = grenade ? thing.ammoMain + "he" : std::to_string(thing.capMain) + thing.ammoMain;
    ShowCarried(ReadPictureFile("\\pic\\inv\\" + name + ".gif"));
}

bool FitsLongThings(int slot) {
    constexpr int LastLong = 3;
    return slot <= LastLong || (slot >= FirstGround && slot != PointerSlot);
}

}  // namespace

bool DropItem(int target, int source) {
    auto& items = UnitTable[curUnit].items;
    if (Refused(items[source], target)) return false;
    const Meeting meeting = MeetingOf(items[source], items[target]);
    Meet(meeting, items[source], items[target]);
    if (meeting != Meeting::Trade && meeting != Meeting::Stack) {
        ShowCarriedFeed(items[source]);
        ShowSlot(target, frmInfo);
    }
    for (const int slot : {target, source})
        if (FitsLongThings(slot)) FitSlot(slot, frmInfo);
    if (target == BackSlot || source == BackSlot) ShowPack();
    if (target == 0 || source == 0) ShowOrigin();
    return meeting == Meeting::Trade;
}
