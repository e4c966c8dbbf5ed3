// Turning, stepping and walking: what they cost, what refuses them, how a walk ends.
#include "field/walking.h"

#include "data/terrain.h"
#include "platform/keys.h"
#include "tests/support/game_test.h"

namespace {

class WalkingTest : public GameTest {
  protected:
    WalkingTest() {
        ClearField();
        PutUnit(0, 30, 20);
        walkOn = 1;
    }

    Unit& unit = UnitTable[0];
};

TEST_F(WalkingTest, ATurnCostsOneTimeForEach45DegreesTheShorterWayRoundAndClockwiseAtWorst) {
    struct Case {
        int from, to, cost, firstOfTwo;  // facing when the time ends after two
    };
    constexpr Case Cases[] = {
        {East, NorthEast, 1, NorthEast}, {East, South, 2, South},
        {North, SouthWest, 3, West},     {NorthEast, SouthEast, 2, SouthEast},
        {NorthWest, East, 3, NorthEast}, {North, South, 4, East},
        {West, East, 4, North},          {NorthEast, SouthWest, 4, SouthEast},
    };
    unit.team = EnemyTeam;  // whose selection is not handed on
    for (const Case& c : Cases) {
        unit.facing = c.from;
        unit.time = 80;
        EXPECT_TRUE(TurnOrStep(false, c.to));
        EXPECT_EQ(unit.facing, c.to);
        EXPECT_EQ(80 - unit.time, c.cost) << c.from << " to " << c.to;
        EXPECT_EQ(unit.energy, 60) << "turning is free of energy";
        unit.facing = c.from;
        unit.time = 2;
        EXPECT_TRUE(TurnOrStep(false, c.to)) << "out of time on the way, and yet done";
        EXPECT_EQ(unit.facing, c.firstOfTwo) << c.from << " to " << c.to;
    }
}

TEST_F(WalkingTest, ATurnThatRunsOutOfTimeDoesNotLook) {
    PutUnit(20, 30, 25);
    unit.team = EnemyTeam;  // whose selection is not handed on
    for (const auto& [time, seen] : {std::pair{3, 0}, {80, 1}}) {
        unit.facing = North;
        unit.time = time;
        TurnOrStep(false, South);
        EXPECT_EQ(unit.seen[0], seen);
    }
}

TEST_F(WalkingTest, APixelPicksTheNearestOfEightDirections) {
    struct Case {
        int dx, dy, facing;  // pixels from the unit's centre
    };
    constexpr Case Cases[] = {
        {28, 14, East},    {27, 14, SouthEast},  // from exactly twice on it is straight
        {14, 28, South},   {14, 27, SouthEast},    {-28, 14, West},     {-27, -14, NorthWest},
        {0, -40, North},   {11, 10, East},         {11, 11, SouthEast},  // ten are within its own square
        {400, -200, East}, {400, -201, NorthEast},
    };
    for (const Case& c : Cases) {
        unit.facing = c.facing == North ? South : North;
        unit.time = 80;
        TurnTowards(static_cast<float>(610 + c.dx), static_cast<float>(410 + c.dy));
        EXPECT_EQ(unit.facing, c.facing) << c.dx << ", " << c.dy;
    }
    TurnTowards(620, 420);
    EXPECT_EQ(unit.facing, NorthEast) << "a point of its own square turns nobody";
}

TEST_F(WalkingTest, AStepCostsByStanceAndLoad) {
    struct Case {
        int stance, load, time, energy;
    };
    constexpr Case Cases[] = {{Prone, 0, 8, 6},       {Crouch, 0, 6, 5}, {Stand, 0, 4, 1},
                              {Stance::Run, 0, 2, 3}, {Stand, 40, 4, 1}, {Stand, 41, 4, 2}};
    for (const Case& c : Cases) {
        ClearField();
        PutUnit(0, 30, 20);
        unit.stance = c.stance;
        unit.load = c.load;
        EXPECT_TRUE(TurnOrStep(true, East));
        EXPECT_EQ(unit.cellX, 31);
        EXPECT_EQ(80 - unit.time, c.time);
        EXPECT_EQ(60 - unit.energy, c.energy);
    }
}

TEST_F(WalkingTest, ARefusedStepKeepsTheEnergyThatItHasPaid) {
    struct Case {
        const char* what;
        int facing, time, energy, energyAfter;
        std::size_t sounds;
    };
    constexpr Case Cases[] = {
        {"into a wall", East, 80, 60, 60, 0},
        {"without time", South, 5, 60, 55, 1},
        {"without energy the time is not asked for", South, 80, 4, 4, 1},
    };
    PutTile(31, 20, 0, Concrete);
    for (const Case& c : Cases) {
        unit.facing = c.facing;
        unit.stance = Crouch;
        unit.time = c.time;
        unit.energy = c.energy;
        host.sounds.clear();
        EXPECT_FALSE(TurnOrStep(true, c.facing)) << c.what;
        EXPECT_EQ(unit.energy, c.energyAfter) << c.what;
        EXPECT_EQ(unit.time, c.time) << c.what;
        EXPECT_EQ(host.sounds.size(), c.sounds) << c.what;
    }
    EXPECT_EQ(unit.cellY, 20);
}

TEST_F(WalkingTest, AWalkEndsForItsReasons) {
    struct Case {
        const char* what;
        int x, maxSteps, time, goAhead;
        bool arrived;
        int cellX, timeAfter;
    };
    constexpr Case Cases[] = {
        {"beside an occupied destination", 34, 100, 80, 1, true, 33, 80 - 3 * 4},
        {"out of time", 40, 100, 10, 1, false, 32, 2},
        {"the first entry is walked, then the flag is looked at", 40, 100, 80, 0, false, 31, 76},
        {"after the steps allowed", 40, 2, 80, 1, true, 32, 72},
    };
    for (const Case& c : Cases) {
        ClearField();
        PutUnit(0, 30, 20);
        PutUnit(1, 34, 20);
        curUnit = 0;
        walkOn = c.goAhead;
        unit.time = c.time;
        EXPECT_EQ(WalkTo(c.x, 20, c.maxSteps), c.arrived) << c.what;
        EXPECT_EQ(unit.cellX, c.cellX) << c.what;
        EXPECT_EQ(unit.time, c.timeAfter) << c.what;
        EXPECT_EQ(curUnit, c.timeAfter < 4 ? 1 : 0) << c.what;
    }
}

TEST_F(WalkingTest, AWalkWithoutAPathStepsToAndFro) {
    for (int x = 29; x <= 33; ++x)  // a hall of three cells
        for (int y = 19; y <= 21; ++y)
            if (y != 20 || x == 29 || x == 33) PutTile(x, y, 0, Concrete);
    unit.time = 19;
    PutUnit(1, 10, 10);
    EXPECT_TRUE(WalkTo(50, 20, 100)) << "the plan runs out, standing still at its end";
    // A step east for 4, the turn back for 4 and the step west for 4; the wall refuses the rest.
    EXPECT_EQ(unit.cellX, 30);
    EXPECT_EQ(unit.facing, West);
    EXPECT_EQ(unit.time, 7);
}

TEST_F(WalkingTest, ASoldierInColumn0LosesHisWayOffTheField) {
    PutUnit(0, 0, 20);
    EXPECT_THROW(WalkTo(5, 20, 100), RunTimeError);
}

TEST_F(WalkingTest, ANewerOrderEndsAWalkOrItsSearchAndIsNotLost) {
    struct Case {
        const char* what;
        InputEvent event;
        int pumps, clicks;  // 19 waves, then a pump after each step
        int current, cellX, cellY;
    };
    const Case cases[] = {
        {"a click after eleven steps", PressOn(30, 40, LeftButton), 30, 1, 0, 41, 20},
        {"two clicks in the search", PressOn(30, 15, LeftButton), 5, 2, 0, 30, 15},
        {"a selection after three steps", PressOn(10, 10, LeftButton), 22, 1, 1, 33, 20},
    };
    for (const Case& c : cases) {
        ClearField();
        PutUnit(0, 30, 20);
        PutUnit(1, 10, 10);
        curUnit = 0;
        lastClickX = 50;
        lastClickY = 20;
        for (int i = 0; i < c.clicks; ++i)
            host.Queue(c.event, host.pumps + c.pumps);
        Dispatch(PressOn(50, 20, LeftButton));
        EXPECT_EQ(curUnit, c.current) << c.what;
        EXPECT_EQ(unit.facing == East, c.current == 1) << c.what << ": no more step was begun";
        EXPECT_EQ(unit.cellX, c.cellX) << c.what;
        EXPECT_EQ(unit.cellY, c.cellY) << c.what;
    }
}

}  // namespace
