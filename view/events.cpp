#include "view/events.h"

#include <cstddef>

#include "platform/controls.h"
#include "state/mission_end.h"
#include "state/turns.h"
#include "view/field_form.h"
#include "view/scrolling.h"

namespace {

struct Handler {
    const char* control;
    EventKind kind;
    void (*run)(const InputEvent&);
};

constexpr Handler Handlers[] = {
    {"frmField.cmdNextTurn", EventKind::Click, [](const InputEvent&) { NewTurn(); }},
    {"frmField.mnuExit", EventKind::Click, [](const InputEvent&) { EndGame(); }},
    {"frmField.HScrollArea", EventKind::Scroll,
     [](const InputEvent& e) { ScrollThumb(frmField.HScrollArea, e.code); }},
    {"frmField.VScrollArea", EventKind::Scroll,
     [](const InputEvent& e) { ScrollThumb(frmField.VScrollArea, e.code); }},
    {"frmField.HScrollArea", EventKind::Change,
     [](const InputEvent& e) { SetScrollValue(frmField.HScrollArea, e.code); }},
    {"frmField.VScrollArea", EventKind::Change,
     [](const InputEvent& e) { SetScrollValue(frmField.VScrollArea, e.code); }},
};

}  // namespace

void Dispatch(const InputEvent& event) {
    for (const Handler& handler : Handlers)
        if (handler.kind == event.kind && event.control == handler.control) return handler.run(event);
}
