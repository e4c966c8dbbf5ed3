#include "view/unit_painting.h"

#include "data/terrain.h"
#include "field/sightings.h"
#include "platform/blit.h"
#include "platform/host.h"
#include "state/state.h"
#include "view/depot_form.h"
#include "view/field_form.h"
#include "view/mini_map.h"
#include "view/overlays.h"
#include "view/painting.h"
#include "view/scrolling.h"
#include "view/sound.h"

namespace {

constexpr int StancesInTeam = 4;  // columns of picPeople for each team
constexpr int MaskBelow = 160;    // pixels from a soldier's picture to its mask

void RestoreBackground(const Unit& unit) {
    BitBlt(frmField.area.canvas, unit.pixelX, unit.pixelY, CellSize, CellSize, frmField.picBuffer[curUnit], 0,
           0, RasterOp::SRCCOPY);
}

void SaveBackground(const Unit& unit) {
    BitBlt(frmField.picBuffer[curUnit], 0, 0, CellSize, CellSize, frmField.area.canvas, unit.pixelX,
           unit.pixelY, RasterOp::SRCCOPY);
}

// The cells learn where the unit stands from its pixels.
void SettleInCell(Unit& unit) {
    cellGrid[unit.cellY][unit.cellX].occupant = -1;
    unit.cellX = unit.pixelX / CellSize;
    unit.cellY = unit.pixelY / CellSize;
    cellGrid[unit.cellY][unit.cellX].occupant = curUnit;
}

void MoveUnseen(Unit& unit, int dx, int dy) {
    RestoreBackground(unit);
    unit.pixelX += dx * CellSize;
    unit.pixelY += dy * CellSize;
    SaveBackground(unit);
    SettleInCell(unit);
}

void PaintManSprite(const Unit& unit) {
    const int sourceX = (unit.team * StancesInTeam + unit.stance) * CellSize;
    const int sourceY = unit.facing * CellSize;
    PaintMasked(frmField.area.canvas, unit.pixelX, unit.pixelY, frmDepot.picPeople.canvas, sourceX, sourceY,
                sourceX, sourceY + MaskBelow);
}

void PaintFrame(Unit& unit, int dx, int dy) {
    RestoreBackground(unit);
    unit.pixelX += dx;
    unit.pixelY += dy;
    SaveBackground(unit);
    if (unit.status == Dead)
        PaintSprite(DeadSprite, unit.pixelX, unit.pixelY);
    else
        PaintManSprite(unit);
}

// Walking away from the middle of the window pulls the view along; `place` is where the walker is seen, in
// cells.
void FollowOnAxis(ScrollBar& bar, double place, double middle, int step) {
    if (place > middle && step == 1 && bar.Value < bar.Max) SetScrollValue(bar, bar.Value + step);
    if (place < middle && step == -1 && bar.Value > bar.Min) SetScrollValue(bar, bar.Value + step);
}

void FollowWalker(const Unit& unit, int dx, int dy) {
    constexpr double MiddleColumn = 18;
    constexpr double MiddleRow = 11;
    const double column = (unit.pixelX - frmField.HScrollArea.Value) / static_cast<double>(CellSize);
    const double row = (unit.pixelY - frmField.VScrollArea.Value) / static_cast<double>(CellSize);
    FollowOnAxis(frmField.HScrollArea, column, MiddleColumn, dx);
    FollowOnAxis(frmField.VScrollArea, row, MiddleRow, dy);
}

void WaitForPixel(const Unit& unit) {
    constexpr int SlowestWaits = 4;
    for (int i = 0; i < SlowestWaits - unit.stance; ++i)
        Delay(20, "normal");
}

void ShowFrame(Unit& unit, int dx, int dy) {
    const bool move = dx != 0 || dy != 0;
    if (move) WaitForPixel(unit);
    PaintFrame(unit, dx, dy);
    if (move) FollowWalker(unit, dx, dy);
    TheHost().Refresh(frmField.area);
    if (unit.team == SquadTeam) MarkCurrentUnit();
}

void MoveDot(const Unit& unit) {
    static constexpr Colour TeamColours[] = {Rgb(66, 255, 66), Rgb(255, 66, 66), Rgb(66, 66, 255)};
    PictureBox& dot = frmField.picAreaMapUnit[curUnit];
    const int team = curUnit / TeamStride;
    dot.Left = unit.cellX * MiniMapCellSize;
    dot.Top = unit.cellY * MiniMapCellSize;
    if (team < 3) dot.BackColor = TeamColours[team];
    dot.Visible = true;
}

void MoveSeen(Unit& unit, int dx, int dy) {
    const bool move = dx != 0 || dy != 0;
    const int targetX = unit.cellX + dx;
    const int targetY = unit.cellY + dy;
    if (move) {
        if (SelectionFrames(unit)) frmField.shpSelect.Visible = false;
        PlaySoundAt("bump/step1", AtCurrentUnit);
        PlaySoundAt("bump/step2", AtCurrentUnit);
        PaintCover(RaiseCover, targetX, targetY);
    }
    const int frames = move ? CellSize : 1;
    for (int frame = 0; frame < frames; ++frame)
        ShowFrame(unit, dx, dy);
    PaintCover(StampCover, targetX, targetY);
    MiniMapCell(frmField, unit.cellX, unit.cellY);
    SettleInCell(unit);
    MiniMapCell(frmField, unit.cellX, unit.cellY);
    MoveDot(unit);
}

void StampTreeTop(int x, int y, int column) {
    PaintMasked(frmField.area.canvas, x * CellSize, y * CellSize, frmField.picForest.canvas,
                column * CellSize, 0, column * CellSize, CellSize);
}

void RaiseTreeTop(int x, int y, int column) {
    ImageControl& cover = frmField.imgCover;
    LoadPicture(cover, "\\pic\\forest\\" + TwoDigits(column) + ".gif");
    cover.Left = x * CellSize;
    cover.Top = y * CellSize;
    cover.Visible = true;
}

// Whether any soldier has the enemy of that place in his record.
bool IsSighted(int place) {
    for (int soldier = 0; soldier <= teamLast[SquadTeam]; ++soldier)
        if (UnitTable[soldier].seen[place] == 1) return true;
    return false;
}

}  // namespace

