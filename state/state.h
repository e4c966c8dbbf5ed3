// The whole game state: records in fixed tables, indexed by small integers, and a few single values. Routines
// reach it directly and most take their unit only from curUnit. ResetState puts all of it back to its start.
#pragma once

#include <string>
#include <vector>

#include "platform/arrays.h"
#include "platform/lazy.h"
#include "platform/numbers.h"
#include "platform/random.h"
#include "platform/rounding.h"

constexpr int HalfCell = 10;    // from a cell's edge to its centre
constexpr int CellSize = 20;    // pixels of one cell's side
constexpr int TeamStride = 20;  // team t owns the units from t * 20
constexpr int FieldWidth = 76;  // cells of the field proper; the grid has one column and one row more
constexpr int FieldHeight = 46;
constexpr int CellItemSlots = 30;  // things that can lie on one cell; also the slots of the vehicle store
constexpr int TimeToAct = 4;     // time without which a unit is passed over: what the cheapest command costs
constexpr int RosterSize = 20;   // soldiers' places in the roster
constexpr int ChargeBase = 100;  // pseudo-units of the set charges start here, team 5
constexpr int PileBase = 120;    // pseudo-units that mark piles of things, team 6
constexpr int UnitCount = 223;   // records of UnitTable
constexpr int MaxPiles = UnitCount - PileBase;

enum Facing { East, West, North, South, NorthEast, SouthEast, SouthWest, NorthWest };
enum Stance { Prone, Crouch, Stand, Run };
enum Status { NotLanded, Active, Wounded, Immobile, Dead };

// Entries of teamLast.
enum Team { SquadTeam = 0, EnemyTeam = 1, RosterTeam = 3, ChargeList = 5, PileList = 6, LandingSpotList = 7 };

/// A thing in an inventory, on the ground or in the vehicle store.
struct InvItem {
    std::string name;      // key of a weapon row or an item kind; empty: the slot is free
    u8 count;              // 1 a long thing, which needs a long slot; 0 any other
    i16 durab;             // condition
    std::string ammoMain;  // item kind of the main feed, empty for none
    u8 capMain;
    u8 roundsMain;
    std::string ammoSecond;  // item kind of the second feed, empty for none
    u8 capSecond;
    u8 roundsSecond;

    bool operator==(const InvItem&) const = default;
};

/// A row of the weapons file; also the working copy of what a unit holds.
struct WeaponInfo {
    std::string name;   // key, as in InvItem::name
    i16 range;          // reach in cells
    std::string sound;  // file under "weapons\"
    i16 power;
    i16 accur;
    i16 time;                 // time that one action costs
    i16 durab;                // condition when new, 0 to 1000; in a unit's hand, the condition now
    i16 param9;               // stored, read by nothing, as are the other params
    std::string kind;         // "m", "w", "a", "i" or "s"
    Array<i16, 0, 6> modes;   // one digit each: aimed, snap, burst length, full auto, secondary, hit, throw
    std::string weaponClass;  // item kind of the main feed, empty for none
    std::string ammoSecond;   // item kind of the second feed, empty for none
    i16 param13;
    i16 param14;
    i16 unitCount;  // InvItem::count of a new thing of this row
    i16 param16;
    std::string title;     // in the catalogue
    std::string fullName;  // tool tip
    std::string country;   // the maker's: name of a flag picture

    bool operator==(const WeaponInfo&) const = default;
};

/// A kind of ammunition or equipment.
struct ItemKind {
    std::string name;  // key
    std::string title;
    Array<i16, 0, 5> sizes;  // capacities, charges or grades that it comes in; 0 marks the end

    bool operator==(const ItemKind&) const = default;
};

struct Award {
    std::string name;  // key
    std::string title;
    i16 repeatable;  // not 0: can be given again
    i16 chained;     // not 0: a second grant passes to the next row

    bool operator==(const Award&) const = default;
};

