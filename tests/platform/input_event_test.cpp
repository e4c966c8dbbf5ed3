// Events as lines of text.
#include "platform/input_event.h"

#include "tests/support/game_test.h"

namespace {

TEST(InputEventText, SurvivesTheWayThereAndBack) {
    for (int kind = 0; kind <= static_cast<int>(EventKind::Timer); ++kind) {
        for (const float at : {150.333344F, 1011.54156F, -0.1F, 1.17549435e-38F}) {
            const InputEvent event = {static_cast<EventKind>(kind), "frmField.imgStance", 3, -7, 5, at, -at};
            EXPECT_EQ(EventFromText(EventText(event)), event) << EventText(event);
        }
    }
    EXPECT_EQ(EventText({EventKind::MouseDown, "frmField.area", -1, 1, 0, 150.5F, 90}),
              "MouseDown frmField.area -1 1 0 150.5 90");
}

TEST(InputEventText, IsRefusedWhenItIsNotWhole) {
    for (const char* line : {"", "Click", "Click a -1 0 0 0", "Click a -1 0 0 0 0 0", "Cluck a -1 0 0 0 0",
                             "Click a one 0 0 0 0"})
        EXPECT_TRUE(
            ErrorOf([line] { EventFromText(line); }).ends_with("found \"" + std::string(line) + "\""));
}

}  // namespace
