// The whole game in its real window, for tests that play it: waits take no time, messages are kept unread,
// and nothing is heard.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include <QtTest>

#include "desktop/desktop_host.h"
#include "mission/setup.h"
#include "platform/files.h"
#include "tests/support/game_test.h"
#include "view/forms.h"

class HastyHost : public DesktopHost {
  public:
    template <typename... Arguments>
    explicit HastyHost(Arguments&&... ofHost) : DesktopHost(std::forward<Arguments>(ofHost)...) {
        Sounds().SetLoudness(0);
    }

    void Wait(std::chrono::nanoseconds /*time*/, bool pump) override {
        if (pump) PumpEvents();
    }
    void ShowMessage(const std::string& text) override { message = text; }
    void Emit(const SoundRequest& /*sound*/) override {}

    std::string message;
    Moment now{std::chrono::hours(1)};

  protected:
    Moment Now() const override { return now; }
};

class WindowGame : public testing::Test {
  protected:
    WindowGame() { SetProgramFolder(folder.Path()); }
    ~WindowGame() override {
        ResetState();
        ResetForms();
    }

    ProgramFolder folder;
};
