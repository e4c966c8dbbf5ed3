// Costs: what pays, what refuses, the feed of the held thing, and the blow's narrow field.
#include "state/costs.h"

#include "combat/tools.h"
#include "data/weapons_file.h"
#include "tests/support/game_test.h"

namespace {

class CostsTest : public GameTest {
  protected:
    CostsTest() {
        ClearField();
        PutUnit(0, 30, 10);
    }

    Unit& unit = UnitTable[0];
};

TEST_F(CostsTest, EachKindPaysFromItsPurseAndARefusalIsHeardForTimeAndEnergyAlone) {
    struct Case {
        const char* kind;
        float amount;
        bool paid;
        std::size_t sounds;
    };
    constexpr Case Cases[] = {
        {"time", 5, true, 0},  {"time", 10, false, 1},  {"energy", 5, true, 0}, {"energy", 10, false, 1},
        {"ammo", 5, true, 0},  {"ammo", 10, false, 0},  {"money", 5, true, 0},  {"money", 10, false, 0},
        {"durab", 5, true, 0}, {"durab", 10, false, 0}, {"durab", -1, true, 0}, {"hope", 0, false, 0},
    };
    for (const Case& c : Cases) {
        Hold("ak", "", 9);
        money = unit.time = unit.energy = unit.hand.durab = 9;
        host.sounds.clear();
        EXPECT_EQ(Spend(c.amount, c.kind), c.paid) << c.kind;
        const std::string kind = c.kind;
        const auto left = [&](const char* purse) {
            return kind == purse && c.paid ? 9 - static_cast<int>(c.amount) : 9;
        };
        EXPECT_EQ(unit.time, left("time"));
        EXPECT_EQ(unit.energy, left("energy"));
        EXPECT_EQ(unit.items[0].roundsMain, left("ammo")) << "the thing itself is never behind";
        EXPECT_EQ(money, left("money"));
        EXPECT_EQ(unit.hand.durab, left("durab"));
        EXPECT_EQ(host.sounds.size(), c.sounds) << c.kind;
    }
}

TEST_F(CostsTest, ShellsGrenadesAndDartsAreTheSecondFeed) {
    for (const auto& [name, mode, second] : {std::tuple{"ak", "Burst", false},
                                             {"crossbow", "Aimed", true},
                                             {"airpipe", "Aimed", true},
                                             {"m203", "Aimed", true},
                                             {"spas", "Aimed", true},
                                             {"mkey", "Aimed", false},
                                             {"mkey", "Secondary", true},
                                             {"knife", "Throw", false}}) {
        Hold(name, mode, 5);
        EXPECT_TRUE(Spend(2, "ammo"));
        EXPECT_EQ(unit.items[0].roundsMain, second ? 5 : 3) << name << mode;
        EXPECT_EQ(unit.items[0].roundsSecond, second ? 3 : 5) << name << mode;
    }
}

TEST_F(CostsTest, ABlowInsideItsNarrowFieldSounds) {
    struct Case {
        const char* what;
        int x, y, targetX, targetY;
        bool somebodyThere, sounds;
    };
    constexpr Case Cases[] = {
        {"a neighbour in column 34", 33, 10, 34, 10, true, true},
        {"a neighbour in column 35", 34, 10, 35, 10, true, false},
        {"a neighbour in row 15", 20, 15, 21, 15, true, true},
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
