#include "tests/support/drawn_field.h"

#include "data/tables.h"
#include "data/terrain.h"
#include "state/state.h"
#include "view/field_form.h"
#include "view/painting.h"

namespace {

struct Glyph {
    char glyph;
    int tileX;
    int tileY;
};

constexpr Glyph Glyphs[] = {{'#', 0, Concrete}, {'T', 0, Trees}, {'=', 16, Wooden}, {'.', 0, Surface}};

}  // namespace

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

void DrawField(int x, int y, const std::vector<std::string>& rows) {
    for (std::size_t j = 0; j < rows.size(); ++j) {
        for (std::size_t i = 0; i < rows[j].size(); ++i) {
            const char c = rows[j][i];
            const int cellX = x + static_cast<int>(i);
            const int cellY = y + static_cast<int>(j);
            for (const Glyph& glyph : Glyphs)
                if (glyph.glyph == c) PutTile(cellX, cellY, glyph.tileX, glyph.tileY);
            if (c >= '0' && c <= '9') PutUnit(c - '0', cellX, cellY);
            if (c >= 'a' && c <= 'j') PutUnit(FirstOf(EnemyTeam) + c - 'a', cellX, cellY);
        }
    }
}
