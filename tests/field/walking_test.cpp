// Turning, stepping and walking: what they cost, what refuses them, how a walk ends.
#include "field/walking.h"

#include <random>

#include "field/geometry.h"
#include "state/setup.h"
#include "state/state.h"
#include "tests/support/drawn_field.h"
#include "tests/support/game_test.h"
#include "view/events.h"
#include "view/field_form.h"

namespace {

class WalkingTest : public GameTest {
  protected:
    WalkingTest() {
        ClearField();
        PutUnit(0, 30, 20);
    }

    Unit& unit = UnitTable[0];

    // Pixel (x, y) away from the unit's centre.
    void TurnToward(int x, int y) {
        TurnTowards(static_cast<float>(unit.pixelX + 10 + x), static_cast<float>(unit.pixelY + 10 + y));
    }

    static InputEvent ClickOn(int cellX, int cellY, int button = 1) {
        return {EventKind::MouseDown,
                "frmField.area",
                -1,
                button,
                0,
                static_cast<float>(cellX * 20 + 10),
                static_cast<float>(cellY * 20 + 10)};
    }
};

TEST_F(WalkingTest, ATurnCostsOneTimeForEach45DegreesTheShorterWayRound) {
    // Rows: from east, west, north, south, north-east, south-east, south-west, north-west; columns: to the
    // same.
    constexpr int Costs[8][8] = {{0, 4, 2, 2, 1, 1, 3, 3}, {4, 0, 2, 2, 3, 3, 1, 1}, {2, 2, 0, 4, 1, 3, 3, 1},
                                 {2, 2, 4, 0, 3, 1, 1, 3}, {1, 3, 1, 3, 0, 2, 4, 2}, {1, 3, 3, 1, 2, 0, 2, 4},
                                 {3, 1, 3, 1, 4, 2, 0, 2}, {3, 1, 1, 3, 2, 4, 2, 0}};
    for (int from = 0; from < FacingCount; ++from)
        for (int to = 0; to < FacingCount; ++to) {
            unit.facing = from;
            unit.time = 80;
            const int energy = unit.energy;
            EXPECT_EQ(TurnOrStep(false, to), from != to);
            EXPECT_EQ(unit.facing, to);
            EXPECT_EQ(80 - unit.time, Costs[from][to]) << from << " to " << to;
            EXPECT_EQ(unit.energy, energy) << "turning is free of energy";
        }
}

TEST_F(WalkingTest, AReversalGoesClockwise) {
    struct Case {
        int from, to, halfWay;
    };
    constexpr Case Cases[] = {{North, South, East},
                              {South, North, West},
                              {East, West, South},
                              {West, East, North},
                              {NorthEast, SouthWest, SouthEast}};
    for (const Case& c : Cases) {
        unit.facing = c.from;
        unit.time = 2;
        unit.team = EnemyTeam;  // whose selection is not handed on
        EXPECT_TRUE(TurnOrStep(true, c.to)) << "out of time on the way, and yet done";
        EXPECT_EQ(unit.facing, c.halfWay);
        EXPECT_EQ(unit.time, 0);
        EXPECT_FALSE(TurnOrStep(true, c.to));
        EXPECT_EQ(unit.facing, c.halfWay);
    }
}

TEST_F(WalkingTest, APixelPicksTheNearestOfEightDirections) {
    struct Case {
        int dx, dy, facing;
    };
    constexpr Case Cases[] = {
        {30, 14, East},        {28, 14, East},  // exactly twice
        {27, 14, SouthEast},   {14, 28, South},        {14, 27, SouthEast}, {-28, 14, West},
        {-27, -14, NorthWest}, {0, -40, North},        {11, 10, East},      {11, 11, SouthEast},
        {10, 11, South},       {400, -201, NorthEast}, {400, -200, East},
    };
    for (const Case& c : Cases) {
        unit.facing = c.facing == North ? South : North;
        unit.time = 80;
        TurnToward(c.dx, c.dy);
        EXPECT_EQ(unit.facing, c.facing) << c.dx << ", " << c.dy;
    }
    unit.facing = West;
    TurnToward(10, -10);
    EXPECT_EQ(unit.facing, West) << "a point of its own square turns nobody";
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

TEST_F(WalkingTest, AStepIntoAWallCostsNothingAndOneWithoutTimeCostsEnergy) {
    DrawField(31, 20, {"#"});
    EXPECT_FALSE(TurnOrStep(true, East));
    EXPECT_EQ(unit.energy, 60);
    unit.facing = South;
    unit.stance = Crouch;
    unit.time = 5;
    host.sounds.clear();
    EXPECT_FALSE(TurnOrStep(true, South));
    EXPECT_EQ(unit.energy, 55) << "the energy is gone";
    EXPECT_EQ(unit.time, 5);
    EXPECT_EQ(unit.cellY, 20);
    ASSERT_EQ(host.sounds.size(), 1U);
    EXPECT_EQ(host.sounds[0].fileName, "\\wav\\bump\\wound2.wav");
    unit.energy = 4;
    unit.time = 80;
    EXPECT_FALSE(TurnOrStep(true, South));
    EXPECT_EQ(unit.time, 80) << "without energy the time is not asked for";
}

TEST_F(WalkingTest, AWalkEndsBesideAnOccupiedDestination) {
    PutUnit(1, 34, 20);
    walkOn = 1;
    EXPECT_TRUE(WalkTo(34, 20, 100));
    EXPECT_EQ(unit.cellX, 33);
    EXPECT_EQ(unit.time, 80 - 3 * 4);
    EXPECT_EQ(unit.energy, 60 - 3);
}

TEST_F(WalkingTest, AWalkStopsWhenTimeOrTheGoAheadIsGone) {
    walkOn = 1;
    unit.time = 10;
    PutUnit(1, 10, 10);  // to whom the selection goes
    EXPECT_FALSE(WalkTo(40, 20, 100));
    EXPECT_EQ(unit.cellX, 32);
    EXPECT_EQ(unit.time, 2);
    EXPECT_EQ(curUnit, 1) << "the step that used the time up hands over";

    PutUnit(0, 30, 20);
    curUnit = 0;
    walkOn = 0;
    EXPECT_FALSE(WalkTo(40, 20, 100));
    EXPECT_EQ(unit.cellX, 31) << "the first entry is walked, then the flag is looked at";

    PutUnit(0, 30, 20);
    walkOn = 1;
    EXPECT_TRUE(WalkTo(40, 20, 4));
    EXPECT_EQ(unit.cellX, 34);
}

TEST_F(WalkingTest, AWalkWithoutAPathStepsToAndFro) {
    DrawField(29, 19, {"#####", "#0..#", "#####"});
    walkOn = 1;
    unit.time = 19;
    PutUnit(1, 10, 10);
    EXPECT_TRUE(WalkTo(50, 20, 100)) << "the plan runs out, standing still at its end";
    // A step east leaves 15 time, the turn back for 4 and the step west for 4 leave 7; the wall refuses the
    // rest.
    EXPECT_EQ(unit.cellX, 30);
    EXPECT_EQ(unit.facing, West);
    EXPECT_EQ(unit.time, 7);
}

TEST_F(WalkingTest, ASoldierInColumn0LosesHisWayOffTheField) {
    PutUnit(0, 0, 20);
    walkOn = 1;
    EXPECT_THROW(WalkTo(5, 20, 100), RunTimeError);
}

TEST_F(WalkingTest, AFirstClickTurnsAndASecondWalks) {
    Dispatch(ClickOn(30, 25));
    EXPECT_EQ(unit.facing, South);
    EXPECT_EQ(unit.cellY, 20);
    EXPECT_EQ(walkOn, 1);
    Dispatch(ClickOn(30, 25));
    EXPECT_EQ(unit.cellY, 25);
    Dispatch(ClickOn(30, 25, 2));
    EXPECT_EQ(unit.cellY, 25) << "the right button walks nowhere";
}

TEST_F(WalkingTest, TheVeryFirstClickOnTheCornerWalksAtOnce) {
    Dispatch(ClickOn(0, 0));
    EXPECT_NE(unit.cellY, 20);
}

TEST_F(WalkingTest, AClickDuringAWalkEndsItAndIsNotLost) {
    lastClickX = 50;
    lastClickY = 20;
    host.Queue(ClickOn(30, 40), host.pumps + 30);  // 19 waves, then a pump after each step
    Dispatch(ClickOn(50, 20));
    EXPECT_EQ(unit.cellX, 41) << "eleven steps were walked";
    EXPECT_NE(unit.facing, East);
    EXPECT_EQ(lastClickY, 40);
}

TEST_F(WalkingTest, AClickDuringTheSearchReplacesIt) {
    lastClickX = 50;
    lastClickY = 20;
    host.Queue(ClickOn(30, 15), host.pumps + 5);
    host.Queue(ClickOn(30, 15), host.pumps + 5);
    Dispatch(ClickOn(50, 20));
    EXPECT_EQ(unit.cellX, 30);
    EXPECT_EQ(unit.cellY, 15);
}

TEST_F(WalkingTest, SelectingAnotherSoldierEndsTheWalk) {
    PutUnit(1, 10, 10);
    lastClickX = 50;
    lastClickY = 20;
    host.Queue(ClickOn(10, 10), host.pumps + 22);
    Dispatch(ClickOn(50, 20));
    EXPECT_EQ(curUnit, 1);
    EXPECT_EQ(unit.cellX, 33);
    EXPECT_EQ(UnitTable[1].cellX, 10);
}

// Random clicks and keys at random pumps: whatever is let in, nothing breaks, and units and cells agree.
TEST_F(WalkingTest, NestedOrdersDoNotCrash) {
    StartGame(3);
    std::mt19937 generator(11);
    const auto draw = [&generator](int count) {
        return static_cast<int>(generator() % static_cast<unsigned>(count));
    };
    const auto anyEvent = [&]() -> InputEvent {
        static constexpr int Keys[] = {32, 33, 34, 35, 36, 37, 38, 39, 40, 97, 103, 219, 221};
        switch (draw(10)) {
            case 0:
                return {EventKind::KeyDown, "frmField", -1, Keys[draw(13)]};
            case 1:
                return {EventKind::Click, "frmField.imgStance", draw(4)};
            case 2:
                return {EventKind::Click, "frmField.imgEnemyCount"};
            case 3:
                return {EventKind::Click, "frmField.cmdNextTurn"};
            case 4:
                return {EventKind::Choose, "frmField.comboMode", -1, draw(9) - 1};
            case 5:
                return {EventKind::Click, "frmField.imgStop"};
            default:
                return ClickOn(1 + draw(30), 1 + draw(14), 1 + draw(2));
        }
    };
    for (int round = 0; round < 400; ++round) {
        const InputEvent first = anyEvent();
        for (int i = 0; i < 4; ++i)
            host.Queue(anyEvent(), host.pumps + draw(40));
        try {
            Dispatch(first);
            Dispatch(first);
        } catch (const ProcessEnded&) {
            StartGame(static_cast<unsigned>(round));  // the mission was won or lost
        }
        for (int i : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 20, 21, 22}) {
            const Unit& any = UnitTable[i];
            if (any.status == Dead) continue;
            ASSERT_EQ(cellGrid[any.cellY][any.cellX].occupant, i) << "round " << round;
            ASSERT_EQ(any.pixelX, any.cellX * 20);
            ASSERT_EQ(any.pixelY, any.cellY * 20);
        }
        ASSERT_EQ(game.operationDepth, 0);
        if (round % 20 == 0) Dispatch({EventKind::Click, "frmField.cmdNextTurn"});
    }
}

}  // namespace
