// Granting awards: chains, counts, ordinals, and what the log and the soldier's file show.
#include "state/awards.h"

#include "data/tables.h"
#include "personal/info_form.h"
#include "state/state.h"
#include "tests/support/game_test.h"
#include "view/field_form.h"

namespace {

class AwardsTest : public GameTest {
  protected:
    AwardsTest() {
        StartGame();
        curUnit = 3;
        self.name = "Kim";
        host.messages.clear();
    }

    std::string Granted(std::string_view code) {
        const std::size_t before = frmField.cmbLog.List.size();
        AwardGive(code);
        const std::string log = Log(before);
        return log.substr(0, log.find('\n'));
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
        {"MOH", {}, "Kim awarded the Medal of Honor.", 0, 1},
        {"MOH", {{0, 1}}, "Kim awarded the Distinguished Service Cross.", 1, 1},
        {"MOH", {{0, 1}, {1, 1}}, "Kim awarded the 2nd Distinguished Service Cross.", 1, 2},
        {"LOM", {{5, 1}}, "Kim awarded the Soldier's Medal.", 6, 1},
        {"PH", {{8, 2}}, "Kim awarded the 3rd Purple Heart.", 8, 3},
        {"MCB", {{17, 3}}, "Kim awarded the 4th Major Combat Bar.", 17, 4},  // no chain: it is given again
        {"DISR", {{24, 19}}, "Kim awarded the 20th Drill Instructor Service Ribbon.", 24, 20},
        {"none", {}, "Kim awarded the .", 25, 1},
        {"none", {{25, 1}}, "Kim awarded the 2nd .", 25, 2},
    };
    for (const Case& c : cases) {
        self.awards = {};
        for (const auto& [row, count] : c.held)
            self.awards[row] = count;
        EXPECT_EQ(Granted(c.code), c.log);
        EXPECT_EQ(self.awards[c.row], c.count) << c.log;
    }
    EXPECT_EQ(host.messages, std::vector<std::string>(std::size(cases), ""));
    EXPECT_FALSE(frmInfo.Visible);
}

TEST_F(AwardsTest, AChainThatRunsOutGrantsNothing) {
    for (int row = 20; row <= 24; ++row) {
        awardTable[row].repeatable = 0;
        awardTable[row].chained = -1;
        self.awards[row] = 1;
    }
    EXPECT_EQ(Granted("EKC"), "");
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(AwardsTest, OrdinalsReadAsTheyDo) {
    struct Case {
        int count;
        const char* text;
    };
    constexpr Case Cases[] = {{0, ""},       {1, ""},       {2, "2nd "},     {3, "3rd "}, {4, "4th "},
                              {21, "21th "}, {22, "22th "}, {100, "100th "}, {101, ""}};
    for (const Case& c : Cases) {
        self.awards[8] = c.count;
        EXPECT_EQ(AwardOrdinal(8), c.text) << c.count;
    }
}

TEST_F(AwardsTest, TheFileShowsTheAwardUnderItsBox) {
    struct Watcher : HeadlessHost {
        using HeadlessHost::HeadlessHost;
        void ShowMessage(const std::string& text) override {
            HeadlessHost::ShowMessage(text);
            shown = frmInfo.Visible && frmInfo.imgAwardBorder.Visible;
            left = frmInfo.imgAwardBorder.Left;
            top = frmInfo.imgAwardBorder.Top;
        }
        bool shown = false;
        int left = 0;
        int top = 0;
    };
    Watcher watcher(nullptr);
    AwardGive("PH");
    EXPECT_TRUE(watcher.shown);
    EXPECT_EQ(watcher.left, 356) << "row 8 stands in column 3";
    EXPECT_EQ(watcher.top, 457);
    EXPECT_FALSE(frmInfo.imgAwardBorder.Visible);
    EXPECT_EQ(frmInfo.imgAwardBorder.Left, 530);
    EXPECT_EQ(frmInfo.imgAwardBorder.Top, 20);
    InstallHost(&host);
}

TEST_F(AwardsTest, AMissionsAwardsGoToEverybody) {
    UnitTable[0].wasWounded = True;
    UnitTable[1].status = Dead;
    for (int i = 0; i <= teamLast[SquadTeam]; ++i)
        UnitTable[i].awards = {};
    const std::size_t before = frmField.cmbLog.List.size();
    AwardMissionEnd();
    for (int i = 0; i <= teamLast[SquadTeam]; ++i) {
        EXPECT_EQ(UnitTable[i].awards[8], i < 2 ? 1 : 0) << i;
        EXPECT_EQ(UnitTable[i].awards[16], 1) << i;
    }
    EXPECT_NE(Log(before).find(UnitTable[1].name + " awarded the Purple Heart posthumously.\n"),
              std::string::npos);
    EXPECT_NE(Log(before).find(UnitTable[0].name + " awarded the Good Conduct Medal.\n"), std::string::npos);
}

}  // namespace
