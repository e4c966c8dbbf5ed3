// The squad's window beside the game's.
#include <QListView>
#include <QScrollBar>

#include "desktop/squad_window.h"
#include "shell/companion.h"
#include "state/audience.h"
#include "view/start.h"
#include "window_game.h"

namespace {

class SquadWindowTest : public WindowGame {
  protected:
    void SetUp() override {
        host.Accompany(companion);
        host.Enter([] { Main(1); });
        ASSERT_TRUE(host.Squad()->isVisible()) << "the screen has room";
    }

    QListView& List(const char* name) {
        for (QListView* list : host.Squad()->findChildren<QListView*>())
            if (list->accessibleName() == QLatin1String(name)) return *list;
        throw std::logic_error(name);
    }
    void ClickRow(QListView& list, int row, bool twice = false) {
        const QPoint at = list.visualRect(list.model()->index(row, 0)).center();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, at);
        if (twice) QTest::mouseDClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, at);
    }

    Companion companion;
    HastyHost host{frmField, OtherForms(), Dispatch};
};

TEST_F(SquadWindowTest, AClickOrAKeySelectsASoldier) {
    QListView& squad = List("Squad");
    EXPECT_EQ(squad.model()->rowCount(), 12);
    ClickRow(squad, 4);
    EXPECT_EQ(curUnit, 4);
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return}) {
        QTest::keyClick(&squad, Qt::Key_Down);
        const int row = squad.currentIndex().row();
        QTest::keyClick(&squad, key);
        EXPECT_EQ(curUnit, row);
    }
    curTeam = EnemyTeam;
    ClickRow(squad, 1);
    EXPECT_EQ(curUnit, 6) << "it isn't the squad's turn";
}

TEST_F(SquadWindowTest, AnEntryBringsItsPlaceIntoView) {
    const GameState before = game;
    curUnit = 1;
    UnitTable[1].pixelX = 60 * CellSize;
    UnitTable[1].pixelY = 40 * CellSize;
    TheAudience().UnitHurt(FirstOf(EnemyTeam), 5);
    game = before;
    host.PumpEvents();
    QListView& log = List("Log");
    ASSERT_EQ(log.model()->rowCount(), 2) << "the turn and the hit";
    ClickRow(log, 0, true);
    EXPECT_EQ(frmField.VScrollArea.Value, 0) << "a turn has no place";
    ClickRow(log, 1, true);
    EXPECT_EQ(frmField.VScrollArea.Value, 460);
    EXPECT_TRUE(game == before);
}

TEST_F(SquadWindowTest, ItIsClosedAndOpenedByItsKey) {
    bool told = true;
    host.Squad()->AtToggle([&told](bool shown) { told = shown; });
    for (const bool shown : {false, true}) {
        host.WindowOf(frmField).activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&host.WindowOf(frmField)));
        QTest::keyClick(&host.WindowOf(frmField), Qt::Key_B, Qt::ControlModifier);
        EXPECT_EQ(host.Squad()->isVisible(), shown);
        EXPECT_EQ(host.Squad()->IsShown(), shown);
        EXPECT_EQ(told, shown);
    }
    host.Squad()->close();
    EXPECT_FALSE(host.Squad()->IsShown());
    EXPECT_FALSE(told);
}

TEST_F(SquadWindowTest, TheNewestEntryStaysInViewUntilThePlayerScrollsUp) {
    QListView& log = List("Log");
    QScrollBar& bar = *log.verticalScrollBar();
    const auto addHits = [&](int count) {
        for (int i = 0; i < count; ++i) {
            ++orderCount;  // each an entry of its own
            TheAudience().UnitHurt(FirstOf(EnemyTeam), 5);
            host.PumpEvents();
            QCoreApplication::processEvents();
        }
    };
    addHits(40);
    ASSERT_GT(bar.maximum(), 0);
    EXPECT_EQ(bar.value(), bar.maximum()) << "through the bar's first showing, which wraps lines anew";
    bar.triggerAction(QAbstractSlider::SliderToMinimum);
    addHits(3);
    EXPECT_EQ(bar.value(), 0) << "he reads an old one";
    bar.triggerAction(QAbstractSlider::SliderToMaximum);
    addHits(3);
    EXPECT_EQ(bar.value(), bar.maximum());
}

TEST_F(SquadWindowTest, ItGivesWayToTheFullScreen) {
    FormWindow& main = host.WindowOf(frmField);
    const QRect place = host.Squad()->geometry();
    main.setWindowState(Qt::WindowFullScreen);
    EXPECT_FALSE(host.Squad()->isVisible());
    EXPECT_TRUE(host.Squad()->IsShown()) << "the player hasn't closed it";
    main.setWindowState(Qt::WindowNoState);
    EXPECT_TRUE(QTest::qWaitFor([this] { return host.Squad()->isVisible(); }));
    EXPECT_EQ(host.Squad()->geometry(), place);
}

}  // namespace
