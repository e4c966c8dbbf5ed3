#include "shell/questions.h"

#include "personal/info_form.h"
#include "tests/support/game_test.h"

namespace {

const InputEvent EndTurn = {EventKind::Click, "frmField.cmdNextTurn"};
const InputEvent Exit = {EventKind::Click, "frmField.mnuExit"};
const InputEvent Close = {EventKind::CloseRequest, "frmField"};

class QuestionsTest : public GameTest {
  protected:
    QuestionsTest() { StartGame(); }
    ~QuestionsTest() override { frmInfo.Visible = false; }

    // Each soldier but the first `count` has used up his time.
    static std::string AskedWith(int count) {
        for (int i = 0; i <= teamLast[SquadTeam]; ++i)
            UnitTable[i].time = i < count ? TimeToAct : TimeToAct - 1;
        const auto question = QuestionBefore(EndTurn, true, Keeping::Journal);
        return question ? question->text.substr(0, question->text.find('\n')) : "";
    }
};

TEST_F(QuestionsTest, EndTurnNamesThoseWhoCouldStillAct) {
    const char* names[] = {"Ann", "Bo", "Cy", "Di", "Ed"};
    for (int i = 0; i < 5; ++i)
        UnitTable[i].name = names[i];
    EXPECT_EQ(AskedWith(0), "");
    EXPECT_EQ(AskedWith(1), "One soldier could still act: Ann.");
    EXPECT_EQ(AskedWith(3), "3 soldiers could still act: Ann, Bo and Cy.");
    EXPECT_EQ(AskedWith(4), "4 soldiers could still act: Ann, Bo, Cy and 1 other.");
    UnitTable[1].status = Wounded;
    UnitTable[2].status = Dead;
    EXPECT_EQ(AskedWith(5), "3 soldiers could still act: Ann, Di and Ed.");
    EXPECT_FALSE(QuestionBefore(EndTurn, false, Keeping::Journal)) << "not to be asked again";
    curTeam = EnemyTeam;
    EXPECT_EQ(AskedWith(5), "") << "it does nothing now";
}

TEST_F(QuestionsTest, ClosingSaysWhatIsKept) {
    EXPECT_FALSE(QuestionBefore(Close, true, Keeping::Nothing));
    const auto kept = QuestionBefore(Close, true, Keeping::Journal);
    const auto lost = QuestionBefore(Close, true, Keeping::GivenUp);
    ASSERT_TRUE(kept && lost);
    EXPECT_NE(kept->text.find("offers to continue"), std::string::npos);
    EXPECT_NE(lost->text.find("can't be continued"), std::string::npos);
}

TEST_F(QuestionsTest, NothingIsAskedWhereNothingHappensOrAllIsOver) {
    EXPECT_FALSE(QuestionBefore({EventKind::Click, "frmField.imgStop"}, true, Keeping::Journal));
    EXPECT_FALSE(QuestionBefore({EventKind::CloseRequest, "frmInfo"}, true, Keeping::Journal));
    EXPECT_TRUE(QuestionBefore(Exit, true, Keeping::Nothing));
    frmInfo.Visible = true;
    for (const InputEvent& event : {Exit, EndTurn})
        EXPECT_FALSE(QuestionBefore(event, true, Keeping::Journal)) << "a file lies over it";
    EXPECT_TRUE(QuestionBefore(Close, true, Keeping::Journal)) << "this ends it anyway";
    frmInfo.Visible = false;
    missionVerdict = "Victory";
    for (const InputEvent& event : {Exit, EndTurn, Close})
        EXPECT_FALSE(QuestionBefore(event, true, Keeping::Journal));
}

TEST_F(QuestionsTest, ATickIsRememberedWithAYesAlone) {
    SettingsFile settings;
    const Session session(nullptr);
    Answer answer{false, true};
    int asked = 0;
    const Questions questions(settings, session, [&](const Question&) { return ++asked, answer; });
    EXPECT_FALSE(questions.LetsIn(EndTurn));
    EXPECT_TRUE(settings.Now().askBeforeEndTurn);
    answer.yes = true;
    for (int i = 0; i < 2; ++i)
        EXPECT_TRUE(questions.LetsIn(EndTurn));
    EXPECT_EQ(asked, 2);
    EXPECT_FALSE(settings.Now().askBeforeEndTurn);
}

}  // namespace
