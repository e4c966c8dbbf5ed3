// How large the player wants the windows: the largest size that fits the screen or one that he has chosen, in
// a window or on the full screen. When the main window gets another size, by the mouse or the desktop,
// everything is shown as large as fits in it.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include <QObject>
#include <QPoint>

#include "desktop/scale.h"

class FormWindow;
class SettingsFile;

class WindowSizes : public QObject {
  public:
    /// For all `ofForms`, of which `ofMain` shows one; it isn't on the screen yet, and comes as it was the
    /// last time. `toShow` shows all windows at a scale that has just been set. All must outlive this.
    WindowSizes(FormWindow& ofMain, std::vector<const Form*> ofForms, SettingsFile& ofPlayer,
                std::function<void()> toShow);

    /// Larger or smaller by so many halves, as far as it goes; whether it goes at all.
    bool Step(int halves);

    /// The largest size again.
    void Fit();

    void ToggleFullScreen();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool IsFree() const;
    Halves Most() const;
    Halves Wanted() const;
    void Show(Halves halves);
    void Remember(int halves);

    FormWindow& window;
    const std::vector<const Form*> forms;
    SettingsFile& settings;
    const std::function<void()> show;
    std::optional<QPoint> freePlace;  // of the window's inside, before it filled the screen
};
