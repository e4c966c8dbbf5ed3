// The whole game in its real window: started, played through its widgets, and ended by broken data.
#include <cstdlib>
#include <random>

#include <QPushButton>
#include <QtTest>

#include "desktop/desktop_host.h"
#include "platform/files.h"
#include "state/setup.h"
#include "state/state.h"
#include "tests/support/game_test.h"
#include "view/events.h"
#include "view/field_form.h"
#include "view/forms.h"

namespace {

class GameWindowTest : public testing::Test {
  protected:
    GameWindowTest() {
        SetProgramFolder(folder.Path());
        setenv("SDL_AUDIODRIVER", "dummy", 1);
    }
    ~GameWindowTest() override {
        ResetState();
        ResetForms();
    }

    void Start() {
        host.Enter([] { Main(1); });
    }

    QWidget& WidgetOf(const Control& control) { return *host.WindowOf(frmField).WidgetOf(control); }

    void ClickField(int cellX, int cellY) {
        QTest::mouseClick(&WidgetOf(frmField.area), Qt::LeftButton, Qt::NoModifier,
                          {cellX * 20 + 10, cellY * 20 + 10});
    }

    void Press(Qt::Key key) { QTest::keyClick(&host.WindowOf(frmField), key); }

    ProgramFolder folder;
    DesktopHost host{frmField, OtherForms(), Dispatch};
};

TEST_F(GameWindowTest, IsPlayedThroughItsWidgets) {
    Start();
    ASSERT_EQ(curTeam, SquadTeam);
    const int last = teamLast[SquadTeam];
    Unit& soldier = UnitTable[last];
    ClickField(soldier.cellX, soldier.cellY);
    ASSERT_EQ(curUnit, last);

    const int row = soldier.cellY;
    const int column = soldier.cellX;
    Press(Qt::Key_Right);
    EXPECT_EQ(soldier.cellX, column + 1);
    QTest::mouseClick(&WidgetOf(frmField.imgStance[1]), Qt::LeftButton);
    EXPECT_EQ(soldier.stance, Crouch);

    // After clicks on a list, a scroll bar and a button the arrows still reach the field.
    QTest::mouseClick(&WidgetOf(frmField.HScrollArea), Qt::LeftButton, Qt::NoModifier, {200, 8});
    QTest::mouseClick(&WidgetOf(frmField.cmdNextTurn), Qt::LeftButton);
    EXPECT_EQ(curUnit, 0);
    ClickField(column + 1, row);
    ASSERT_EQ(curUnit, last);
    Press(Qt::Key_Right);
    EXPECT_EQ(soldier.cellX, column + 2);

    const QImage shown = WidgetOf(frmField.area).grab().toImage();
    bool same = true;
    for (int y = 0; y < 920; ++y)
        for (int x = 0; x < 1520; ++x)
            same = same && shown.pixel(x, y) == frmField.area.canvas.Pixel(x, y);
    EXPECT_TRUE(same) << "the window shows the field to the pixel";
}

struct BrokenFile {
    const char* name;
    std::string (*breakIt)(std::string whole);  // nullptr removes it
};

std::string CutShort(std::string whole) {
    whole.resize(whole.size() - 5);
    return whole;
}

std::string Garble(std::string whole) {
    std::mt19937 generator(7);
    for (char& byte : whole)
        byte = static_cast<char>(generator() & 0xFF);
    return whole;
}

using GameWindowDeathTest = GameWindowTest;

TEST_F(GameWindowDeathTest, BrokenDataEndsTheProcessWithAMessageThatNamesTheFile) {
    const auto start = [this](const BrokenFile& file) {
        if (file.breakIt == nullptr)
            folder.Remove(file.name);
        else
            folder.Write(file.name, file.breakIt(folder.Read(file.name)));
        Start();
    };
    for (const char* name : {"dat/weapons.dat", "dat/countries.dat", "dat/save.dat", "dat/apc.dat",
                             "map/491.map", "map/492.map", "map/493.map", "map/49g.map"})
        for (const auto breakIt : {static_cast<std::string (*)(std::string)>(nullptr), &CutShort, &Garble})
            EXPECT_EXIT(start({name, breakIt}), testing::ExitedWithCode(1), name);
}

}  // namespace
