#include "shell/ambience.h"

#include <algorithm>
#include <cmath>

#include "data/terrain.h"
#include "field/geometry.h"
#include "state/state.h"
#include "view/field_form.h"

namespace {

struct LoopRow {
    const char* file;
    double least;      // level where nothing of its kind is in view
    double fullShare;  // of the view's cells, from which on it is at its loudest
};

enum LoopPlace : std::size_t { Wind, River, Wood, Meadow, Quay };

// clang-format off
constexpr std::array<LoopRow, AmbienceLoopCount> Loops = {{
    // file                          least  full from
    {"\\wav\\ambience\\wind.wav",     0.45,  0.70},
    {"\\wav\\ambience\\river.wav",    0,     0.25},
    {"\\wav\\ambience\\wood.wav",     0,     0.35},
    {"\\wav\\ambience\\meadow.wav",   0,     0.60},
    {"\\wav\\ambience\\quay.wav",     0,     0.05},
}};

struct Belonging {
    TileRange tiles;
    LoopPlace loop;
    double weight;  // of such a cell
};

constexpr Belonging Belongings[] = {
    {{Surface},          Wind,   1},
    {{Roads},            Wind,   1},
    {{Highways},         Wind,   1},
    {{Water},            Wind,   0.7},
    {{Water},            River,  1},
    {{Water,    17, 17}, Meadow, 0.5},  // reeds
    {{Trees,     0,  4}, Wood,   1},
    {{Trees,     5,  8}, Wood,   0.4},  // saplings
    {{Trees,     9, 21}, Wood,   1},
    {{Surface,   0,  7}, Meadow, 1},
    {{Surface,  12, 14}, Meadow, 1},    // fields
    {{Ships},            Quay,   1},
    {{Roads,    16, 16}, Quay,   0.5},  // plank bridges, jetties
    {{Roads,    19, 19}, Quay,   0.5},
};
// clang-format on

}  // namespace

const char* AmbienceFile(std::size_t loop) {
    return Loops.at(loop).file;
}

AmbienceLevels AmbienceAt(int left, int top) {
    AmbienceLevels weights = {};
    int cells = 0;
    for (int y = CellOfPixel(top); y <= CellOfPixel(top + ViewHeight - 1); ++y) {
        for (int x = CellOfPixel(left); x <= CellOfPixel(left + ViewWidth - 1); ++x) {
            if (!InField(x, y)) continue;
            ++cells;
            for (const Belonging& row : Belongings)
                if (row.tiles.Holds(cellGrid[y][x].tileX, cellGrid[y][x].tileY))
                    weights[row.loop] += row.weight;
        }
    }
    AmbienceLevels levels = {};
    for (std::size_t i = 0; i < levels.size() && cells > 0; ++i) {
        const double share = std::min(1.0, weights[i] / cells / Loops[i].fullShare);
        levels[i] = Loops[i].least + (1 - Loops[i].least) * std::sqrt(share);
    }
    return levels;
}

const AmbienceLevels& Ambience::Levels() {
    const bool isShown = frmField.Visible && frmField.area.Visible;
    const int nowLeft = isShown ? int{frmField.HScrollArea.Value} : -1;
    const int nowTop = isShown ? int{frmField.VScrollArea.Value} : -1;
    if (nowLeft == left && nowTop == top) return levels;
    left = nowLeft;
    top = nowTop;
    levels = isShown ? AmbienceAt(left, top) : AmbienceLevels();
    return levels;
}
