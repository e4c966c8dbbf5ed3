#include "tools/lab/shown_watch.h"

#include <algorithm>

#include "personal/info_form.h"
#include "platform/blit.h"
#include "platform/hash.h"
#include "platform/host.h"
#include "state/state.h"
#include "tools/lab/cell_looks.h"
#include "view/field_form.h"

namespace {

constexpr int Columns = FieldWidth;
constexpr int Rows = FieldHeight;

std::size_t PlaceOf(int x, int y) {
    return static_cast<std::size_t>(y) * Columns + static_cast<std::size_t>(x);
}

// What a cell of this look adds to the field's hash.
std::uint64_t Share(int x, int y, std::uint64_t look) {
    Fnv hash;
    hash.Add(std::to_string(x) + "," + std::to_string(y) + "=" + Fnv::Text(look));
    return hash.Sum();
}

// Whether two pictures of the field agree in so many columns of one row of cells.
bool Same(const Picture& a, const Picture& b, int left, int width, int top) {
    for (int row = top; row < top + CellSize; ++row)
        if (!std::equal(a.Row(row) + left, a.Row(row) + left + width, b.Row(row) + left)) return false;
    return true;
}

void Add(Fnv& hash, std::initializer_list<int> numbers) {
    for (const int number : numbers)
        hash.Add(static_cast<std::uint32_t>(number));
}

void Add(Fnv& hash, const Picture& picture) {
    Add(hash, {picture.Width(), picture.Height()});
    for (int y = 0; y < picture.Height(); ++y)
        for (int x = 0; x < picture.Width(); ++x)
            hash.Add(picture.Row(y)[x]);
}

// A loaded picture counts by its name, so that nothing depends on how it was decoded.
void Add(Fnv& hash, const ImageControl& image) {
    hash.Add(image.PictureName);
    if (image.PictureName.empty() && image.Picture != nullptr) Add(hash, *image.Picture);
}

void Add(Fnv& hash, const ComboBox& box) {
    hash.Add(box.Text);
    Add(hash, {static_cast<int>(box.List.size()), box.ListIndex});
    // The log's own lines are part of the state.
    if (box.kind == ControlKind::List)
        for (const std::string& entry : box.List)
            hash.Add(entry + "|");
}

template <typename Kind>
const Kind& As(const Control& control) {
    return static_cast<const Kind&>(control);
}

void AddContent(Fnv& hash, const Control& control) {
    switch (control.kind) {
        case ControlKind::Form:
            hash.Add(As<Form>(control).Caption);
            break;
        case ControlKind::PictureBox:
            hash.Add(As<PictureBox>(control).BackColor);
            if (&control != &frmField.area) Add(hash, As<PictureBox>(control).canvas);
            break;
        case ControlKind::Image:
            Add(hash, As<ImageControl>(control));
            break;
        case ControlKind::HScrollBar:
        case ControlKind::VScrollBar:
            Add(hash, {As<ScrollBar>(control).Value, As<ScrollBar>(control).Max});
            break;
        case ControlKind::Combo:
        case ControlKind::List:
            Add(hash, As<ComboBox>(control));
            break;
        case ControlKind::Button:
            hash.Add(As<Button>(control).Caption);
            break;
        case ControlKind::Label:
            hash.Add(As<Label>(control).Caption);
            break;
        case ControlKind::Text:
            hash.Add(As<TextBox>(control).Text);
            hash.Add(As<TextBox>(control).ForeColor);
            break;
        case ControlKind::Shape:
        case ControlKind::Line:
            hash.Add(As<Shape>(control).BorderColor);
            break;
        case ControlKind::Timer:
        case ControlKind::Menu:
            break;
    }
}

bool IsSeen(const Control* control) {
    while (control->Visible && control->kind != ControlKind::Form)
        control = control->parent;
    return control->Visible;
}

void AddForm(Fnv& hash, const Form& form) {
    if (!form.Visible) return;
    hash.Add(form.Caption);
    Add(hash, form.canvas);
    for (const Control* control : form.controls) {
        if (!IsSeen(control)) continue;
        hash.Add(control->name);
        Add(hash, {control->index, control->Left, control->Top, control->Width, control->Height,
                   control->Enabled ? 1 : 0});
        hash.Add(control->ToolTipText);
        AddContent(hash, *control);
    }
}

// As the game's makers call it: "weapons\ak" for "\wav\weapons\ak.wav".
std::string SoundName(const std::string& fileName) {
    const std::size_t folder = std::string_view("\\wav\\").size();
    return fileName.substr(folder, fileName.size() - folder - std::string_view(".wav").size());
}

}  // namespace

ShownWatch::ShownWatch()
    : cells(std::size_t{Columns} * Rows),
      before(frmField.area.Width, frmField.area.Height, 0),  // which no cell shows
      heard(std::make_shared<std::vector<std::string>>()) {
    Look();
    TheHost().Listen([into = heard](const SoundRequest& sound) {
        into->push_back("sound " + SoundName(sound.fileName) + " " + std::to_string(sound.pan));
    });
}

std::vector<std::string> ShownWatch::Look() {
    std::vector<std::string> lines;
    const Picture& now = frmField.area.canvas;
    for (int y = 0; y < Rows; ++y) {
        if (Same(before, now, 0, now.Width(), y * CellSize)) continue;
        for (int x = 0; x < Columns; ++x)
            if (!Same(before, now, x * CellSize, CellSize, y * CellSize)) LookAtCell(x, y, lines);
    }
    lines.insert(lines.end(), heard->begin(), heard->end());
    heard->clear();
    return lines;
}

void ShownWatch::LookAtCell(int x, int y, std::vector<std::string>& lines) {
    const int left = x * CellSize;
    const int top = y * CellSize;
    Picture square = SquareOf(frmField.area.canvas, x, y);
    BitBlt(before, left, top, CellSize, CellSize, square, 0, 0, RasterOp::SRCCOPY);
    const std::uint64_t look = HashOfPicture(square);
    std::uint64_t& known = cells[PlaceOf(x, y)];
    fieldHash += Share(x, y, look) - Share(x, y, known);
    known = look;
    lines.push_back("area " + std::to_string(left) + "," + std::to_string(top) + " 20x20 " + Fnv::Text(look));
    looks.try_emplace(Fnv::Text(look), std::move(square));
}

const Picture* ShownWatch::LookWith(std::string_view hash) const {
    const auto found = looks.find(hash);
    return found == looks.end() ? nullptr : &found->second;
}

std::uint64_t HashOfPicture(const Picture& picture) {
    Fnv hash;
    Add(hash, picture);
    return hash.Sum();
}

std::uint64_t HashOfWindows() {
    Fnv hash;
    AddForm(hash, frmField);
    AddForm(hash, frmInfo);
    return hash.Sum();
}
