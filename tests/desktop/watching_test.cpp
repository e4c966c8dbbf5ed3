// A game that was broken off is watched on the windows, to its end or up to a key of the player's.
#include <optional>

#include "desktop/game_window.h"
#include "personal/info_form.h"
#include "platform/keys.h"
#include "shell/playing_back.h"
#include "shell/companion.h"
#include "tools/player/orders.h"
#include "view/start.h"
#include "window_game.h"

namespace {

class WatchingTest : public WindowGame {
  protected:
    // The program starts, and the player answers so.
    void Start(Resumption resumption) {
        session.reset();
        host.reset();
        companion.emplace();
        session.emplace([resumption](const std::string&) { return resumption; },
                        [this](Watching& watching) {
                            ShowPlayedBack(watching, *companion, AfterWatching::PlayGoesOn);
                            watched = &watching;
                        });
        watched = nullptr;
        host.emplace(frmField, OtherForms(), [this](const InputEvent& event) { session->Dispatch(event); });
        host->Accompany(*companion);
        host->Enter([this] { session->Begin(1); });
    }

    // Orders of all kinds, a modal window and a turn of the computer's.
    void Play() {
        const auto send = [this](const InputEvent& event) { host->Enter([&] { session->Dispatch(event); }); };
        const auto press = [&](int x, int y, int button) {
            send({EventKind::MouseDown, "frmField.area", -1, button, 0, static_cast<float>(x * CellSize + 5),
                  static_cast<float>(y * CellSize + 5)});
        };
        const Unit& unit = UnitTable[curUnit];
        press(unit.cellX + 2, unit.cellY + 4, LeftButton);
        press(unit.cellX + 2, unit.cellY + 4, LeftButton);
        press(unit.cellX + 8, unit.cellY, RightButton);
        QTimer::singleShot(50, [&] {
            send({EventKind::Click, "frmInfo.cmdNext"});
            send({EventKind::KeyDown, "frmInfo", -1, EnterKey});
        });
        send({EventKind::KeyDown, "frmField", -1, EnterKey});
        send({EventKind::Click, "frmField.cmdNextTurn"});
        send({EventKind::KeyDown, "frmField", -1, SpaceKey});
    }

    std::optional<Companion> companion;
    std::optional<Session> session;
    std::optional<HastyHost> host;
    Watching* watched = nullptr;
};

TEST_F(WatchingTest, ToItsEndOrTakenOverItIsTheGameThatIsContinued) {
    Start(Resumption::Continued);
    Play();
    EXPECT_FALSE(frmInfo.Visible);
    const GameState played = game;
    Start(Resumption::Continued);
    ASSERT_TRUE(game == played);
    const Picture field = frmField.area.canvas;
    const std::string journal = folder.Read("journal/current.txt");
    for (const char* takenOver : {"never", "at once", "in a file"}) {
        const std::string moment = takenOver;
        Start(Resumption::Watched);
        ASSERT_NE(watched, nullptr);
        EXPECT_FALSE(watched->Done());
        EXPECT_FALSE(game == played);
        if (moment == "at once") QTest::keyPress(&host->WindowOf(frmField), Qt::Key_Space);
        QTimer look;
        look.callOnTimeout([&] {
            if (frmInfo.Visible) QTest::keyPress(&host->WindowOf(frmInfo), Qt::Key_Space);
        });
        if (moment == "in a file") look.start(10);
        EXPECT_TRUE(QTest::qWaitFor([this] { return watched->Done() && host->InnermostPump() == 0; }));
        EXPECT_TRUE(game == played) << moment;
        EXPECT_TRUE(std::equal(field.Row(0), field.Row(0) + field.Width() * field.Height(),
                               frmField.area.canvas.Row(0)));
        EXPECT_TRUE(folder.Read("journal/current.txt").starts_with(journal)) << "nothing is written twice";
    }
    const int before = curUnit;
    QTest::keyPress(&host->WindowOf(frmField), Qt::Key_Space);
    EXPECT_NE(curUnit, before) << "the game is the player's";
    const GameState after = game;
    Start(Resumption::Continued);
    EXPECT_TRUE(game == after) << "the journal has no gap";
}

TEST_F(WatchingTest, TheCloseButtonEndsTheProcess) {
    Start(Resumption::Continued);
    Play();
    Start(Resumption::Watched);
    EXPECT_EXIT(host->WindowOf(frmField).close(), testing::ExitedWithCode(0), "");
}

}  // namespace
