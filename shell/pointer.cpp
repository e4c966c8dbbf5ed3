#include "shell/pointer.h"

#include <algorithm>

#include "platform/keys.h"

namespace {

// On any window.
const Control* pressedLast = nullptr;

unsigned BitOf(int button) {
    return 1U << static_cast<unsigned>(button);
}

// One of the pixels along a side of a control.
float PixelWithin(double at, int length) {
    return static_cast<float>(std::clamp(at, 0.0, static_cast<double>(std::max(length - 1, 0))));
}

struct Place {
    const Control* control;
    PointerInput input;
};

// Who gets what the pointer does at a place of `control`.
Place TakerAt(const Control& control, FinePoint at) {
    Place place{&control, {.at = at}};
    for (; !place.control->Enabled && place.control != control.form; place.control = place.control->parent) {
        place.input.at.x += place.control->Left;
        place.input.at.y += place.control->Top;
    }
    return place;
}

}  // namespace

bool Strays(const Control& control, bool isSecond) {
    if (isSecond) return pressedLast != &control;
    pressedLast = &control;
    return false;
}

// While one button is held, a control gets the others' presses as well, wherever the pointer has been
// dragged.
void ControlPointer::Press(const PointerInput& input) {
    meant &= ~BitOf(input.button);
    if (Strays(control, input.isSecond)) return;
    if (input.held != input.button && !input.isSeen) return;
    meant |= BitOf(input.button);
    Send(EventKind::MouseDown, input.button, input);
}

void ControlPointer::Move(const PointerInput& input) const {
    Send(EventKind::MouseMove, input.held, input);
}

void ControlPointer::Release(const PointerInput& input) {
    const bool wasMeant = (meant & BitOf(input.button)) != 0;
    meant &= ~BitOf(input.button);
    if (!wasMeant) return;
    Send(EventKind::MouseUp, input.button, input);
    const bool inside =
        input.at.x >= 0 && input.at.x < control.Width && input.at.y >= 0 && input.at.y < control.Height;
    if (input.button == LeftButton && inside) Send(EventKind::Click, input.button, input);
}

// A drag that has left the control goes along its edge.
void ControlPointer::Send(EventKind kind, int code, const PointerInput& input) const {
    InputEvent event = EventOf(control, kind, code);
    event.shift = input.shift;
    event.x = PixelWithin(input.at.x, control.Width);
    event.y = PixelWithin(input.at.y, control.Height);
    sink(event);
}

void PointAt(const Control& control, FinePoint at, const EventSink& sink) {
    const Place place = TakerAt(control, at);
    ControlPointer(*place.control, sink).Move(place.input);
}

void PressAt(const Control& control, FinePoint at, int button, const EventSink& sink) {
    Place place = TakerAt(control, at);
    place.input.button = place.input.held = button;
    ControlPointer pointer(*place.control, sink);
    pointer.Press(place.input);
    pointer.Release(place.input);
}
