#include "shell/seen_part.h"

#include <algorithm>
#include <utility>

namespace {

// Buttons and lists have round corners; they hide no more than an edge of their neighbours.
bool IsOpaque(const Control& control) {
    switch (control.kind) {
        case ControlKind::PictureBox:
        case ControlKind::HScrollBar:
        case ControlKind::VScrollBar:
        case ControlKind::Label:
            return true;
        case ControlKind::Text:
            return !static_cast<const TextBox&>(control).SeeThrough;
        default:
            return false;
    }
}

// What shows of it when nothing lies in front.
Rectangle ShownPart(const Control& control) {
    Rectangle part = {0, 0, control.Width, control.Height};
    const Control* at = &control;
    for (; at != at->form; at = at->parent) {
        if (!at->Visible) return {};
        part.left += at->Left;
        part.top += at->Top;
        part = Common(part, {0, 0, at->parent->Width, at->parent->Height});
    }
    return at->Visible ? part : Rectangle();
}

bool LiesIn(const Control& control, const Control& larger) {
    for (const Control* at = &control; at != nullptr; at = at->parent)
        if (at == &larger) return true;
    return false;
}

// Whether `other`, which isn't the control, stands in front of it where they meet.
bool IsInFront(const Control& other, const Control& control) {
    if (LiesIn(other, control)) return true;
    if (LiesIn(control, other)) return false;
    const Control* behind = &control;
    while (!LiesIn(other, *behind->parent))
        behind = behind->parent;
    const Control* before = &other;
    while (before->parent != behind->parent)
        before = before->parent;
    const std::vector<Control*>& order = control.form->controls;
    return std::find(order.begin(), order.end(), behind) < std::find(order.begin(), order.end(), before);
}

void TakeOut(std::vector<Rectangle>& pieces, const Rectangle& hole) {
    std::vector<Rectangle> rest;
    for (const Rectangle& piece : pieces) {
        const Rectangle cut = Common(piece, hole);
        if (cut.Empty()) {
            rest.push_back(piece);
            continue;
        }
        const int right = cut.left + cut.width;
        const int bottom = cut.top + cut.height;
        const Rectangle around[] = {
            {piece.left, piece.top, piece.width, cut.top - piece.top},
            {piece.left, bottom, piece.width, piece.top + piece.height - bottom},
            {piece.left, cut.top, cut.left - piece.left, cut.height},
            {right, cut.top, piece.left + piece.width - right, cut.height},
        };
        std::copy_if(std::begin(around), std::end(around), std::back_inserter(rest),
                     [](const Rectangle& part) { return !part.Empty(); });
    }
    pieces = std::move(rest);
}

}  // namespace

PixelPoint OriginOf(const Control& control) {
    PixelPoint origin;
    for (const Control* at = &control; at != at->form; at = at->parent)
        origin = origin + PixelPoint{at->Left, at->Top};
    return origin;
}

Rectangle SeenPart(const Control& control) {
    const Rectangle shown = ShownPart(control);
    if (shown.Empty()) return {};
    std::vector<Rectangle> pieces = {shown};
    for (const Control* const other : control.form->controls) {
        if (other == &control || !IsOpaque(*other)) continue;
        const Rectangle hides = Common(ShownPart(*other), shown);
        if (!hides.Empty() && IsInFront(*other, control)) TakeOut(pieces, hides);
    }
    Rectangle seen;
    for (const Rectangle& piece : pieces)
        seen = Around(seen, piece);
    return seen;
}
