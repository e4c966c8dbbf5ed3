#include "kit/glyphs.h"

#include <array>
#include <cctype>
#include <vector>

#include "kit/shapes.h"

namespace art {
namespace {

struct Glyph {
    char letter;
    std::array<const char*, GlyphHeight> rows;
};

constexpr Glyph Glyphs[] = {
    {'0', {".##.", "#..#", "#..#", "#..#", ".##."}}, {'1', {"..#.", ".##.", "..#.", "..#.", ".###"}},
    {'2', {"###.", "...#", ".##.", "#...", "####"}}, {'3', {"###.", "...#", ".##.", "...#", "###."}},
    {'4', {"#..#", "#..#", "####", "...#", "...#"}}, {'5', {"####", "#...", "###.", "...#", "###."}},
    {'6', {".##.", "#...", "###.", "#..#", ".##."}}, {'7', {"####", "...#", "..#.", ".#..", ".#.."}},
    {'8', {".##.", "#..#", ".##.", "#..#", ".##."}}, {'9', {".##.", "#..#", ".###", "...#", ".##."}},
    {'A', {".##.", "#..#", "####", "#..#", "#..#"}}, {'B', {"###.", "#..#", "###.", "#..#", "###."}},
    {'C', {".###", "#...", "#...", "#...", ".###"}}, {'D', {"###.", "#..#", "#..#", "#..#", "###."}},
    {'E', {"####", "#...", "###.", "#...", "####"}}, {'F', {"####", "#...", "###.", "#...", "#..."}},
    {'G', {".###", "#...", "#.##", "#..#", ".###"}}, {'H', {"#..#", "#..#", "####", "#..#", "#..#"}},
    {'I', {".###", "..#.", "..#.", "..#.", ".###"}}, {'J', {"..##", "...#", "...#", "#..#", ".##."}},
    {'K', {"#..#", "#.#.", "##..", "#.#.", "#..#"}}, {'L', {"#...", "#...", "#...", "#...", "####"}},
    {'M', {"#..#", "####", "####", "#..#", "#..#"}}, {'N', {"#..#", "##.#", "#.##", "#..#", "#..#"}},
    {'O', {".##.", "#..#", "#..#", "#..#", ".##."}}, {'P', {"###.", "#..#", "###.", "#...", "#..."}},
    {'Q', {".##.", "#..#", "#..#", "#.#.", ".#.#"}}, {'R', {"###.", "#..#", "###.", "#.#.", "#..#"}},
    {'S', {".###", "#...", ".##.", "...#", "###."}}, {'T', {".###", "..#.", "..#.", "..#.", "..#."}},
    {'U', {"#..#", "#..#", "#..#", "#..#", ".##."}}, {'V', {"#..#", "#..#", "#..#", ".##.", ".##."}},
    {'W', {"#..#", "#..#", "####", "####", "#..#"}}, {'X', {"#..#", "#..#", ".##.", "#..#", "#..#"}},
    {'Y', {".#.#", ".#.#", "..#.", "..#.", "..#."}}, {'Z', {"####", "...#", ".##.", "#...", "####"}},
    {'-', {"....", "....", ".##.", "....", "...."}}, {'.', {"....", "....", "....", "....", ".#.."}},
};

const Glyph* Find(char letter) {
    const char capital = static_cast<char>(std::toupper(static_cast<unsigned char>(letter)));
    for (const Glyph& glyph : Glyphs) {
        if (glyph.letter == capital) return &glyph;
    }
    return nullptr;
}

// A broad capital as strokes on a grid of 4 across and 6 down; each stroke is a run of points.
struct Capital {
    char letter;
    double width;
    std::vector<std::vector<QPointF>> strokes;
};

const std::vector<Capital>& Capitals() {
    static const std::vector<Capital> table = {
        {'S',
         4,
         {{{4, 0.9},
           {3, 0},
           {1, 0},
           {0, 1},
           {0, 2},
           {1, 3},
           {3, 3},
           {4, 4},
           {4, 5},
           {3, 6},
           {1, 6},
           {0, 5.1}}}},
        {'A', 4, {{{0, 6.6}, {0, 2}, {2, 0}, {4, 2}, {4, 6.6}}, {{0, 4}, {4, 4}}}},
        {'R', 4, {{{0, 6.6}, {0, 0}, {3, 0}, {4, 1}, {4, 2}, {3, 3}, {0, 3}}, {{1.8, 3}, {4.1, 6.6}}}},
        {'N', 4, {{{0, 6.6}, {0, -0.6}}, {{4, 6.6}, {4, -0.6}}, {{0.1, 0.4}, {3.9, 5.6}}}},
        {'O', 4, {{{1, 0}, {3, 0}, {4, 1}, {4, 5}, {3, 6}, {1, 6}, {0, 5}, {0, 1}, {1, 0}}}},
        {'T', 4, {{{-0.4, 0}, {4.4, 0}}, {{2, 0}, {2, 6.6}}}},
        {'H', 4, {{{0, -0.6}, {0, 6.6}}, {{4, -0.6}, {4, 6.6}}, {{0, 3}, {4, 3}}}},
        {'I', 0, {{{0, -0.6}, {0, 6.6}}}},
        {'P', 4, {{{0, 6.6}, {0, 0}, {3, 0}, {4, 1}, {4, 2}, {3, 3}, {0, 3}}}},
        {'E', 3.6, {{{4, 0}, {0, 0}, {0, 6}, {4, 6}}, {{0, 3}, {3.2, 3}}}},
        {'L', 3.4, {{{0, -0.6}, {0, 6}, {3.8, 6}}}},
        {'F', 3.4, {{{3.8, 0}, {0, 0}, {0, 6.6}}, {{0, 3}, {3, 3}}}},
        {' ', 1.5, {}},
    };
    return table;
}

const Capital& CapitalOf(char letter) {
    for (const Capital& capital : Capitals()) {
        if (capital.letter == letter) return capital;
    }
    return Capitals().back();
}

constexpr double CapitalRows = 6;
constexpr double StrokeShare = 0.2;  // of the letter's height

}  // namespace

bool GlyphPixel(char letter, int x, int y) {
    const Glyph* glyph = Find(letter);
    return glyph != nullptr && glyph->rows[static_cast<std::size_t>(y)][x] == '#';
}

void Print(QImage& target, int x, int y, std::string_view text, QRgb colour) {
    for (const char letter : text) {
        for (int i = 0; i < GlyphWidth * GlyphHeight; ++i) {
            const QPoint point(x + i % GlyphWidth, y + i / GlyphWidth);
            if (GlyphPixel(letter, i % GlyphWidth, i / GlyphWidth) && target.rect().contains(point))
                target.setPixel(point, colour);
        }
        x += GlyphWidth + 1;
    }
}

int PrintedWidth(std::string_view text) {
    return static_cast<int>(text.size()) * (GlyphWidth + 1) - 1;
}

QPainterPath Title(std::string_view text, double x, double y, double height, double gap) {
    const double pen = height * StrokeShare;
    const double unit = (height - pen) / CapitalRows;
    QPainterPath line;
    double left = x + pen / 2;
    for (const char letter : text) {
        const Capital& capital = CapitalOf(letter);
        for (const std::vector<QPointF>& stroke : capital.strokes) {
            for (std::size_t i = 0; i < stroke.size(); ++i) {
                const QPointF point(left + stroke[i].x() * unit, y + pen / 2 + stroke[i].y() * unit);
                if (i == 0) {
                    line.moveTo(point);
                } else {
                    line.lineTo(point);
                }
            }
        }
        left += capital.width * unit + pen + gap;
    }
    return Widened(line, pen, Qt::FlatCap, Qt::MiterJoin);
}

double TitleWidth(std::string_view text, double height, double gap) {
    const double pen = height * StrokeShare;
    double width = -gap;
    for (const char letter : text)
        width += CapitalOf(letter).width * (height - pen) / CapitalRows + pen + gap;
    return width;
}

}  // namespace art
