#include "desktop/companion_view.h"

#include <algorithm>
#include <thread>

#include "desktop/form_window.h"
#include "view/field_form.h"

namespace {

constexpr std::chrono::milliseconds FrameTime(33);

QRect BoundsOf(const Control& control) {
    return {0, 0, control.Width, control.Height};
}

}  // namespace

CompanionView::CompanionView(FormWindow& main, Companion& whose)
    : window(main),
      companion(whose),
      onField(*new SketchWidget(*main.WidgetOf(frmField.area), BoundsOf(frmField.area))),
      onView(*new SketchWidget(*main.WidgetOf(frmField), {ViewLeft, ViewTop, ViewWidth, ViewHeight})),
      readout(*new EmbeddedForm(whose.Readout(), *main.WidgetOf(frmField))) {
    motion.setInterval(FrameTime);
    motion.callOnTimeout([this] { Sync(); });
}

void CompanionView::Sync() {
    companion.Look();
    onField.Show(companion.OnField());
    onView.Show(companion.OnView());
    readout.Sync();
    if (companion.IsMoving() == motion.isActive()) return;
    companion.IsMoving() ? motion.start() : motion.stop();
}

void CompanionView::SleepUntil(Moment end) {
    while (companion.IsMoving() && std::chrono::steady_clock::now() + FrameTime < end) {
        std::this_thread::sleep_for(FrameTime);
        Sync();
        window.PaintNow();
    }
    std::this_thread::sleep_until(end);
}
