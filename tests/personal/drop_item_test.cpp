// What happens when one thing is laid on another, case by case.
#include "data/new_item.h"
#include "data/weapons_file.h"
#include "personal/dragging.h"
#include "personal/info_form.h"
#include "personal/personal_file.h"
#include "platform/picture_file.h"
#include "tests/support/game_test.h"

namespace {

// A thing and the rounds and capacities of its two feeds; its kinds are its row's.
struct Thing {
    const char* name = "";
    int rounds = 0, capacity = 0;
    int secondRounds = 0, secondCapacity = 0;

    InvItem Item() const {
        InvItem item = MakeItem(WeaponInfoByName(name));
        item.roundsMain = rounds;
        item.capMain = capacity;
        item.roundsSecond = secondRounds;
        item.capSecond = secondCapacity;
        return item;
    }
};

std::string Text(const InvItem& item) {
    return item.name + " " + std::to_string(item.roundsMain) + "/" + std::to_string(item.capMain) + " " +
           std::to_string(item.roundsSecond) + "/" + std::to_string(item.capSecond);
}

class DropItemTest : public GameTest {
  protected:
    DropItemTest() {
        StartGame();
        UnitTable[curUnit].items = {};
        LoadInfo();
    }

    InvItem& In(int slot) { return UnitTable[curUnit].items[slot]; }

    // The pointer carries `thing`, which came from nowhere.
    void Carry(const Thing& thing) {
        dragSlot = 29;
        In(PointerSlot) = thing.Item();
        ShowCarried(std::make_shared<Picture>(42, 42));
    }
};

TEST_F(DropItemTest, EachMeetingOfTwoThings) {
    struct Case {
        const char* what;
        Thing carried;
        int slot;
        Thing there;
        bool trade;
        Thing carriedAfter;
        Thing thereAfter;
        std::size_t sounds;
        const char* handPicture;  // its file when a feed moved, empty for none; nullptr: as it was
    };
    // clang-format off
    const Case cases[] = {
        {"a rifle to the ground", {"m4", 30, 30}, 30, {}, true, {}, {"m4", 30, 30}, 0, nullptr},
        {"a rifle to the spare row", {"m4"}, 29, {}, false, {"m4"}, {}, 0, nullptr},
        {"a helmet to the head", {"helmet", 144, 144}, 4, {}, true, {}, {"helmet", 144, 144}, 0, nullptr},
        {"a helmet to the body", {"helmet"}, 5, {}, false, {"helmet"}, {}, 0, nullptr},
        {"a vest to the body", {"vest", 100, 100}, 5, {}, true, {}, {"vest", 100, 100}, 0, nullptr},
        {"a pack on a pack", {"pack", 3, 3}, 6, {"pack", 6, 6}, true, {"pack", 6, 6}, {"pack", 3, 3}, 0, nullptr},
        {"a kit on a kit", {"med", 40, 40}, 7, {"med", 9, 40}, true, {"med", 9, 40}, {"med", 40, 40}, 0, nullptr},
        {"a rifle on a rifle of its kind", {"m4", 30, 30}, 1, {"m16a2", 5, 20}, true, {"m16a2", 5, 20}, {"m4", 30, 30}, 0, nullptr},
        {"a knife on a bayonet", {"knife", 1, 1}, 7, {"bayonet", 1, 1}, true, {"bayonet", 1, 1}, {"knife", 1, 1}, 0, nullptr},
        {"things without a kind", {"map"}, 7, {"radio"}, true, {"radio"}, {"map"}, 0, nullptr},
        {"a magazine of another kind", {"9para", 17, 17}, 1, {"m4", 0, 0}, true, {"m4"}, {"9para", 17, 17}, 0, nullptr},
        {"a magazine into an empty rifle", {"5nato", 30, 30}, 1, {"m4"}, false, {}, {"m4", 30, 30}, 1, ""},
        {"an empty magazine for a full one", {"5nato", 0, 20}, 1, {"m4", 30, 30}, false, {"5nato", 30, 30}, {"m4", 0, 20}, 1, "305nato"},
        {"grenades into a launcher", {"40gren", 3, 3}, 1, {"famasm203", 30, 30, 0, 1}, false, {"40gren", 2, 3}, {"famasm203", 30, 30, 1, 1}, 1, "40grenhe"},
        {"the last grenade into a launcher", {"40gren", 1, 3}, 1, {"m203", 0, 0, 0, 1}, false, {}, {"m203", 0, 0, 1, 1}, 1, ""},
        {"a grenade into a loaded launcher", {"40gren", 2, 3}, 1, {"m203", 0, 0, 1, 1}, false, {"40gren", 2, 3}, {"m203", 0, 0, 1, 1}, 0, "40grenhe"},
        {"grenades used up on a stack", {"40gren", 2, 3}, 7, {"40gren", 1, 3}, false, {}, {"40gren", 3, 3}, 1, ""},
        {"darts used up on a stack", {"darts", 12, 24}, 7, {"darts", 12, 24}, false, {}, {"darts", 24, 24}, 1, ""},
        {"bolts used up on a stack", {"arrows", 5, 8}, 7, {"arrows", 3, 8}, false, {}, {"arrows", 8, 8}, 1, ""},
        {"shells used up on a stack", {"12gauge", 2, 12}, 7, {"12gauge", 10, 12}, false, {}, {"12gauge", 12, 12}, 1, ""},
        {"a magazine emptied into another", {"5nato", 20, 30}, 7, {"5nato", 10, 30}, false, {"5nato", 0, 30}, {"5nato", 30, 30}, 1, nullptr},
        {"a magazine filled from another", {"5nato", 20, 30}, 7, {"5nato", 20, 30}, false, {"5nato", 10, 30}, {"5nato", 30, 30}, 1, nullptr},
        {"a magazine on a full one", {"5nato", 20, 30}, 7, {"5nato", 30, 30}, false, {"5nato", 20, 30}, {"5nato", 30, 30}, 0, nullptr},
        {"rounds fill a bolt rifle", {"7brit", 10, 10}, 1, {"smle", 4, 10}, false, {"7brit", 4, 10}, {"smle", 10, 10}, 1, "107brit"},
        {"all rounds go into a drum", {"22lr", 50, 50}, 1, {"american", 100, 220}, false, {}, {"american", 150, 220}, 1, ""},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        Carry(c.carried);
        In(c.slot) = c.there.Item();
        host.sounds.clear();
        EXPECT_EQ(DropItem(c.slot, PointerSlot), c.trade);
        EXPECT_EQ(Text(In(PointerSlot)), Text(c.carriedAfter.Item()));
        EXPECT_EQ(Text(In(c.slot)), Text(c.thereAfter.Item()));
        EXPECT_EQ(host.sounds.size(), c.sounds);
        In(c.slot) = InvItem();
        if (c.handPicture == nullptr) continue;
        const PictureRef& shown = frmInfo.imgDrag.Picture;
        const std::string file = "\\pic\\inv\\" + std::string(c.handPicture) + ".gif";
        EXPECT_TRUE(*c.handPicture == '\0' ? shown == nullptr : shown->SameAs(*ReadPictureFile(file)));
    }
}

}  // namespace
