// The computer's turn in the real window: it is shown when the rules are done, and keys and presses only end
// the film.
#include "data/terrain.h"
#include "mission/turns.h"
#include "shell/companion.h"
#include "view/start.h"
#include "window_game.h"

namespace {

class FilmWindowTest : public WindowGame {
  protected:
    FilmWindowTest() {
        host.Accompany(companion);
        host.Enter([] { Main(1); });
        ClearField();
        teamLast[SquadTeam] = teamLast[EnemyTeam] = 0;
        PutUnit(0, 10, 10);
        PutUnit(20, 14, 10);
        UnitTable[20].facing = West;
        UnitTable[20].items[0] = UnitTable[0].items[0];
        UnitTable[20].agility = 200;  // time enough for a shot
        UnitTable[0].health = 1000;
    }

    Companion companion;
    HastyHost host{frmField, OtherForms(), Dispatch};
};

TEST_F(FilmWindowTest, ItIsShownWhenTheRulesAreDoneAndSkippedByAKey) {
    bool rulesDone = false;
    bool shownLater = false;
    QTimer press;
    press.callOnTimeout([&] {
        if (companion.TheScreening() == nullptr) return;
        shownLater = rulesDone;
        QTest::keyClick(&host.WindowOf(frmField), Qt::Key_Space);
    });
    press.start(20);
    int orders = 0;
    host.Enter([&] {
        NewTurn();
        EXPECT_TRUE(companion.IsFilming());
        rulesDone = true;
        orders = orderCount;
    });
    EXPECT_TRUE(shownLater);
    EXPECT_EQ(companion.TheScreening(), nullptr);
    EXPECT_FALSE(companion.IsFilming());
    EXPECT_EQ(orderCount, orders) << "the key is not the game's";
    const QImage shown = host.WindowOf(frmField).WidgetOf(frmField.area)->grab({20, 20, 40, 40}).toImage();
    EXPECT_EQ(shown.pixel(5, 5), frmField.area.canvas.Pixel(25, 25)) << "the field itself again";
}

}  // namespace
