// An operation keeps its unit; the hand-over waits for its end.
#include "state/operation.h"

#include "mission/turns.h"
#include "state/costs.h"
#include "tests/support/game_test.h"
#include "view/field_form.h"

namespace {

class OperationTest : public GameTest {
  protected:
    OperationTest() {
        ClearField();
        for (int i : {0, 1, 2})
            PutUnit(i, 10, 10 + i);
    }
};

TEST_F(OperationTest, AHandOverWaitsForTheOutermostAndComesOnce) {
    RunOperation([] {
        RunOperation([] { Spend(78, "time"); });
        EXPECT_EQ(curUnit, 0) << "an inner operation's end hands nothing over";
        Spend(1, "time");
    });
    EXPECT_EQ(curUnit, 1);
    Spend(78, "time");
    EXPECT_EQ(curUnit, 2) << "outside of one it is immediate";
}

TEST_F(OperationTest, TimeThatComesBackKeepsTheSelection) {
    RunOperation([] {
        Spend(78, "time");
        Spend(-10, "time");
    });
    EXPECT_EQ(curUnit, 0);
}

TEST_F(OperationTest, NobodyHandsOverWhoAskedWhileItWasHeld) {
    RunOperation([] { HoldHandOver([] { Spend(78, "time"); }); });
    EXPECT_EQ(curUnit, 0);
}

TEST_F(OperationTest, WhatEventsSelectInItsMiddleStaysSelectedAfterIt) {
    RunOperation([] {
        for (int pump = 0; pump < 2; ++pump) {  // the second goes on from what the first selected
            PumpKeepingOrder([] { SelectNextUnit(); });
            EXPECT_EQ(curUnit, 0) << "the operation goes on with its own unit";
        }
        Spend(78, "time");
    });
    EXPECT_EQ(curUnit, 2) << "what was selected, and the spent one's wish is void";
    EXPECT_EQ(frmField.imgBar[0].Width, 80) << "the panel shows his time again";
    PumpKeepingOrder([] { SelectNextUnit(); });
    EXPECT_EQ(curUnit, 1) << "outside of one a pump may select";
}

TEST_F(OperationTest, WhoWasSelectedInItsMiddleAndSpentHisTimeThereHandsOverAtItsEnd) {
    RunOperation([] {
        PumpKeepingOrder([] {
            SelectNextUnit();
            RunOperation([] { Spend(78, "time"); });
        });
        EXPECT_EQ(UnitTable[0].time, 80);
    });
    EXPECT_EQ(curUnit, 2);
}

TEST_F(OperationTest, AnErrorLeavesNoOperationBehind) {
    EXPECT_THROW(RunOperation([] { throw RunTimeError(Fault::Overflow, "x"); }), RunTimeError);
    EXPECT_EQ(operationDepth, 0);
}

}  // namespace
