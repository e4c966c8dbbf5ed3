#include "desktop/drawn_accessible.h"

#include <QAccessibleWidget>

#include "desktop/control_view.h"
#include "desktop/pointer_events.h"
#include "desktop/stops.h"

namespace {

class DrawnAccessible : public QAccessibleWidget {
  public:
    DrawnAccessible(QWidget& drawn, const Control& control)
        : QAccessibleWidget(&drawn, GridOf(control) == 0 ? QAccessible::Button : QAccessible::Canvas) {}

    QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (role() == QAccessible::Button) names.prepend(pressAction());
        return names;
    }

    void doAction(const QString& action) override {
        if (action == pressAction())
            PressAt(*widget(), QRectF(widget()->rect()).center(), Qt::LeftButton);
        else
            QAccessibleWidget::doAction(action);
    }
};

QAccessibleInterface* Describe(const QString& /*className*/, QObject* object) {
    auto* const widget = qobject_cast<QWidget*>(object);
    const auto* const view = dynamic_cast<const ControlView*>(widget);
    if (view == nullptr || !IsDrawn(view->Shown()) || !IsStop(view->Shown())) return nullptr;
    return new DrawnAccessible(*widget, view->Shown());
}

}  // namespace

void NameDrawnControls() {
    QAccessible::installFactory(Describe);
}
