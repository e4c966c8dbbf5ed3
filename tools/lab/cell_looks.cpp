#include "tools/lab/cell_looks.h"

#include "combat/things.h"
#include "data/terrain.h"
#include "field/geometry.h"
#include "platform/blit.h"
#include "state/state.h"
#include "view/depot_form.h"
#include "view/field_form.h"
#include "view/painting.h"
#include "view/sprites.h"

namespace {

using Looks = std::vector<Picture>;

constexpr int Stances = 4;

bool IsForest(int x, int y) {
    return cellGrid[y][x].tileY == Trees;
}

Picture Sprite(Picture look, int sprite) {
    PaintMasked(look, 0, 0, frmDepot.picSprites.canvas, sprite * CellSize, 0);
    return look;
}

// Tree tops hide who stands or lies in a forest.
Picture UnderTrees(Picture look, int x, int y) {
    const int left = cellGrid[y][x].tileX * CellSize;
    if (IsForest(x, y)) PaintMasked(look, 0, 0, frmField.picForest.canvas, left, 0);
    return look;
}

Picture Soldier(Picture look, int team, int stance, int facing) {
    const int left = (team * Stances + stance) * CellSize;
    const int top = facing * CellSize;
    PaintMasked(look, 0, 0, frmDepot.picPeople.canvas, left, top);
    return look;
}

bool LiesHere(int index, int x, int y) {
    return UnitTable[index].cellX == x && UnitTable[index].cellY == y;
}

// A charge that is no longer counted stays shown until its cell is repainted.
bool HasForgottenCharge(int x, int y) {
    for (int i = ChargeBase + teamLast[ChargeList] + 1; i < PileBase; ++i)
        if (UnitTable[i].name == "charge" && LiesHere(i, x, y)) return true;
    return false;
}

bool HasDead(int x, int y) {
    for (int i = 0; i < UnitPlaces; ++i)
        if (UnitTable[i].status == Dead && LiesHere(i, x, y)) return true;
    return false;
}

// Whether the unit must be drawn: a soldier, or an enemy that one of them has in his record.
bool MustShow(int index) {
    if (index < FirstOf(EnemyTeam)) return true;
    for (int soldier = 0; soldier <= teamLast[SquadTeam]; ++soldier)
        if (UnitTable[soldier].seen[index - FirstOf(EnemyTeam)] == 1) return true;
    return false;
}

Looks Grounds(int x, int y) {
    const Cell& cell = cellGrid[y][x];
    const bool broken = cell.tileX == BrokenTile;
    Picture tile(CellSize, CellSize);
    BitBlt(tile, 0, 0, CellSize, CellSize, frmDepot.picMap.canvas,
           (broken ? RemainsTile : int{cell.tileX}) * CellSize, cell.tileY * CellSize, RasterOp::SRCCOPY);
    const bool charge = CountAt(x, y, ChargeBase) > 0;
    Looks looks;
    if (!charge) looks.push_back(tile);
    if (charge || HasForgottenCharge(x, y)) looks.push_back(Sprite(tile, ChargeSprite));
    if (CountAt(x, y, PileBase) > 0)
        for (Picture& look : looks)
            look = Sprite(look, PileSprite);
    return looks;
}

// The unit as it stands there now.
Picture WithUnit(const Picture& bare, const Unit& unit, int x, int y) {
    return UnderTrees(Soldier(bare, unit.team, unit.stance, unit.facing), x, y);
}

void AddForgotten(Looks& looks, const Picture& bare, const Unit& enemy, int x, int y) {
    for (int stance = 0; stance < Stances; ++stance)
        for (int facing = 0; facing < FacingCount; ++facing)
            looks.push_back(UnderTrees(Soldier(bare, enemy.team, stance, facing), x, y));
}

}  // namespace

Looks BareLooks(int x, int y) {
    Looks looks = Grounds(x, y);
    if (!HasDead(x, y)) return looks;
    const Looks grounds = looks;
    for (const Picture& ground : grounds)
        looks.push_back(UnderTrees(Sprite(ground, DeadSprite), x, y));
    return looks;
}

Looks CellLooks(int x, int y) {
    Looks bare = BareLooks(x, y);
    const int occupant = cellGrid[y][x].occupant;
    if (occupant < 0) return bare;
    const Unit& unit = UnitTable[occupant];
    const bool visible = MustShow(occupant);
    Looks looks;
    for (const Picture& look : bare) {
        // Who bled to death stands until his cell is repainted.
        if (visible || unit.status == Dead) looks.push_back(WithUnit(look, unit, x, y));
        if (visible) continue;
        looks.push_back(look);
        AddForgotten(looks, look, unit, x, y);
    }
    if (unit.status == Dead) looks.insert(looks.end(), bare.begin(), bare.end());
    return looks;
}

Picture SquareOf(const Picture& field, int x, int y) {
    Picture square(CellSize, CellSize);
    BitBlt(square, 0, 0, CellSize, CellSize, field, x * CellSize, y * CellSize, RasterOp::SRCCOPY);
    return square;
}
