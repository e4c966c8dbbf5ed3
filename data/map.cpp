#include "data/map.h"

#include "data/terrain.h"
#include "platform/files.h"
#include "state/state.h"

namespace {

// One layer's file: the value of a character is its code less 32.
class Layer {
  public:
    Layer(const std::string& map, int number) : file("\\map\\" + map + std::to_string(number) + ".map") {}

    int Read() {
        constexpr int Blank = 32;
        return file.ReadCharacter("a line of 76 cells") - Blank;
    }
    void EndLine() { file.ReadLineEnd("the end of the line after 76 cells"); }
    [[noreturn]] void Refuse(int x, const std::string& problem, Fault fault) const {
        file.RefuseAt(file.Line(), x + 1, problem, fault);
    }

  private:
    TextReader file;
};

void RecordLandingSpot(const Layer& layer, int x, int y) {
    if (teamLast[LandingSpotList] == landingSpots.Upper)
        layer.Refuse(
            x, "expected up to " + std::to_string(landingSpots.Upper + 1) + " landing spots, found one more",
            Fault::Subscript);
    ++teamLast[LandingSpotList];
    landingSpots[teamLast[LandingSpotList]] = {x, y};
}

void FillCell(const Layer& layer, int x, int y, int tileX, int tileY) {
    if (tileY == Various && tileX == LandingMark) {
        RecordLandingSpot(layer, x, y);
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

}  // namespace

void ReadMapLayers(const std::string& name) {
    Layer columns(name, 1);
    Layer rows(name, 2);
    Layer third(name, 3);  // has no lasting effect, but must be as long as the others
    for (int y = 0; y < FieldHeight; ++y) {
        for (int x = 0; x < FieldWidth; ++x) {
            const int tileX = columns.Read();
            const int tileY = rows.Read();
            third.Read();
            FillCell(columns, x, y, tileX, tileY);
        }
        for (Layer* layer : {&columns, &rows, &third})
            layer->EndLine();
    }
}

int CellBlock(int x, int y) {
    return TileBlock(cellGrid[y][x].tileX, cellGrid[y][x].tileY);
}
