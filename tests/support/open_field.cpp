#include "tests/support/open_field.h"

#include <string>

#include "data/tables.h"
#include "data/terrain.h"
#include "state/state.h"
#include "view/field_form.h"

void ClearField() {
    InitTables();
    for (int y = 0; y < FieldHeight; ++y)
        for (int x = 0; x < FieldWidth; ++x)
            PutTile(x, y, 0, Surface);
    for (int i = 0; i < UnitPlaces; ++i)
        UnitTable[i].cellX = UnitTable[i].cellY = 200;  // nowhere
    teamLast[SquadTeam] = teamLast[EnemyTeam] = -1;
    curTeam = SquadTeam;
}

void PutUnit(int index, int x, int y) {
    Unit& unit = UnitTable[index];
    const int team = index / TeamStride;
    unit.name = "u" + std::to_string(index);
    unit.team = team;
    unit.enemyTeam = team == EnemyTeam ? SquadTeam : EnemyTeam;
    unit.cellX = x;
    unit.cellY = y;
    unit.pixelX = x * CellSize;
    unit.pixelY = y * CellSize;
    unit.facing = East;
    unit.stance = Stand;
    unit.status = Active;
    unit.health = 50;
    unit.vitality = 60;
    unit.strength = 40;
    unit.agility = 40;
    unit.time = 80;
    unit.energy = 60;
    cellGrid[y][x].occupant = index;
    if (teamLast[team] < index - FirstOf(team)) teamLast[team] = index - FirstOf(team);
}
