// A form within another form's window: real widgets for its controls, on its own ground, where its Left and
// Top say. It is there to be read: the mouse falls through to what lies beneath, and no event comes from it.
#pragma once

#include <vector>

#include "desktop/control_view.h"

class CanvasSurface;

class EmbeddedForm : public QWidget {
  public:
    /// Within `parent`, the inside of a window, which owns it. The form must outlive it.
    EmbeddedForm(Form& shown, QWidget& parent);

    /// Brings all widgets in line with their records.
    void Sync();

  private:
    Form& form;
    const EventSink nowhere;
    CanvasSurface* ground;
    std::vector<ControlView*> views;
};
