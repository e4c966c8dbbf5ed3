// Families and modes of every thing, and what each family's order does and costs.
#include "combat/actions.h"

#include <algorithm>
#include <map>

#include "combat/things.h"
#include "data/weapons_file.h"
#include "platform/random.h"
#include "state/state.h"
#include "tests/support/drawn_field.h"
#include "tests/support/game_test.h"
#include "view/events.h"
#include "view/field_form.h"

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

    // Puts a loaded thing in the unit's hand under a mode that it offers.
    void Hold(const std::string& name, const std::string& mode, int rounds = 20) {
        unit.items[0] = InvItem();
        unit.items[0].name = name;
        unit.items[0].count = WeaponInfoByName(name).unitCount;
        unit.items[0].ammoMain = WeaponInfoByName(name).weaponClass;
        if (WeaponInfoByName(name).kind == "m" && !unit.items[0].ammoMain.empty())
            unit.items[0].capMain = ItemKindByNameSize(unit.items[0].ammoMain);
        RefreshHand();
        unit.items[0].roundsMain = rounds;
        unit.items[0].capSecond = unit.items[0].roundsSecond = rounds;
        for (std::size_t i = 0; i < frmField.comboMode.List.size(); ++i)
            if (frmField.comboMode.List[i].starts_with(mode)) return ChooseMode(static_cast<int>(i));
        FAIL() << name << " offers no " << mode;
    }

    static int ItemKindByNameSize(const std::string& key) {
        for (const ItemKind& kind : itemKinds)
            if (kind.name == key) return kind.sizes[0];
        return 0;
    }

    std::size_t Heard(const std::string& sound) const {
        std::size_t count = 0;
        for (const SoundRequest& request : host.sounds)
            count += request.fileName == "\\wav\\" + sound + ".wav" ? 1 : 0;
        return count;
    }
};

TEST_F(ActionsTest, EveryRowOffersItsModesAndMakesItsFamily) {
    const std::map<std::string, std::string> named = {
        {"m203", "bloop"},       {"mm1", "bloop"},        {"m67", "gren"},      {"m67a2", "gren"},
        {"m367", "gren"},        {"c4", "charge"},        {"nova", "shot"},     {"spas", "shot"},
        {"super90", "shot"},     {"jackham", "shot"},     {"rem870l", "shot"},  {"rem870m", "shot"},
        {"rem870s", "shot"},     {"rem870gs", "shot"},    {"crossbow", "dart"}, {"airpipe", "dart"},
        {"anschutz", "varmint"}, {"american", "varmint"}, {"etool", "dig"},     {"etoolfold", "dig"},
        {"bsl", "dig"},          {"mpl", "dig"}};
    const std::map<std::string, std::string> secondaries = {{"m4m203", "bloop"},   {"steyrm203", "bloop"},
                                                            {"xm8xm320", "bloop"}, {"famasm203", "bloop"},
                                                            {"xm8lss", "shot"},    {"mkey", "shot"}};
    const std::map<std::string, std::vector<std::string>> tools = {{"bsl", {"Hit", "Dig", "Fill"}},
                                                                   {"mpl", {"Hit", "Dig", "Fill"}},
                                                                   {"etool", {"Hit", "Dig", "Fill", "Fold"}},
                                                                   {"etoolfold", {"Unfold"}},
                                                                   {"med", {"Cure"}}};
    const char* words[] = {"Aimed shot", "Snap shot", "Burst", "Full auto", "Secondary", "Hit", "Throw"};
    for (const WeaponInfo& row : weaponTable) {
        unit.hand = row;
        ListActions();
        std::vector<std::string> modes;
        for (int place = 0; place < 7; ++place)
            if (row.modes[place] > 0)
                modes.push_back(place == 2 ? "Burst [" + std::to_string(row.modes[2]) + "]" : words[place]);
        if (tools.count(row.name) > 0) modes = tools.at(row.name);
        EXPECT_EQ(frmField.comboMode.List, modes) << row.name;
        for (std::size_t i = 0; i < modes.size(); ++i) {
            ChooseMode(static_cast<int>(i));
            std::string family = row.kind == "m" || row.kind == "w" ? "fire" : "";
            if (row.name == "med") family = "cure";
            if (row.weaponClass == "knife" && modes[i] == "Hit") family = "hit";
            if (row.weaponClass == "knife" && modes[i] == "Throw") family = "throw";
            if (named.count(row.name) > 0) family = named.at(row.name);
            if (secondaries.count(row.name) > 0)
                family = modes[i] == "Secondary" ? secondaries.at(row.name) : "fire";
            EXPECT_EQ(ActionFamily(), family) << row.name << " " << modes[i];
        }
        const bool weapon = row.kind == "m" || row.kind == "w";
        EXPECT_FALSE(weapon && modes.empty()) << row.name << " offers nothing";
    }
}

