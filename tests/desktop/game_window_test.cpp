// The game played through its widgets by the mouse, and whole missions by the same script as without a
// window.
#include <cstdlib>

#include "platform/headless_host.h"
#include "tools/player/scripted_player.h"
#include "window_game.h"

namespace {

using GameWindowTest = WindowGame;

TEST_F(GameWindowTest, IsPlayedThroughItsWidgets) {
    HastyHost host(frmField, OtherForms(), Dispatch);
    const auto widgetOf = [&](const Control& control) { return host.WindowOf(frmField).WidgetOf(control); };
    const auto clickField = [&](int x, int y) {
        QTest::mouseClick(widgetOf(frmField.area), Qt::LeftButton, Qt::NoModifier,
                          {x * 20 + 10, y * 20 + 10});
    };
    host.Enter([] { Main(1); });
    ASSERT_EQ(curTeam, SquadTeam);
    const int last = teamLast[SquadTeam];
    Unit& soldier = UnitTable[last];
    clickField(soldier.cellX, soldier.cellY);
    ASSERT_EQ(curUnit, last);
    const int column = soldier.cellX;
    QTest::keyClick(&host.WindowOf(frmField), Qt::Key_Right);
    EXPECT_EQ(soldier.cellX, column + 1);
    QTest::mouseClick(widgetOf(frmField.imgStance[1]), Qt::LeftButton);
    EXPECT_EQ(soldier.stance, Crouch);

    QTest::mouseClick(widgetOf(frmField.HScrollArea), Qt::LeftButton, Qt::NoModifier, {200, 8});
    EXPECT_GT(frmField.HScrollArea.Value, 0);
    QTest::mouseClick(widgetOf(frmField.cmdNextTurn), Qt::LeftButton);
    EXPECT_EQ(curUnit, 0) << "the turn is the squad's again";
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

}  // namespace
