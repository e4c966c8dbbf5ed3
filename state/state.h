// The whole game state: records in fixed tables, indexed by small integers, and a few single values. Routines
// reach it directly and most take their unit only from curUnit. ResetState puts all of it back to its start.
#pragma once

#include <string>
#include <vector>

#include "platform/arrays.h"
#include "platform/numbers.h"
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
};

struct Award {
    std::string name;  // key
    std::string title;
    i16 repeatable;  // not 0: can be given again
    i16 chained;     // not 0: a second grant passes to the next row
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
    Array<InvItem, 0, 100> items;  // slot 0 is the thing in hand
    Array<i16, 0, 25> awards;      // how many of each, by row of awardTable
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

/// What the bullets of one order share.
struct FlightValues {
    i16 muzzleX;  // pixel where the next flight starts
    i16 muzzleY;
    i16 impactX;  // cell where the last flight ended, which may lie outside the field
    i16 impactY;
    i16 bulletPower;  // strengths of the bullet, worn down on its way
    i16 bulletAccur;
    i16 bulletHorizon;  // pixel steps that the flight may take
};

struct GameState {
    GameState() {
        for (i16& last : teamLast)
            last = -1;
    }

    Array<Unit, 0, UnitCount - 1> UnitTable;
    Array<i16, 0, 9> teamLast;  // offset of the team's last member, -1 for none
    i16 curTeam = -1;           // -1 before the first turn
    i16 curUnit;
    Array<Array<Cell, 0, FieldWidth>, 0, FieldHeight> cellGrid;  // [y][x]
    Array<Array<Array<InvItem, 0, CellItemSlots - 1>, 0, FieldWidth - 1>, 0, FieldHeight - 1>
        groundItems;  // [y][x][place]
    Array<InvItem, 0, CellItemSlots - 1> storeItems;
    Array<Spot, -20, 40> landingSpots;  // the map's first spot has index 0
    std::vector<WeaponInfo> weaponTable;
    Array<ItemKind, 0, 23> itemKinds;
    Array<std::string, 0, 47> rankNames;  // short names, then from 24 on the long ones
    Array<Award, 0, 25> awardTable;
    std::vector<std::string> countryList;  // code, name, code, name, ...
    i32 money;
    i16 voiceOn;
    i16 weaponPage;  // row shown in the catalogue
    i16 feedStep;    // size step of its feed there
    i16 groundPage;  // page, 0 to 2, of the list of things at the soldier's feet
    i16 lineStartX;  // where the typewriter's line began, and its pen
    i16 penX;
    i16 penY;
    i16 voiceCycle;  // the next of the sound slots 1 to 4
    i16 fieldBusy;   // True while the whole map is painted
    i16 walkOn;      // go-ahead of a walk in progress
    i16 lastClickX;  // the cell that a left click last chose as a destination
    i16 lastClickY;
    FlightValues flight;
    ModeChoice modes;           // of the current unit; the list box shows them
    i32 orders;                 // orders of the player so far: a new one ends the walk that runs
    i32 flashes;                // of the selection so far: a new one ends the one that runs
    i16 enemyCount;             // enemies that the current unit has sighted since the last "clear"
    i16 lastSeenEnemy;          // the place that a click on the counter showed last
    bool fireInMotion = false;  // "fire in motion" is chosen, for all units; else "stop for fire"
    std::string openLine;       // the line of the log that isn't ended yet

    // Of the running operations, see state/operation.
    i16 operationDepth;
    i16 pumpedDepth;                 // how many of them wait for the innermost pump to end
    std::vector<int> handOverAsked;  // the soldiers that asked
    i16 selectedMeanwhile = -1;      // what events selected in their middle, -1 for nothing
    ModeChoice selectedModes;        // and its fire modes
};

extern GameState game;

// The tables and values under their own names.
inline auto& UnitTable = game.UnitTable;
inline auto& teamLast = game.teamLast;
inline auto& curTeam = game.curTeam;
inline auto& curUnit = game.curUnit;
inline auto& cellGrid = game.cellGrid;
inline auto& groundItems = game.groundItems;
inline auto& storeItems = game.storeItems;
inline auto& landingSpots = game.landingSpots;
inline auto& weaponTable = game.weaponTable;
inline auto& itemKinds = game.itemKinds;
inline auto& rankNames = game.rankNames;
inline auto& awardTable = game.awardTable;
inline auto& countryList = game.countryList;
inline auto& money = game.money;
inline auto& voiceOn = game.voiceOn;
inline auto& weaponPage = game.weaponPage;
inline auto& feedStep = game.feedStep;
inline auto& groundPage = game.groundPage;
inline auto& lineStartX = game.lineStartX;
inline auto& penX = game.penX;
inline auto& penY = game.penY;
inline auto& voiceCycle = game.voiceCycle;
inline auto& fieldBusy = game.fieldBusy;
inline auto& walkOn = game.walkOn;
inline auto& lastClickX = game.lastClickX;
inline auto& lastClickY = game.lastClickY;
inline auto& muzzleX = game.flight.muzzleX;
inline auto& muzzleY = game.flight.muzzleY;
inline auto& impactX = game.flight.impactX;
inline auto& impactY = game.flight.impactY;
inline auto& bulletPower = game.flight.bulletPower;
inline auto& bulletAccur = game.flight.bulletAccur;
inline auto& bulletHorizon = game.flight.bulletHorizon;

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
