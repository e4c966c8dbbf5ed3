#include "tools/missions/heat_map.h"

#include <cmath>
#include <iomanip>
#include <map>
#include <sstream>
#include <utility>

#include "data/terrain.h"

namespace {

constexpr int Side = 12;     // pixels of a cell
constexpr int Caption = 24;  // pixels below the field
constexpr double LeastRadius = 1.5;
constexpr double MostRadius = 14;
constexpr const char* Ground = "#dfe5cf";

struct ClassColour {
    int tileClass;
    const char* colour;
};

constexpr ClassColour ClassColours[] = {
    {Water, "#a9c7dd"}, {Trees, "#9db58a"},    {Wooden, "#b59a74"},   {Concrete, "#a6a6a6"},
    {Stone, "#8f8f8f"}, {Roads, "#d3c3a0"},    {Trenches, "#bfae8f"}, {Prickles, "#b08d8d"},
    {Ships, "#a58a6a"}, {Highways, "#bdbdbd"}, {Fence, "#7d6a58"},
};

enum Kind { SquadFell, EnemyFell, Decided, Kinds };

struct KindLook {
    const char* colour;
    const char* caption;
};

constexpr KindLook Looks[Kinds] = {
    {"#0072b2", "soldiers fell"},
    {"#d55e00", "enemies fell"},
    {"#7f0000", "the deciding shot fell"},
};

using Counts = std::map<std::pair<int, int>, int>;

const char* ColourOf(int tileClass) {
    for (const ClassColour& row : ClassColours)
        if (row.tileClass == tileClass) return row.colour;
    return Ground;
}

// One path for each class: a row's run of its cells is one rectangle.
void PaintField(std::ostream& svg, const FieldClasses& field) {
    std::map<int, std::ostringstream> paths;
    for (std::size_t y = 0; y < field.size(); ++y) {
        for (std::size_t x = 0, end = 0; x < field[y].size(); x = end) {
            for (end = x; end < field[y].size() && field[y][end] == field[y][x]; ++end) {
            }
            paths[field[y][x]] << "M" << x * Side << " " << y * Side << "h" << (end - x) * Side << "v" << Side
                               << "h-" << (end - x) * Side << "z";
        }
    }
    for (const auto& [tileClass, path] : paths)
        svg << "<path fill=\"" << ColourOf(tileClass) << "\" d=\"" << path.str() << "\"/>\n";
}

// One path for each count: round ends of lines without length are its dots.
void PaintSpots(std::ostream& svg, const Counts& counts, const KindLook& look) {
    std::map<int, std::ostringstream> paths;
    for (const auto& [cell, count] : counts)
        paths[count] << "M" << cell.first * Side + Side / 2 << " " << cell.second * Side + Side / 2 << "h0";
    const int most = paths.empty() ? 1 : paths.rbegin()->first;
    svg << "<g stroke=\"" << look.colour << "\" stroke-opacity=\"0.55\" stroke-linecap=\"round\">\n";
    for (const auto& [count, path] : paths)
        svg << "<path stroke-width=\""
            << 2 * (LeastRadius + (MostRadius - LeastRadius) * std::sqrt(double(count) / most)) << "\" d=\""
            << path.str() << "\"/>\n";
    svg << "</g>\n";
}

void PaintQuarters(std::ostream& svg) {
    svg << "<path d=\"M" << FieldWidth * Side / 2 << " 0v" << FieldHeight * Side << "M0 "
        << FieldHeight * Side / 2 << "h" << FieldWidth * Side
        << "\" stroke=\"#333333\" stroke-dasharray=\"6 6\"/>\n";
}

void PaintCaption(std::ostream& svg) {
    constexpr int Apart = 220;  // pixels
    for (int kind = 0; kind < Kinds; ++kind) {
        const int x = Side + kind * Apart;
        const int y = FieldHeight * Side + Caption / 2;
        svg << "<circle cx=\"" << x << "\" cy=\"" << y << "\" r=\"6\" fill=\"" << Looks[kind].colour
            << "\"/><text x=\"" << x + Side << "\" y=\"" << y + 4 << "\">" << Looks[kind].caption
            << "</text>\n";
    }
}

}  // namespace

FieldClasses ClassesOfField() {
    FieldClasses field;
    for (int y = 0; y < FieldHeight; ++y)
        for (int x = 0; x < FieldWidth; ++x)
            field[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] = cellGrid[y][x].tileY;
    return field;
}

std::string HeatMapSvg(const FieldClasses& field, const std::vector<PlayedMission>& missions) {
    std::array<Counts, Kinds> counts;
    for (const PlayedMission& mission : missions) {
        for (const Fall& fall : mission.falls)
            ++counts[fall.unit < FirstOf(EnemyTeam) ? SquadFell : EnemyFell][{fall.cell.x, fall.cell.y}];
        if (const std::optional<Spot> cell = DecidingCell(mission)) ++counts[Decided][{cell->x, cell->y}];
    }
    constexpr int Width = FieldWidth * Side;
    constexpr int Height = FieldHeight * Side + Caption;
    std::ostringstream svg;
    svg << std::fixed << std::setprecision(1) << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" << Width
        << "\" height=\"" << Height << "\" font-family=\"sans-serif\" font-size=\"12\">\n"
        << "<rect width=\"" << Width << "\" height=\"" << Height << "\" fill=\"#ffffff\"/>\n";
    PaintField(svg, field);
    PaintQuarters(svg);
    for (int kind = 0; kind < Kinds; ++kind)
        PaintSpots(svg, counts[static_cast<std::size_t>(kind)], Looks[kind]);
    PaintCaption(svg);
    svg << "</svg>\n";
    return svg.str();
}
