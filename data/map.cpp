#include "data/map.h"

#include <array>
#include <limits>
#include <span>

#include "platform/files.h"
#include "platform/host.h"
#include "state/state.h"
#include "view/field_form.h"
#include "view/mini_map.h"
#include "view/painting.h"
#include "view/progress.h"

namespace {

// A range of tiles of one terrain class and what the rule gives them. The first row that matches counts.
struct TileRule {
    int terrain;
    int first;
    int last;
    int value;
};

constexpr int Low = std::numeric_limits<int>::min();
constexpr int High = std::numeric_limits<int>::max();

// clang-format off
constexpr TileRule DurabRules[] = {
    // class    tiles      strength
    {Surface,   Low, High, 200},
    {Wooden,      0,   10,  80},  // walls
    {Wooden,     11,   12,   5},  // windows
    {Wooden,     16,   19,  10},  // furniture
    {Concrete,    0,   10, 220},
    {Concrete,   11,   12, 100},
    {Concrete,   13,   15, 140},
    {Concrete,   16,   19, 220},
    {Concrete,   20,   23, 140},
    {Stone,      13,   16, 100},
    {Stone,     Low, High, 220},
    {Roads,      16,   16, 100},  // bridges
    {Roads,      19,   19, 100},
    {Prickles,    0,   14,  40},
    {Ships,       0,   10,  80},
    {Ships,      11,   12,   5},
    {Ships,      16,   19,  10},
    {Various,    18,   25, 140},  // the vehicle
    {Highways,    0,   10, 100},
    {Fence,       0,   10,  30},
};

constexpr TileRule BlockRules[] = {
    // class    tiles    stops
    {Water,       0,  0, 1},  // open water
    {Water,      13, 13, 1},
    {Trees,       0,  0, 2},  // dense wood
    {Trees,      13, 16, 2},
    {Trees,      19, 21, 2},
    {Wooden,      0, 10, 3},  // walls
    {Wooden,     11, 12, 1},  // windows
    {Wooden,     16, 19, 1},  // furniture
    {Concrete,    0, 10, 3},
    {Concrete,   11, 12, 1},
    {Concrete,   16, 17, 1},  // low barriers
    {Concrete,   18, 19, 3},
    {Stone,       0, 14, 3},
    {Stone,      17, 18, 3},
    {Prickles,    0, 14, 1},
    {Ships,       0, 10, 3},
    {Ships,      11, 12, 1},
    {Ships,      16, 19, 1},
    {Various,    18, 25, 3},  // the vehicle
    {Fence,       0, 10, 3},
};
// clang-format on

constexpr std::array<const char*, 13> TerrainNames = {
    "surface",  "water",    "trees", "wooden",  "concrete", "stone", "roads",
    "trenches", "prickles", "ships", "various", "highways", "fence"};

constexpr int LandingMark = 7;  // tile of class "various"

int FirstMatch(std::span<const TileRule> rules, int tileX, int tileY) {
    for (const TileRule& rule : rules)
        if (rule.terrain == tileY && tileX >= rule.first && tileX <= rule.last) return rule.value;
    return 0;
}

// One layer's file: the value of a character is its code less 32.
class Layer {
  public:
    Layer(const std::string& map, int number) : file("\\map\\" + map + std::to_string(number) + ".map") {}

    int Read() {
        constexpr int Blank = 32;
        return file.ReadCharacter("a line of 76 cells") - Blank;
    }
    void EndLine() { file.ReadLineEnd("the end of the line after 76 cells"); }

  private:
    TextReader file;
};

void RecordLandingSpot(int x, int y) {
    ++teamLast[LandingSpotList];
    landingSpots[teamLast[LandingSpotList]] = {x, y};
}

void FillCell(int x, int y, int tileX, int tileY) {
    if (tileY == Various && tileX == LandingMark) {
        RecordLandingSpot(x, y);
        tileX = 0;
        tileY = Surface;
    }
    Cell& cell = cellGrid[y][x];
    cell.occupant = -1;
    cell.tileX = tileX;
    cell.tileY = tileY;
    cell.durab = CellDurab(tileX, tileY);
    cell.block = CellBlock(x, y);
}

void ReadLayers(const std::string& name) {
    Layer columns(name, 1);
    Layer rows(name, 2);
    Layer third(name, 3);  // has no lasting effect, but must be as long as the others
    for (int y = 0; y < FieldHeight; ++y) {
        for (int x = 0; x < FieldWidth; ++x) {
            const int tileX = columns.Read();
            const int tileY = rows.Read();
            third.Read();
            FillCell(x, y, tileX, tileY);
        }
        for (Layer* layer : {&columns, &rows, &third})
            layer->EndLine();
    }
}

void PaintMap(FieldForm& form) {
    fieldBusy = True;
    ShowProgress("Start");
    for (int y = 0; y < FieldHeight; ++y) {
        for (int x = 0; x < FieldWidth; ++x)
            PaintCell(x, y, form.area.canvas);
        ShowProgress("Add");
    }
    ShowProgress("Stop");
    fieldBusy = False;
    TheHost().Refresh(form.area);
    picStretch(form.area.canvas, form.picAreaMap.canvas, MiniMapRatio);
}

}  // namespace

void LoadMap(FieldForm& form, const std::string& name) {
    ReadLayers(name);
    PaintMap(form);
}

int CellDurab(int tileX, int tileY) {
    return FirstMatch(DurabRules, tileX, tileY);
}

int CellBlock(int x, int y) {
    return FirstMatch(BlockRules, cellGrid[y][x].tileX, cellGrid[y][x].tileY);
}

const char* TerrainName(int tileY) {
    if (tileY < Surface || tileY > Fence) return nullptr;
    return TerrainNames[static_cast<std::size_t>(tileY)];
}
