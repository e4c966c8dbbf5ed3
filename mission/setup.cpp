#include "mission/setup.h"

#include <string>

#include "combat/fire_modes.h"
#include "combat/things.h"
#include "data/campaign_files.h"
#include "data/countries_file.h"
#include "data/map.h"
#include "data/tables.h"
#include "data/weapons_file.h"
#include "field/geometry.h"
#include "field/moving.h"
#include "mission/mission_end.h"
#include "mission/turns.h"
#include "state/audience.h"
#include "state/chance.h"
#include "state/higher_rules.h"
#include "state/log.h"
#include "state/state.h"

namespace {

constexpr const char* MissionMap = "49";
constexpr int StartMoney = 148000;
constexpr int EnemyCountLessOne = 2;
constexpr int EnemyHealth = 41;
constexpr int EnemySkill = 50;
constexpr int EnemyFeed = 9;  // row of itemKinds
constexpr int LastLandingTeam = 4;

void CopyRosterToSquad() {
    teamLast[SquadTeam] = teamLast[RosterTeam];
    for (int i = 0; i <= teamLast[SquadTeam]; ++i)
        UnitTable[i] = UnitTable[FirstOf(RosterTeam) + i];
}

InvItem EnemyWeapon() {
    const ItemKind& feed = itemKinds[EnemyFeed];
    InvItem weapon;
    weapon.name = "ak";
    weapon.count = 1;
    weapon.ammoMain = feed.name;
    weapon.capMain = feed.sizes[0];
    weapon.roundsMain = feed.sizes[0] - 2;
    return weapon;
}

void MakeEnemy(Unit& enemy) {
    enemy.name = "zombie";
    enemy.health = EnemyHealth;
    enemy.facing = North;
    enemy.stance = Stand;
    enemy.team = EnemyTeam;
    for (u8 Unit::*skill : {&Unit::perception, &Unit::agility, &Unit::vitality, &Unit::strength,
                            &Unit::intelligence, &Unit::mood, &Unit::marksmanship, &Unit::stealth})
        enemy.*skill = EnemySkill;
    enemy.items[0] = EnemyWeapon();
}

void MakeEnemyTeam() {
    teamLast[EnemyTeam] = EnemyCountLessOne;
    for (int i = 0; i <= teamLast[EnemyTeam]; ++i)
        MakeEnemy(UnitTable[FirstOf(EnemyTeam) + i]);
    // ODDITY: only the first soldier starts in full health; the others keep what the roster says.
    UnitTable[0].health = UnitTable[0].vitality;
}

void LandTeam() {
    for (curUnit = FirstOf(curTeam); curUnit <= FirstOf(curTeam) + teamLast[curTeam]; ++curUnit) {
        AddToLog(LogName(curUnit) + " from team #" + std::to_string(curTeam) + ". Jump!", 1);
        LandUnit(curUnit);
    }
}

// Passing over a missing team right before the roster's ends the landing, so that the roster itself doesn't
// land.
void LandTeams() {
    for (curTeam = 0; curTeam <= LastLandingTeam; ++curTeam) {
        if (teamLast[curTeam] != -1)
            LandTeam();
        else if (curTeam + 1 == RosterTeam)
            return;
    }
}

LandingCell FirstFreeCell() {
    for (int x = 0; x < FieldWidth; ++x)
        for (int y = 0; y < FieldHeight; ++y)
            if (CellFreeToStep(x, y)) return {x, y};
    return {};
}

LandingCell RandomFreeCell() {
    constexpr int Tries = 2 * FieldWidth * FieldHeight;
    for (int i = 0; i < Tries; ++i) {
        const int x = RandomInt(FieldWidth - 1, 0);
        const int y = RandomInt(FieldHeight - 1, 0);
        if (CellFreeToStep(x, y)) return {x, y};
    }
    return {};
}

// ODDITY: the spot isn't tested for being free; who lands on somebody takes the cell.
LandingCell TakeLandingSpot() {
    if (teamLast[LandingSpotList] < 0) return RandomFreeCell();
    const int taken = RandomInt(teamLast[LandingSpotList], 0);
    const Spot spot = landingSpots[taken];
    for (int i = taken; i < teamLast[LandingSpotList]; ++i)
        landingSpots[i] = landingSpots[i + 1];
    --teamLast[LandingSpotList];
    return {spot.x, spot.y};
}

const char* LandingMethod(int team) {
    if (team == SquadTeam) return "corner";
    return team == EnemyTeam ? "xxx" : "random";
}

}  // namespace

void InstallRules() {
    InstallHigherRules({SelectNextUnit, EndIfEliminated, ListActions, HandSync});
}

void BeginGame(std::uint32_t seed) {
    InstallRules();
    ResetState();
    weaponPage = 1;
    money = StartMoney;
    SeedRandom(seed);
    InitTables();
    LoadCountries();
    NewGame();
    GrantStartingAwards();
}

void NewGame() {
    AddToLog("New Game", 1);
    TheAudience().MissionBegins();
    for (i16& last : teamLast)
        last = -1;
    for (const Spot& cell : LoadGroundItems(MissionMap))
        WeaponAdd(cell.x, cell.y);
    LoadStore();
    ReadMapLayers(MissionMap);
    TheAudience().MapRead();
    LoadRoster();
    CopyRosterToSquad();
    MakeEnemyTeam();
    LandTeams();
    TheAudience().MissionReady();
    curTeam = -1;
    NewTurn();
}

void LandUnit(int index) {
    Unit& unit = UnitTable[index];
    const LandingCell cell = FindLandingCell(LandingMethod(unit.team));
    if (cell.x == -1 || cell.y == -1) return;
    unit.cellX = cell.x;
    unit.cellY = cell.y;
    unit.pixelX = cell.x * CellSize;
    unit.pixelY = cell.y * CellSize;
    unit.status = Active;
    unit.hand = WeaponInfoByName("hand");
    cellGrid[cell.y][cell.x].occupant = index;
    TheAudience().UnitLanded();
    PaintUnit(0, 0);
    unit.enemyTeam = unit.team == EnemyTeam ? SquadTeam : EnemyTeam;
}

LandingCell FindLandingCell(std::string_view method) {
    if (method == "corner") return FirstFreeCell();
    if (method == "random") return RandomFreeCell();
    if (method == "xxx") return TakeLandingSpot();
    return {};
}

void GrantStartingAwards() {
    struct Grant {
        int unit;
        int row;
        int count;
    };
    static constexpr Grant Grants[] = {{0, 0, 1},  {0, 5, 1}, {0, 11, 1}, {0, 16, 2},
                                       {0, 21, 1}, {1, 0, 1}, {1, 5, 1},  {1, 8, 2}};
    for (const Grant& grant : Grants)
        UnitTable[grant.unit].awards[grant.row] = grant.count;
}
