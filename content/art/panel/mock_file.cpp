#include "panel/mock_file.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>

#include "badges/medals.h"
#include "kit/canvas.h"
#include "panel/typewriter_glyphs.h"

namespace art {
namespace {

struct Row {
    std::string_view label;
    int value;
};

constexpr Row Rows[] = {
    {"VITALITY:       ", 88},  {"STRENGTH:       ", 78}, {"AGILITY:        ", 74}, {"PERCEPTION:     ", 72},
    {"INTELLIGENCE:   ", 82},  {"MOOD:           ", 76}, {"MARKSMANSHIP:   ", 74}, {"STEALTH:        ", 60},
    {"MELEE:          ", 62},  {"SIDEARMS:       ", 70}, {"SMGS:           ", 66}, {"RIFLES:         ", 78},
    {"MACHINEGUNS:    ", 100}, {"EXPLOSIVES:     ", 5},
};

constexpr int RowsLeft = 440;
constexpr int RowsTop = 120;
constexpr int RowPitch = 20;

struct Lying {
    const char* name;
    int x, y;
};

constexpr Lying Things[] = {
    {"m430", 152, 218},    {"mp5sd31", 27, 218}, {"helmet", 227, 120}, {"vest", 227, 168},
    {"p22617", 27, 68},    {"med", 27, 118},     {"knife", 27, 168},   {"5nato30", 277, 218},
    {"5nato30", 327, 218}, {"m67", 377, 218},    {"map", 277, 268},    {"binocular", 327, 268},
    {"m2420", 622, 68},    {"ak31", 622, 118},   {"7ak31", 659, 168},  {"etool", 622, 218},
    {"m249200", 622, 268}, {"pack", 277, 168},
};

// Yellow fades to black along the bar.
void Bar(QImage& window, int value, int top) {
    const int length = static_cast<int>(std::lrint(value * 1.5 + 10));
    for (int x = 0; x < length; ++x) {
        const int fall = 252 * x / length;
        for (int y = -1; y <= 5; ++y)
            window.setPixel(RowsLeft + 1 + x, top + y, qRgb(255 - fall, 255 - fall, std::max(0, 100 - fall)));
    }
}

void Texts(QImage& window) {
    Stamp(window, 240, 80, "  CPT");
    Stamp(window, 240, 110, "MARCUS HALE");
    int row = 0;
    for (const Row& line : Rows) {
        const std::string value = std::to_string(line.value);
        const std::string text =
            std::string(line.label.substr(0, 18 - value.size())) +
            std::string(18 - std::min<std::size_t>(18, line.label.size() + value.size()), ' ') + value;
        Stamp(window, RowsLeft, RowsTop + row * RowPitch, text);
        Bar(window, line.value, RowsTop + row * RowPitch + 15);
        ++row;
    }
}

}  // namespace

QImage MockFile(const Pictures& pictures) {
    QImage window = pictures("stored/frmInfo.bmp");
    Place(window, 78, 69, pictures("pic/faces/usa01.bmp"));
    Texts(window);
    Place(window, 264, 72, pictures("pic/chevrons/cpt.gif"));
    Place(window, 490, 90, pictures("pic/flags/US.gif"));
    Place(window, 277, 218, pictures("pic/inv/infoPack6.bmp"));
    for (const Lying& thing : Things)
        Place(window, thing.x, thing.y, pictures(std::string("pic/inv/") + thing.name + ".gif"));
    Place(window, 246, 219, pictures("pic/flags/US.gif"));
    const std::vector<std::string> awards = AwardsOften();
    for (int i = 0; i < static_cast<int>(awards.size()); ++i)
        Place(window, 26 + i % 5 * 110, 417 + i / 5 * 40, pictures(awards[static_cast<std::size_t>(i)]));
    Place(window, 536, 424, pictures("stored/imgBut8.bmp").copy(0, 0, 49, 17));
    return window;
}

}  // namespace art