void PaintUnit(int dx, int dy) {
    Unit& unit = UnitTable[curUnit];
    if (ThisVisible(unit.cellX, unit.cellY))
        MoveSeen(unit, dx, dy);
    else
        MoveUnseen(unit, dx, dy);
}

bool ThisVisible(int x, int y) {
    // The dead keep their cells. Whoever has stepped on one since is the one who may be seen.
    for (const bool dead : {false, true}) {
        const auto standsHere = [x, y, dead](int index) {
            const Unit& unit = UnitTable[index];
            return unit.cellX == x && unit.cellY == y && (unit.status == Dead) == dead;
        };
        bool anyEnemy = false;
        for (int i = 0; i < TeamStride; ++i)
            if (standsHere(i)) return true;
        for (int i = 0; i < TeamStride; ++i) {
            if (!standsHere(FirstOf(EnemyTeam) + i)) continue;
            if (IsSighted(i)) return true;
            anyEnemy = true;
        }
        if (anyEnemy) return false;
    }
    return false;
}

void PaintCover(CoverMode mode, int x, int y) {
    const Cell& cell = cellGrid[y][x];
    const bool forest = cell.tileY == Trees;
    if (mode == StampCover && forest) StampTreeTop(x, y, cell.tileX);
    if (mode == RaiseCover && forest) RaiseTreeTop(x, y, cell.tileX);
    const bool leavesForest = mode == RaiseCover && !forest && frmField.imgCover.Visible;
    if (mode == RemoveCover || leavesForest) RestOverlay(frmField.imgCover);
}
