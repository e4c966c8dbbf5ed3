#include "view/events.h"

#include <cstddef>

#include "combat/actions.h"
#include "field/sightings.h"
#include "platform/controls.h"
#include "state/mission_end.h"
#include "state/state.h"
#include "state/turns.h"
#include "view/commands.h"
#include "view/field_form.h"
#include "view/scrolling.h"

namespace {

using Event = const InputEvent&;

// Who may give it: orders are the player's, and only in his turn; the rest looks at the game or ends it.
enum class Kind { Order, View };

struct Handler {
    std::string_view control;
    EventKind event;
    Kind kind;
    void (*run)(Event);
};

// clang-format off
constexpr Handler Handlers[] = {
    {"frmField",               EventKind::KeyDown,   Kind::Order, [](Event e) { Form_KeyDown(e.code); }},
    {"frmField.area",          EventKind::MouseDown, Kind::Order, [](Event e) { area_MouseDown(e.code, e.x, e.y); }},
    {"frmField.cmdNextTurn",   EventKind::Click,     Kind::Order, [](Event) { NewTurn(); }},
    {"frmField.imgStance",     EventKind::Click,     Kind::Order, [](Event e) { SetStance(e.index); }},
    {"frmField.imgStop",       EventKind::Click,     Kind::Order, [](Event) { imgStop_Click(); }},
    {"frmField.imgEnemyCount", EventKind::Click,     Kind::Order, [](Event) { imgEnemyCount_Click(); }},
    {"frmField.comboMode",     EventKind::Choose,    Kind::Order, [](Event e) { comboMode_Click(e.code); }},
    {"frmField.area",          EventKind::MouseMove, Kind::View,  [](Event e) { area_MouseMove(e.x, e.y); }},
    {"frmField.mnuExit",       EventKind::Click,     Kind::View,  [](Event) { EndGame(); }},
    {"frmField.HScrollArea",   EventKind::Scroll,    Kind::View,  [](Event e) { ScrollThumb(frmField.HScrollArea, e.code); }},
    {"frmField.VScrollArea",   EventKind::Scroll,    Kind::View,  [](Event e) { ScrollThumb(frmField.VScrollArea, e.code); }},
    {"frmField.HScrollArea",   EventKind::Change,    Kind::View,  [](Event e) { SetScrollValue(frmField.HScrollArea, e.code); }},
    {"frmField.VScrollArea",   EventKind::Change,    Kind::View,  [](Event e) { SetScrollValue(frmField.VScrollArea, e.code); }},
};
// clang-format on

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
    for (const Handler& handler : Handlers) {
        if (handler.event != event.kind || handler.control != event.control) continue;
        const bool allowed = handler.kind == Kind::View || curTeam == SquadTeam;
        if (allowed && CanHappen(event)) handler.run(event);
        return;
    }
}
