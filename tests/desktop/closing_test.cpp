// The main window is closed at every moment of a short session at which the game lets events in: each time a
// copy of the process is made and closes its window there, while the session itself goes on.
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <map>
#include <string>

#include <QtTest>

#include "data/campaign_files.h"
#include "desktop/desktop_host.h"
#include "personal/info_form.h"
#include "platform/files.h"
#include "platform/headless_host.h"
#include "state/setup.h"
#include "state/state.h"
#include "tests/support/game_test.h"
#include "tests/support/short_session.h"
#include "view/events.h"
#include "view/field_form.h"
#include "view/forms.h"

namespace {

constexpr int StillRuns = 99;
constexpr unsigned Patience = 20;  // seconds

class SweptHost : public DesktopHost {
  public:
    using DesktopHost::DesktopHost;

    void PumpEvents() override {
        CloseInACopy();
        DesktopHost::PumpEvents();
    }
    void Wait(std::chrono::nanoseconds /*time*/, bool pump) override {
        if (pump) PumpEvents();
    }
    void ShowMessage(const std::string& /*text*/) override { CloseInACopy(); }
    void PlaySound(const SoundRequest& /*sound*/) override {}
    [[noreturn]] void EndProcess(int exitCode) override {
        if (isCopy) DesktopHost::EndProcess(exitCode);
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

class ClosingTest : public testing::Test {
  protected:
    ClosingTest() { SetProgramFolder(folder.Path()); }
    ~ClosingTest() override {
        ResetState();
        ResetForms();
    }

    std::string Store() const { return folder.Read("dat/apc.dat"); }

    ProgramFolder folder;
    SweptHost host{frmField, OtherForms(), Dispatch};
};

TEST_F(ClosingTest, AtEveryMomentItEndsTheProcessWellAndTheStoreIsWhole) {
    const std::string before = Store();
    QTimer player;
    player.callOnTimeout([this] {
        if (!frmInfo.Visible) return;
        host.CloseInACopy();
        host.Enter(NextInFile);
    });
    player.start(1);
    const auto play = [&](const Stage& stage) {
        host.stage = stage.name;
        EXPECT_EQ(Store(), before) << "it is written at the mission's end alone: " << stage.name;
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
