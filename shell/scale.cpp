#include "shell/scale.h"

#include <algorithm>

namespace {

Halves scale = SingleSize;

}  // namespace

void SetScale(Halves halves) {
    scale = halves;
}

Halves Scale() {
    return scale;
}

double ScaleFactor() {
    return scale / 2.0;
}

PixelSize WholeSize(const Form& form) {
    const bool hasMenu = std::any_of(form.controls.begin(), form.controls.end(), [](const Control* control) {
        return control->kind == ControlKind::Menu;
    });
    return {form.Width, form.Height + (hasMenu ? MenuHeight : 0)};
}

// What is rounded up here may be rounded down on the screen, part by part: it fits all the more.
Halves ScaleWithin(PixelSize size, PixelSize room) {
    const int across = 2 * room.width / size.width;
    const int down = 2 * room.height / size.height;
    return std::clamp(std::min(across, down), SingleSize, LargestSize);
}

Halves ScaleForAll(std::span<const Form* const> forms, PixelSize room) {
    Halves fitting = LargestSize;
    for (const Form* form : forms)
        fitting = std::min(fitting, ScaleWithin(WholeSize(*form), room));
    return fitting;
}

int ToScreen(int edge) {
    return (edge * scale + 1) >> 1;  // downwards also below 0
}

Rectangle ToScreen(const Rectangle& rectangle) {
    const int left = ToScreen(rectangle.left);
    const int top = ToScreen(rectangle.top);
    return {left, top, ToScreen(rectangle.left + rectangle.width) - left,
            ToScreen(rectangle.top + rectangle.height) - top};
}

FinePoint FromScreen(FinePoint point) {
    return {point.x / ScaleFactor(), point.y / ScaleFactor()};
}
