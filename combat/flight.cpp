#include "combat/flight.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <string>

#include "combat/hits.h"
#include "combat/trail.h"
#include "data/map.h"
#include "data/terrain.h"
#include "field/geometry.h"
#include "state/audience.h"
#include "state/chance.h"
#include "state/log.h"
#include "state/pace.h"
#include "state/state.h"

namespace {

constexpr int ClippedSteps = 10;  // a cell that the line only clips for so many pixels is not hit

// The trail is out of the way meanwhile, as an order may repaint what lies under it.
void ShowCard(int x, int y) {
    TheAudience().TrailChanged("suspend");
    ShowTarget(1, x, y);
    TheAudience().TrailChanged("resume");
}

// One axis of the line: the pixel moves when its error has grown past the longer axis.
struct Axis {
    int place;
    int sign;
    int length;
    int error = 0;

    Axis(int from, int to) : place(from), sign((to > from) - (to < from)), length(std::abs(to - from)) {}

    void Advance(int major) {
        error += length;
        if (error <= major) return;
        error -= major;
        place += sign;
    }
};

// Why a flight doesn't enter the next cell; empty when it goes on.
const char* StopBefore(int cellX, int cellY, int stepsInCell) {
    if (stepsInCell > ClippedSteps) {
        if (!InField(cellX, cellY)) return "bullet out";
        BulletInCell(cellX, cellY);
    }
    return bulletPower <= 0 || bulletAccur <= 0 ? "bullet exhausted" : "";
}

// A draw between two bounds, times a factor.
struct Loss {
    int high;
    int low;
    int factor = 1;
};

enum class Effect { None, WearByPower, WearByTen, BreakGlass, ShowCard };

// What a cell takes from a bullet, and what the bullet does to it.
struct CellRule {
    TileRange tiles;
    Loss power;
    Loss accur;
    Effect effect;
};

constexpr int Everything = std::numeric_limits<int>::max();
constexpr Loss Nothing = {0, 0, 0};
constexpr Loss All = {1, 1, Everything};

// clang-format off
constexpr CellRule CellRules[] = {
    // class    tiles     power lost    accuracy lost  effect
    {{Trees},            {20,  8},     {10,  5},      Effect::None},
    {{Wooden,    0, 10}, {80, 45},     {40, 20},      Effect::WearByPower},
    {{Wooden,   11, 12}, {10,  5},     {15,  5},      Effect::BreakGlass},
    {{Wooden,   16, 19}, {40, 25},     {50, 20},      Effect::WearByTen},
    {{Stone,     0, 12}, All,          All,           Effect::None},
    {{Stone,    13, 15}, { 2,  0, 40}, { 2,  0, 30},  Effect::None},
    {{Various,  10, 10}, Nothing,      Nothing,       Effect::ShowCard},
};
// clang-format on

// What a body takes from a bullet that reaches it, whether it is hit or not.
constexpr Loss BodyPower = {55, 40};
constexpr Loss BodyAccur = {20, 10};

int Drawn(const Loss& loss) {
    return RandomInt(loss.high, loss.low) * loss.factor;
}

void Take(i16& strength, const Loss& loss) {
    if (loss.factor == 0) return;
    const int lost = loss.factor == Everything ? static_cast<int>(strength) : Drawn(loss);
    strength = std::max(strength - lost, 0);
}

void RepaintInFlight(int x, int y) {
    BulletTrail("return");
    TheAudience().CellChanged(x, y);
    BulletTrail("store");
}

void BreakWood(int x, int y) {
    cellGrid[y][x].tileX = BrokenTile;
    RepaintInFlight(x, y);
}

void WearWood(int x, int y, int by, bool breaksAtOnce) {
    Cell& cell = cellGrid[y][x];
    cell.durab = std::max(cell.durab - by, 0);
    if (breaksAtOnce || cell.durab == 0) BreakWood(x, y);
}

void BreakGlass(int x, int y) {
    constexpr int FromWholeToBroken = 2;
    TheAudience().SoundPlayed("bump\\glass2", x);
    cellGrid[y][x].durab = 0;
    cellGrid[y][x].tileX += FromWholeToBroken;
    RepaintInFlight(x, y);
}

void ApplyEffect(Effect effect, int x, int y) {
    constexpr int FurnitureWear = 10;
    switch (effect) {
        case Effect::None:
            break;
        case Effect::WearByPower:
            WearWood(x, y, bulletPower, false);
            break;
        case Effect::WearByTen:
            WearWood(x, y, FurnitureWear, true);
            break;
        case Effect::BreakGlass:
            BreakGlass(x, y);
            break;
        case Effect::ShowCard:
            ShowCard(x, y);
            break;
    }
}

// ODDITY: civilians after the first are hit by nothing.
constexpr int LastUnitHit = 40;

void HitOccupant(int occupant) {
    if (occupant < 0 || occupant > LastUnitHit) return;
    UnitHit(curUnit, occupant);
    // Other than a cell, a body may wear it down to below nothing.
    bulletPower -= Drawn(BodyPower);
    bulletAccur -= Drawn(BodyAccur);
}

}  // namespace

void BulletFly(int x0, int y0, int x1, int y1) {
    Axis x(x0, x1);
    Axis y(y0, y1);
    const int major = std::max(x.length, y.length);
    BulletTrail("initialize");
    int stepsInCell = 0;
    int cellX = 0;
    int cellY = 0;
    for (int i = 0; i <= major + 1; ++i) {
        if (i == bulletHorizon) {
            AddToLog("weapon horizon reached", 1);
            break;
        }
        const int nextX = CellOfPixel(x.place);
        const int nextY = CellOfPixel(y.place);
        if (nextX != cellX || nextY != cellY) {
            const std::string_view stop = StopBefore(cellX, cellY, stepsInCell);
            if (!stop.empty()) {
                AddToLog(std::string(stop), 1);
                break;
            }
            stepsInCell = 0;
            cellX = nextX;
            cellY = nextY;
        }
        ++stepsInCell;
        x.Advance(major);
        y.Advance(major);
        TheAudience().TrailDrawn(x.place, y.place);
    }
    BulletTrail("finalize");
    impactX = CellOfPixel(x.place);
    impactY = CellOfPixel(y.place);
    if (InField(impactX, impactY)) BulletInCell(impactX, impactY);
}

void BulletInCell(int x, int y) {
    const Unit& shooter = UnitTable[curUnit];
    if (shooter.cellX == x && shooter.cellY == y) return;
    HitOccupant(cellGrid[y][x].occupant);
    const int tileX = cellGrid[y][x].tileX;
    for (const CellRule& rule : CellRules) {
        if (!rule.tiles.Holds(tileX, cellGrid[y][x].tileY)) continue;
        Take(bulletPower, rule.power);
        Take(bulletAccur, rule.accur);
        ApplyEffect(rule.effect, x, y);
        break;
    }
    cellGrid[y][x].block = CellBlock(x, y);
}
