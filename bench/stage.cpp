#include "bench/stage.h"

#include <random>

#include "field/geometry.h"
#include "mission/setup.h"
#include "state/quiet_audience.h"
#include "view/start.h"

namespace {

constexpr int Seed = 1;
constexpr int WallBlock = 3;  // stops steps and the view

}  // namespace

void LookAway() {
    static QuietAudience audience;
    InstallAudience(&audience);
}

void StartGame() {
    LookAway();
    BeginGame(Seed);
}

void StartShownGame() {
    Main(Seed);
}

std::vector<Spot> Standings(int count) {
    std::mt19937 generator(5);
    std::vector<Spot> places;
    while (static_cast<int>(places.size()) < count) {
        const int x = 1 + static_cast<int>(generator() % (FieldWidth - 1));
        const int y = 1 + static_cast<int>(generator() % (FieldHeight - 1));
        if (CellFreeToStep(x, y)) places.push_back({x, y});
    }
    return places;
}

void WallOff(int percent) {
    std::mt19937 generator(6);
    ClearGround(0, 0, FieldWidth, FieldHeight);
    // Row 0 and column 0 are closed on every map.
    for (int y = 0; y < FieldHeight; ++y)
        for (int x = 0; x < FieldWidth; ++x)
            if (x == 0 || y == 0 || static_cast<int>(generator() % 100U) < percent)
                cellGrid[y][x].block = WallBlock;
}

void ClearGround(int left, int top, int width, int height) {
    for (int y = top; y < top + height; ++y) {
        for (int x = left; x < left + width; ++x) {
            cellGrid[y][x] = Cell();
            cellGrid[y][x].occupant = -1;
        }
    }
}

void PutUnit(int index, Spot cell, int facing) {
    Unit& unit = UnitTable[index];
    unit.cellX = cell.x;
    unit.cellY = cell.y;
    unit.pixelX = cell.x * CellSize;
    unit.pixelY = cell.y * CellSize;
    unit.facing = facing;
    unit.status = Active;
    unit.health = unit.vitality;
    unit.time = unit.agility * 2;
    cellGrid[cell.y][cell.x].occupant = index;
}
