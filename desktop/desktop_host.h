// The host of the desktop program: shows the forms as windows, lets their events into the game, and answers
// what the game asks of the machine.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QTimer>

#include "desktop/companion_view.h"
#include "desktop/form_window.h"
#include "desktop/sound_device.h"
#include "shell/front_host.h"

class SquadWindow;

class DesktopHost : public FrontHost {
  public:
    /// `otherForms` are shown when they turn visible.
    DesktopHost(Form& mainForm, const std::vector<Form*>& otherForms, EventSink dispatchRoutine);

    /// The window of a form; made at its first use.
    FormWindow& WindowOf(Form& form);

    /// Also shows the squad beside the main window.
    void Accompany(Companion& whoGoesAlong) override;

    /// nullptr where nobody goes along.
    SquadWindow* Squad() { return squadWindow; }

    SoundDevice& Sounds() { return soundDevice; }

    [[noreturn]] void EndProcess(int exitCode) override;

  protected:
    void ShowWindows() override;
    void ShowNow(Form& form) override;
    void HandleEvents() override;
    void AwaitEvent() override;
    void HandleEventsUntil(Moment end) override;
    void SleepUntil(Moment end) override;
    bool BeginModal(Form& form) override;
    void EndModal(Form& form) override;
    bool ShowsWantedView() const override;
    void ShowScreening(Screening& screening, Moment now) override;
    void EndScreening() override;
    void BeginPace(std::chrono::milliseconds pause) override;
    void EndPace() override;
    void Play(const SoundRequest& sound) override;
    void ShowText(const std::string& text) override;
    void ShowError(const std::string& text) override;

  private:
    void SoundValley();
    void CloseQuietDevice();

    FormWindow mainWindow;
    std::vector<FormWindow*> otherWindows;  // the main window owns them
    std::vector<Form*> forms;               // all but the main one
    std::unique_ptr<CompanionView> companionView;
    SquadWindow* squadWindow = nullptr;  // the main window owns it
    SoundDevice soundDevice;
    QTimer pace;   // of what is played back
    QTimer quiet;  // runs while the device is open, and is wound up by each sound
};
