// The chance to hit, to the digit and in the long run; damage and death.
#include "combat/hits.h"

#include <algorithm>
#include <cmath>

#include "combat/things.h"
#include "platform/random.h"
#include "state/state.h"
#include "tests/support/drawn_field.h"
#include "tests/support/game_test.h"
#include "view/field_form.h"

namespace {

class HitsTest : public GameTest {
  protected:
    HitsTest() {
        ClearField();
        PutUnit(0, 10, 20);
        PutUnit(20, 11, 20);
        PutUnit(21, 70, 40);
        UnitTable[0].name = "Hale";
        UnitTable[20].name = "foe";
    }

    Unit& target = UnitTable[20];

    // A seed whose first draw from 0 to `high` is `value`.
    static unsigned SeedFor(int high, int value) {
        for (unsigned seed = 1;; ++seed) {
            SeedRandom(seed);
            if (RandomInt(high, 0) == value) return seed;
        }
    }

    std::string HitLine(int rnd) {
        SeedRandom(SeedFor(30, rnd));
        frmField.cmbLog.List.clear();
        target.health = 1000;
        bulletPower = 0;
        UnitHit(0, 20);
        return frmField.cmbLog.List.at(0);
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
        {1, Stand, NorthEast, 0, "dist: 1, angle: 100, stance: 100, suppr: 0, rnd: 0, %:100"},
        {6, Stand, NorthEast, 0, "dist: 6, angle: 100, stance: 100, suppr: 50, rnd: 0, %:100"},
        {6, Stand, NorthEast, 30, "dist: 6, angle: 100, stance: 100, suppr: 50, rnd: 30, %:70"},
        {20, Prone, East, 0, "dist: 20, angle: 50, stance: 25, suppr: 100, rnd: 0, %:12"},
        {20, Stand, West, 0, "dist: 20, angle: 150, stance: 100, suppr: 100, rnd: 0, %:150"},
        // 90 of distance, 10 per cent of 50 * 1.5; less a tenth: 95 + 7.5 ... (100 - 10 + 7.5) * 0.9 = 87.75
        {2, Crouch, East, 10, "dist: 2, angle: 150, stance: 50, suppr: 10, rnd: 10, %:88"},
    };
    for (const Case& c : Cases) {
        PlaceTarget(c.distance, c.stance, c.facing);
        EXPECT_EQ(HitLine(c.rnd), c.line);
    }
}

TEST_F(HitsTest, TheAngleTableHoldsForEveryPairOfFacings) {
    constexpr int Upright[8][8] = {{3, 3, 1, 1, 2, 2, 2, 2}, {3, 3, 1, 1, 2, 2, 2, 2},
                                   {1, 1, 3, 3, 2, 2, 2, 2}, {1, 1, 3, 3, 2, 2, 2, 2},
                                   {2, 2, 2, 2, 3, 1, 3, 1}, {2, 2, 2, 2, 1, 3, 1, 3},
                                   {2, 2, 2, 2, 3, 1, 3, 1}, {2, 2, 2, 2, 1, 3, 1, 3}};
    for (int facing = 0; facing < 8; ++facing)
        for (int shooter = 0; shooter < 8; ++shooter) {
            target.facing = facing;
            UnitTable[0].facing = shooter;
            for (int stance : {1, 2, 3}) {
                target.stance = stance;
                EXPECT_EQ(HitAngle(0, 20), Upright[facing][shooter]);
            }
            target.stance = Prone;
            EXPECT_EQ(HitAngle(0, 20), 4 - Upright[facing][shooter]);
        }
    target.stance = 4;
    EXPECT_EQ(HitAngle(0, 20), 0);
}

// The chance of one roll: each of 31 values of rnd alike, then 101 values of which those up to the percentage
// hit.
TEST_F(HitsTest, AHundredThousandRollsKeepWithinTheBinomialBounds) {
    struct Case {
        int distance, stance, facing;
        double angle, stanceValue;
    };
    constexpr Case Cases[] = {{1, Stand, East, 150, 100},
                              {4, Crouch, North, 50, 50},
                              {8, Stand, NorthEast, 100, 100},
                              {15, Prone, East, 50, 25},
                              {20, Stance::Run, North, 50, 75}};
    constexpr int Rolls = 100000;
    for (const Case& c : Cases) {
        const double suppression = std::min((c.distance - 1) * 10.0, 100.0);
        const double full = 100 - suppression + suppression / 100 * (c.angle / 100 * c.stanceValue);
        double chance = 0;
        for (int rnd = 0; rnd <= 30; ++rnd)
            chance += std::min(std::nearbyint(full - rnd / 100.0 * full) + 1, 101.0) / 101 / 31;
        PlaceTarget(c.distance, c.stance, c.facing);
        SeedRandom(77);
        bulletPower = 0;
        int hits = 0;
        for (int i = 0; i < Rolls; ++i) {
            frmField.cmbLog.List.clear();
            host.sounds.clear();
            UnitHit(0, 20);
            hits += static_cast<int>(frmField.cmbLog.List.size()) > 1 &&
                    frmField.cmbLog.List[1].starts_with("Hale hit");
        }
        const double deviation = std::sqrt(Rolls * chance * (1 - chance));
        EXPECT_NEAR(hits, Rolls * chance, 4 * deviation + 1) << "distance " << c.distance;
    }
}

TEST_F(HitsTest, DamageTakesHealthAndTellsWhoDidIt) {
    UnitTable[0].hand.name = "ak";
    bulletPower = 0;
    SeedRandom(SeedFor(30, 0));
    UnitHit(0, 20);
    EXPECT_EQ(frmField.cmbLog.List.at(1), "Hale hit foe with ak and bring 0 points of damage");
    EXPECT_EQ(host.sounds.back().fileName, "\\wav\\bump\\wound3.wav");
    target.health = 40;
    bulletPower = -20;
    for (int i = 0; i < 10; ++i)
        UnitHit(0, 20);
    EXPECT_GT(target.health, 60) << "what is less than nothing heals, above the vitality too";
    EXPECT_EQ(curUnit, 0);
}

TEST_F(HitsTest, TheDyingDropTheirThingsAndFreeTheirCell) {
    target.items[0].name = "ak";
    target.items[0].capMain = 31;
    target.health = 1;
    while (target.status != Dead) {
        bulletPower = 30;
        UnitHit(0, 20);
    }
    EXPECT_EQ(target.health, 0);
    EXPECT_EQ(cellGrid[20][11].occupant, -1);
    EXPECT_EQ(groundItems[20][11][0].name, "ak");
    EXPECT_EQ(CountAt(11, 20, PileBase), 1);
    EXPECT_EQ(host.sounds.back().fileName, "\\wav\\bump\\death2.wav");
    const std::size_t lines = frmField.cmbLog.List.size();
    EXPECT_EQ(frmField.cmbLog.List.at(lines - 2), "u21 (#21) from team #1 alive.");
    UnitHit(0, 20);
    EXPECT_EQ(frmField.cmbLog.List.size(), lines) << "the dead take nothing";
    EXPECT_TRUE(host.messages.empty());

    UnitTable[21].health = 1;
    const auto killLast = [] {
        for (int i = 0; i < 100; ++i) {
            bulletPower = 3000;
            UnitHit(0, 21);
        }
    };
    EXPECT_THROW(killLast(), ProcessEnded);
    EXPECT_EQ(host.messages, std::vector<std::string>{"Victory. The end."});
}

}  // namespace
