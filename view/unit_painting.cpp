#include "view/unit_painting.h"

#include <iterator>

#include "data/terrain.h"
#include "field/moving.h"
#include "platform/blit.h"
#include "platform/host.h"
#include "state/operation.h"
#include "state/state.h"
#include "view/depot_form.h"
#include "view/field_form.h"
#include "view/field_view.h"
#include "view/mini_map.h"
#include "view/overlays.h"
#include "view/sprites.h"

namespace {

constexpr int StancesInTeam = 4;  // columns of picPeople for each team

const Unit& Current() {
    return UnitTable[curUnit];
}

void RestoreBackground(int left, int top) {
    BitBlt(frmField.area.canvas, left, top, CellSize, CellSize, frmField.picBuffer[curUnit], 0, 0,
           RasterOp::SRCCOPY);
}

void PaintMan(const Unit& unit) {
    const int sourceX = (unit.team * StancesInTeam + unit.stance) * CellSize;
    const int sourceY = unit.facing * CellSize;
    PaintMasked(frmField.area.canvas, unit.pixelX, unit.pixelY, frmDepot.picPeople.canvas, sourceX, sourceY);
}

// The unit has come (dx, dy) pixels to where it is.
void PaintFrame(const Unit& unit, int dx, int dy) {
    RestoreBackground(unit.pixelX - dx, unit.pixelY - dy);
    SaveBackground(curUnit);
    if (unit.status == Dead)
        PaintSprite(DeadSprite, unit.pixelX, unit.pixelY);
    else
        PaintMan(unit);
}

void ShowFrame(const Unit& unit) {
    TheHost().Refresh(frmField.area);
    if (unit.team == SquadTeam) MarkCurrentUnit();
}

void MoveDot(const Unit& unit) {
    static constexpr Colour TeamColours[] = {Rgb(66, 255, 66), Rgb(255, 66, 66), Rgb(66, 66, 255)};
    PictureBox& dot = frmField.picAreaMapUnit[curUnit];
    const int team = curUnit / TeamStride;
    dot.Left = unit.cellX * MiniMapCellSize;
    dot.Top = unit.cellY * MiniMapCellSize;
    if (team < static_cast<int>(std::size(TeamColours))) dot.BackColor = TeamColours[team];
    dot.Visible = true;
}

void StampTreeTop(int x, int y, int column) {
    PaintMasked(frmField.area.canvas, x * CellSize, y * CellSize, frmField.picForest.canvas,
                column * CellSize, 0);
}

void RaiseTreeTop(int x, int y, int column) {
    ImageControl& cover = frmField.imgCover;
    LoadPicture(cover, "\\pic\\forest\\" + TwoDigits(column) + ".gif");
    cover.Left = x * CellSize;
    cover.Top = y * CellSize;
    cover.Visible = true;
}

}  // namespace

void SaveBackground(int index) {
    const Unit& unit = UnitTable[index];
    BitBlt(frmField.picBuffer[index], 0, 0, CellSize, CellSize, frmField.area.canvas, unit.pixelX,
           unit.pixelY, RasterOp::SRCCOPY);
}

void PaintStanding(bool seen) {
    const Unit& unit = Current();
    if (!seen) return MoveUnseen(0, 0);
    PaintFrame(unit, 0, 0);
    ShowFrame(unit);
    EndStep(unit.cellX, unit.cellY);
}

void PaintUnitAtCell(int x, int y) {
    const int occupant = cellGrid[y][x].occupant;
    if (occupant >= 0) AsCurrentUnit(occupant, [x, y] { PaintStanding(ThisVisible(x, y)); });
}

void BeginStep(int toX, int toY) {
    if (SelectionFrames(Current())) frmField.shpSelect.Visible = false;
    PaintCover(RaiseCover, toX, toY);
}

void PaintPixelOfStep(int dx, int dy) {
    const Unit& unit = Current();
    PaintFrame(unit, dx, dy);
    FollowWalker(unit, dx, dy);
    ShowFrame(unit);
}

void EndStep(int fromX, int fromY) {
    const Unit& unit = Current();
    PaintCover(StampCover, unit.cellX, unit.cellY);
    MiniMapCell(frmField, fromX, fromY);
    MiniMapCell(frmField, unit.cellX, unit.cellY);
    MoveDot(unit);
}

void MoveUnseen(int dx, int dy) {
    const Unit& unit = Current();
    RestoreBackground(unit.pixelX - dx * CellSize, unit.pixelY - dy * CellSize);
    SaveBackground(curUnit);
}

void PaintCover(CoverMode mode, int x, int y) {
    const Cell& cell = cellGrid[y][x];
    const bool forest = cell.tileY == Trees;
    if (mode == StampCover && forest) StampTreeTop(x, y, cell.tileX);
    if (mode == RaiseCover && forest) RaiseTreeTop(x, y, cell.tileX);
    const bool leavesForest = mode == RaiseCover && !forest && frmField.imgCover.Visible;
    if (mode == RemoveCover || leavesForest) RestOverlay(frmField.imgCover);
}
