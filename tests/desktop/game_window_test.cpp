// The game played through its widgets by the mouse, and whole missions by the same script as without a
// window.
#include <algorithm>
#include <cstdlib>

#include "platform/headless_host.h"
#include "shell/companion.h"
#include "state/audience.h"
#include "tools/player/scripted_player.h"
#include "view/start.h"
#include "window_game.h"

namespace {

using GameWindowTest = WindowGame;

TEST_F(GameWindowTest, IsPlayedByTheMouse) {
    HastyHost host(frmField, OtherForms(), Dispatch);
    const auto click = [&](const Control& control, QPoint at = {}) {
        QTest::mouseClick(host.WindowOf(frmField).WidgetOf(control), Qt::LeftButton, Qt::NoModifier, at);
    };
    host.Enter([] { Main(1); });
    const int last = teamLast[SquadTeam];
    const Unit& soldier = UnitTable[last];
    click(frmField.area, {soldier.cellX * 20 + 10, soldier.cellY * 20 + 10});
    ASSERT_EQ(curUnit, last);
    click(frmField.imgStance[1]);
    EXPECT_EQ(soldier.stance, Crouch);
    click(frmField.HScrollArea, {200, 8});
    EXPECT_GT(frmField.HScrollArea.Value, 0);
    const auto turns = [] {
        const auto& log = frmField.cmbLog.List;
        return std::count(log.begin(), log.end(), "New turn for team #1");
    };
    click(frmField.cmdNextTurn);
    EXPECT_EQ(curUnit, 0) << "the turn is the squad's again";
    EXPECT_EQ(turns(), 1);
    host.now += std::chrono::milliseconds(299);
    click(frmField.cmdNextTurn);
    EXPECT_EQ(turns(), 1) << "the second press of a double click";
    host.now += std::chrono::milliseconds(1);
    click(frmField.cmdNextTurn);
    EXPECT_EQ(turns(), 2);
}

TEST_F(GameWindowTest, AKeyForASoldierWhoHasHandedOverMovesNobodyElse) {
    std::vector<InputEvent> events;
    HastyHost host(frmField, OtherForms(), [&events](const InputEvent& event) {
        events.push_back(event);
        Dispatch(event);
    });
    const auto step = [&] { QTest::keyClick(&host.WindowOf(frmField), Qt::Key_Right); };
    host.Enter([] { Main(1); });
    UnitTable[0].time = TimeToAct;
    step();
    ASSERT_EQ(curUnit, 1);
    const auto next = [] { return std::pair(int{UnitTable[1].cellX}, int{UnitTable[1].facing}); };
    const auto before = next();
    events.clear();
    step();
    EXPECT_EQ(next(), before);
    EXPECT_EQ(events.size(), 1U) << "the key's release alone";
    host.now += std::chrono::milliseconds(300);
    step();
    EXPECT_NE(next(), before);
}

class MissionHost : public HastyHost {
  public:
    using HastyHost::HastyHost;
    [[noreturn]] void EndProcess(int exitCode) override { throw ProcessEnded{exitCode}; }
};

// A mission takes some six seconds of painting; SARNOTH_WINDOW_MISSIONS=50 plays as many as without a window.
unsigned Missions() {
    const char* wanted = std::getenv("SARNOTH_WINDOW_MISSIONS");
    return wanted != nullptr ? static_cast<unsigned>(std::atoi(wanted)) : 2;
}

using MissionWindowTest = WindowGame;

TEST_F(MissionWindowTest, EverySeedEndsInAVerdictOrByExit) {
    MissionHost host(frmField, OtherForms(), Dispatch);
    for (unsigned seed = 1; seed <= Missions(); ++seed) {
        Main(seed);
        const MissionResult result = PlayMission(8);
        EXPECT_EQ(host.message, result.verdict + ". The end.") << "seed " << seed;
        host.message.clear();
    }
}

// Keeps where the field lay whenever it was painted.
class PaintWatch : public QObject {
  public:
    explicit PaintWatch(QWidget& ofField) : field(ofField) { field.installEventFilter(this); }

    std::vector<int> lefts;

  protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Paint) lefts.push_back(field.x());
        return false;
    }

  private:
    QWidget& field;
};

TEST_F(GameWindowTest, WhoHandsOverIsInViewUntilHisLastShotIsSeen) {
    Companion companion;
    HastyHost host(frmField, OtherForms(), Dispatch);
    host.Accompany(companion);
    host.Enter([] { Main(1); });
    FormWindow& window = host.WindowOf(frmField);
    QTest::keyClick(&window, Qt::Key_BracketRight);
    host.PumpEvents();
    QCoreApplication::processEvents();
    PaintWatch watch(*window.WidgetOf(frmField.area));
    const int left = frmField.area.Left;
    host.Enter([] {
        TheAudience().UnitHurt(FirstOf(EnemyTeam), 5);
        curUnit = static_cast<i16>(curUnit + 1);
        frmField.area.Left -= 300;
    });
    EXPECT_GT(std::count(watch.lefts.begin(), watch.lefts.end(), left), 3) << "the points rise there";
    EXPECT_EQ(window.WidgetOf(frmField.area)->x(), left - 300);
}

}  // namespace
