#include "view/commands.h"

#include <cmath>
#include <string>

#include "combat/fire_modes.h"
#include "data/terrain.h"
#include "field/geometry.h"
#include "field/sightings.h"
#include "field/walking.h"
#include "mission/orders.h"
#include "mission/turns.h"
#include "personal/personal_file.h"
#include "platform/keys.h"
#include "platform/rounding.h"
#include "state/state.h"
#include "view/field_form.h"
#include "view/mini_map.h"

namespace {

void StepMode(int by) {
    comboMode_Click(fireModes.chosen + by);
}

struct KeyCommand {
    int code;
    void (*run)(int argument);
    int argument;
    bool isOrder = true;  // to the unit: it ends the walk that runs
};

void StepKey(int dir) {
    TurnOrStep(true, dir);
}

constexpr KeyCommand KeyCommands[] = {
    {EnterKey, [](int) { OpenInfo(); }, 0},
    {EscapeKey, [](int) { TimeSpendAll(); }, 0},
    {SpaceKey, [](int) { SelectNextUnit(); }, 0},
    {PageUpKey, StepKey, NorthEast},
    {PageDownKey, StepKey, SouthEast},
    {EndKey, StepKey, SouthWest},
    {HomeKey, StepKey, NorthWest},
    {LeftKey, StepKey, West},
    {UpKey, StepKey, North},
    {RightKey, StepKey, East},
    {DownKey, StepKey, South},
    {Pad1Key, StepKey, SouthWest},
    {Pad2Key, StepKey, South},
    {Pad3Key, StepKey, SouthEast},
    {Pad4Key, StepKey, West},
    {Pad6Key, StepKey, East},
    {Pad7Key, StepKey, NorthWest},
    {Pad8Key, StepKey, North},
    {Pad9Key, StepKey, NorthEast},
    {OpenBracketKey, StepMode, -1},
    {'M', [](int) { ToggleBigMap(); }, 0, false},
    {CloseBracketKey, StepMode, +1},
};

int CellUnder(float pixel) {
    return static_cast<int>(std::floor(pixel / static_cast<float>(CellSize)));
}

// A click on the squad's vehicle opens its store for a soldier who faces it. Whether he still has the order
// then.
bool OpenStore(int cellX, int cellY) {
    if (!IsStoreTile(cellX, cellY) || !FacingStoreTile(curUnit)) return true;
    const int opener = curUnit;
    OpenInfo();
    return curUnit == opener;
}

// A click on the field with the left button: a selection, or an order to turn and then to walk.
void OrderByClick(int cellX, int cellY, float x, float y) {
    if (SelectAt(cellX, cellY)) return;
    // The order is for the soldier who was at the store when it was given.
    if (OpenStore(cellX, cellY)) GoTo(cellX, cellY, x, y);
}

}  // namespace

void Form_KeyDown(int code) {
    PassOverUnfit();
    if (frmField.bigMapShown) return ToggleBigMap();
    for (const KeyCommand& command : KeyCommands) {
        if (command.code != code) continue;
        if (command.isOrder) ++orderCount;
        return command.run(command.argument);
    }
}

std::optional<int> FacingOfKey(int code) {
    for (const KeyCommand& command : KeyCommands)
        if (command.code == code && command.run == StepKey) return command.argument;
    return {};
}

void area_MouseDown(int button, float x, float y) {
    if (button == LeftButton) OrderByClick(CellUnder(x), CellUnder(y), x, y);
    if (button == RightButton) ActAt(x, y);
}

void area_MouseMove(float x, float y) {
    AreaTooltip(WholePixel(x), WholePixel(y), frmField);
}

void comboMode_Click(int index) {
    if (index >= 0 && index < static_cast<int>(fireModes.offered.size())) ChooseMode(index);
}

void imgEnemyCount_Click() {
    const Unit& unit = UnitTable[curUnit];
    // The counter may still show what another unit saw, in the moment in which a unit is being selected.
    const int last = teamLast[unit.enemyTeam];
    const auto anySeen = [&unit, last] {
        for (int place = 0; place <= last; ++place)
            if (unit.seen[place] >= 1) return true;
        return false;
    };
    if (!anySeen()) return;
    int i = lastSeenEnemy;
    do {
        ++i;
        if (i > last) i = 0;
    } while (unit.seen[i] < 1);
    lastSeenEnemy = i;
    frmField.imgEnemyCount.ToolTipText = "last seen enemy #" + std::to_string(i);
    ScrollToUnit(FirstOf(unit.enemyTeam) + i);
}

// ODDITY: the tip reads out any unit under the pointer, sighted or not.
void AreaTooltip(int x, int y, Form& form) {
    const int column = CellOfPixel(x);
    const int row = CellOfPixel(y);
    const Cell& cell = cellGrid[row][column];
    std::string text;
    if (cell.occupant < 0) {
        const char* terrain = TerrainName(cell.tileY);
        text = std::to_string(cell.tileY) + " (" + (terrain != nullptr ? terrain : "") + ") with " +
               std::to_string(cell.durab);
    } else {
        const Unit& unit = UnitTable[cell.occupant];
        text = unit.name + ":" + std::to_string(unit.health) + ":" + UnitStatusText(cell.occupant) +
               " t:" + std::to_string(unit.time) + " weapon:" + unit.hand.name;
    }
    frmField.area.ToolTipText = text;
    form.Caption = form.Tag + " [" + std::to_string(column) + "," + std::to_string(row) + "]";
}
