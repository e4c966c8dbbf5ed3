#include "view/events.h"

#include <cstddef>

#include "combat/actions.h"
#include "field/sightings.h"
#include "platform/controls.h"
#include "state/mission_end.h"
#include "state/turns.h"
#include "view/commands.h"
#include "view/field_form.h"
#include "view/scrolling.h"

namespace {

using Event = const InputEvent&;

struct Handler {
    std::string_view control;
    EventKind kind;
    void (*run)(Event);
};

constexpr Handler Handlers[] = {
    {"frmField", EventKind::KeyDown, [](Event e) { Form_KeyDown(e.code); }},
    {"frmField.area", EventKind::MouseMove, [](Event e) { area_MouseMove(e.x, e.y); }},
    {"frmField.area", EventKind::MouseDown, [](Event e) { area_MouseDown(e.code, e.x, e.y); }},
    {"frmField.cmdNextTurn", EventKind::Click, [](Event) { NewTurn(); }},
    {"frmField.mnuExit", EventKind::Click, [](Event) { EndGame(); }},
    {"frmField.imgStance", EventKind::Click, [](Event e) { SetStance(e.index); }},
    {"frmField.imgStop", EventKind::Click, [](Event) { imgStop_Click(); }},
    {"frmField.imgEnemyCount", EventKind::Click, [](Event) { imgEnemyCount_Click(); }},
    {"frmField.comboMode", EventKind::Choose, [](Event e) { ChooseMode(e.code); }},
    {"frmField.HScrollArea", EventKind::Scroll, [](Event e) { ScrollThumb(frmField.HScrollArea, e.code); }},
    {"frmField.VScrollArea", EventKind::Scroll, [](Event e) { ScrollThumb(frmField.VScrollArea, e.code); }},
    {"frmField.HScrollArea", EventKind::Change,
     [](Event e) { SetScrollValue(frmField.HScrollArea, e.code); }},
    {"frmField.VScrollArea", EventKind::Change,
     [](Event e) { SetScrollValue(frmField.VScrollArea, e.code); }},
};

bool IsShown(const Control* control) {
    for (; control != nullptr && control->kind != ControlKind::Form; control = control->parent)
        if (!control->Visible || !control->Enabled) return false;
    return true;
}

// Whether a person could have done this: a control that is hidden or switched off gets no events. One that
// was shown when the event was made may have gone since.
bool CanHappen(Event event) {
    const std::size_t dot = event.control.find('.');
    if (dot == std::string::npos) return true;
    const Control* control = frmField.Find(std::string_view(event.control).substr(dot + 1), event.index);
    return control != nullptr && IsShown(control);
}

}  // namespace

void Dispatch(const InputEvent& event) {
    for (const Handler& handler : Handlers)
        if (handler.kind == event.kind && handler.control == event.control && CanHappen(event))
            return handler.run(event);
}
