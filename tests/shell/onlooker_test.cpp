// What an onlooker retells of the rules, and in which order.
#include "shell/onlooker.h"

#include "combat/actions.h"
#include "data/terrain.h"
#include "field/sightings.h"
#include "state/status.h"
#include "tests/support/game_test.h"

namespace {

constexpr const char* Names[] = {"mission", "turn", "selected", "shot", "hit", "death", "blast", "sighting"};

class OnlookerTest : public GameTest {
  protected:
    OnlookerTest() {
        StartGame();
        ClearField();
        teamLast[SquadTeam] = 0;
        teamLast[EnemyTeam] = 1;
        PutUnit(0, 30, 20);
        PutUnit(20, 33, 20);
        PutUnit(21, 70, 40);
        curTeam = SquadTeam;
        curUnit = 0;
        UnitTable[0].seen[0] = 1;
        told.clear();
    }

    // A shot that can't miss.
    void Shoot() {
        Hold("m4", "Aimed", 1);
        UnitTable[0].hand.accur = 200;
        UnitTable[0].marksmanship = 100;
        ActOnTarget(UnitTable[20].pixelX + HalfCell, UnitTable[20].pixelY + HalfCell);
    }

    std::string told;
    Happening last[std::size(Names)];
    Onlooker onlooker{[this](const Happening& happening) {
        const auto kind = static_cast<std::size_t>(happening.kind);
        last[kind] = happening;
        told += std::string(Names[kind]) + (happening.seen ? " " : "? ");
    }};
};

TEST_F(OnlookerTest, AShotComesBeforeWhatItDoes) {
    UnitTable[20].health = 1;
    UnitTable[20].stance = Prone;  // 25 of 100: the roll still succeeds for one of the first few shots
    for (int shots = 0; shots < 40 && UnitTable[20].status != Dead; ++shots) {
        told.clear();
        Shoot();
    }
    EXPECT_EQ(told, "shot hit death ");
    const Happening& shot = last[static_cast<std::size_t>(HappeningKind::Shot)];
    EXPECT_EQ(shot.x, 31 * CellSize) << "the muzzle of who looks east";
    EXPECT_EQ(shot.text, "m4");
    const Happening& death = last[static_cast<std::size_t>(HappeningKind::Death)];
    EXPECT_EQ(death.unit, 20);
    EXPECT_EQ(death.by, 0);
    EXPECT_EQ(death.x, 33 * CellSize + HalfCell);
}

TEST_F(OnlookerTest, WhatTheSquadDoesNotSeeIsMarked) {
    curTeam = EnemyTeam;
    curUnit = 20;
    UnitTable[0].seen[0] = 0;
    PutUnit(20, 60, 20);
    Hold("m4", "Aimed", 1);
    ActOnTarget(50 * CellSize, 20 * CellSize);
    EXPECT_FALSE(last[static_cast<std::size_t>(HappeningKind::Shot)].seen);
    Hold("m4", "Aimed", 1);
    UnitTable[20].hand.accur = 200;
    UnitTable[20].marksmanship = 100;
    ActOnTarget(32 * CellSize, 20 * CellSize);
    EXPECT_TRUE(last[static_cast<std::size_t>(HappeningKind::Shot)].seen)
        << "it ended beside a soldier of the squad";
}

TEST_F(OnlookerTest, ADeathOfWoundsHasNobodyBehindIt) {
    UnitTable[0].health = 0;
    CheckStatus();
    const Happening& death = last[static_cast<std::size_t>(HappeningKind::Death)];
    EXPECT_EQ(death.unit, 0);
    EXPECT_EQ(death.by, -1);
}

}  // namespace
