// The chance to hit, to the digit.
#include "combat/hits.h"

#include "state/chance.h"
#include "tests/support/game_test.h"

namespace {

class HitsTest : public GameTest {
  protected:
    HitsTest() {
        ClearField();
        PutUnit(0, 10, 20);
        PutUnit(20, 11, 20);
    }

    Unit& target = UnitTable[20];

    // Seeds chance so that what is drawn from 0 to 30 and then from 0 to 100 is this; -1 for any roll.
    static void SeedFor(int chance, int roll = -1) {
        for (unsigned seed = 1;; ++seed) {
            SeedRandom(seed);
            const bool drawn = RandomInt(30, 0) == chance;
            const int rolled = RandomInt(100, 0);
            if (drawn && (roll == -1 || roll == rolled)) return SeedRandom(seed);
        }
    }

    void PlaceTarget(int distance, int stance, int facing) {
        PutUnit(20, 10 + distance, 20);
        target.stance = stance;
        target.facing = facing;
    }
};

TEST_F(HitsTest, TheWorkedValuesComeOutToTheDigit) {
    struct Case {
        int distance, stance, facing, rnd;
        const char* line;
    };
    constexpr Case Cases[] = {
        {1, Stand, NorthEast, 0, "dist: 1, angle: 100, stance: 100, suppr: 0, rnd: 0, %:100\n"},
        {6, Stand, NorthEast, 30, "dist: 6, angle: 100, stance: 100, suppr: 50, rnd: 30, %:70\n"},
        {20, Prone, East, 0, "dist: 20, angle: 50, stance: 25, suppr: 100, rnd: 0, %:12\n"},
        {20, Stance::Run, West, 0, "dist: 20, angle: 150, stance: 75, suppr: 100, rnd: 0, %:112\n"},  // 112.5
        // (100 - 10 + 10 % of 50 * 1.5) * 0.9 = 87.75
        {2, Crouch, East, 10, "dist: 2, angle: 150, stance: 50, suppr: 10, rnd: 10, %:88\n"},
    };
    for (const Case& c : Cases) {
        PlaceTarget(c.distance, c.stance, c.facing);
        target.health = 1000;
        SeedFor(c.rnd);
        frmField.cmbLog.List.clear();
        UnitHit(0, 20);
        EXPECT_EQ(Log().substr(0, Log().find('\n') + 1), c.line);
    }
}

TEST_F(HitsTest, ATargetShowsItsBroadSideOrItsEnd) {
    struct Case {
        int target, shooter, upright;
    };
    constexpr Case Cases[] = {
        {East, West, 3},           {East, North, 1},          {East, SouthWest, 2},
        {North, South, 3},         {North, NorthWest, 2},     {SouthWest, East, 2},
        {NorthEast, SouthWest, 3}, {NorthEast, SouthEast, 1}, {NorthWest, SouthWest, 1}};
    for (const Case& c : Cases) {
        target.facing = c.target;
        UnitTable[0].facing = c.shooter;
        for (int stance = Prone; stance <= Stance::Run; ++stance) {
            target.stance = stance;
            EXPECT_EQ(HitAngle(0, 20), stance == Prone ? 4 - c.upright : c.upright);
        }
    }
}

TEST_F(HitsTest, ARollUpToTheChanceHitsWhoIsAlive) {
    for (const auto& [roll, status, hit] :
         {std::tuple{12, Active, true}, {13, Active, false}, {12, Dead, false}}) {
        PlaceTarget(20, Prone, East);  // 12 in a hundred
        target.status = status;
        host.sounds.clear();
        SeedFor(0, roll);
        UnitHit(0, 20);
        EXPECT_EQ(!host.sounds.empty(), hit) << roll;
    }
}

TEST_F(HitsTest, TheLastOfTheSquadTakesTheMissionWithHim) {
    UnitTable[0].health = 1;
    bulletPower = 30;
    const auto hitAgainAndAgain = [] {
        for (int i = 0; i < 100; ++i)
            UnitHit(20, 0);
    };
    EXPECT_THROW(hitAgainAndAgain(), ProcessEnded);
    EXPECT_EQ(host.messages, std::vector<std::string>{"Defeat. The end."});
}

}  // namespace
