#include "tiles/mock_field.h"

#include <array>
#include <string>
#include <string_view>

#include "kit/canvas.h"
#include "kit/noise.h"
#include "kit/palette.h"
#include "panel/digits.h"
#include "panel/stance_buttons.h"
#include "tiles/joints.h"

namespace art {
namespace {

constexpr int Columns = 38;
constexpr int Rows = 23;

// A hamlet by a river. # wood wall, W its window, D its door, _ its floor, % masonry, : flags, C concrete, s
// slab, r dirt road, h highway, ~ water, = bridge, T dense and o open wood, c conifers, b bushes, n trench, x
// wire, f fence, G gate, p ploughed, g grain, V vehicle, others single things.
constexpr std::array<std::string_view, Rows> Plan{
    "TTTTTo..........r.....~~~~~............", "TTcTTTo...b.....r....~~~~~....b..ppppp",
    "TccTTo..........r....~~~~~.......ppppp",  "TTcToo..###W###.r...~~~~~..o.....ppppp",
    "TTTo....#_tb_k#.r...~~~~~.oTo....ppppp",  "ooo.....#_____D.r..~~~~~..TTTo...ggggg",
    "..b.....W__#W##.r..~~~~~...oT....ggggg",  ".o......#_e#....r..~~~~~.........ggggg",
    "........####..a.r..~~~~~.............",   "....b...........r.b.~~~~~....%%%%%%%..",
    "rrrrrrrrrrrrrrrrrrrr=====rrrr:::::%:%..", "..........r.........~~~~~....%:::y%:%..",
    "..ffffGf..r..xxxxxx..~~~~~...%%%%%:%%..", "..f....f..r..x....x..~~~~~.......:u....",
    "..f.i..f..r..xnnn.x...~~~~~..q......c..", "..f..v.f..r..xn.nnx...~~~~~........ccc.",
    "..ffffff..r..x..n.x....~~~~~......ccccc", "..........r..xx.nxx....~~~~~..CCCCCcccc",
    "hhhhhhhhhhhhhhhhhhhhhhHHHHHHhhhsssC.ccc", "......r.........n......~~~~~..CszsC..cc",
    "..Vm..r..b..T...n.l....~~~~~..CssCC...c", "......r....TTT........~~~~~~..CCCC.....",
    "......r...TTTTo..j....~~~~~....d......",
};

struct Pick {
    char sign;
    int row, column;
};

constexpr Pick Single[] = {
    {'_', 3, 20},  {'t', 3, 16},  {'b', 2, 3},   {'k', 3, 19}, {'e', 3, 17},  {'a', 10, 14},
    {'=', 6, 16},  {':', 5, 19},  {'y', 5, 18},  {'u', 5, 11}, {'s', 4, 20},  {'z', 4, 19},
    {'p', 0, 12},  {'g', 0, 14},  {'H', 11, 15}, {'i', 10, 1}, {'v', 10, 12}, {'q', 5, 12},
    {'l', 10, 16}, {'j', 10, 13}, {'d', 10, 11}, {'m', 0, 7},  {'G', 12, 11}, {'D', 3, 23},
};

char At(int x, int y) {
    if (x < 0 || y < 0 || x >= Columns || y >= Rows) return '\0';
    const std::string_view row = Plan[static_cast<std::size_t>(y)];
    return static_cast<std::size_t>(x) < row.size() ? row[static_cast<std::size_t>(x)] : '.';
}

bool OneOf(char sign, std::string_view signs) {
    return sign != '\0' && signs.find(sign) != std::string_view::npos;
}

Joint Around(int x, int y, std::string_view signs) {
    const auto joins = [&](int nx, int ny) {
        return At(nx, ny) == '\0' ? OneOf(At(x, y), "rh") : OneOf(At(nx, ny), signs);
    };
    return {joins(x - 1, y), joins(x + 1, y), joins(x, y - 1), joins(x, y + 1)};
}

int JointColumn(const Joint& wanted) {
    for (std::size_t i = 0; i < Joints.size(); ++i) {
        const Joint& joint = Joints[i];
        if (joint.west == wanted.west && joint.east == wanted.east && joint.north == wanted.north &&
            joint.south == wanted.south)
            return static_cast<int>(i);
    }
    return 0;
}

int WaterColumn(int x, int y) {
    const auto land = [](int nx, int ny) { return At(nx, ny) != '\0' && !OneOf(At(nx, ny), "~=H"); };
    const bool n = land(x, y - 1), s = land(x, y + 1), w = land(x - 1, y), e = land(x + 1, y);
    if (n && w) return 5;
    if (n && e) return 6;
    if (s && w) return 7;
    if (s && e) return 8;
    if (n) return 1;
    if (s) return 2;
    if (w) return 3;
    if (e) return 4;
    if (land(x - 1, y - 1)) return 9;
    if (land(x + 1, y - 1)) return 10;
    if (land(x - 1, y + 1)) return 11;
    if (land(x + 1, y + 1)) return 12;
    return (x * 7 + y * 3) % 11 == 0 ? 13 : 0;
}

// All four neighbours are dense wood or the field's edge.
bool Enclosed(int x, int y) {
    const auto dense = [](int nx, int ny) { return At(nx, ny) == '\0' || OneOf(At(nx, ny), "Tc"); };
    return dense(x - 1, y) && dense(x + 1, y) && dense(x, y - 1) && dense(x, y + 1);
}

struct Line {
    char sign;
    int row;
    std::string_view joins;
};

constexpr Line Lines[] = {{'#', 3, "#WD"},  {'%', 5, "%"}, {'C', 4, "C"}, {'r', 6, "r=:h"},
                          {'h', 11, "hHs"}, {'n', 7, "n"}, {'x', 8, "x"}, {'f', 12, "fG"}};

QImage TileAt(const QImage& map, int x, int y, Dice& dice) {
    const char sign = At(x, y);
    const auto tile = [&](int row, int column) { return CellOf(map, column, row); };
    const auto any = [&](int first, int count) { return first + dice.Pick(count); };
    for (const Line& line : Lines) {
        if (line.sign == sign) return tile(line.row, JointColumn(Around(x, y, line.joins)));
    }
    for (const Pick& pick : Single) {
        if (pick.sign == sign) return tile(pick.row, pick.column);
    }
    switch (sign) {
        case '~':
            return tile(1, WaterColumn(x, y));
        case 'W':
            return tile(3, At(x, y - 1) == '#' && At(x, y + 1) == '#' ? 12 : 11);
        case 'T':
            return Enclosed(x, y) ? tile(2, any(19, 3)) : tile(2, 0);
        case 'o':
            return tile(2, any(9, 4));
        case 'c':
            return tile(2, any(13, 4));
        default:
            return tile(0, dice.Pick(5) == 0 ? any(1, 7) : 0);
    }
}

struct Man {
    int x, y, team, stance, facing;
};

constexpr Man Men[] = {{14, 8, 0, 2, 0}, {15, 9, 0, 1, 4},  {13, 10, 0, 3, 0}, {17, 9, 0, 0, 5},
                       {11, 5, 1, 2, 2}, {15, 14, 1, 1, 3}, {14, 15, 1, 0, 1}, {27, 10, 1, 3, 1},
                       {6, 14, 2, 2, 3}, {30, 10, 2, 3, 6}, {2, 2, 0, 2, 5},   {6, 4, 0, 1, 0},
                       {9, 19, 0, 3, 7}};

void PlaceInCell(QImage& window, int x, int y, const QImage& picture) {
    constexpr int Left = 20;
    constexpr int Top = 10;
    Place(window, Left + x * CellSize, Top + y * CellSize, picture);
}

void Ground(QImage& window, const QImage& map) {
    constexpr int VariousRow = 10;
    Dice dice(1201);
    for (int y = 0; y < Rows; ++y) {
        for (int x = 0; x < Columns; ++x)
            PlaceInCell(window, x, y, TileAt(map, x, y, dice));
    }
    for (int i = 0; i < 8; ++i)
        PlaceInCell(window, 2 + i % 4, 20 + i / 4, CellOf(map, 18 + i, VariousRow));
}

void Units(QImage& window, const Pictures& pictures) {
    constexpr int Stances = 4;
    const QImage people = pictures("stored/picPeople.bmp");
    const QImage tops = pictures("stored/picForest.bmp");
    const QImage sprites = pictures("stored/picSprites.bmp");
    for (const Man& man : Men) {
        const char sign = At(man.x, man.y);
        PlaceInCell(window, man.x, man.y, CellOf(people, man.team * Stances + man.stance, man.facing));
        if (OneOf(sign, "Toc")) PlaceInCell(window, man.x, man.y, CellOf(tops, sign == 'c' ? 14 : 0, 0));
    }
    PlaceInCell(window, 17, 5, CellOf(sprites, 12, 0));
    PlaceInCell(window, 5, 8, CellOf(sprites, 13, 0));
    PlaceInCell(window, 12, 13, CellOf(sprites, 14, 0));
}

void LayBars(QImage& window, const Pictures& pictures, int top) {
    const QImage digits = pictures("stored/picBarDigits.bmp");
    constexpr std::array<int, BarCount> Values{112, 87, 100, 68};
    for (int bar = 0; bar < BarCount; ++bar) {
        const int value = Values[static_cast<std::size_t>(bar)];
        const QImage strip = pictures("stored/imgBar" + std::to_string(bar) + ".bmp");
        Place(window, 472, top + 77 + bar * 8, strip.copy(0, 0, value, 3));
        for (int place = 0, unit = 100; place < 3; ++place, unit /= 10) {
            Place(window, 614 + place * 5, top + 76 + bar * 8,
                  digits.copy(value / unit % 10 * 5, bar * 6, 5, 6));
        }
    }
}

void LayPanel(QImage& window, const Pictures& pictures) {
    constexpr int Top = 470;
    Place(window, 0, Top, pictures("stored/picSlateD.bmp"));
    LayBars(window, pictures, Top);
    for (int button = 0; button < StanceButtons; ++button) {
        const std::string state = button == 2 ? "on" : "off";
        Place(window, button == FireSwitch ? 616 : 471 + button * 35, Top + 48,
              pictures("pic/stance" + std::to_string(button) + state + ".gif"));
    }
    Place(window, 448, Top + 8, pictures("pic/counter/03.bmp"));
    Place(window, 777, Top + 32 + 12, pictures("pic/wea_75.gif").copy(0, 0, 3, 28));
    Place(window, 777, Top + 32, pictures("stored/imgBarWcover.bmp").copy(0, 0, 3, 6));
}

}  // namespace

QImage MockWindow(const Pictures& pictures) {
    QImage window = Sheet(799, 636);
    Ground(window, pictures("stored/picMap.bmp"));
    Units(window, pictures);
    Place(window, 780, 2, pictures("stored/picSlateR.bmp"));
    Place(window, 0, 10, pictures("stored/picSlateL.bmp"));
    Place(window, 0, 0, pictures("stored/picSlateU.bmp"));
    Place(window, 20 + 14 * CellSize, 0, pictures("stored/imgMarkH.gif"));
    Place(window, 780, 2 + 10 + 8 * CellSize, pictures("stored/imgMarkV.gif"));
    const QImage field = window.copy(20, 10, Columns * CellSize, Rows * CellSize);
    LayPanel(window, pictures);
    Place(window, 16, 510, field.scaled(76, 46, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    return window;
}

}  // namespace art
