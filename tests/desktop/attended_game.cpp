// The game in its window with a player made of code, for the script beside it: he plays one stage of a short
// session, answers every box, which he reads out on standard output, and may close the window.
// Usage: attended_game FOLDER STAGE [close]      stage "start": the game's own start alone
//        attended_game FOLDER STAGE COMMAND   runs the shell command right before the stage
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>

#include <QApplication>
#include <QMessageBox>
#include <QTimer>

#include "desktop/desktop_host.h"
#include "desktop/game_window.h"
#include "platform/files.h"
#include "state/state.h"
#include "tests/support/short_session.h"
#include "view/events.h"
#include "view/field_form.h"
#include "view/start.h"

namespace {

constexpr std::chrono::milliseconds LookPause(5);
constexpr std::chrono::milliseconds LongestWait(6);  // long enough for the attendant to look

// The real host, but that no wait takes long.
class HastyHost : public Host {
  public:
    HastyHost() { InstallHost(this); }

    void Refresh(Control& control) override { real.Refresh(control); }
    void PumpEvents() override { real.PumpEvents(); }
    void Wait(std::chrono::nanoseconds time, bool pump) override {
        real.Wait(std::min<std::chrono::nanoseconds>(time, LongestWait), pump);
    }
    void ShowModal(Form& form) override { real.ShowModal(form); }
    void ShowMessage(const std::string& text) override { real.ShowMessage(text); }
    void Emit(const SoundRequest& sound) override { real.PlaySound(sound); }
    [[noreturn]] void EndProcess(int exitCode) override { real.DesktopHost::EndProcess(exitCode); }

    DesktopHost& real = static_cast<DesktopHost&>(TheHost());
};

class Attendant {
  public:
    // Closes the window at the first chance once `mayClose` is set.
    explicit Attendant(bool closesWindow) : closes(closesWindow) {
        look.callOnTimeout([this] { Look(); });
        look.start(LookPause);
    }

    bool mayClose = false;

  private:
    void Look() {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (closes && mayClose && (box != nullptr || host.real.InnermostPump() != 0)) {
            host.real.WindowOf(frmField).close();
            return;
        }
        if (box != nullptr) {
            std::printf("%s\n", box->text().toUtf8().constData());
            box->accept();
        }
        NextInFile();
    }

    const bool closes;
    HastyHost host;
    QTimer look;
};

}  // namespace

int main(int count, char** arguments) {
    if (count != 3 && count != 4) return 2;
    const std::string command = count == 4 ? arguments[3] : "";
    const bool closes = command == "close";
    const auto begin = [&] {
        static Attendant attendant(closes);
        attendant.mayClose = std::string(arguments[2]) == "start";
        Main(1);
        storeItems[3] = InvItem();  // so that it is another store at the mission's end
        if (!closes && !command.empty() && std::system(command.c_str()) != 0) std::_Exit(3);
        PlayStages(arguments[2], [&](const Stage& stage) {
            attendant.mayClose = true;
            stage.play();
        });
        if (!closes) TheHost().EndProcess(EXIT_SUCCESS);
        std::_Exit(4);  // it should have been closed
    };
    SetProgramFolder(arguments[1]);
    return RunInWindow(arguments, {.begin = begin, .dispatch = Dispatch});
}
