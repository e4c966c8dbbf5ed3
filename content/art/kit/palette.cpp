#include "kit/palette.h"

#include <cmath>

namespace art {

const std::array<InkRow, InkCount> Inks{{
    {0xff1b2a18, "pine"},       {0xff2b3f21, "fir"},       {0xff3c5429, "moss"},     {0xff4e6831, "meadow"},
    {0xff607a39, "grass"},      {0xff758c46, "pasture"},   {0xff92a35a, "sprout"},   {0xff94894f, "stubble"},
    {0xffc4b572, "straw"},      {0xff211912, "peat"},      {0xff35281b, "loam"},     {0xff4b3825, "soil"},
    {0xff644b31, "bark"},       {0xff7e6040, "timber"},    {0xff997951, "plank"},    {0xffb4966a, "clay"},
    {0xffcdb48a, "sand"},       {0xffe3d2ad, "shell"},     {0xff13171a, "soot"},     {0xff24292b, "iron"},
    {0xff383e3f, "asphalt"},    {0xff4f5654, "slate"},     {0xff69706c, "ash"},      {0xff848a84, "cement"},
    {0xffa1a59d, "concrete"},   {0xffc3c4ba, "chalk"},     {0xfff1eee3, "snow"},     {0xff575046, "cellar"},
    {0xff776e61, "fieldstone"}, {0xff988e7d, "limestone"}, {0xff1f3845, "abyss"},    {0xff2d4f60, "lake"},
    {0xff3f6778, "river"},      {0xff578291, "brook"},     {0xff7ba2a8, "shallow"},  {0xffadc8c6, "foam"},
    {0xff2d3120, "jacket"},     {0xff474c2d, "olive"},     {0xff62663b, "khaki"},    {0xff83845a, "canvas"},
    {0xff96684a, "tan"},        {0xffcb9d76, "skin"},      {0xff571f1b, "maroon"},   {0xff983428, "brick"},
    {0xffbb2a30, "crimson"},    {0xffd0553b, "scarlet"},   {0xffd4862a, "amber"},    {0xfff0ba48, "gold"},
    {0xfffbe59c, "glow"},       {0xff0e1a14, "engraving"}, {0xff18291f, "armour"},   {0xff24392c, "plate"},
    {0xff334d3d, "steel"},      {0xff4a6755, "edge"},      {0xff718c79, "sheen"},    {0xff4fa444, "signal"},
    {0xff1f7440, "emerald"},    {0xff3f70b4, "cobalt"},    {0xff243f79, "navy"},     {0xff577135, "turf"},
    {0xff6a8340, "lawn"},       {0xff365b6c, "current"},   {0xff4d7a7c, "lagoon"},   {0xff0a1326, "midnight"},
    {0xff101f3a, "harbour"},    {0xff182c4f, "serge"},     {0xff25406c, "gunmetal"}, {0xff37598c, "denim"},
    {0xff7190bb, "frost"},      {0xff70452f, "umber"},     {0xffb57f5e, "rose"},     {0xffe6c3a1, "fair"},
    {0xfff3dac6, "petal"},      {0xff5c3170, "plum"},      {0xff2e4e77, "haze"},     {0xff050406, "raven"},
    {0xff554342, "dusk"},       {0xff6e5957, "mauve"},     {0xff94553e, "sienna"},   {0xffaf6946, "copper"},
    {0xffcd855c, "terracotta"}, {0xffe49665, "peach"},     {0xffeeab7b, "apricot"},  {0xfffcc395, "blush"},
}};

namespace {

struct Lab {
    double lightness, greenRed, blueYellow;
};

double Linear(int channel) {
    const double share = channel / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

// The perceptual space in which equal distances look equally far apart.
Lab ToLab(QRgb colour) {
    static const std::array<double, 256> linear = [] {
        std::array<double, 256> table{};
        for (int i = 0; i < 256; ++i)
            table[static_cast<std::size_t>(i)] = Linear(i);
        return table;
    }();
    const double r = linear[static_cast<std::size_t>(qRed(colour))];
    const double g = linear[static_cast<std::size_t>(qGreen(colour))];
    const double b = linear[static_cast<std::size_t>(qBlue(colour))];
    const double l = std::cbrt(0.4122214708 * r + 0.5363325363 * g + 0.0514459929 * b);
    const double m = std::cbrt(0.2119034982 * r + 0.6806995451 * g + 0.1073969566 * b);
    const double s = std::cbrt(0.0883024619 * r + 0.2817188376 * g + 0.6299787005 * b);
    return {0.2104542553 * l + 0.7936177850 * m - 0.0040720468 * s,
            1.9779984951 * l - 2.4285922050 * m + 0.4505937099 * s,
            0.0259040371 * l + 0.7827717662 * m - 0.8086757660 * s};
}

// Hue counts more than lightness: a brown edge may be a shade too dark, but not green.
double Apart(const Lab& a, const Lab& b) {
    const double l = a.lightness - b.lightness;
    const double gr = a.greenRed - b.greenRed;
    const double by = a.blueYellow - b.blueYellow;
    return l * l + 2.2 * (gr * gr + by * by);
}

}  // namespace

QColor Colour(Ink ink) {
    return QColor::fromRgb(Inks[static_cast<std::size_t>(ink)].colour);
}

QColor Between(Ink first, Ink second, double share) {
    const QColor a = Colour(first);
    const QColor b = Colour(second);
    const auto mix = [share](int from, int to) {
        return static_cast<int>(std::lround(from + (to - from) * share));
    };
    return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

Ink NearestInk(QRgb colour, double lift, Palette palette) {
    static const std::array<Lab, InkCount> labs = [] {
        std::array<Lab, InkCount> table{};
        for (std::size_t i = 0; i < InkCount; ++i)
            table[i] = ToLab(Inks[i].colour);
        return table;
    }();
    Lab wanted = ToLab(colour);
    wanted.lightness += lift;
    const std::size_t count = palette == Palette::Field ? FieldInkCount : DrawnInkCount;
    std::size_t best = 0;
    for (std::size_t i = 1; i < count; ++i) {
        if (Apart(labs[i], wanted) < Apart(labs[best], wanted)) best = i;
    }
    return static_cast<Ink>(best);
}

}  // namespace art
