#include "desktop/companion_view.h"

#include <functional>
#include <thread>
#include <utility>

#include <QEvent>

#include "desktop/form_window.h"
#include "desktop/picture_widget.h"
#include "desktop/scale.h"
#include "view/field_form.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds FrameTime(33);

QRect BoundsOf(const Control& control) {
    return {0, 0, control.Width, control.Height};
}

// Runs `atLeave` when the pointer leaves a window.
class LeaveWatch : public QObject {
  public:
    LeaveWatch(QWidget& ofWindow, std::function<void()> toDo) : QObject(&ofWindow), atLeave(std::move(toDo)) {
        ofWindow.installEventFilter(this);
    }

  protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Leave) atLeave();
        return false;
    }

  private:
    const std::function<void()> atLeave;
};

}  // namespace

CompanionView::CompanionView(FormWindow& main, Companion& whose)
    : window(main),
      companion(whose),
      field(dynamic_cast<CanvasWidget&>(*main.WidgetOf(frmField.area))),
      onField(*new SketchWidget(field, BoundsOf(frmField.area), &field)),
      onView(*new SketchWidget(*main.WidgetOf(frmField), {ViewLeft, ViewTop, ViewWidth, ViewHeight})),
      onMap(*new SketchWidget(*main.WidgetOf(frmField.picAreaMap), BoundsOf(frmField.picAreaMap))),
      readout(*new EmbeddedForm(whose.Readout(), *main.WidgetOf(frmField))) {
    motion.setInterval(FrameTime);
    motion.callOnTimeout([this] { Sync(); });
    new LeaveWatch(window, [this] {
        companion.ForgetPointer();
        Sync();
    });
}

void CompanionView::Sync() {
    companion.Look();
    onField.Show(companion.OnField());
    onView.Show(companion.OnView());
    onMap.Show(companion.OnMap());
    readout.Sync();
    if (companion.IsMoving() == motion.isActive()) return;
    companion.IsMoving() ? motion.start() : motion.stop();
}

void CompanionView::Show(Screening& screening, Moment now) {
    const ViewPlace view = screening.View(now);
    field.ShowInstead(&screening.Field());
    field.move(ToScreen(ViewLeft - view.left), ToScreen(ViewTop - view.top));
    field.SyncCanvas();
    Sync();
    window.PaintNow();
}

void CompanionView::EndScreening() {
    field.ShowInstead(nullptr);
}

bool CompanionView::IsInView() const {
    return field.pos() == QPoint(ToScreen(frmField.area.Left), ToScreen(frmField.area.Top));
}

void CompanionView::SleepUntil(Moment end) {
    while (companion.IsMoving() && Clock::now() + FrameTime < end) {
        std::this_thread::sleep_for(FrameTime);
        Sync();
        window.PaintNow();
    }
    std::this_thread::sleep_until(end);
}
