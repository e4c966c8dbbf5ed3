#include "shell/readout.h"

#include <algorithm>
#include <memory>

#include "personal/dossier.h"
#include "platform/run_time_error.h"

namespace {

// In the main window's pixels.
constexpr int PlaceLeft = 181;
constexpr int PlaceTop = 505;
constexpr int PlaceWidth = 238;
constexpr int PlaceHeight = 105;
constexpr int Edge = 4;
constexpr int LinesLeft = 2;
constexpr int LineHeight = 14;
constexpr int FaceSide = 3 * LineHeight;

constexpr Colour Ground = Rgb(24, 41, 31);
constexpr Colour Frame = Rgb(74, 103, 85);
constexpr Colour Title = Rgb(244, 255, 232);

// By tone; each at least 4.5 to 1 against the ground.
constexpr Colour Tones[] = {Rgb(200, 214, 196), Rgb(146, 226, 128), Rgb(255, 196, 84), Rgb(255, 122, 100)};

Colour ColourOf(Tone tone) {
    return Tones[static_cast<std::size_t>(tone)];
}

// The part of a side of `from` pixels that pixel `index` of `to` shows.
int EdgeOf(int index, int from, int to) {
    return index * from / to;
}

// The mean of a rectangle.
Colour MeanOf(const Picture& picture, int left, int top, int right, int bottom) {
    int sums[3] = {};
    for (int y = top; y < bottom; ++y)
        for (int x = left; x < right; ++x)
            for (int part = 0; part < 3; ++part)
                sums[part] += static_cast<int>(picture.Pixel(x, y) >> (8 * part) & 0xFF);
    const int count = std::max(1, (right - left) * (bottom - top));
    return Rgb(sums[2] / count, sums[1] / count, sums[0] / count);
}

PictureRef Reduced(const Picture& picture) {
    auto small = std::make_shared<Picture>(FaceSide, FaceSide);
    for (int y = 0; y < FaceSide; ++y)
        for (int x = 0; x < FaceSide; ++x)
            small->SetPixel(
                x, y,
                MeanOf(picture, EdgeOf(x, picture.Width(), FaceSide), EdgeOf(y, picture.Height(), FaceSide),
                       EdgeOf(x + 1, picture.Width(), FaceSide), EdgeOf(y + 1, picture.Height(), FaceSide)));
    return small;
}

// A face that is missing is named when the soldier's file opens; here there is none.
void ShowFace(ImageControl& image, const std::string& file) {
    if (image.Tag == file) return;
    image.Tag = file;
    image.Picture = nullptr;
    if (file.empty()) return;
    ImageControl whole;
    try {
        LoadPicture(whole, file);
    } catch (const RunTimeError&) {
        return;
    }
    if (whole.Picture != nullptr) image.Picture = Reduced(*whole.Picture);
}

void ShowLabel(Label& label, const std::string& text, Colour colour) {
    label.Caption = text;
    label.ForeColor = colour;
    label.Visible = !text.empty();
}

}  // namespace

ReadoutForm::ReadoutForm() {
    name = "frmReadout";
    Left = PlaceLeft;
    Top = PlaceTop;
    Width = PlaceWidth;
    Height = PlaceHeight;
    BackColor = Ground;
    canvas = ::Picture(Width, Height, Frame);
    for (int y = 1; y < Height - 1; ++y)
        for (int x = 1; x < Width - 1; ++x)
            canvas.SetPixel(x, y, Ground);
    const int beside = Edge + FaceSide + Edge;
    Put(imgFace, "imgFace", *this, Edge, Edge, FaceSide, FaceSide);
    Put(lblName, "lblName", *this, beside, Edge, Width - beside - Edge, LineHeight);
    Put(lblTurn, "lblTurn", *this, beside, Edge + LineHeight, Width - beside - Edge, LineHeight);
    Put(lblHand, "lblHand", *this, beside, Edge + 2 * LineHeight, Width - beside - Edge, LineHeight);
    PutArray(lblLine, "lblLine", *this, LinesLeft, 0, Width - 2 * LinesLeft, LineHeight);
    int top = Edge + FaceSide + 1;
    for (Label& line : lblLine) {
        line.Top = top;
        top += LineHeight;
    }
    for (Control* control : controls)
        if (control->kind == ControlKind::Label) static_cast<Label&>(*control).BackColor = Ground;
}

void FillReadout(ReadoutForm& readout, int soldier, const std::vector<ReadoutLine>& lines) {
    const bool shown = soldier >= 0;
    ShowFace(readout.imgFace, shown ? FaceFile(UnitTable[soldier]) : "");
    ShowLabel(readout.lblName, shown ? NameLine(UnitTable[soldier]) : "", Title);
    ShowLabel(readout.lblTurn, squadTurns > 0 ? TurnLine() : "", ColourOf(Tone::Plain));
    ShowLabel(readout.lblHand, shown ? HandLine(UnitTable[soldier]) : "", ColourOf(Tone::Plain));
    std::size_t next = 0;
    for (Label& label : readout.lblLine) {
        const ReadoutLine line = next < lines.size() ? lines[next] : ReadoutLine{};
        ShowLabel(label, line.text, ColourOf(line.tone));
        ++next;
    }
}
