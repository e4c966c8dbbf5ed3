#include "shell/control_events.h"

InputEvent EventOf(const Control& control, EventKind kind, int code) {
    InputEvent event;
    event.kind = kind;
    event.control = control.form == &control ? control.name : control.form->name + "." + control.name;
    event.index = control.index;
    event.code = code;
    return event;
}
