// What a thing is like before anybody has used it.
#include "data/new_item.h"

#include "data/tables.h"
#include "data/weapons_file.h"
#include "tests/support/game_test.h"

namespace {

using NewItemTest = GameTest;

TEST_F(NewItemTest, NewThingsHaveTheFeedsOfTheirKeyOrElseOfTheirKind) {
    struct Case {
        const char* name;
        int main, rounds, second;
    };
    constexpr Case Cases[] = {
        {"mm1", 0, 0, 12},       {"american", 220, 0, 0}, {"thronives", 3, 3, 0}, {"5nato", 10, 10, 0},
        {"helmet", 100, 100, 0}, {"m67", 1, 1, 0},        {"m4", 0, 0, 0},        {"map", 0, 0, 0},
    };
    InitTables();
    for (const Case& c : Cases) {
        const InvItem item = MakeItem(WeaponInfoByName(c.name));
        EXPECT_EQ(item.capMain, c.main) << c.name;
        EXPECT_EQ(item.roundsMain, c.rounds) << c.name;
        EXPECT_EQ(item.capSecond, c.second) << c.name;
    }
    EXPECT_EQ(MakeItem(WeaponInfoByName("thronives")).durab, 300);
}

}  // namespace