TEST_F(ActionsTest, ABurstPaysForEachRoundAndStopsAtTheFirstRefusal) {
    struct Case {
        const char* what;
        int time, rounds, durab;
        int fired;
        const char* sound;
    };
    const WeaponInfo& ak = WeaponInfoByName("ak");
    const int burst = ak.modes[2];
    ASSERT_GE(burst, 2);
    const Case cases[] = {
        {"whole", 400, 20, 100, burst, "weapons\\empty"},
        {"out of time", 2 * ak.time - 1, 20, 100, 1, "bump\\wound2"},
        {"out of rounds", 400, 1, 100, 1, "weapons\\empty"},
        {"worn out", 400, 20, 1, 1, "ric\\wood"},
    };
    for (const Case& c : cases) {
        Hold("ak", "Burst", c.rounds);
        unit.time = c.time;
        unit.hand.durab = c.durab;
        host.sounds.clear();
        ActOnTarget(900, 410);
        EXPECT_EQ(unit.items[0].roundsMain, c.rounds - c.fired) << c.what;
        EXPECT_EQ(Heard("weapons\\" + ak.sound), static_cast<std::size_t>(c.fired)) << c.what;
        EXPECT_EQ(Heard(c.sound), c.fired == burst ? 0U : 1U) << c.what;
    }
}

TEST_F(ActionsTest, AShellIsThirtyPelletsOfAThirtiethOfThePower) {
    Hold("spas", "Aimed shot", 6);
    const int time = unit.time;
    std::size_t flights = frmField.cmbLog.List.size();
    host.pumps = 0;
    ActOnTarget(900, 410);
    EXPECT_EQ(unit.items[0].roundsSecond, 5);
    EXPECT_EQ(time - unit.time, WeaponInfoByName("spas").time);
    EXPECT_EQ(host.pumps, 30) << "one flight each";
    EXPECT_EQ(frmField.cmbLog.List.at(flights), "shotgun party");
    EXPECT_LE(bulletPower, WeaponInfoByName("spas").power / 30 + 1);
}

TEST_F(ActionsTest, AKnifeThrownLiesWhereItCameDown) {
    Hold("knife", "Throw", 1);
    ActOnTarget(30 * 20 + 90, 410);
    EXPECT_EQ(impactX, 34);
    EXPECT_EQ(groundItems[20][34][0].name, "knife");
    EXPECT_EQ(groundItems[20][34][0].roundsMain, 1);
    EXPECT_EQ(CountAt(34, 20, PileBase), 1);
    EXPECT_EQ(unit.items[0].name, "") << "and is gone from the hand";
    EXPECT_EQ(unit.hand.name, "hand");
}

TEST_F(ActionsTest, WhatIsThrownOutOfTheFieldIsLost) {
    PutUnit(0, 74, 20);
    unit.marksmanship = 100;
    for (const char* thing : {"knife", "c4"}) {
        Hold(thing, "Throw", 1);
        unit.time = 400;
        frmField.cmbLog.List.clear();
        ActOnTarget(1590, 410);
        EXPECT_NE(Log().find(std::string(thing) + " is lost outside the field\n"), std::string::npos)
            << Log();
    }
    EXPECT_EQ(teamLast[PileList], -1);
    EXPECT_EQ(teamLast[ChargeList], -1);
    Hold("m67", "Throw", 1);
    unit.time = 400;
    ActOnTarget(1590, 410);
    EXPECT_EQ(unit.items[0].name, "") << "a grenade bursts out there";
}

TEST_F(ActionsTest, ASecondaryBarrelUsesTheSecondFeedAndHasALaunchOfItsOwn) {
    Hold("m4m203", "Secondary", 3);
    host.sounds.clear();
    ActOnTarget(900, 410);
    EXPECT_EQ(unit.items[0].roundsSecond, 2);
    EXPECT_EQ(unit.items[0].roundsMain, 3);
    EXPECT_EQ(Heard("weapons\\bloop"), 1U);
    EXPECT_EQ(Heard("weapons\\gren40"), 1U);
    EXPECT_EQ(unit.items[0].name, "m4m203") << "the launcher stays in the hand";
}

TEST_F(ActionsTest, ScatterGrowsWithDistanceAndLackOfSkill) {
    // marksmanship 100, accuracy 100, 5 cells: spread 5, scatter round(25 / 20) = 1 pixel to each side.
    Hold("ak", "Aimed shot", 200);
    unit.hand.accur = 100;
    unit.hand.durab = 1000;
    int lowest = 10000;
    int highest = 0;
    for (int i = 0; i < 60; ++i) {
        unit.time = 400;
        ActOnTarget(30 * 20 + 110, 410);
        lowest = std::min<int>(lowest, impactX);
        highest = std::max<int>(highest, impactX);
    }
    EXPECT_EQ(lowest, 35);
    EXPECT_EQ(highest, 35);
}

TEST_F(ActionsTest, FoldingCostsNothing) {
    Hold("etool", "Fold", 0);
    const int time = unit.time;
    ActOnTarget(700, 410);
    EXPECT_EQ(unit.hand.name, "etoolfold");
    EXPECT_EQ(unit.items[0].count, 0);
    EXPECT_EQ(frmField.comboMode.List, std::vector<std::string>{"Unfold"});
    ActOnTarget(700, 410);
    EXPECT_EQ(unit.items[0].name, "etool");
    EXPECT_EQ(unit.items[0].count, 1);
    EXPECT_EQ(unit.time, time);
}

TEST_F(ActionsTest, ASoldierWhoSpendsHisTimeFiringFinishesFirst) {
    PutUnit(1, 10, 10);
    Hold("ak", "Aimed shot", 20);
    unit.time = WeaponInfoByName("ak").time + 2;
    Dispatch({EventKind::MouseDown, "frmField.area", -1, 2, 0, 900, 410});
    EXPECT_EQ(unit.items[0].roundsMain, 19);
    EXPECT_EQ(unit.time, 2);
    EXPECT_EQ(curUnit, 1);
}

}  // namespace
