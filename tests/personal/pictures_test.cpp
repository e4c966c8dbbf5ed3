// Every picture that the soldier's file and the panel can ask for is there, and of the size of its control.
#include "combat/things.h"
#include "data/tables.h"
#include "data/weapons_file.h"
#include "personal/catalogue.h"
#include "platform/picture_file.h"
#include "state/state.h"
#include "tests/support/game_test.h"
#include "view/overlays.h"

namespace {

class PicturesTest : public GameTest {
  protected:
    PicturesTest() { StartGame(); }

    static void ExpectPicture(const std::string& name, int width, int height) {
        PictureRef picture;
        EXPECT_EQ(ErrorOf([&] { picture = ReadPictureFile("\\pic\\" + name); }), "");
        if (picture == nullptr) return;
        EXPECT_EQ(picture->Width(), width) << name;
        EXPECT_EQ(picture->Height(), height) << name;
    }

    // As ShowSlot names it.
    static void ExpectThing(const WeaponInfo& row, const std::string& suffix) {
        ExpectPicture("inv\\" + row.name + suffix + ".gif", row.unitCount == 1 ? 117 : 42, 42);
    }
};

TEST_F(PicturesTest, EveryThingWithEveryFeed) {
    for (const WeaponInfo& row : weaponTable) {
        ExpectPicture("flags\\" + row.country + ".gif", 18, 12);
        if (row.name == "hand") continue;
        const bool showsFeed = row.kind == "m" || row.kind == "a";
        if (row.name == "40gren") {
            ExpectThing(row, "he");
        } else if (!showsFeed) {
            ExpectThing(row, "");
        } else {
            if (row.kind == "m") ExpectThing(row, "0");
            for (const i16 size : ItemKindByName(row.weaponClass).sizes) {
                if (size == 0) continue;
                ExpectThing(row, std::to_string(size));
                // As the pointer carries it, out of a weapon or on its own.
                ExpectPicture("inv\\" + std::to_string(size) + row.weaponClass + ".gif", 42, 42);
            }
        }
    }
    for (const int pockets : {3, 6, 9, 12})
        ExpectPicture("inv\\infoPack" + std::to_string(pockets) + ".bmp", 142, 192);
}

TEST_F(PicturesTest, EveryRankAwardAndCounter) {
    for (int rank = 0; rank < 24; ++rank) {
        std::string name = rankNames[rank];
        for (char& letter : name)
            letter = static_cast<char>(std::tolower(letter));
        ExpectPicture("chevrons\\" + name + ".gif", 32, 32);
    }
    for (int award = 0; award < 25; ++award)
        for (int count = 1; count <= 20; ++count)
            ExpectPicture("awards\\" + TwoDigits(award) + TwoDigits(count) + ".bmp", 105, 41);
    for (int enemies = 1; enemies <= 20; ++enemies)
        ExpectPicture("counter\\" + TwoDigits(enemies) + ".bmp", 25, 19);
}

TEST_F(PicturesTest, EverySoldierOfTheRoster) {
    for (int i = 0; i <= teamLast[SquadTeam]; ++i) {
        const Unit& unit = UnitTable[i];
        ExpectPicture("flags\\" + unit.country + ".gif", 18, 12);
        ExpectPicture("faces\\" + unit.facePrefix + unit.faceGroup + TwoDigits(unit.faceNo) + ".bmp", 140,
                      140);
    }
}

}  // namespace
