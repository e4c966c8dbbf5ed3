// How flags are told: layers of cloth sewn one over the other, on the pixel.
#pragma once

#include <string_view>
#include <vector>

#include <QImage>

namespace art {

constexpr int FlagWidth = 18;
constexpr int FlagHeight = 12;

// A layer. Colours are letters, which flag_cloth.cpp lists; "." cuts the cloth away. Measures are pixels,
// corners of pixels where they bound something. What they mean is told at the makers below.
struct Cloth {
    enum class Cut { Across, Down, Box, Rising, Falling, Saltire, Corner, Disc, Lozenge, Stamp };
    Cut cut;
    std::string_view colours;
    double a = 0, b = 0, c = 0, d = 0, e = 0, f = 0;
};

// Bands of equal height or width, one letter each; a broader band repeats its letter.
constexpr Cloth Across(std::string_view colours) {
    return {Cloth::Cut::Across, colours};
}
constexpr Cloth Down(std::string_view colours) {
    return {Cloth::Cut::Down, colours};
}

constexpr Cloth Box(std::string_view colour, double left, double top, double width, double height) {
    return {Cloth::Cut::Box, colour, left, top, width, height};
}

// Bands from corner to corner, their height measured upright.
constexpr Cloth Rising(std::string_view colour, double height) {
    return {Cloth::Cut::Rising, colour, height};
}
constexpr Cloth Falling(std::string_view colour, double height, double lower = 0) {
    return {Cloth::Cut::Falling, colour, height, lower};
}
constexpr Cloth Saltire(std::string_view colour, double height) {
    return {Cloth::Cut::Saltire, colour, height};
}

// A triangle by its corners.
constexpr Cloth Corner(std::string_view colour, double x1, double y1, double x2, double y2, double x3,
                       double y3) {
    return {Cloth::Cut::Corner, colour, x1, y1, x2, y2, x3, y3};
}
// The triangle at the hoist that reaches so far.
constexpr Cloth Wedge(std::string_view colour, double reach) {
    return Corner(colour, 0, 0, 0, FlagHeight, reach, FlagHeight / 2.0);
}

constexpr Cloth Disc(std::string_view colour, double x, double y, double radius) {
    return {Cloth::Cut::Disc, colour, x, y, radius};
}
constexpr Cloth Lozenge(std::string_view colour, double x, double y, double halfWidth, double halfHeight) {
    return {Cloth::Cut::Lozenge, colour, x, y, halfWidth, halfHeight};
}

// A badge drawn in letters, its rows parted by "/"; "." lets through what lies below, "*" is the `colour`.
constexpr Cloth Stamp(double left, double top, std::string_view drawing, char colour = 'W') {
    return {Cloth::Cut::Stamp, drawing, left, top, static_cast<double>(colour)};
}

// 18 by 12, see-through where no layer lies.
QImage Sewn(const std::vector<Cloth>& layers);

// Badges that several flags share.
namespace badge {
constexpr std::string_view Dot = "*";
constexpr std::string_view Spark = ".*./***/.*.";
constexpr std::string_view Rays = "*.*/.*./*.*";
constexpr std::string_view SmallStar = ".*./***/*.*";
constexpr std::string_view Star = "..*../*****/.***./*...*";
constexpr std::string_view EvenStar = "..**../******/.****./.*..*.";
constexpr std::string_view BigStar = "...**.../...**.../********/.******./..****../.**..**./.*....*.";
constexpr std::string_view Moon = ".**/*../*../.**";
constexpr std::string_view BigMoon = "..***./.**.../**..../**..../.**.../..***.";
constexpr std::string_view Sun = ".*..*./*.**.*/.****./.****./*.**.*/.*..*.";
constexpr std::string_view Ring = ".**./*..*/*..*/.**.";
constexpr std::string_view Arms = "TTTT/TRYT/TBWT/.TT.";
constexpr std::string_view Eagle = "*..**..*/**.**.**/********/.******./*.****.*/...**.../..*..*..";
constexpr std::string_view Union = "WNNWRWNNW/NWNWRWNWN/WWWWRWWWW/RRRRRRRRR/WWWWRWWWW/NWNWRWNWN";
}  // namespace badge

}  // namespace art
