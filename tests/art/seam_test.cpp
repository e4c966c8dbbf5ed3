// Tiles of one texture join: over the finished field, brightness steps no more from one tile to the next than
// within tiles.
#include <cmath>
#include <set>

#include "data/map.h"
#include "data/terrain.h"
#include "tests/support/game_test.h"
#include "view/stored_pictures.h"

namespace {

struct Texture {
    const char* name;
    int row;
    std::set<int> columns;
};

const Texture Textures[] = {
    {"grass", Surface, {0, 1, 2, 3, 4, 5, 6, 7}},
    {"sand", Surface, {9, 11}},
    {"field", Surface, {12}},
    {"grain", Surface, {14}},
    {"open water", Water, {0, 13}},
    {"banks", Water, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 18, 19, 31}},
    {"broadleaf wood", Trees, {0, 19, 20, 21}},
    {"conifers", Trees, {13, 14, 15, 16}},
    {"plank floor", Wooden, {20, 24, 25, 26}},
    {"slabs", Concrete, {20, 21, 23}},
    {"flagstones", Stone, {19, 21, 22, 23}},
    {"dirt road", Roads, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14}},
    {"cobbles", Roads, {17}},
    {"trench", Trenches, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14}},
    {"deck", Ships, {20, 25, 26, 27}},
    {"highway", Highways, {0, 1}},
};

class SeamTest : public GameTest {
  protected:
    static double Brightness(int x, int y) {
        const Cell& cell = cellGrid[y / CellSize][x / CellSize];
        const Colour colour =
            StoredPicture("picMap.bmp")
                .Pixel(cell.tileX * CellSize + x % CellSize, cell.tileY * CellSize + y % CellSize);
        const auto channel = [colour](int bits) { return static_cast<double>(colour >> bits & 0xFF); };
        return 0.299 * channel(16) + 0.587 * channel(8) + 0.114 * channel(0);
    }

    // The mean step between two neighbouring lines of pixels that cross a cell: line `i` and the one before
    // it.
    static double Step(int cellX, int cellY, bool east, int i) {
        double sum = 0;
        for (int along = 0; along < CellSize; ++along) {
            const int x = cellX * CellSize + (east ? i : along), y = cellY * CellSize + (east ? along : i);
            sum += std::abs(Brightness(x, y) - Brightness(x - (east ? 1 : 0), y - (east ? 0 : 1)));
        }
        return sum / CellSize;
    }

    static double StepWithin(int cellX, int cellY, bool east) {
        double sum = 0;
        for (int i = 1; i < CellSize; ++i)
            sum += Step(cellX, cellY, east, i);
        return sum / (CellSize - 1);
    }

    static bool Shows(const Texture& texture, int x, int y) {
        return x < FieldWidth && y < FieldHeight && cellGrid[y][x].tileY == texture.row &&
               texture.columns.contains(cellGrid[y][x].tileX);
    }
};

TEST_F(SeamTest, TilesOfOneTextureShowNoEdge) {
    constexpr double Most = 1.25;
    ReadMapLayers("49");
    for (const Texture& texture : Textures) {
        double across = 0, within = 0;
        int joints = 0;
        for (int i = 0; i < 2 * FieldWidth * FieldHeight; ++i) {
            const bool east = i % 2 == 0;
            const int x = i / 2 % FieldWidth, y = i / 2 / FieldWidth;
            const int nextX = x + (east ? 1 : 0), nextY = y + (east ? 0 : 1);
            if (!Shows(texture, x, y) || !Shows(texture, nextX, nextY)) continue;
            across += Step(nextX, nextY, east, 0);
            within += (StepWithin(x, y, east) + StepWithin(nextX, nextY, east)) / 2;
            ++joints;
        }
        EXPECT_GE(joints, 5) << texture.name << " isn't on the field";
        EXPECT_LE(across, Most * within) << texture.name << ", " << joints << " joints";
    }
}

}  // namespace
