// One window of the game: a real widget for every control of a form, and the form's keys and close button as
// events.
#pragma once

#include <memory>
#include <vector>

#include <QWidget>

#include "desktop/control_view.h"
#include "desktop/form_timer.h"
#include "desktop/keyboard.h"
#include "desktop/tips.h"

class CanvasSurface;
class QAction;
class QMenuBar;

class FormWindow : public QWidget {
  public:
    /// A window for `shown`, not on the screen until Sync finds the form visible. With an `owner` it stands
    /// before the owner, in its middle; without one its size is the desktop's affair, and the inside stands
    /// in its middle. `to` takes all its events.
    FormWindow(Form& shown, QWidget* owner, EventSink to);

    Form& Shown() const { return form; }

    /// Brings the window and all its widgets in line with their records.
    void Sync();

    /// Paints at once what Sync has found changed. No event is handled, but that the first time after the
    /// window came on the screen this waits for the window system to show it.
    void PaintNow();

    /// The widget of one of the form's controls, nullptr for a menu entry or a timer.
    QWidget* WidgetOf(const Control& control) const;

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    /// The close button only asks: what comes of it is for the game and the host.
    void closeEvent(QCloseEvent* event) override;

  private:
    struct MenuEntry {
        MenuItem* item;
        QAction* action;
    };

    void Build();
    void AddMenuEntry(MenuItem& item);
    void SyncMenu();
    void SyncFrame();
    void Resize(QSize inside);
    void SyncVisible();
    QPoint PlaceBefore(const QWidget& owner) const;
    void AwaitExposure();

    Form& form;
    const EventSink sink;
    CanvasSurface* client;  // the inside, below the menu
    Tips tips;
    Keyboard keyboard;
    QMenuBar* menu = nullptr;  // only where the form has menu entries
    std::vector<MenuEntry> menuEntries;
    std::vector<ControlView*> views;  // in the order of the form's controls
    std::vector<std::unique_ptr<FormTimer>> timers;
    std::string shownCaption;
    bool justShown = false;
};
