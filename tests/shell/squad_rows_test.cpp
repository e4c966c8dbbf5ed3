#include "shell/squad_rows.h"

#include "personal/info_form.h"
#include "tests/support/game_test.h"

namespace {

class SquadRowsTest : public GameTest {
  protected:
    SquadRowsTest() { StartGame(); }
    ~SquadRowsTest() override { frmInfo.Visible = false; }
};

TEST_F(SquadRowsTest, ARowSaysHowASoldierIs) {
    struct Case {
        int status;
        int time;
        const char* text;
    };
    for (const auto& [status, time, text] :
         {Case{Active, 92, "ready, health 30 of 44, time 92 of 92"},
          Case{Active, TimeToAct - 1, "spent, health 30 of 44, time 3 of 92"},
          Case{Wounded, 0, "wounded, health 30 of 44, time 0 of 92"},
          Case{Immobile, 50, "immobile, health 30 of 44, time 50 of 92"}, Case{Dead, 50, "dead"}}) {
        UnitTable[1].status = status;
        UnitTable[1].time = time;
        UnitTable[1].health = 30;
        EXPECT_EQ(SpokenRow(SquadRows()[1]), std::string("Ingrid Solberg, SSG, ") + text);
    }
    EXPECT_TRUE(SpokenRow(SquadRows()[0]).ends_with(", selected"));
    EXPECT_EQ(SquadRows().size(), 12U);
}

TEST_F(SquadRowsTest, OnlyWhoCanActIsSelected) {
    struct Case {
        const char* why;
        void (*make)();
    };
    ASSERT_TRUE(SelectionOf(1));
    Dispatch(*SelectionOf(1));
    EXPECT_EQ(curUnit, 1);
    const GameState before = game;
    for (const auto& [why, make] :
         {Case{"dead", [] { UnitTable[2].status = Dead; }},
          Case{"wounded", [] { UnitTable[2].status = Wounded; }},
          Case{"spent", [] { UnitTable[2].time = 0; }}, Case{"the enemy's turn", [] { curTeam = EnemyTeam; }},
          Case{"a file is open", [] { frmInfo.Visible = true; }},
          Case{"somebody else on his cell",
               [] { cellGrid[UnitTable[2].cellY][UnitTable[2].cellX].occupant = 3; }}}) {
        EXPECT_TRUE(SelectionOf(2));
        make();
        EXPECT_FALSE(SelectionOf(2)) << why;
        game = before;
        frmInfo.Visible = false;
    }
}

TEST_F(SquadRowsTest, APlaceIsBroughtIntoViewWithoutTouchingTheGame) {
    const GameState before = game;
    Dispatch(LookAt({60, 40}));
    EXPECT_EQ(frmField.HScrollArea.Value, (60 - 19) * CellSize > 760 ? 760 : (60 - 19) * CellSize);
    EXPECT_EQ(frmField.VScrollArea.Value, 460);
    EXPECT_TRUE(game == before);
}

}  // namespace
