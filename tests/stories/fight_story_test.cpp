// Fights, driven through the door for input: walls, glass, shotguns, grenades.
#include "data/terrain.h"
#include "platform/random.h"
#include "state/state.h"
#include "tests/support/drawn_field.h"
#include "tests/support/game_test.h"
#include "view/events.h"
#include "view/field_form.h"

namespace {

class FightStory : public GameTest {
  protected:
    FightStory() {
        ClearField();
        PutUnit(0, 20, 20);
        PutUnit(29, 70, 40);
        soldier.marksmanship = 100;
        soldier.vitality = 90;
        SeedRandom(12);
    }

    Unit& soldier = UnitTable[0];

    // A right click on a cell, with a fresh soldier's time.
    void FireAt(int x, int y) {
        soldier.time = 400;
        soldier.hand.durab = 1000;
        Dispatch({EventKind::MouseDown, "frmField.area", -1, 2, 0, static_cast<float>(x * 20 + 10),
                  static_cast<float>(y * 20 + 10)});
    }

    static int Lines(const std::string& part) {
        int count = 0;
        for (const std::string& line : frmField.cmbLog.List)
            count += line.find(part) != std::string::npos ? 1 : 0;
        return count;
    }
};

TEST_F(FightStory, ABurstGoesThroughAWoodenWallOnceItBreaks) {
    PutTile(23, 20, 1, Wooden);
    PutUnit(20, 26, 20);
    UnitTable[20].health = 1000;
    Hold("m249", "Full auto", 200);
    int bursts = 0;
    for (; cellGrid[20][23].tileX != 81 && bursts < 10; ++bursts)
        FireAt(26, 20);
    EXPECT_EQ(cellGrid[20][23].tileX, 81) << "the wall gives way";
    EXPECT_EQ(cellGrid[20][23].block, 0);
    frmField.cmbLog.List.clear();
    for (int i = 0; i < 5; ++i)
        FireAt(26, 20);
    EXPECT_GT(Lines(" hit u20 with m249"), 0) << "who stood behind it is hit";
}

TEST_F(FightStory, AGrenadeInAGroupHurtsSeveralAndDigsACrater) {
    int index = 20;
    for (int x = 25; x <= 27; ++x)
        for (int y : {19, 21})
            PutUnit(index++, x, y);
    Hold("m67", "Throw", 1);
    FireAt(26, 20);
    EXPECT_GE(Lines("dist: "), 4) << "each in the square is rolled for";
    int hurt = 0;
    for (int i = 20; i < 26; ++i)
        hurt += UnitTable[i].health < 50 ? 1 : 0;
    EXPECT_GE(hurt, 1);
    EXPECT_LT(cellGrid[20][26].durab, 200);
    EXPECT_EQ(soldier.hand.name, "hand");
}

TEST_F(FightStory, TheLastEnemyKilledIsTheVictory) {
    UnitTable[29].status = Dead;
    for (int i = 20; i < 29; ++i)
        UnitTable[i].status = Dead;
    PutUnit(20, 22, 20);
    UnitTable[20].items[0].name = "ak";
    UnitTable[20].health = 5;
    Hold("ak", "Aimed shot");
    const auto fight = [this] {
        for (int i = 0; i < 50; ++i)
            FireAt(22, 20);
    };
    EXPECT_THROW(fight(), ProcessEnded);
    EXPECT_EQ(host.messages, std::vector<std::string>{"Victory. The end."});
    EXPECT_EQ(groundItems[20][22][0].name, "ak");
}

}  // namespace
