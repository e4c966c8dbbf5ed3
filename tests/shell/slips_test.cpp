#include "shell/slips.h"

#include <gtest/gtest.h>

#include "platform/keys.h"
#include "state/state.h"

namespace {

using std::chrono::milliseconds;

const InputEvent EndTurn = {EventKind::Click, "frmField.cmdNextTurn"};
const InputEvent Stop = {EventKind::Click, "frmField.imgStop"};

InputEvent Key(int code, EventKind kind = EventKind::KeyDown) {
    return {kind, "frmField", -1, code};
}

InputEvent Press(int button, int cellX, int cellY) {
    const auto middle = [](int cell) { return static_cast<float>(cell * CellSize + HalfCell); };
    return {EventKind::MouseDown, "frmField.area", -1, button, 0, middle(cellX), middle(cellY)};
}

class SlipsTest : public testing::Test {
  protected:
    SlipsTest() {
        ResetState();
        curTeam = SquadTeam;
        curUnit = 0;
        cellGrid[5][4].occupant = 3;
        cellGrid[20][20].occupant = -1;
        slips.Note(now);
    }
    ~SlipsTest() override { ResetState(); }

    const Moment now{std::chrono::hours(1)};
    Slips slips;
};

TEST_F(SlipsTest, AComputersTurnNeedNotBeSeen) {
    EXPECT_FALSE(slips.Swallows(EndTurn, now));
    slips.Enters(EndTurn);
    slips.Note(now);
    EXPECT_FALSE(slips.Swallows(Stop, now));
    EXPECT_TRUE(slips.Swallows(EndTurn, now + milliseconds(299)));
    EXPECT_FALSE(slips.Swallows(EndTurn, now + milliseconds(300)));
}

TEST_F(SlipsTest, OnlyAHandOverThatNobodyAskedForSwallowsWhatWasMeantForTheOther) {
    struct Case {
        const char* what;
        InputEvent last;
        bool handsOver;
    };
    const Case cases[] = {
        {"a shot", Press(RightButton, 20, 20), true},
        {"a walk", Press(LeftButton, 20, 20), true},
        {"a step", Key(LeftKey), true},
        {"healing a comrade", Press(RightButton, 4, 5), true},
        {"a click on a comrade", Press(LeftButton, 4, 5), false},
        {"Space", Key(SpaceKey), false},
        {"Esc", Key(EscapeKey), false},
        {"End Turn", EndTurn, false},
        {"another's file", {EventKind::Click, "frmInfo.cmdNext"}, false},
    };
    for (const Case& row : cases) {
        curUnit = 0;
        slips = Slips();
        slips.Note(now);
        slips.Enters(row.last);
        slips.Enters({EventKind::MouseMove, "frmField.area"});
        curUnit = 3;
        slips.Note(now);
        const auto handOver = slips.LastHandOver().value_or(Slips::HandOver{-1, now});
        EXPECT_EQ(handOver.to, row.handsOver ? 3 : -1) << row.what;
        for (const InputEvent& event : {Press(RightButton, 9, 9), Press(LeftButton, 4, 5), Key('M')}) {
            EXPECT_EQ(slips.Swallows(event, now + milliseconds(299)), row.handsOver) << row.what;
            EXPECT_FALSE(slips.Swallows(event, now + milliseconds(300))) << row.what;
        }
        EXPECT_FALSE(slips.Swallows(Stop, now)) << row.what;
    }
}

TEST_F(SlipsTest, APauseBeginsWhenTheNextSoldierIsSeen) {
    slips.Enters(Press(RightButton, 20, 20));
    curUnit = 1;
    slips.Note(now);
    const Moment seen = now + milliseconds(600);
    slips.SeeHandOver(seen);
    EXPECT_TRUE(slips.Swallows(Press(RightButton, 20, 20), seen + milliseconds(299)));
    EXPECT_FALSE(slips.Swallows(Press(RightButton, 20, 20), seen + milliseconds(300)));
}

TEST_F(SlipsTest, AKeyInTheComputersTurnMakesNoHandOverOfItsEnd) {
    slips.Enters(EndTurn);
    curTeam = EnemyTeam;
    slips.Enters(Key(ControlKey));
    curTeam = SquadTeam;
    curUnit = 2;
    slips.Note(now);
    EXPECT_FALSE(slips.LastHandOver());
}

TEST_F(SlipsTest, AKeyThatIsHeldBeyondTheHandOverIsForTheOther) {
    slips.Enters(Key(LeftKey));
    curUnit = 1;
    slips.Note(now);
    const Moment later = now + milliseconds(900);
    EXPECT_TRUE(slips.Swallows(Key(LeftKey), later));
    EXPECT_FALSE(slips.Swallows(Key(RightKey), later));
    slips.Enters(Key(LeftKey, EventKind::KeyUp));
    EXPECT_FALSE(slips.Swallows(Key(LeftKey), later));
}

}  // namespace
