#include "desktop/drawn_accessible.h"

#include <QAccessibleWidget>

#include "desktop/control_view.h"
#include "shell/stops.h"

namespace {

class DrawnAccessible : public QAccessibleWidget {
  public:
    DrawnAccessible(QWidget& drawn, const ControlView& ofIt)
        : QAccessibleWidget(&drawn, GridOf(ofIt.Shown()) == 0 ? QAccessible::Button : QAccessible::Canvas),
          view(ofIt) {}

    QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (role() == QAccessible::Button) names.prepend(pressAction());
        return names;
    }

    void doAction(const QString& action) override {
        if (action == pressAction())
            view.PressInMiddle();
        else
            QAccessibleWidget::doAction(action);
    }

  private:
    const ControlView& view;
};

QAccessibleInterface* Describe(const QString& /*className*/, QObject* object) {
    auto* const widget = qobject_cast<QWidget*>(object);
    const auto* const view = dynamic_cast<const ControlView*>(widget);
    if (view == nullptr || !IsDrawn(view->Shown()) || !IsStop(view->Shown())) return nullptr;
    return new DrawnAccessible(*widget, *view);
}

}  // namespace

void NameDrawnControls() {
    QAccessible::installFactory(Describe);
}
