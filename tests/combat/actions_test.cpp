// Families and modes of things, and what each family's order does and costs.
#include "combat/actions.h"

#include "combat/families.h"
#include "combat/fire_modes.h"
#include "combat/shooting.h"
#include "combat/things.h"
#include "data/weapons_file.h"
#include "state/chance.h"
#include "tests/support/game_test.h"

namespace {

class ActionsTest : public GameTest {
  protected:
    ActionsTest() {
        ClearField();
        PutUnit(0, 30, 20);
        PutUnit(20, 70, 40);
        unit.marksmanship = 100;
        unit.time = 400;
        SeedRandom(9);
    }

    Unit& unit = UnitTable[0];

    std::size_t Heard(const std::string& sound) const {
        std::size_t count = 0;
        for (const SoundRequest& request : host.sounds)
            count += request.fileName == "\\wav\\" + sound + ".wav" ? 1 : 0;
        return count;
    }
};

TEST_F(ActionsTest, EachKindOfThingOffersItsModesAndMakesTheirFamilies) {
    struct Case {
        const char* name;
        const char* offers;
    };
    constexpr Case Cases[] = {
        {"hand", "Hit:hit "},
        {"ak", "Aimed shot:fire Snap shot:fire Burst [3]:fire Full auto:fire "},
        {"m4m203", "Aimed shot:fire Snap shot:fire Burst [3]:fire Full auto:fire Secondary:bloop "},
        {"xm8lss", "Aimed shot:fire Snap shot:fire Burst [3]:fire Full auto:fire Secondary:shot "},
        {"mkey", "Aimed shot:fire Snap shot:fire Burst [3]:fire Full auto:fire Secondary:shot "},
        {"m203", "Aimed shot:bloop Snap shot:bloop "},
        {"spas", "Aimed shot:shot Snap shot:shot Burst [2]:shot "},
        {"crossbow", "Aimed shot:dart "},
        {"m67", "Throw:gren "},
        {"c4", "Throw:charge "},
        {"knife", "Hit:hit Throw:throw "},
        {"etool", "Hit:dig Dig:dig Fill:dig Fold:dig "},
        {"etoolfold", "Unfold:dig "},
        {"med", "Cure:cure "},
        {"helmet", ""},
    };
    for (const Case& c : Cases) {
        unit.hand = WeaponInfoByName(c.name);
        ListActions();
        std::string offers;
        for (std::size_t i = 0; i < frmField.comboMode.List.size(); ++i) {
            ChooseMode(static_cast<int>(i));
            offers += frmField.comboMode.Text + ":" + std::string(ActionFamily()) + " ";
        }
        EXPECT_EQ(offers, c.offers) << c.name;
    }
}

TEST_F(ActionsTest, ABurstPaysForEachRoundAndStopsAtTheFirstRefusal) {
    struct Case {
        const char* what;
        int time, rounds, durab;
        int timeAfter, roundsAfter, durabAfter;
        const char* sound;
        const char* mode = "Burst";
    };
    // Each round costs 33 time; a burst has three, full auto twenty.
    constexpr Case Cases[] = {
        {"whole", 400, 20, 100, 301, 17, 97, ""},
        {"out of time", 65, 20, 100, 32, 19, 99, "bump\\wound2"},
        {"out of rounds keeps what the empty click cost", 400, 1, 100, 334, 0, 98, "weapons\\empty"},
        {"worn out", 400, 20, 1, 367, 19, 0, "ric\\wood"},
        {"single", 400, 20, 100, 367, 19, 99, "", "Aimed"},
        {"full auto", 700, 30, 100, 40, 10, 80, "", "Full"},
    };
    for (const Case& c : Cases) {
        Hold("ak", c.mode, c.rounds);
        unit.time = c.time;
        unit.hand.durab = c.durab;
        host.sounds.clear();
        ActOnTarget(900, 410);
        EXPECT_EQ(unit.time, c.timeAfter) << c.what;
        EXPECT_EQ(unit.items[0].roundsMain, c.roundsAfter) << c.what;
        EXPECT_EQ(unit.hand.durab, c.durabAfter) << c.what;
        EXPECT_EQ(Heard(c.sound), *c.sound == '\0' ? 0U : 1U) << c.what;
    }
}

TEST_F(ActionsTest, AModeChosenInTheMiddleOfABurstIsTheNextOrders) {
    Hold("m4m203", "Burst");
    host.Queue({EventKind::Choose, "frmField.comboMode", -1, 4}, host.pumps + 1);
    ActOnTarget(900, 410);
    EXPECT_EQ(unit.items[0].roundsMain, 17);
    EXPECT_EQ(unit.items[0].roundsSecond, 20);
    EXPECT_EQ(fireModes.Text(), "Secondary");
}

TEST_F(ActionsTest, AShellIsThirtyPelletsOfAThirtiethOfThePower) {
    Hold("spas", "Aimed shot", 6);
    host.pumps = 0;
    unit.facing = SouthWest;
    ActOnTarget(900, 410);
    EXPECT_EQ(unit.items[0].roundsSecond, 5);
    EXPECT_EQ(400 - unit.time, WeaponInfoByName("spas").time);
    EXPECT_EQ(host.pumps, 30) << "one flight each";
    EXPECT_EQ((std::pair<int, int>(muzzleX, muzzleY)), std::pair(600, 420)) << "the corner that he faces";
    EXPECT_LE(bulletPower, WeaponInfoByName("spas").power / 30 + 1);
}

TEST_F(ActionsTest, ASecondaryBarrelUsesTheSecondFeedAndHasALaunchOfItsOwn) {
    Hold("m4m203", "Secondary", 3);
    ActOnTarget(900, 410);
    EXPECT_EQ(unit.items[0].roundsSecond, 2);
    EXPECT_EQ(unit.items[0].roundsMain, 3);
    EXPECT_EQ(Heard("weapons\\bloop"), 1U);
    EXPECT_EQ(Heard("weapons\\gren40"), 1U);
    EXPECT_EQ(host.sounds.back().pan, (impactX - 20) * 50) << "it bursts where it came down";
    EXPECT_EQ(unit.items[0].name, "m4m203") << "the launcher stays in the hand";
    Hold("m4m203", "Secondary", 0);
    ActOnTarget(900, 410);
    EXPECT_EQ(Heard("weapons\\bloop"), 1U) << "nothing leaves an empty barrel";
}

TEST_F(ActionsTest, TheMuzzleIsWhereTheShooterFaces) {
    struct Case {
        int facing, x, y;  // from the corner of his cell
    };
    constexpr Case Cases[] = {{East, 20, 10},     {West, 0, 10},       {North, 10, 0},     {South, 10, 20},
                              {NorthEast, 20, 0}, {SouthEast, 20, 20}, {SouthWest, 0, 20}, {NorthWest, 0, 0}};
    Hold("ak", "Aimed");
    for (const Case& c : Cases) {
        unit.facing = c.facing;
        ShootAt(900, 410, "fire");
        EXPECT_EQ(muzzleX, 600 + c.x) << c.facing;
        EXPECT_EQ(muzzleY, 400 + c.y) << c.facing;
    }
}

TEST_F(ActionsTest, WhatIsThrownLiesWhereItCameDownAndOutOfTheFieldIsLost) {
    for (const int knives : {2, 1}) {
        groundItems[20][34] = {};
        Hold("thronives", "Throw", knives);
        ActOnTarget(30 * 20 + 90, 410);
        EXPECT_EQ(groundItems[20][34][0].roundsMain, 1);
        EXPECT_EQ(unit.items[0].roundsMain, knives - 1);
        EXPECT_EQ(unit.hand.name, knives == 2 ? "thronives" : "hand");
    }
    EXPECT_EQ(CountAt(34, 20, PileBase), 1);
    PutUnit(0, 74, 20);
    for (const char* thing : {"knife", "c4", "m67"}) {
        Hold(thing, "Throw", 1);
        unit.time = 400;
        frmField.cmbLog.List.clear();
        ActOnTarget(1590, 410);
        EXPECT_EQ(Log().find(std::string(thing) + " is lost outside the field\n") != std::string::npos,
                  std::string(thing) != "m67");
        EXPECT_EQ(unit.items[0].name, "");
    }
    EXPECT_EQ(teamLast[PileList], 0);
    EXPECT_EQ(teamLast[ChargeList], -1);
}

TEST_F(ActionsTest, WhoAimsBetterThanPerfectlyScattersNothing) {
    Hold("ak", "Burst");
    unit.marksmanship = 250;
    ActOnTarget(36 * 20 + 10, 410);
    EXPECT_EQ(impactX, 36);
    EXPECT_EQ(impactY, 20);
}

TEST_F(ActionsTest, FoldingCostsNothing) {
    Hold("etool", "Fold", 0);
    ActOnTarget(700, 410);
    EXPECT_EQ(unit.hand.name, "etoolfold");
    EXPECT_EQ(frmField.imgInv[0].PictureName, "\\pic\\inv\\etoolfold.gif");
    EXPECT_EQ(unit.items[0].count, 0);
    ActOnTarget(700, 410);
    EXPECT_EQ(unit.items[0].name, "etool");
    EXPECT_EQ(unit.items[0].count, 1);
    EXPECT_EQ(unit.time, 400);
    EXPECT_EQ(Log(), "dig it: fold\ndig it: unfold\n");
}

}  // namespace
