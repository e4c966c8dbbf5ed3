#include "desktop/window_sizes.h"

#include <algorithm>
#include <utility>

#include <QResizeEvent>
#include <QScreen>

#include "desktop/appearance.h"
#include "desktop/form_window.h"
#include "shell/settings.h"

WindowSizes::WindowSizes(FormWindow& ofMain, std::vector<const Form*> ofForms, SettingsFile& ofPlayer,
                         std::function<void()> toShow)
    : window(ofMain), forms(std::move(ofForms)), settings(ofPlayer), show(std::move(toShow)) {
    window.installEventFilter(this);
    window.setMinimumSize(SizeWithMenu(window.Shown()));
    SetScale(Wanted());
    ScaleFonts();
    if (settings.Now().fullScreen) window.setWindowState(Qt::WindowFullScreen);
}

// Whether the window has the size that it is given.
bool WindowSizes::IsFree() const {
    return !window.isFullScreen() && !window.isMaximized();
}

// The largest size for now: of a window that is free, the screen's.
Halves WindowSizes::Most() const {
    if (IsFree()) return FittingScale(window.screen()->availableSize(), forms);
    return LargestScale(SizeWithMenu(window.Shown()), window.size());
}

Halves WindowSizes::Wanted() const {
    const Halves fitting = FittingScale(window.screen()->availableSize(), forms);
    const Halves chosen = settings.Now().halves;
    return chosen == 0 ? fitting : std::min(chosen, fitting);
}

bool WindowSizes::Step(int halves) {
    const Halves before = Scale();
    const Halves to = std::clamp(before + halves, SingleSize, Most());
    Remember(to);
    Show(to);
    return to != before;
}

void WindowSizes::Fit() {
    Remember(0);
    Show(Most());
}

void WindowSizes::ToggleFullScreen() {
    Settings changed = settings.Now();
    changed.fullScreen = !window.isFullScreen();
    settings.Change(changed);
    if (!window.isFullScreen()) freePlace = window.geometry().topLeft();
    window.setWindowState(window.windowState() ^ Qt::WindowFullScreen);
    if (!IsFree()) return;
    Show(Wanted());
    // The size was set where the full screen began.
    if (freePlace) window.setGeometry(QRect(*freePlace, window.size()));
}

// The main window first: others stand in its middle.
void WindowSizes::Show(Halves halves) {
    SetScale(halves);
    ScaleFonts();
    if (IsFree()) window.resize(ToScreen(QRect({0, 0}, SizeWithMenu(window.Shown()))).size());
    show();
}

// The full screen isn't a choice of size.
void WindowSizes::Remember(int halves) {
    if (window.isFullScreen()) return;
    Settings changed = settings.Now();
    changed.halves = halves;
    settings.Change(changed);
}

bool WindowSizes::eventFilter(QObject* /*watched*/, QEvent* event) {
    if (event->type() != QEvent::Resize || window.isHidden()) return false;
    const QSize room = static_cast<const QResizeEvent*>(event)->size();
    const Halves largest = LargestScale(SizeWithMenu(window.Shown()), room);
    if (largest == Scale()) return false;
    Remember(largest);
    SetScale(largest);
    ScaleFonts();
    show();
    return false;
}
