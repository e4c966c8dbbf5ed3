#include "browser/form_view.h"

#include <algorithm>
#include <cstdio>
#include <utility>

#include "browser/json.h"
#include "shell/control_words.h"
#include "shell/scale.h"
#include "shell/stops.h"

namespace {

const char* KindName(ControlKind kind) {
    switch (kind) {
        case ControlKind::PictureBox:
            return "canvas";
        case ControlKind::Image:
            return "image";
        case ControlKind::HScrollBar:
            return "hscroll";
        case ControlKind::VScrollBar:
            return "vscroll";
        case ControlKind::Combo:
            return "combo";
        case ControlKind::List:
            return "list";
        case ControlKind::Button:
            return "button";
        case ControlKind::Label:
            return "label";
        case ControlKind::Text:
            return "text";
        case ControlKind::Shape:
            return "shape";
        case ControlKind::Line:
            return "line";
        case ControlKind::Menu:
            return "menu";
        case ControlKind::Timer:
        case ControlKind::Form:
            break;
    }
    return "";
}

std::string Hex(Colour colour) {
    char text[8];
    std::snprintf(text, sizeof(text), "#%06x", colour & 0xFFFFFFU);
    return text;
}

void AddColours(JsonObject& record, Colour back, Colour fore) {
    record.Add("back", Hex(back)).Add("fore", Hex(fore));
}

void AddCaption(JsonObject& record, const std::string& caption) {
    record.Add("caption", caption);
}

// What the kind has besides.
void AddKind(JsonObject& record, const Control& control) {
    switch (control.kind) {
        case ControlKind::PictureBox:
            record.Add("back", Hex(static_cast<const PictureBox&>(control).BackColor));
            break;
        case ControlKind::HScrollBar:
        case ControlKind::VScrollBar: {
            const auto& bar = static_cast<const ScrollBar&>(control);
            record.Add("value", bar.Value).Add("least", bar.Min).Add("most", bar.Max);
            record.Add("small", bar.SmallChange).Add("large", bar.LargeChange);
            break;
        }
        case ControlKind::Combo:
        case ControlKind::List: {
            const auto& combo = static_cast<const ComboBox&>(control);
            record.Add("text", combo.Text).Add("chosen", combo.ListIndex);
            AddColours(record, combo.BackColor, combo.ForeColor);
            break;
        }
        case ControlKind::Button:
            AddCaption(record, static_cast<const Button&>(control).Caption);
            break;
        case ControlKind::Label: {
            const auto& label = static_cast<const Label&>(control);
            AddCaption(record, label.Caption);
            AddColours(record, label.BackColor, label.ForeColor);
            break;
        }
        case ControlKind::Text: {
            const auto& box = static_cast<const TextBox&>(control);
            AddCaption(record, box.Text);
            AddColours(record, box.BackColor, box.ForeColor);
            record.Add("seeThrough", box.SeeThrough);
            break;
        }
        case ControlKind::Shape:
        case ControlKind::Line:
            record.Add("fore", Hex(static_cast<const Shape&>(control).BorderColor));
            break;
        case ControlKind::Menu:
            AddCaption(record, static_cast<const MenuItem&>(control).Caption);
            break;
        default:
            break;
    }
}

}  // namespace

std::string ControlId(const Control& control) {
    if (control.kind == ControlKind::Form) return control.name;
    const std::string id = control.form->name + "." + control.name;
    return control.index < 0 ? id : id + "#" + std::to_string(control.index);
}

FormView::FormView(Form& shown, Page& onPage, std::string inForm)
    : form(shown), page(onPage), within(std::move(inForm)) {}

void FormView::Sync() {
    SyncForm();
    for (Control* control : form.controls)
        if (control->kind != ControlKind::Timer) SyncControl(*control);
}

void FormView::SyncForm() {
    Sent& sent = known[&form];
    JsonObject record;
    record.Add("is", "form").Add("id", form.name).Add("within", within).Add("caption", form.Caption);
    record.Add("left", form.Left).Add("top", form.Top).Add("width", form.Width).Add("height", form.Height);
    record.Add("visible", form.Visible).Add("back", Hex(form.BackColor)).Add("name", SpokenName(form));
    if (std::string text = record.Text(); text != sent.record) {
        page.Post(text);
        sent.record = std::move(text);
    }
    SyncCanvas(form.name, form.canvas, sent);
}

