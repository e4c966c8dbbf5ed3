// Granting awards: chains, counts, ordinals, and what the log tells of them.
#include "mission/awards.h"

#include "personal/info_form.h"
#include "tests/support/game_test.h"

namespace {

class AwardsTest : public GameTest {
  protected:
    AwardsTest() {
        StartGame();
        curUnit = 3;
        self.name = "Kim";
    }

    Unit& self = UnitTable[3];
};

TEST_F(AwardsTest, ChainsAndRepeats) {
    struct Case {
        const char* code;
        std::vector<std::pair<int, int>> held;  // row and count
        const char* log;
        int row, count;
    };
    const Case cases[] = {
        {"MOH", {{0, 1}}, "Kim awarded the Distinguished Service Cross.\n", 1, 1},
        {"MOH", {{0, 1}, {1, 1}}, "Kim awarded the 2nd Distinguished Service Cross.\n", 1, 2},
        {"PH", {{8, 2}}, "Kim awarded the 3rd Purple Heart.\n", 8, 3},
        {"MCB", {{17, 3}}, "Kim awarded the 4th Major Combat Bar.\n", 17, 4},
        {"none", {{25, 1}}, "Kim awarded the 2nd .\n", 25, 2},
    };
    for (const Case& c : cases) {
        self.awards = {};
        for (const auto& [row, count] : c.held)
            self.awards[row] = count;
        frmField.cmbLog.List.clear();
        AwardGive(c.code);
        EXPECT_EQ(Log().substr(0, Log().find('\n') + 1), c.log);
        EXPECT_EQ(self.awards[c.row], c.count) << c.log;
    }
    EXPECT_EQ(host.messages, std::vector<std::string>(std::size(cases), ""));
    for (const auto& [count, text] : {std::pair{1, ""}, {21, "21th "}, {100, "100th "}, {101, ""}}) {
        self.awards[8] = count;
        EXPECT_EQ(AwardOrdinal(8), text);
    }
}

TEST_F(AwardsTest, ANewAwardIsFramedInItsFileAsLongAsTheMessageStands) {
    host.atMessage = [] {
        EXPECT_TRUE(frmInfo.Visible && frmInfo.imgAwardBorder.Visible && shownUnit == 3);
        EXPECT_EQ(frmInfo.imgAwardBorder.Left, 26 + 3 * 110);
        EXPECT_EQ(frmInfo.imgAwardBorder.Top, 417 + 40);
    };
    AwardGive("PH");
    EXPECT_EQ(host.messages.size(), 1U);
    EXPECT_FALSE(frmInfo.Visible || frmInfo.imgAwardBorder.Visible);
}

TEST_F(AwardsTest, AtTheMissionsEndEverybodyGetsHisAndTheWoundedAndDeadOneMore) {
    UnitTable[2].wasWounded = True;
    UnitTable[3].status = Dead;
    AwardMissionEnd();
    for (int i = 2; i <= 4; ++i) {
        EXPECT_EQ(UnitTable[i].awards[8], i < 4 ? 1 : 0) << i;
        EXPECT_EQ(UnitTable[i].awards[16], 1) << i;
    }
    EXPECT_NE(Log().find("Kim awarded the Purple Heart posthumously.\n"), std::string::npos);
}

}  // namespace
