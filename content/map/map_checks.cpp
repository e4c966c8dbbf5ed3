#include "map_checks.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <vector>

namespace {

struct CellPlace {
    int x, y;
};

constexpr int SquadSize = 20;
constexpr int CornerWidth = 3;    // the squad must find its places within so many columns
constexpr int CornerHeight = 21;  // and rows of the top left corner
constexpr int VehicleReach = 16;  // columns and rows from the corner in which the vehicle must stand
constexpr int NookSize =
    2;  // closed-in free cells that nobody misses: gaps between rocks, a shelf in a cupboard
constexpr int MinSpots = 12;
constexpr int MaxSpots = 30;
constexpr int ClearSight = 27;  // cells; a soldier sees 26
constexpr int SamplesPerCell = 4;

using Marks = std::array<std::array<bool, MapWidth>, MapHeight>;

bool& MarkAt(Marks& marks, int x, int y) {
    return marks[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)];
}

// A map under check: what stands where, and where in its file a cell is told.
struct MapGround {
    const TileGrid& grid;
    int firstLine;
    SourceFaults& faults;

    void Refuse(int x, int y, const std::string& wrong, const std::string& expected) const {
        faults.Add({{firstLine + y, x + 1}, wrong, expected});
    }
};

bool Free(const TileGrid& grid, int x, int y) {
    return !StopsStep(TileAt(grid, x, y));
}

// A walk from row 0 or column 0 can't be planned: nobody may ever stand there.
void CheckEdges(const MapGround& map) {
    for (int x = 0; x < MapWidth; ++x) {
        if (Free(map.grid, x, 0))
            map.Refuse(x, 0, "row 0 can be stood on here", "something that stops a step");
    }
    for (int y = 1; y < MapHeight; ++y) {
        if (Free(map.grid, 0, y))
            map.Refuse(0, y, "column 0 can be stood on here", "something that stops a step");
    }
}

// The cells on which a full squad lands: column by column from the top left.
std::vector<CellPlace> LandingCells(const TileGrid& grid) {
    std::vector<CellPlace> cells;
    for (int x = 0; x < MapWidth; ++x) {
        for (int y = 0; y < MapHeight; ++y) {
            if (Free(grid, x, y)) cells.push_back({x, y});
            if (cells.size() == static_cast<std::size_t>(SquadSize)) return cells;
        }
    }
    return cells;
}

void CheckLandingCorner(const MapGround& map, const std::vector<CellPlace>& landing) {
    if (landing.size() < static_cast<std::size_t>(SquadSize)) {
        map.Refuse(0, 0, "the field has too few free cells", "room for a squad");
    }
    for (const CellPlace& cell : landing) {
        if (cell.x >= CornerWidth || cell.y >= CornerHeight) {
            map.Refuse(cell.x, cell.y, "a soldier of the squad would land here",
                       "all " + std::to_string(SquadSize) + " in the first " + std::to_string(CornerWidth) +
                           " columns and " + std::to_string(CornerHeight) + " rows");
        }
    }
}

void CheckVehicle(const MapGround& map) {
    constexpr int VehicleCells = 8;
    int cells = 0;
    for (int y = 0; y < VehicleReach; ++y) {
        for (int x = 0; x < VehicleReach; ++x)
            cells += IsVehicle(TileAt(map.grid, x, y));
    }
    if (cells != VehicleCells) {
        map.Refuse(0, 0, std::to_string(cells) + " cells of the squad's vehicle near the landing corner",
                   std::to_string(VehicleCells));
    }
}

// Walks from (x, y) over all free cells in the eight directions and marks them; returns how many were new.
int Flood(const TileGrid& grid, int x, int y, Marks& reached) {
    std::vector<CellPlace> open = {{x, y}};
    MarkAt(reached, x, y) = true;
    int count = 0;
    while (!open.empty()) {
        const CellPlace cell = open.back();
        open.pop_back();
        ++count;
        for (int i = 0; i < 9; ++i) {
            const int nx = cell.x + i % 3 - 1, ny = cell.y + i / 3 - 1;
            if (!OnMap(nx, ny) || !Free(grid, nx, ny) || MarkAt(reached, nx, ny)) continue;
            MarkAt(reached, nx, ny) = true;
            open.push_back({nx, ny});
        }
    }
    return count;
}

void CheckWays(const MapGround& map, const CellPlace& start) {
    Marks reached = {};
    Flood(map.grid, start.x, start.y, reached);
    for (int y = 0; y < MapHeight; ++y) {
        for (int x = 0; x < MapWidth; ++x) {
            if (!Free(map.grid, x, y) || MarkAt(reached, x, y)) continue;
            const int size = Flood(map.grid, x, y, reached);
            if (size > NookSize || IsLandingSpot(TileAt(map.grid, x, y))) {
                map.Refuse(x, y, std::to_string(size) + " free cells from here on are closed in",
                           "a way from the landing corner");
            }
        }
    }
}

bool ClearLine(const TileGrid& grid, const CellPlace& from, const CellPlace& to) {
    const int samples = SamplesPerCell * std::max(std::abs(to.x - from.x), std::abs(to.y - from.y));
    for (int i = 1; i < samples; ++i) {
        const double part = static_cast<double>(i) / samples;
        const int x = static_cast<int>(std::floor(from.x + 0.5 + (to.x - from.x) * part));
        const int y = static_cast<int>(std::floor(from.y + 0.5 + (to.y - from.y) * part));
        if (StopsView(TileAt(grid, x, y))) return false;
    }
    return true;
}

void CheckSpotHidden(const MapGround& map, const CellPlace& spot, const std::vector<CellPlace>& landing) {
    for (const CellPlace& cell : landing) {
        const int dx = spot.x - cell.x, dy = spot.y - cell.y;
        if (dx * dx + dy * dy <= ClearSight * ClearSight && ClearLine(map.grid, cell, spot)) {
            map.Refuse(spot.x, spot.y,
                       "this landing spot is in sight of the squad at column " + std::to_string(cell.x) +
                           ", row " + std::to_string(cell.y),
                       "something between them that stops the view, or more than " +
                           std::to_string(ClearSight) + " cells");
            return;
        }
    }
}

void CheckSpots(const MapGround& map, const std::vector<CellPlace>& landing) {
    int spots = 0;
    for (int y = 0; y < MapHeight; ++y) {
        for (int x = 0; x < MapWidth; ++x) {
            if (!IsLandingSpot(TileAt(map.grid, x, y))) continue;
            ++spots;
            CheckSpotHidden(map, {x, y}, landing);
        }
    }
    if (spots < MinSpots || spots > MaxSpots) {
        map.Refuse(0, 0, std::to_string(spots) + " landing spots of the computer's team",
                   std::to_string(MinSpots) + " to " + std::to_string(MaxSpots));
    }
}

}  // namespace

void CheckMap(const TileGrid& grid, int firstLine, SourceFaults& faults) {
    const MapGround map{grid, firstLine, faults};
    CheckEdges(map);
    const std::vector<CellPlace> landing = LandingCells(grid);
    CheckLandingCorner(map, landing);
    CheckVehicle(map);
    if (!landing.empty()) CheckWays(map, landing.back());
    CheckSpots(map, landing);
}
