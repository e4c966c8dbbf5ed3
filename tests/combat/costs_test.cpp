// Costs: what pays, what refuses, the feed of the held thing, and the blow's narrow field.
#include "combat/costs.h"

#include "combat/actions.h"
#include "combat/things.h"
#include "data/weapons_file.h"
#include "state/state.h"
#include "tests/support/drawn_field.h"
#include "tests/support/game_test.h"
#include "view/field_form.h"

namespace {

class CostsTest : public GameTest {
  protected:
    CostsTest() {
        ClearField();
        PutUnit(0, 30, 10);
    }

    Unit& unit = UnitTable[0];

    // Puts a thing of the weapons file in the unit's hand and selects its first mode.
    void Hold(const std::string& name) {
        unit.items[0].name = name;
        unit.items[0].count = 1;
        RefreshHand();
    }
};

TEST_F(CostsTest, EachKindPaysFromItsPurse) {
    Hold("ak");
    unit.handRounds = 5;
    money = 100;
    unit.hand.durab = 10;
    EXPECT_TRUE(Spend(5, "time"));
    EXPECT_TRUE(Spend(7, "energy"));
    EXPECT_TRUE(Spend(1, "ammo"));
    EXPECT_TRUE(Spend(40, "money"));
    EXPECT_TRUE(Spend(3, "durab"));
    EXPECT_FALSE(Spend(0, "hope"));
    EXPECT_EQ(unit.time, 75);
    EXPECT_EQ(unit.energy, 53);
    EXPECT_EQ(unit.handRounds, 4);
    EXPECT_EQ(unit.items[0].roundsMain, 4) << "the thing itself is never behind";
    EXPECT_EQ(money, 60);
    EXPECT_EQ(unit.hand.durab, 7);
    EXPECT_TRUE(Spend(-1, "durab"));
    EXPECT_EQ(unit.hand.durab, 8);
}

TEST_F(CostsTest, TooLittleIsRefusedAndHeardForTimeAndEnergyAlone) {
    Hold("ak");
    unit.handRounds = 0;
    unit.hand.durab = 0;
    unit.time = 5;
    unit.energy = 5;
    host.sounds.clear();
    EXPECT_FALSE(Spend(6, "time"));
    EXPECT_FALSE(Spend(6, "energy"));
    EXPECT_EQ(host.sounds.size(), 2U);
    EXPECT_FALSE(Spend(1, "ammo"));
    EXPECT_FALSE(Spend(1, "durab"));
    EXPECT_FALSE(Spend(1, "money"));
    EXPECT_EQ(host.sounds.size(), 2U);
    EXPECT_TRUE(Spend(5, "energy"));
    EXPECT_EQ(unit.energy, 0);
}

TEST_F(CostsTest, TheFeedFollowsTheFamily) {
    struct Case {
        const char* name;
        const char* mode;
        int rounds;
    };
    constexpr Case Cases[] = {{"m4m203", "Aimed shot", 20},
                              {"m4m203", "Secondary", 3},
                              {"spas", "Aimed shot", 3},
                              {"crossbow", "Aimed shot", 3},
                              {"ak", "Aimed shot", 20}};
    for (const Case& c : Cases) {
        Hold(c.name);
        unit.items[0].roundsMain = 20;
        unit.items[0].roundsSecond = 3;
        frmField.comboMode.Text = c.mode;
        HandSync("real2fake");
        EXPECT_EQ(unit.handRounds, c.rounds) << c.name << " " << c.mode;
    }
    unit.handRounds = 256;
    EXPECT_THROW(HandSync("fake2real"), RunTimeError);
}

TEST_F(CostsTest, ABlowInsideItsNarrowFieldSounds) {
    struct Case {
        const char* what;
        int x, y, targetX, targetY;
        bool somebodyThere, sounds;
    };
    constexpr Case Cases[] = {
        {"a neighbour", 34, 10, 33, 10, true, true},
        {"a neighbour in column 35", 34, 10, 35, 10, true, false},
        {"a neighbour in row 16", 20, 15, 20, 16, true, false},
        {"nobody there", 20, 10, 21, 10, false, false},
        {"two cells away", 20, 10, 22, 10, true, false},
        {"the own cell", 20, 10, 20, 10, false, false},
    };
    for (const Case& c : Cases) {
        ClearField();
        PutUnit(0, c.x, c.y);
        Hold("knife");
        if (c.somebodyThere) PutUnit(20, c.targetX, c.targetY);
        host.sounds.clear();
        MeleeHit(c.targetX, c.targetY);
        EXPECT_EQ(80 - unit.time, WeaponInfoByName("knife").time) << c.what << ": the time stays spent";
        EXPECT_EQ(!host.sounds.empty(), c.sounds) << c.what;
    }
}

}  // namespace
