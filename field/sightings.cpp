#include "field/sightings.h"

#include <algorithm>
#include <bitset>
#include <string>

#include "field/geometry.h"
#include "field/sight.h"
#include "platform/host.h"
#include "state/state.h"
#include "view/field_form.h"
#include "view/overlays.h"
#include "view/painting.h"
#include "view/scrolling.h"

namespace {

// Where the living enemies of a unit stand, so that most cells of a fan need no look at them one by one.
class EnemyCells {
  public:
    explicit EnemyCells(int team) : first(FirstOf(team)), last(first + teamLast[team]) {
        for (int e = first; e <= last; ++e) {
            const Unit& enemy = UnitTable[e];
            if (enemy.status != Dead && InField(enemy.cellX, enemy.cellY))
                occupied[Place(enemy.cellX, enemy.cellY)] = true;
        }
    }

    // Whether a living enemy stands on this cell of the field.
    bool Any(int x, int y) const { return occupied[Place(x, y)]; }

    // Notes the living enemies on a cell in the looker's record.
    void Note(Unit& looker, int x, int y) const {
        for (int e = first; e <= last; ++e) {
            const Unit& enemy = UnitTable[e];
            if (enemy.status == Dead || enemy.cellX != x || enemy.cellY != y) continue;
            i16& seen = looker.seen[e - first];
            if (seen != 0) continue;
            seen = 1;
            PaintUnitAtCell(x, y);
            EnemyCounter("add");
            EnemyCounter("show");
        }
    }

  private:
    static std::size_t Place(int x, int y) {
        return static_cast<std::size_t>(y) * FieldWidth + static_cast<std::size_t>(x);
    }

    int first;
    int last;
    std::bitset<std::size_t{FieldWidth} * FieldHeight> occupied;
};

void ClearCounter(Unit& unit) {
    frmField.enemyCount = 0;
    frmField.imgEnemyCount.Visible = false;
    for (int i = 0; i <= teamLast[unit.enemyTeam]; ++i)
        unit.seen[i] = 0;
}

void ShowCounter() {
    const int count = frmField.enemyCount;
    if (count < 1) return;
    LoadPicture(frmField.imgEnemyCount, "\\pic\\counter\\" + TwoDigits(count) + ".bmp");
    frmField.imgEnemyCount.Visible = true;
    frmField.imgEnemyCount.ToolTipText =
        std::to_string(count) + (count == 1 ? " enemy" : " enemies") + " sighted";
}

int begunFlashes = 0;

// Waits with the frame shown or hidden. False when events have begun another flash meanwhile, which this one
// then leaves the frame to.
bool WaitInFlash(int flash, bool shown, int wait) {
    frmField.shpSelect.Visible = shown;
    Delay(wait, "mode1");
    return flash == begunFlashes;
}

void FlashSelection(const Unit& unit) {
    constexpr int Passes = 5;
    const int flash = ++begunFlashes;
    for (int i = 0; i < Passes; ++i) {
        if (!WaitInFlash(flash, false, 3)) return;
        if (!WaitInFlash(flash, SelectionFrames(unit), 2)) return;
    }
    frmField.shpSelect.Visible = false;
}

int ScrollPlace(float place, const ScrollBar& bar) {
    const float held = std::min(std::max(place, 0.0F), static_cast<float>(bar.Max));
    return static_cast<int>(RoundHalfEven(static_cast<double>(held)));
}

}  // namespace

void UnitLookEnemies() {
    Unit& looker = UnitTable[curUnit];
    looker.perception = SightPerception;
    const EnemyCells enemies(looker.enemyTeam);
    CastFan(looker.facing, looker.cellX, looker.cellY, [&](int x, int y) {
        if (!InField(x, y)) return false;
        if (enemies.Any(x, y)) enemies.Note(looker, x, y);
        return LetsViewThrough(cellGrid[y][x]);
    });
    TheHost().Refresh(frmField.area);
}

bool aiSeeCheck() {
    UnitLookEnemies();
    return frmField.enemyCount >= 1;
}

void EnemyCounter(std::string_view command) {
    if (command == "clear") ClearCounter(UnitTable[curUnit]);
    if (command == "add") ++frmField.enemyCount;
    if (command == "show") ShowCounter();
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
    int i = frmField.lastSeenEnemy;
    do {
        ++i;
        if (i > last) i = 0;
    } while (unit.seen[i] < 1);
    frmField.lastSeenEnemy = i;
    frmField.imgEnemyCount.ToolTipText = "last seen enemy #" + std::to_string(i);
    ScrollToUnit(FirstOf(unit.enemyTeam) + i);
}

void ScrollToUnit(int unit) {
    const auto width = static_cast<float>(frmField.area.Width);
    const auto height = static_cast<float>(frmField.area.Height);
    const Unit& shown = UnitTable[unit];
    // ODDITY: the two axes have different offsets, so a unit is shown half a cell left of the middle.
    const float left = static_cast<float>(shown.pixelX) - width / 4 + 20;
    const float top = static_cast<float>(shown.pixelY) - height / 4 + 10;
    SetScrollValue(frmField.HScrollArea, ScrollPlace(left, frmField.HScrollArea));
    SetScrollValue(frmField.VScrollArea, ScrollPlace(top, frmField.VScrollArea));
    frmField.shpSelect.Left = shown.pixelX;
    frmField.shpSelect.Top = shown.pixelY;
    MarkCurrentUnit();
    FlashSelection(shown);
}

bool SelectionFrames(const Unit& unit) {
    return frmField.shpSelect.Left == unit.pixelX && frmField.shpSelect.Top == unit.pixelY;
}

void MarkCurrentUnit() {
    frmField.imgMarkH.Left = frmField.area.Left + UnitTable[curUnit].pixelX;
    frmField.imgMarkV.Top = frmField.area.Top + UnitTable[curUnit].pixelY;
}
