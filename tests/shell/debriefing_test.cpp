// What a mission has come to, from a short one whose figures are counted by hand.
#include "shell/debriefing.h"

#include "shell/companion.h"
#include "state/audience.h"
#include "tests/support/game_test.h"
#include "view/start.h"

namespace {

constexpr int FirstEnemy = 20;

class DebriefingTest : public GameTest {
  protected:
    DebriefingTest() { Main(1); }

    // `by` fires, and `unit` loses so much of his health.
    static void Hit(int by, int unit, int damage) {
        UnitTable[unit].health = std::max(UnitTable[unit].health - damage, 0);
        if (UnitTable[unit].health == 0) UnitTable[unit].status = Dead;
        curUnit = by;
        TheAudience().TrailChanged("initialize");
        curUnit = unit;
        TheAudience().UnitHurt(by, damage);
        curUnit = by;
        TheAudience().FiguresChanged("");
        TheAudience().TrailChanged("finalize");
    }

    Companion companion;
};

TEST_F(DebriefingTest, CountsWhatEachDid) {
    Hit(0, FirstEnemy, 30);
    Hit(0, FirstEnemy, 30);
    Hit(1, FirstEnemy + 1, 12);
    Hit(FirstEnemy + 1, 2, 20);
    Hit(FirstEnemy + 1, 3, 99);
    curUnit = 0;
    TheAudience().TrailChanged("initialize");
    TheAudience().TrailChanged("finalize");
    UnitTable[2].wasWounded = True;
    missionVerdict = "Withdrawal";
    storeItems[3].name = storeItems[29].name = "m67";
    const Debriefing debriefing = DebriefingOf(companion.TheChronicle());

    EXPECT_EQ(debriefing.outcome, "Withdrawal");
    EXPECT_EQ(debriefing.turns, 1);
    EXPECT_EQ(debriefing.enemiesKilled, 1);
    EXPECT_EQ(debriefing.enemies, 3);
    const std::vector<SoldierReport> expected = {
        {"Marcus Hale", {.shots = 3, .hits = 2, .kills = 1, .damage = 60}, 110, "51 of 51"},
        {"Ingrid Solberg", {.shots = 1, .hits = 1, .damage = 12}, 12, "44 of 44"},
        {"Tomasz Wolski", {.wounds = 1}, 0, "33 of 53"},
        {"Claire Fournier", {.wounds = 1}, 0, "dead"}};
    EXPECT_TRUE(std::equal(expected.begin(), expected.end(), debriefing.soldiers.begin()));
    EXPECT_EQ(debriefing.things, (std::vector<ThingReport>{{"M67", 2}, {"BSL-110", -1}, {"M24", -1}}));
    ASSERT_EQ(debriefing.medals.size(), 2U);
    EXPECT_EQ(debriefing.medals[0].soldiers[0], "Marcus Hale (3rd)");
    EXPECT_EQ(debriefing.medals[1],
              (MedalReport{"Purple Heart", {"Tomasz Wolski", "Claire Fournier (posthumously)"}}));
}

// The last enemy falls to a bullet that is still in the air.
TEST_F(DebriefingTest, AMissionThatEndsInTheMiddleOfAShotCountsIt) {
    curUnit = 0;
    TheAudience().TrailChanged("initialize");
    UnitTable[FirstEnemy].health = 0;
    UnitTable[FirstEnemy].status = Dead;
    curUnit = FirstEnemy;
    TheAudience().UnitHurt(0, 41);
    TheAudience().FiguresChanged("health");
    EXPECT_EQ(companion.TheChronicle().TallyOf(0).kills, 0);
    companion.Settle();
    EXPECT_EQ(companion.TheChronicle().TallyOf(0), (Tally{.shots = 1, .hits = 1, .kills = 1, .damage = 41}));
}

TEST_F(DebriefingTest, ThePageWritesNamesAsTheyAre) {
    Debriefing debriefing;
    debriefing.outcome = "Victory";
    debriefing.soldiers.emplace_back().name = "A<b>&c";
    const std::string page = PageOf(debriefing);
    EXPECT_NE(page.find("A&lt;b>&amp;c"), std::string::npos);
    EXPECT_NE(page.find("The vehicle holds what it held before."), std::string::npos);
}

}  // namespace