/// A soldier or civilian; records from ChargeBase on are charges and piles instead.
struct Unit {
    i16 serialNo;
    u8 rank;
    std::string name;
    std::string country;     // two characters
    std::string facePrefix;  // the face picture's file: prefix, group, number in two digits
    std::string faceGroup;
    u8 faceNo;
    std::string faceType;  // "b" .bmp, "j" .jpg, "g" .gif
    u8 vitality;
    u8 strength;
    u8 agility;
    u8 perception;
    u8 intelligence;
    u8 mood;
    u8 marksmanship;
    u8 stealth;
    u8 melee;
    u8 sidearms;
    u8 smgs;
    u8 rifles;
    u8 machineguns;
    u8 explosives;
    u8 cellX;
    u8 cellY;
    i16 team;
    i16 enemyTeam;  // the team this unit looks for
    i16 pixelX;     // left edge on the field
    i16 pixelY;
    u8 facing;
    u8 stance;
    u8 fireMode;  // list index of comboMode
    i16 time;
    i16 health;
    i16 energy;
    i16 aimChance;  // a read-out of the panel; combat never reads it
    i16 status;
    i16 wasWounded;  // True from the first time that health fell under 31
    i16 load;
    WeaponInfo hand;
    i16 handCap;
    i16 handRounds;
    Lazy<Array<InvItem, 0, 100>> items;  // slot 0 is the thing in hand
    Array<i16, 0, 25> awards;            // how many of each, by row of awardTable
    Array<i16, 0, 30> spare;
    i16 aiWary;
    i16 aiReserve;
    Array<i16, 0, 20> seen;  // 1: has sighted the enemy of that place
    i16 itemCount;           // whether the unit stands at the vehicle store, while its file is open

    bool operator==(const Unit&) const = default;
};

struct Cell {
    i16 occupant;  // unit index, -1 for none
    i16 tileX;     // column of the tile
    i16 tileY;     // row of the tile: the terrain class
    i16 durab;     // strength left
    i16 extra;
    i16 spare;
    i16 block;  // stops: 0 nothing, 1 steps, 2 the view, 3 both

    bool operator==(const Cell&) const = default;
};

struct Spot {
    i16 x;
    i16 y;

    bool operator==(const Spot&) const = default;
};

/// The fire modes of the thing in a unit's hand.
struct ModeChoice {
    std::vector<std::string> offered;  // as "Burst [3]"
    i16 chosen = -1;                   // which of them, -1 for none
    std::string weapon;                // the thing that they were listed for

    /// The chosen one; empty for none.
    std::string Text() const {
        return chosen < 0 ? "" : offered[static_cast<std::size_t>(static_cast<int>(chosen))];
    }

    bool operator==(const ModeChoice&) const = default;
};

// What the bullets of one order share: the record and the names by which the game reaches it.
// clang-format off
#define FLIGHT_FIELDS(FIELD)                                                             \
    FIELD(muzzleX)       /* pixel where the next flight starts */                        \
    FIELD(muzzleY)                                                                       \
    FIELD(impactX)       /* cell where the last flight ended, maybe outside the field */ \
    FIELD(impactY)                                                                       \
    FIELD(bulletPower)   /* strengths of the bullet, worn down on its way */             \
    FIELD(bulletAccur)                                                                   \
    FIELD(bulletHorizon) /* pixel steps that the flight may take */
// clang-format on

#define DECLARE_FIELD(name) i16 name;
struct FlightValues {
    FLIGHT_FIELDS(DECLARE_FIELD)

    bool operator==(const FlightValues&) const = default;
};
#undef DECLARE_FIELD

using Units = Array<Unit, 0, UnitCount - 1>;
using TeamLasts = Array<i16, 0, 9>;
using CellGrid = Array<Array<Cell, 0, FieldWidth>, 0, FieldHeight>;
using Pile = Lazy<Array<InvItem, 0, CellItemSlots - 1>>;
using LandingSpots = Array<Spot, -20, 40>;
using ItemKinds = Array<ItemKind, 0, 23>;
using RankNames = Array<std::string, 0, 47>;
using Awards = Array<Award, 0, 25>;
using GroundItems = Array<Array<Pile, 0, FieldWidth - 1>, 0, FieldHeight - 1>;

