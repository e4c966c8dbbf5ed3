// The keys of a window with no toolkit: what reaches the game, and what the window is asked to do.
#include "shell/window_keys.h"

#include "platform/keys.h"
#include "tests/support/game_test.h"
#include "view/events.h"
#include "view/field_form.h"

namespace {

class WindowKeysTest : public GameTest, protected KeyedWindow {
  protected:
    WindowKeysTest() { StartGame(); }

    const Control* Focused() const override { return focused; }
    void Focus(const Control& stop) override { focused = &stop; }
    void OpenList(const Control& list) override { asked += "open " + list.name + "\n"; }
    void PushDown(const Control& button) override { asked += "push " + button.name + "\n"; }
    void PointerCame() override {}

    // What the game got besides the key itself.
    std::string Press(int code, int shift = 0) {
        events.clear();
        time += 100;
        keys.Press({.code = code, .shift = shift, .time = time});
        keys.Release({.code = code, .shift = shift, .time = time + 50});
        return events;
    }

    const Control* focused = nullptr;
    std::string asked;
    std::string events;
    std::uint64_t time = 0;
    EventSink sink = [this](const InputEvent& event) {
        if (event.kind != EventKind::KeyDown && event.kind != EventKind::KeyUp)
            events += EventText(event) + "\n";
        Dispatch(event);
    };
    WindowKeys keys{frmField, *this, sink};
};

TEST_F(WindowKeysTest, TheFrameStandsOnTheSoldierAndGoesFromCellToCell) {
    EXPECT_TRUE(keys.Spot().Empty());
    const int column = UnitTable[curUnit].cellX;
    const std::string row = " " + std::to_string(UnitTable[curUnit].cellY * CellSize + 10) + "\n";
    const auto at = [](int cell) { return std::to_string(cell * CellSize + 10); };
    EXPECT_EQ(Press('D'), "MouseMove frmField.area -1 0 0 " + at(column + 1) + row);
    EXPECT_EQ(Press('D', ShiftHeld), "MouseMove frmField.area -1 0 0 " + at(column + 6) + row);
    EXPECT_EQ(keys.Spot(), (Rectangle{frmField.area.Left + (column + 6) * CellSize,
                                      frmField.area.Top + UnitTable[curUnit].cellY * CellSize, 20, 20}));
    EXPECT_EQ(Press(InsertKey), "MouseDown frmField.area -1 1 0 " + at(column + 6) + row +
                                    "MouseUp frmField.area -1 1 0 " + at(column + 6) + row +
                                    "Click frmField.area -1 1 0 " + at(column + 6) + row);
}

TEST_F(WindowKeysTest, NativeControlsAreUsedWithoutTheMouse) {
    focused = &frmField.HScrollArea;
    const int value = frmField.HScrollArea.Value;
    const int step = frmField.HScrollArea.SmallChange;
    EXPECT_EQ(Press('D'), "Change frmField.HScrollArea -1 " + std::to_string(value + step) + " 0 0 0\n");
    EXPECT_EQ(frmField.HScrollArea.Value, value + step);
    focused = &frmField.cmbLog;
    Press(InsertKey);
    keys.UseAtOnce(frmField.cmdNextTurn);
    EXPECT_EQ(asked, "open cmbLog\npush cmdNextTurn\n");
    focused = &frmField.cmdNextTurn;
    EXPECT_EQ(Press(DeleteKey), "");
    EXPECT_EQ(Press(InsertKey), "Click frmField.cmdNextTurn -1 0 0 0 0\n");
}

}  // namespace
