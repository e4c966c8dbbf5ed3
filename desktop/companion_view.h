// What the companion draws, on the main window: over the field, and over the part of the window where the
// field is seen. While something moves, a timer keeps it moving; at rest nothing runs.
#pragma once

#include <QTimer>

#include "desktop/embedded_form.h"
#include "desktop/sketch_widget.h"
#include "shell/companion.h"

class CanvasWidget;
class FormWindow;

class CompanionView {
  public:
    /// Both must outlive it, but for the widgets, which the window owns.
    CompanionView(FormWindow& main, Companion& whose);

    /// Brings the widgets in line with what the companion draws now.
    void Sync();

    /// Shows what the screening shows at `now`, in the game's place.
    void Show(Screening& screening, Moment now);

    /// Shows the game again.
    void EndScreening();

    /// Whether the part of the field that the records want in view is the one on the screen.
    bool IsInView() const;

    /// Waits until `end` without an event, and keeps moving meanwhile what moves.
    void SleepUntil(Moment end);

  private:
    FormWindow& window;
    Companion& companion;
    CanvasWidget& field;
    SketchWidget& onField;
    SketchWidget& onView;
    SketchWidget& onMap;
    EmbeddedForm& readout;
    QTimer motion;
};
