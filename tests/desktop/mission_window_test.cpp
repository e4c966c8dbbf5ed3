// Whole missions in the real window, by the same script as without one; only the waits take no time.
#include <cstdlib>

#include <QtTest>

#include "desktop/desktop_host.h"
#include "platform/files.h"
#include "platform/headless_host.h"
#include "state/setup.h"
#include "state/state.h"
#include "tests/support/game_test.h"
#include "tools/scripted_player.h"
#include "view/events.h"
#include "view/field_form.h"
#include "view/forms.h"

namespace {

class HastyHost : public DesktopHost {
  public:
    using DesktopHost::DesktopHost;

    void Wait(std::chrono::nanoseconds /*time*/, bool pump) override {
        if (pump) PumpEvents();
    }
    void ShowMessage(const std::string& text) override { message = text; }
    void PlaySound(const SoundRequest& /*sound*/) override {}
    [[noreturn]] void EndProcess(int exitCode) override { throw ProcessEnded{exitCode}; }

    std::string message;
};

// A mission takes some six seconds of painting; SARNOTH_WINDOW_MISSIONS=50 plays as many as without a window.
unsigned Missions() {
    const char* wanted = std::getenv("SARNOTH_WINDOW_MISSIONS");
    return wanted != nullptr ? static_cast<unsigned>(std::atoi(wanted)) : 2;
}

TEST(MissionWindowTest, EverySeedEndsInAVerdictOrByExit) {
    const ProgramFolder folder;
    SetProgramFolder(folder.Path());
    HastyHost host(frmField, OtherForms(), Dispatch);
    for (unsigned seed = 1; seed <= Missions(); ++seed) {
        Main(seed);
        const MissionResult result = PlayMission(8);
        EXPECT_EQ(host.message, result.verdict + ". The end.") << "seed " << seed;
        host.message.clear();
    }
    ResetState();
    ResetForms();
}

}  // namespace
