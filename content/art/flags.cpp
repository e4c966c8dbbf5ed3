#include "flags.h"

#include <algorithm>

#include "canvas.h"
#include "palette.h"
#include "relief.h"
#include "shapes.h"

namespace art {
namespace {

constexpr double Width = 18;
constexpr double Height = 12;
constexpr double Up = -1.5708;  // a star stands on its legs

// A layer of cloth. Measures are pixels; what a, b, c and d mean is told beside each shape.
enum class Cut {
    Field,    // the whole flag
    Row,      // a band across: from a to b
    Column,   // a band down: from a to b
    Box,      // left a, top b, width c, height d
    Cross,    // upright cross: middle at a, b, arms c wide
    Saltire,  // diagonal cross: arms a wide
    Falling,  // band from the upper left to the lower right, a wide
    Wedge,    // triangle at the hoist: reaches a
    Disc,     // middle a, b, radius c
    Star,     // middle a, b, radius c
    Moon,     // crescent open to the right: middle a, b, radius c
    Lozenge,  // middle a, b, half width c, half height d
    Peak      // triangle: middle a, tip b, half width c, foot d
};

struct Layer {
    Cut cut;
    Ink ink;
    double a = 0, b = 0, c = 0, d = 0;
};

struct FlagRow {
    const char* name;
    std::vector<Layer> layers;
};

std::vector<Layer> Rows(Ink top, Ink middle, Ink bottom) {
    return {{Cut::Field, middle}, {Cut::Row, top, 0, 4}, {Cut::Row, bottom, 8, 12}};
}

std::vector<Layer> Columns(Ink hoist, Ink middle, Ink fly) {
    return {{Cut::Field, middle}, {Cut::Column, hoist, 0, 6}, {Cut::Column, fly, 12, 18}};
}

std::vector<Layer> Halves(Ink top, Ink bottom) {
    return {{Cut::Field, bottom}, {Cut::Row, top, 0, 6}};
}

// The northern cross: its upright stands towards the hoist.
std::vector<Layer> Northern(Ink field, Ink rim, Ink cross) {
    return {{Cut::Field, field}, {Cut::Cross, rim, 6.5, 6, 4}, {Cut::Cross, cross, 6.5, 6, 2}};
}

std::vector<Layer> With(std::vector<Layer> ground, std::initializer_list<Layer> charges) {
    ground.insert(ground.end(), charges);
    return ground;
}

// The union of three crosses, in a canton or over the whole flag.
std::vector<Layer> Union() {
    return {{Cut::Field, Ink::Navy},
            {Cut::Saltire, Ink::Snow, 2.8},
            {Cut::Saltire, Ink::Crimson, 1.1},
            {Cut::Cross, Ink::Snow, 9, 6, 4},
            {Cut::Cross, Ink::Crimson, 9, 6, 2.2}};
}

std::vector<Layer> Ensign(std::initializer_list<Layer> stars) {
    return With({{Cut::Field, Ink::Navy},
                 {Cut::Row, Ink::Snow, 2, 4},
                 {Cut::Box, Ink::Snow, 3, 0, 3, 6},
                 {Cut::Box, Ink::Crimson, 4, 0, 1, 6},
                 {Cut::Box, Ink::Crimson, 0, 2.5, 9, 1},
                 {Cut::Box, Ink::Navy, 9, 0, 9, 12}},
                stars);
}

const std::vector<FlagRow>& Flags() {
    using enum Ink;
    static const std::vector<FlagRow> table = {
        {"AL", {{Cut::Field, Crimson}, {Cut::Lozenge, Iron, 9, 6, 3, 4}, {Cut::Box, Iron, 5.4, 4, 7.2, 1.6}}},
        {"AM", Rows(Crimson, Navy, Amber)},
        {"AR", With(Rows(Shallow, Snow, Shallow), {{Cut::Disc, Gold, 9, 6, 1.6}})},
        {"AT", Rows(Crimson, Snow, Crimson)},
        {"AU", Ensign({{Cut::Star, Snow, 4.5, 9, 1.7},
                       {Cut::Star, Snow, 13.5, 2.6, 1.2},
                       {Cut::Star, Snow, 13.5, 9.6, 1.2},
                       {Cut::Star, Snow, 11.2, 5.6, 1.1},
                       {Cut::Star, Snow, 16, 5, 1.1}})},
        {"AZ", With(Rows(Cobalt, Crimson, Emerald),
                    {{Cut::Moon, Snow, 8.6, 6, 1.7}, {Cut::Star, Snow, 10.8, 6, 1}})},
        {"BA",
         {{Cut::Field, Navy},
          {Cut::Peak, Gold, 9, 0, 7, 12},
          {Cut::Box, Navy, 0, 0, 5, 12},
          {Cut::Falling, Snow, 0.8}}},
        {"BD", {{Cut::Field, Emerald}, {Cut::Disc, Crimson, 8, 6, 3.6}}},
        {"BE", Columns(Iron, Gold, Crimson)},
        {"BG", Rows(Snow, Emerald, Crimson)},
        {"BR", {{Cut::Field, Emerald}, {Cut::Lozenge, Gold, 9, 6, 7.6, 5}, {Cut::Disc, Navy, 9, 6, 2.5}}},
        {"BY", {{Cut::Field, Crimson}, {Cut::Row, Emerald, 8, 12}, {Cut::Column, Snow, 0, 1.6}}},
        {"CA",
         {{Cut::Field, Snow},
          {Cut::Column, Crimson, 0, 4.5},
          {Cut::Column, Crimson, 13.5, 18},
          {Cut::Star, Crimson, 9, 6, 3.6},
          {Cut::Box, Crimson, 8.6, 6, 0.8, 4}}},
        {"CH",
         {{Cut::Field, Crimson}, {Cut::Box, Snow, 7.7, 2.5, 2.6, 7}, {Cut::Box, Snow, 5.5, 4.7, 7, 2.6}}},
        {"CL",
         {{Cut::Field, Snow},
          {Cut::Row, Crimson, 6, 12},
          {Cut::Box, Navy, 0, 0, 6, 6},
          {Cut::Star, Snow, 3, 3, 1.8}}},
        {"CN",
         {{Cut::Field, Crimson},
          {Cut::Star, Gold, 4, 4, 2.4},
          {Cut::Disc, Gold, 7.6, 1.8, 0.6},
          {Cut::Disc, Gold, 8.8, 3.6, 0.6},
          {Cut::Disc, Gold, 8.8, 5.6, 0.6},
          {Cut::Disc, Gold, 7.6, 7.4, 0.6}}},
        {"CO", {{Cut::Field, Gold}, {Cut::Row, Navy, 6, 9}, {Cut::Row, Crimson, 9, 12}}},
        {"CU",
         {{Cut::Field, Navy},
          {Cut::Row, Snow, 2.4, 4.8},
          {Cut::Row, Snow, 7.2, 9.6},
          {Cut::Wedge, Crimson, 9},
          {Cut::Star, Snow, 3, 6, 1.8}}},
        {"CZ", With(Halves(Snow, Crimson), {{Cut::Wedge, Navy, 9}})},
        {"DE", Rows(Iron, Crimson, Gold)},
        {"DK", Northern(Crimson, Snow, Snow)},
        {"DZ",
         {{Cut::Field, Snow},
          {Cut::Column, Emerald, 0, 9},
          {Cut::Moon, Crimson, 8.6, 6, 2.8},
          {Cut::Star, Crimson, 10.4, 6, 1.3}}},
        {"EE", Rows(Cobalt, Iron, Snow)},
        {"EG", With(Rows(Crimson, Snow, Iron), {{Cut::Lozenge, Gold, 9, 6, 1.2, 1.7}})},
        {"ES",
         {{Cut::Field, Gold},
          {Cut::Row, Crimson, 0, 3},
          {Cut::Row, Crimson, 9, 12},
          {Cut::Box, Brick, 4.4, 4.6, 2, 2.8}}},
        {"ET",
         With(Rows(Emerald, Gold, Crimson), {{Cut::Disc, Cobalt, 9, 6, 2.6}, {Cut::Star, Gold, 9, 6, 1.8}})},
        {"FI", Northern(Snow, Navy, Navy)},
        {"FR", Columns(Navy, Snow, Crimson)},
        {"GB", Union()},
        {"GE",
         {{Cut::Field, Snow},
          {Cut::Cross, Crimson, 9, 6, 2.2},
          {Cut::Disc, Crimson, 4, 2.4, 0.9},
          {Cut::Disc, Crimson, 14, 2.4, 0.9},
          {Cut::Disc, Crimson, 4, 9.6, 0.9},
          {Cut::Disc, Crimson, 14, 9.6, 0.9}}},
        {"GH", With(Rows(Crimson, Gold, Emerald), {{Cut::Star, Iron, 9, 6, 2.2}})},
        {"GR",
         {{Cut::Field, Snow},
          {Cut::Row, Cobalt, 0, 1.33},
          {Cut::Row, Cobalt, 2.67, 4},
          {Cut::Row, Cobalt, 5.33, 6.67},
          {Cut::Row, Cobalt, 8, 9.33},
          {Cut::Row, Cobalt, 10.67, 12},
          {Cut::Box, Cobalt, 0, 0, 6.67, 6.67},
          {Cut::Box, Snow, 2.6, 0, 1.4, 6.67},
          {Cut::Box, Snow, 0, 2.6, 6.67, 1.4}}},
        {"HR", With(Rows(Crimson, Snow, Navy), {{Cut::Box, Crimson, 7.4, 3.4, 3.2, 4.4},
                                                {Cut::Box, Snow, 9, 3.4, 1.6, 1.5},
                                                {Cut::Box, Snow, 7.4, 4.9, 1.6, 1.5}})},
        {"HU", Rows(Crimson, Snow, Emerald)},
        {"ID", Halves(Crimson, Snow)},
        {"IE", Columns(Emerald, Snow, Amber)},
        {"IL",
         {{Cut::Field, Snow},
          {Cut::Row, Cobalt, 1.4, 3},
          {Cut::Row, Cobalt, 9, 10.6},
          {Cut::Peak, Cobalt, 9, 3.6, 2.1, 7.2},
          {Cut::Peak, Cobalt, 9, 8.4, 2.1, 4.8}}},
        {"IN", With(Rows(Amber, Snow, Emerald), {{Cut::Disc, Navy, 9, 6, 1.5}})},
        {"IQ", With(Rows(Crimson, Snow, Iron), {{Cut::Box, Emerald, 5.4, 5.4, 7.2, 1.2}})},
        {"IR", With(Rows(Emerald, Snow, Crimson), {{Cut::Disc, Crimson, 9, 6, 1.3}})},
        {"IS", Northern(Navy, Snow, Crimson)},
        {"IT", Columns(Emerald, Snow, Crimson)},
        {"JM", {{Cut::Field, Emerald}, {Cut::Wedge, Iron, 8}, {Cut::Saltire, Gold, 2}}},
        {"JP", {{Cut::Field, Snow}, {Cut::Disc, Crimson, 9, 6, 3.4}}},
        {"KE",
         {{Cut::Field, Crimson},
          {Cut::Row, Iron, 0, 4},
          {Cut::Row, Emerald, 8, 12},
          {Cut::Row, Snow, 3.4, 4.2},
          {Cut::Row, Snow, 7.8, 8.6},
          {Cut::Lozenge, Brick, 9, 6, 1.7, 4.6}}},
        {"KR",
         {{Cut::Field, Snow},
          {Cut::Disc, Crimson, 9, 5.6, 2.9},
          {Cut::Moon, Navy, 9, 6.6, 2.8},
          {Cut::Box, Iron, 2.4, 1.6, 2, 1.6},
          {Cut::Box, Iron, 13.6, 1.6, 2, 1.6},
          {Cut::Box, Iron, 2.4, 8.8, 2, 1.6},
          {Cut::Box, Iron, 13.6, 8.8, 2, 1.6}}},
        {"KZ", {{Cut::Field, Brook}, {Cut::Disc, Gold, 9.4, 5.6, 2.6}, {Cut::Column, Gold, 1, 1.9}}},
        {"LT", Rows(Gold, Emerald, Crimson)},
        {"LV", {{Cut::Field, Maroon}, {Cut::Row, Snow, 4.8, 7.2}}},
        {"MA", {{Cut::Field, Crimson}, {Cut::Star, Emerald, 9, 6, 3}}},
        {"MX", With(Columns(Emerald, Snow, Crimson), {{Cut::Disc, Timber, 9, 6, 1.5}})},
        {"NG", Columns(Emerald, Snow, Emerald)},
        {"NL", Rows(Crimson, Snow, Navy)},
        {"NO", Northern(Crimson, Snow, Navy)},
        {"NP",
         {{Cut::Field, Snow},
          {Cut::Wedge, Crimson, 15},
          {Cut::Moon, Snow, 3.4, 4.6, 1.2},
          {Cut::Star, Snow, 3.6, 8, 1.2}}},
        {"NZ", Ensign({{Cut::Star, Crimson, 13.5, 2.6, 1.2},
                       {Cut::Star, Crimson, 13.5, 9.6, 1.2},
                       {Cut::Star, Crimson, 11.2, 5.6, 1.1},
                       {Cut::Star, Crimson, 16, 5, 1.1}})},
        {"PE", Columns(Crimson, Snow, Crimson)},
        {"PH", With(Halves(Navy, Crimson), {{Cut::Wedge, Snow, 8.5}, {Cut::Disc, Gold, 2.9, 6, 1.4}})},
        {"PK",
         {{Cut::Field, Emerald},
          {Cut::Column, Snow, 0, 4.5},
          {Cut::Moon, Snow, 10.6, 6.2, 2.8},
          {Cut::Star, Snow, 12.8, 4.6, 1.2}}},
        {"PL", Halves(Snow, Crimson)},
        {"PT",
         {{Cut::Field, Crimson},
          {Cut::Column, Emerald, 0, 7.2},
          {Cut::Disc, Gold, 7.2, 6, 2.3},
          {Cut::Disc, Crimson, 7.2, 6, 1.2}}},
        {"RO", Columns(Navy, Gold, Crimson)},
        {"RS", With(Rows(Crimson, Navy, Snow),
                    {{Cut::Box, Snow, 5, 3.2, 2.6, 3.8}, {Cut::Box, Crimson, 5.6, 4, 1.4, 2.2}})},
        {"RU", Rows(Snow, Cobalt, Crimson)},
        {"SE", Northern(Cobalt, Gold, Gold)},
        {"SG", With(Halves(Crimson, Snow), {{Cut::Moon, Snow, 3.6, 3, 2}, {Cut::Disc, Snow, 6, 3, 0.8}})},
        {"SI", With(Rows(Snow, Cobalt, Crimson),
                    {{Cut::Box, Navy, 4, 2, 2.6, 3.4}, {Cut::Peak, Snow, 5.3, 3.2, 1.2, 5.4}})},
        {"SK", With(Rows(Snow, Cobalt, Crimson), {{Cut::Box, Snow, 3, 2.6, 5, 6.6},
                                                  {Cut::Box, Crimson, 3.7, 3.2, 3.6, 5.4},
                                                  {Cut::Box, Snow, 5.1, 3.8, 0.9, 4.2},
                                                  {Cut::Box, Snow, 4.2, 5, 2.7, 0.9}})},
        {"SY", With(Rows(Crimson, Snow, Iron),
                    {{Cut::Star, Emerald, 6, 6, 1.5}, {Cut::Star, Emerald, 12, 6, 1.5}})},
        {"TH", {{Cut::Field, Crimson}, {Cut::Row, Snow, 2, 10}, {Cut::Row, Navy, 4, 8}}},
        {"TR", {{Cut::Field, Crimson}, {Cut::Moon, Snow, 6.8, 6, 3.1}, {Cut::Star, Snow, 10.8, 6, 1.5}}},
        {"TW", {{Cut::Field, Crimson}, {Cut::Box, Navy, 0, 0, 9, 6}, {Cut::Disc, Snow, 4.5, 3, 1.9}}},
        {"UA", Halves(Cobalt, Gold)},
        {"US",
         {{Cut::Field, Snow},
          {Cut::Row, Crimson, 0, 1.3},
          {Cut::Row, Crimson, 2.6, 3.9},
          {Cut::Row, Crimson, 5.2, 6.5},
          {Cut::Row, Crimson, 7.8, 9.1},
          {Cut::Row, Crimson, 10.5, 12},
          {Cut::Box, Navy, 0, 0, 8, 6.5},
          {Cut::Disc, Snow, 1.8, 1.6, 0.55},
          {Cut::Disc, Snow, 4, 1.6, 0.55},
          {Cut::Disc, Snow, 6.2, 1.6, 0.55},
          {Cut::Disc, Snow, 2.9, 3.3, 0.55},
          {Cut::Disc, Snow, 5.1, 3.3, 0.55},
          {Cut::Disc, Snow, 1.8, 5, 0.55},
          {Cut::Disc, Snow, 4, 5, 0.55},
          {Cut::Disc, Snow, 6.2, 5, 0.55}}},
        {"VE", With(Rows(Gold, Navy, Crimson), {{Cut::Disc, Snow, 7, 6.6, 0.6},
                                                {Cut::Disc, Snow, 9, 5.6, 0.6},
                                                {Cut::Disc, Snow, 11, 6.6, 0.6}})},
        {"VN", {{Cut::Field, Crimson}, {Cut::Star, Gold, 9, 6.2, 3.8}}},
        {"ZA",
         {{Cut::Field, Snow},
          {Cut::Box, Crimson, 6, 0, 12, 3.6},
          {Cut::Box, Navy, 6, 8.4, 12, 3.6},
          {Cut::Row, Emerald, 4.8, 7.2},
          {Cut::Wedge, Emerald, 8.6},
          {Cut::Wedge, Gold, 5.6},
          {Cut::Wedge, Iron, 4.2}}},
        {"void", {{Cut::Field, Slate}, {Cut::Box, Ash, 1, 1, 16, 10}, {Cut::Saltire, Slate, 1.4}}},
    };
    return table;
}

QPainterPath Triangle(double x1, double y1, double x2, double y2, double x3, double y3) {
    return Polygon({{x1, y1}, {x2, y2}, {x3, y3}});
}

QPainterPath Diagonal(double fromX, double fromY, double toX, double toY, double width) {
    return Widened(Trace({{fromX, fromY}, {toX, toY}}), width, Qt::SquareCap, Qt::MiterJoin);
}

QPainterPath Shape(const Layer& layer) {
    const double a = layer.a;
    const double b = layer.b;
    const double c = layer.c;
    const double d = layer.d;
    switch (layer.cut) {
        case Cut::Row:
            return Rect(0, a, Width, b - a);
        case Cut::Column:
            return Rect(a, 0, b - a, Height);
        case Cut::Box:
            return Rect(a, b, c, d);
        case Cut::Cross:
            return Rect(a - c / 2, 0, c, Height).united(Rect(0, b - c / 2, Width, c));
        case Cut::Saltire:
            return Diagonal(0, 0, Width, Height, a).united(Diagonal(0, Height, Width, 0, a));
        case Cut::Falling:
            return Diagonal(0, 0, Width, Height, a);
        case Cut::Wedge:
            return Triangle(0, 0, a, Height / 2, 0, Height);
        case Cut::Disc:
            return Ellipse(a, b, c, c);
        case Cut::Star:
            return Star(a, b, c, c * 0.42, 5, Up);
        case Cut::Moon:
            return Ellipse(a, b, c, c).subtracted(Ellipse(a + c * 0.4, b, c * 0.78, c * 0.78));
        case Cut::Lozenge:
            return Polygon({{a, b - d}, {a + c, b}, {a, b + d}, {a - c, b}});
        case Cut::Peak:
            return Triangle(a, b, a + c, d, a - c, d);
        case Cut::Field:
            break;
    }
    return Rect(0, 0, Width, Height);
}

QImage Sewn(const std::vector<Layer>& layers) {
    Relief relief(static_cast<int>(Width), static_cast<int>(Height), 0, 8);
    for (const Layer& layer : layers)
        relief.Stain(Shape(layer), Colour(layer.ink));
    return Settle(relief.Render(), 0);
}

}  // namespace

std::vector<std::string> FlagNames() {
    std::vector<std::string> names;
    for (const FlagRow& row : Flags())
        names.emplace_back(row.name);
    return names;
}

QImage Flag(const std::string& name) {
    const auto row =
        std::find_if(Flags().begin(), Flags().end(), [&](const FlagRow& flag) { return name == flag.name; });
    return Sewn(row->layers);
}

QImage OwnFlag() {
    return Sewn({{Cut::Field, Ink::Steel},
                 {Cut::Column, Ink::Armour, 0, 6},
                 {Cut::Star, Ink::Scarlet, 3, 3.6, 2},
                 {Cut::Box, Ink::Gold, 8, 2.4, 2, 7.2},
                 {Cut::Box, Ink::Gold, 11, 2.4, 2, 7.2},
                 {Cut::Box, Ink::Gold, 14, 2.4, 2, 7.2}});
}

}  // namespace art
