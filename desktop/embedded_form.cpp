#include "desktop/embedded_form.h"

#include "desktop/control_widgets.h"
#include "desktop/picture_widget.h"
#include "desktop/scale.h"

EmbeddedForm::EmbeddedForm(Form& shown, QWidget& parent)
    : QWidget(&parent),
      form(shown),
      nowhere([](const InputEvent&) {}),
      ground(new CanvasSurface(form.canvas, form.BackColor, *this)) {
    setObjectName(QString::fromStdString(form.name));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    for (Control* control : form.controls)
        views.push_back(MakeControlView(*control, *this, nowhere));
    Sync();
    show();
}

void EmbeddedForm::Sync() {
    const QRect place = ToScreen(QRect(form.Left, form.Top, form.Width, form.Height));
    if (geometry() != place) setGeometry(place);
    if (ground->size() != place.size()) ground->resize(place.size());
    ground->SyncCanvas();
    for (ControlView* view : views)
        view->Sync();
    if (isHidden() == form.Visible) setVisible(form.Visible);
}
