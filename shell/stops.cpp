#include "shell/stops.h"

#include <string>
#include <string_view>

#include "state/state.h"
#include "view/events.h"
#include "view/field_form.h"

namespace {

struct StopRow {
    std::string_view control;
    int first;  // places in the control array, -1 for a control on its own
    int last;
    const char* words;  // numbered from 1 where there are several
    char letter;        // of the first place; the next ones have the next digits
};

constexpr StopRow Stops[] = {
    // clang-format off
    // control                  first last  words                    letter
    {"frmField.area",             -1,  -1, "Field",                   '\0'},
    {"frmField.picAreaWhole",     -1,  -1, "Back to the field",       '\0'},
    {"frmField.VScrollArea",      -1,  -1, "Scroll north and south",  '\0'},
    {"frmField.HScrollArea",      -1,  -1, "Scroll west and east",    '\0'},
    {"frmField.cmbLog",           -1,  -1, "Log",                     'L'},
    {"frmField.imgEnemyCount",    -1,  -1, "Next sighted enemy",      'N'},
    {"frmField.picBarWeapon",     -1,  -1, "Weapon's frame",          '\0'},
    {"frmField.imgInv",            0,   0, "Weapon",                  '\0'},
    {"frmField.comboMode",        -1,  -1, "Fire mode",               'M'},
    {"frmField.cmdNextTurn",      -1,  -1, "",                        'E'},
    {"frmField.picAreaMap",       -1,  -1, "Small map",               '\0'},
    {"frmField.picAreaMapCover",  -1,  -1, "Whole map",               '\0'},
    {"frmField.imgStance",         0,   3, "Stance",                  '1'},
    {"frmField.imgStop",          -1,  -1, "Fire while walking",      '5'},

    {"frmInfo.imgInv",             0,   0, "Hand",                    '\0'},
    {"frmInfo.imgInv",             1,   3, "Long place",              '\0'},
    {"frmInfo.imgInv",             4,   4, "Head",                    '\0'},
    {"frmInfo.imgInv",             5,   5, "Body",                    '\0'},
    {"frmInfo.imgInv",             6,   6, "Back",                    '\0'},
    {"frmInfo.imgInv",             7,   9, "Belt",                    '\0'},
    {"frmInfo.imgInv",            10,  21, "Pocket",                  '\0'},
    {"frmInfo.imgInv",            30,  59, "Ground",                  '\0'},
    {"frmInfo.imgAward",           0,  24, "Award",                   '\0'},
    {"frmInfo.cmdGndPage",         0,   2, "Ground page",             '1'},
    {"frmInfo.cmdPrev",           -1,  -1, "Previous soldier",        'P'},
    {"frmInfo.cmdNext",           -1,  -1, "Next soldier",            'N'},
    {"frmInfo.picB1",             -1,  -1, "Soldier's state, then close", 'S'},
    {"frmInfo.imgDel",            -1,  -1, "Bin for what the hand holds", '\0'},
    {"frmInfo.imgUpDn",            1,   1, "Catalogue: next thing",   '\0'},
    {"frmInfo.imgUpDn",            2,   2, "Catalogue: smaller feed", '\0'},
    {"frmInfo.imgUpDn",            3,   3, "Catalogue: larger feed",  '\0'},
    // clang-format on
};

constexpr std::string_view MainStops[] = {"frmField.area", "frmInfo.imgInv"};  // their first places

struct GridRow {
    std::string_view control;
    int square;     // pixels
    int fieldCell;  // pixels that show a cell of the field
};

constexpr GridRow Grids[] = {
    {"frmField.area", CellSize, CellSize},
    {"frmField.picAreaMap", 8, 2},
};

std::string FullName(const Control& control) {
    return control.form->name + "." + control.name;
}

const StopRow* RowOf(const Control& control) {
    const std::string name = FullName(control);
    for (const StopRow& row : Stops)
        if (row.control == name && control.index >= row.first && control.index <= row.last) return &row;
    return nullptr;
}

const GridRow* GridRowOf(const Control& control) {
    const std::string name = FullName(control);
    for (const GridRow& row : Grids)
        if (row.control == name) return &row;
    return nullptr;
}

PixelPoint MiddleOfCell(int unit, int cellSize) {
    const Unit& shown = UnitTable[unit];
    return {shown.cellX * cellSize + cellSize / 2, shown.cellY * cellSize + cellSize / 2};
}

}  // namespace

bool IsDrawn(const Control& control) {
    return control.kind == ControlKind::PictureBox || control.kind == ControlKind::Image;
}

bool IsStop(const Control& control) {
    switch (control.kind) {
        case ControlKind::HScrollBar:
        case ControlKind::VScrollBar:
        case ControlKind::Combo:
        case ControlKind::List:
        case ControlKind::Button:
            return true;
        default:
            return IsDrawn(control) && TakesInput(control);
    }
}

bool IsMainStop(const Control& control) {
    const std::string name = FullName(control);
    for (const std::string_view stop : MainStops)
        if (stop == name) return control.index <= 0;
    return false;
}

std::string StopWords(const Control& control) {
    const StopRow* const row = RowOf(control);
    if (row == nullptr) return {};
    if (row->first == row->last) return row->words;
    return row->words + std::string(" ") + std::to_string(control.index - row->first + 1);
}

char ShortcutLetter(const Control& control) {
    const StopRow* const row = RowOf(control);
    if (row == nullptr || row->letter == '\0') return '\0';
    return static_cast<char>(row->letter + control.index - row->first);
}

int GridOf(const Control& control) {
    const GridRow* const row = GridRowOf(control);
    return row == nullptr ? 0 : row->square;
}

PixelPoint StartOn(const Control& control) {
    const GridRow* const row = GridRowOf(control);
    return MiddleOfCell(curUnit, row->fieldCell);
}

std::optional<PixelPoint> ShownBy(const Control& control) {
    if (&control != &frmField.imgEnemyCount) return std::nullopt;
    return MiddleOfCell(FirstOf(UnitTable[curUnit].enemyTeam) + lastSeenEnemy, CellSize);
}
