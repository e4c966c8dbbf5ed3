#include "tools/lab/firing_range.h"

#include <algorithm>
#include <string_view>

#include "combat/actions.h"
#include "combat/fire_modes.h"
#include "combat/things.h"
#include "data/new_item.h"
#include "data/tables.h"
#include "data/weapons_file.h"
#include "field/geometry.h"
#include "field/walking.h"
#include "mission/setup.h"
#include "mission/turns.h"
#include "state/chance.h"
#include "state/operation.h"
#include "tools/field_tile.h"

namespace {

constexpr int ShooterPlace = 0;
constexpr int TargetPlace = FirstOf(EnemyTeam);
constexpr int SparePlace = TargetPlace + 1;  // lives somewhere, so that a dead target ends no mission
constexpr int Nowhere = 200;

// Within the part of the field where blows work, and far from its edges.
constexpr Spot FiringPlace = {6, 12};

void ClearField() {
    for (int y = 0; y < FieldHeight; ++y)
        for (int x = 0; x < FieldWidth; ++x)
            PutTile(x, y, 0, Surface);
    teamLast[ChargeList] = teamLast[PileList] = -1;
}

void ClearGround() {
    for (auto& row : groundItems)
        for (auto& places : row)
            places = {};
}

Unit MiddleMarksman() {
    std::vector<int> skills;
    for (int i = 0; i <= teamLast[SquadTeam]; ++i)
        skills.push_back(UnitTable[i].marksmanship);
    std::sort(skills.begin(), skills.end());
    int place = 0;
    while (UnitTable[place].marksmanship != skills[skills.size() / 2])
        ++place;
    return UnitTable[place];
}

void PutUnit(int index, int x, int y) {
    Unit& unit = UnitTable[index];
    unit.cellX = x;
    unit.cellY = y;
    unit.pixelX = x * CellSize;
    unit.pixelY = y * CellSize;
    if (InField(x, y)) cellGrid[y][x].occupant = index;
}

// A new one, with the largest magazine of its kind where it takes magazines, and full.
InvItem Loaded(const std::string& weapon) {
    const WeaponInfo& row = WeaponInfoByName(weapon);
    InvItem item = MakeItem(row);
    const auto& sizes = ItemKindByName(row.weaponClass).sizes;
    if (row.kind == "m") item.capMain = static_cast<int>(*std::max_element(sizes.begin(), sizes.end()));
    item.roundsMain = item.capMain;
    item.roundsSecond = item.capSecond;
    return item;
}

}  // namespace

FiringRange::FiringRange() {
    InstallAudience(&hits);
    BeginGame(1);
    ClearField();
    ClearGround();
    UnitTable[ShooterPlace] = MiddleMarksman();
    for (int i = ShooterPlace + 1; i < ChargeBase; ++i)
        PutUnit(i, Nowhere, Nowhere);
    teamLast[SquadTeam] = ShooterPlace;
    teamLast[EnemyTeam] = SparePlace - FirstOf(EnemyTeam);
    Unit& soldier = UnitTable[ShooterPlace];
    soldier.time = TimeOfTurn(soldier);
    shooter = soldier;
    target = UnitTable[TargetPlace];
    cells = cellGrid;
}

const Unit& FiringRange::Shooter() const {
    return shooter;
}

const Unit& FiringRange::Target() const {
    return target;
}

std::vector<std::string> FiringRange::ModesOf(const std::string& weapon) {
    SetUp({.weapon = weapon});
    return fireModes.offered;
}

Score FiringRange::Fire(const Drill& drill, int orders, std::uint32_t seed) {
    SetUp(drill);
    SeedRandom(seed);
    const int x = target.pixelX + HalfCell;
    const int y = target.pixelY + HalfCell;
    Score score;
    for (; score.orders < orders; ++score.orders) {
        PutBack();
        // A spent soldier would hand over, and the computer's turn would begin.
        HoldHandOver([x, y] { ActOnTarget(x, y); });
        const Unit& firing = UnitTable[ShooterPlace];
        const Unit& aimedAt = UnitTable[TargetPlace];
        score.hitting += hits.count > 0 ? 1 : 0;
        score.hits += hits.count;
        score.damage += target.health - aimedAt.health;
        score.killed += aimedAt.status == Dead ? 1 : 0;
        score.disabled += aimedAt.status == Dead || aimedAt.status == Immobile ? 1 : 0;
        score.time += shooter.time - firing.time;
        score.energy += shooter.energy - firing.energy;
    }
    PutBack();
    return score;
}

void FiringRange::SetUp(const Drill& drill) {
    ClearField();
    const int x = FiringPlace.x + drill.east;
    const int y = FiringPlace.y + drill.south;
    for (int column = x - drill.screen.farthest; column <= x - drill.screen.nearest; ++column)
        for (int row = 0; row < FieldHeight; ++row)
            PutTile(column, row, drill.screen.tile, drill.screen.terrain);
    PutUnit(ShooterPlace, FiringPlace.x, FiringPlace.y);
    PutUnit(TargetPlace, x, y);
    Unit& soldier = UnitTable[ShooterPlace];
    soldier.items[0] = Loaded(drill.weapon);
    soldier.stance = drill.shooterStance;
    UnitTable[TargetPlace].stance = drill.targetStance;
    UnitTable[TargetPlace].facing = drill.targetFacing;
    curUnit = ShooterPlace;
    mode = drill.mode;
    RefreshHand();
    ChooseMode(mode);
    modeText = fireModes.Text();
    const auto centre = [](int cell) { return static_cast<float>(cell * CellSize + HalfCell); };
    TurnTowards(centre(x), centre(y));
    soldier.time = TimeOfTurn(soldier);
    shooter = soldier;
    target = UnitTable[TargetPlace];
    cells = cellGrid;
}

void FiringRange::PutBack() {
    UnitTable[ShooterPlace] = shooter;
    UnitTable[TargetPlace] = target;
    cellGrid = cells;
    // Things come to lie where a flight ended or a soldier fell.
    if (InField(impactX, impactY)) groundItems[impactY][impactX] = {};
    groundItems[target.cellY][target.cellX] = {};
    teamLast[ChargeList] = teamLast[PileList] = -1;
    curUnit = ShooterPlace;
    openLine.clear();
    hits.count = 0;
    if (fireModes.Text() == modeText) return;
    fireModes.weapon.clear();  // the last thing was thrown away, or folded
    RefreshHand();
    ChooseMode(mode);
}