// The one list of all that a mission is: the record, the names by which the game reaches its fields, and the
// comparison of two states are made of it.
// clang-format off
#define GAME_FIELDS(FIELD)                                                                                        \
    /*    type                     name               start */                                                    \
    FIELD(Units,                   UnitTable,         {})                                                         \
    FIELD(TeamLasts,               teamLast,          AllTeamsEmpty())  /* offset of the last member, -1: none */ \
    FIELD(i16,                     curTeam,           -1)               /* -1 before the first turn */            \
    FIELD(i16,                     curUnit,           0)                                                          \
    FIELD(i32,                     squadTurns,        0)                /* that the squad has begun */            \
    FIELD(std::string,             missionVerdict,    {})               /* as "Victory"; empty until the end */   \
    FIELD(CellGrid,                cellGrid,          {})               /* [y][x] */                              \
    FIELD(GroundItems,             groundItems,       {})               /* [y][x][place] */                       \
    FIELD(Pile,                    storeItems,        {})                                                         \
    FIELD(LandingSpots,            landingSpots,      {})               /* the map's first spot has index 0 */    \
    FIELD(std::vector<WeaponInfo>, weaponTable,       {})                                                         \
    FIELD(ItemKinds,               itemKinds,         {})                                                         \
    FIELD(RankNames,               rankNames,         {})               /* short names, from 24 on long ones */   \
    FIELD(Awards,                  awardTable,        {})                                                         \
    FIELD(std::vector<std::string>,countryList,       {})               /* code, name, code, name, ... */         \
    FIELD(i32,                     money,             0)                                                          \
    FIELD(i16,                     voiceOn,           0)                                                          \
    FIELD(Random,                  randomSource,      {})               /* reached through state/chance */        \
    FIELD(std::string,             openLine,          {})               /* the log's line that isn't ended */     \
    /* orders and what they leave behind */                                                                       \
    FIELD(i32,                     orderCount,        0)                /* a new one ends the walk that runs */   \
    FIELD(i16,                     walkOn,            0)                /* go-ahead of a walk in progress */      \
    FIELD(i16,                     lastClickX,        0)                /* cell that a left click last chose */   \
    FIELD(i16,                     lastClickY,        0)                                                          \
    FIELD(bool,                    fireInMotion,      false)            /* else "stop for fire"; for all */       \
    FIELD(ModeChoice,              fireModes,         {})               /* of the current unit */                 \
    FIELD(FlightValues,            flightValues,      {})                                                         \
    /* sightings */                                                                                               \
    FIELD(i16,                     enemyCount,        0)                /* by the current unit since "clear" */   \
    FIELD(i16,                     lastSeenEnemy,     0)                /* place shown by the counter's click */  \
    FIELD(i32,                     flashCount,        0)                /* a new flash ends the one that runs */  \
    /* a soldier's file */                                                                                        \
    FIELD(i16,                     shownUnit,         -1)               /* whose file it is */                    \
    FIELD(i16,                     dragSlot,          -1)               /* where the dragged thing came from */   \
    FIELD(i16,                     arrowCode,         0)                /* the catalogue's step held down */      \
    FIELD(i16,                     weaponPage,        0)                /* row shown in the catalogue */          \
    FIELD(i16,                     feedStep,          0)                /* size step of its feed there */         \
    FIELD(i16,                     groundPage,        0)                /* page, 0 to 2, of the ground's list */  \
    /* of the running operations, see state/operation */                                                          \
    FIELD(i16,                     operationDepth,    0)                                                          \
    FIELD(i16,                     pumpedDepth,       0)                /* of them wait for the pump to end */    \
    FIELD(std::vector<int>,        handOverAsked,     {})               /* the soldiers that asked */             \
    FIELD(i16,                     selectedMeanwhile, -1)               /* in their middle, -1 for nothing */     \
    FIELD(ModeChoice,              selectedModes,     {})               /* and its fire modes */
// clang-format on

/// The start of teamLast.
TeamLasts AllTeamsEmpty();

#define DECLARE_FIELD(type, name, start) type name = start;
struct GameState {
    GAME_FIELDS(DECLARE_FIELD)

    bool operator==(const GameState&) const = default;
};
#undef DECLARE_FIELD

extern GameState game;

#define DECLARE_NAME(type, name, start) inline auto& name = game.name;
GAME_FIELDS(DECLARE_NAME)
#undef DECLARE_NAME

#define DECLARE_NAME(name) inline auto& name = game.flightValues.name;
FLIGHT_FIELDS(DECLARE_NAME)
#undef DECLARE_NAME

/// Puts every value of the game state back to its start.
void ResetState();

/// The name of a unit's status, as "wounded". Throws RunTimeError for an index outside the table.
const char* UnitStatusText(int index);

/// Whether the unit is the player's and has too little time to act.
inline bool IsSpentSoldier(const Unit& unit) {
    return unit.team < EnemyTeam && unit.time < TimeToAct;
}

/// Whether the panel shows the unit: charges and piles have no panel, and no more have the enemies.
inline bool HasPanel(int unit) {
    return unit < ChargeBase && UnitTable[unit].team < EnemyTeam;
}

/// Whether (x, y) is a cell of the field proper. Any coordinates may be asked for.
constexpr bool InField(int x, int y) {
    return x >= 0 && x < FieldWidth && y >= 0 && y < FieldHeight;
}

/// The first unit of team `team`.
constexpr int FirstOf(int team) {
    return team * TeamStride;
}

/// The team that a unit's index belongs to.
constexpr int TeamOfUnit(int unit) {
    return FloorDivide(unit, TeamStride);
}

/// A unit as the log names it: its name and " (#index)".
std::string LogName(int index);
