// The main window is closed at every moment of a short session at which the game lets events in: each time a
// copy of the process is made and closes its window there, while the session itself goes on.
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <map>

#include "data/campaign_files.h"
#include "personal/info_form.h"
#include "platform/headless_host.h"
#include "tests/support/short_session.h"
#include "view/start.h"
#include "window_game.h"

namespace {

constexpr int StillRuns = 99;
constexpr unsigned Patience = 20;  // seconds

class SweptHost : public HastyHost {
  public:
    using HastyHost::HastyHost;

    void PumpEvents() override {
        CloseInACopy();
        DesktopHost::PumpEvents();
    }
    void ShowMessage(const std::string& /*text*/) override { CloseInACopy(); }
    [[noreturn]] void EndProcess(int exitCode) override {
        if (isCopy) HastyHost::EndProcess(exitCode);
        throw ProcessEnded{exitCode};
    }

    void CloseInACopy() {
        ++closings[stage];
        std::fflush(nullptr);
        const pid_t copy = fork();
        if (copy == 0) {
            alarm(Patience);
            isCopy = true;
            WindowOf(frmField).close();
            std::_Exit(StillRuns);
        }
        int status = 0;
        waitpid(copy, &status, 0);
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == EXIT_SUCCESS)
            << stage << ", moment " << closings[stage] << ": status " << status;
    }

    std::string stage = "start";
    std::map<std::string, int> closings;  // by stage

  private:
    bool isCopy = false;
};

using ClosingTest = WindowGame;

TEST_F(ClosingTest, AtEveryMomentItEndsTheProcessWellAndTheStoreIsWhole) {
    SweptHost host(frmField, OtherForms(), Dispatch);
    const auto store = [this] { return folder.Read("dat/apc.dat"); };
    const std::string before = store();
    QTimer player;
    player.callOnTimeout([&host] {
        if (!frmInfo.Visible) return;
        host.CloseInACopy();
        host.Enter(NextInFile);
    });
    player.start(1);
    const auto play = [&](const Stage& stage) {
        host.stage = stage.name;
        EXPECT_EQ(store(), before) << "it is written at the mission's end alone: " << stage.name;
        storeItems[3] = InvItem();  // taken out
        stage.play();
        EXPECT_GT(host.closings[stage.name], 0) << stage.name;
    };
    host.Enter([] { Main(1); });
    EXPECT_THROW(PlayStages("", play), ProcessEnded);
    EXPECT_EQ(UnitTable[0].items[2].name, "m4") << "the rifle made room for the grenade";
    EXPECT_EQ(UnitTable[0].items[0].name, "") << "which was thrown";

    LoadStore();
    EXPECT_EQ(storeItems[2].name, "m203");
    EXPECT_EQ(storeItems[3].name, "");
    EXPECT_EQ(storeItems[4].name, "mm1");
}

}  // namespace