void FormView::SyncControl(Control& control) {
    Sent& sent = known[&control];
    const bool isReplaced = &control == replaced;
    const int left = isReplaced ? replacedLeft : control.Left;
    const int top = isReplaced ? replacedTop : control.Top;
    JsonObject record;
    record.Add("is", "control").Add("id", ControlId(control)).Add("kind", KindName(control.kind));
    record.Add("form", form.name).Add("parent", ControlId(*control.parent));
    record.Add("left", left).Add("top", top).Add("width", control.Width).Add("height", control.Height);
    record.Add("visible", control.Visible).Add("enabled", control.Enabled);
    record.Add("tip", TipOf(control)).Add("name", SpokenName(control)).Add("stop", IsStop(control));
    const char letter = ShortcutLetter(control);
    record.Add("letter", letter == '\0' ? std::string() : std::string(1, letter));
    AddKind(record, control);
    if (std::string text = record.Text(); text != sent.record) {
        page.Post(text);
        sent.record = std::move(text);
    }
    sent.left = left;
    sent.top = top;
    switch (control.kind) {
        case ControlKind::PictureBox:
            return SyncCanvas(ControlId(control),
                              isReplaced ? *replacement : static_cast<PictureBox&>(control).canvas, sent);
        case ControlKind::Image:
            return SyncImage(static_cast<ImageControl&>(control), sent);
        case ControlKind::Combo:
        case ControlKind::List:
            return SyncEntries(static_cast<ComboBox&>(control), sent);
        default:
            return;
    }
}

// A log grows at its end: only what is new is sent.
void FormView::SyncEntries(const ComboBox& combo, Sent& sent) {
    if (combo.List == sent.entries) return;
    const auto [ours, theirs] =
        std::mismatch(combo.List.begin(), combo.List.end(), sent.entries.begin(), sent.entries.end());
    const std::vector<std::string> added(ours, combo.List.end());
    JsonObject message;
    message.Add("is", "entries").Add("id", ControlId(combo)).Add("from", ours - combo.List.begin());
    page.Post(message.AddRaw("entries", JsonArray(added, JsonQuoted)).Text());
    sent.entries = combo.List;
}

void FormView::SyncImage(const ImageControl& image, Sent& sent) {
    const Picture* const picture = image.Picture.get();
    if (picture == sent.pixels) return;
    sent.pixels = picture;
    if (picture == nullptr)
        page.Post(JsonObject().Add("is", "cleared").Add("id", ControlId(image)).Text());
    else
        SendPixels(ControlId(image), *picture, picture->Bounds(), true);
}

void FormView::SyncCanvas(const std::string& id, Picture& canvas, Sent& sent) {
    const Rectangle changed = canvas.TakeChanged();
    if (canvas.Bounds().Empty()) return;
    const bool isOther = canvas.Row(0) != sent.pixels;
    sent.pixels = canvas.Row(0);
    const Rectangle part = isOther ? canvas.Bounds() : Common(changed, canvas.Bounds());
    if (!part.Empty()) SendPixels(id, canvas, part, false);
}

void FormView::SendPixels(const std::string& id, const Picture& picture, const Rectangle& part,
                          bool seenThrough) {
    if (part.Empty()) return;
    bytes.resize(static_cast<std::size_t>(part.width) * static_cast<std::size_t>(part.height) * 4);
    std::uint8_t* at = bytes.data();
    for (int y = part.top; y < part.top + part.height; ++y) {
        const Colour* const row = picture.Row(y) + part.left;
        for (int x = 0; x < part.width; ++x) {
            const Colour colour = row[x];
            *at++ = static_cast<std::uint8_t>(colour >> 16);
            *at++ = static_cast<std::uint8_t>(colour >> 8);
            *at++ = static_cast<std::uint8_t>(colour);
            *at++ = seenThrough ? static_cast<std::uint8_t>(colour >> 24) : std::uint8_t{255};
        }
    }
    page.PostPixels({id, part.left, part.top, part.width, part.height, bytes.data()});
}

void FormView::ShowInstead(const PictureBox& box, Picture* picture, int left, int top) {
    replaced = picture == nullptr ? nullptr : &box;
    replacement = picture;
    replacedLeft = left;
    replacedTop = top;
}

bool FormView::IsInPlace(const Control& control) const {
    const auto found = known.find(&control);
    return found != known.end() && found->second.left == control.Left && found->second.top == control.Top;
}
