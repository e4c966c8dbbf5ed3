#include "data/tables.h"

#include <array>
#include <cstddef>

#include "data/weapons_file.h"

namespace {

struct KindRow {
    const char* name;
    const char* title;
    std::array<int, 6> sizes;
};

struct RankRow {
    const char* shortName;
    const char* longName;
};

struct AwardRow {
    const char* name;
    const char* title;
    int repeatable;
    int chained;
};

// clang-format off
// ODDITY: the calibre of "5ak" is written with the Cyrillic letter U+0445; the player sees no difference.
constexpr std::array<KindRow, 24> KindRows = {{
    // key       title                                    sizes it comes in
    {"9para",    "9x19mm Parabellum",                     {10, 17, 31, 49}},
    {"5nato",    "5.56x45mm NATO (.223 Remington)",       {10, 20, 30, 120}},
    {"8lapua",   "8.60x70mm (.338 Lapua magnum)",         {10, 18}},
    {"40gren",   "40mm NATO round",                       {3, 12}},
    {"gren",     "Grenade",                               {1}},
    {"knife",    "Battle knife",                          {1, 3}},
    {"helmet",   "Armored helmet",                        {100, 144}},
    {"vest",     "Armored vest",                          {100, 124, 156, 180, 230}},
    {"pack",     "Back pack",                             {3, 6, 9, 12}},
    {"7ak",      "7.62x39mm Kalashnikov",                 {31, 62}},
    {"med",      "Medical kit",                           {40, 160}},
    {"5saw",     "5.56x45mm NATO SAW",                    {200}},
    {"12gauge",  "12 gauge shotgun shell",                {12, 6}},
    {"9sp",      "9x39mm Special Purpose",                {10, 20}},
    {"arrows",   "Crossbow arrows",                       {8}},
    {"7nato",    "7.62x51mm NATO (.308 Winchester)",      {5, 10, 20, 30}},
    {"5ak",      "5.45х39mm Kalashnikov",                 {31, 62}},
    {"darts",    "Darts",                                 {24}},
    {"7saw",     "7.62x51mm NATO",                        {100}},
    {"57fn",     "5.7x28mm FN (NATO SS190)",              {20}},
    {"57p90",    "5.7x28mm FN (NATO SS190)",              {50}},
    {"22lr",     "5.6x15mm Rim Fire (.22RF Long Rifle)",  {50}},
    {"4air",     "4.5mm Airgun (.177)",                   {250}},
    {"7brit",    "7.7x56mm R (.303 British)",             {10}},
}};

constexpr std::array<RankRow, 24> RankRows = {{
    {"PVT", "Private"},
    {"PFC", "Private First Class"},
    {"LCP", "Lance Corporal"},
    {"CPL", "Corporal"},
    {"SGT", "Sergeant"},
    {"SSG", "Staff Sergeant"},
    {"SFC", "Sergeant First Class"},
    {"MSG", "Master Sergeant"},
    {"SGM", "Sergeant Major"},
    {"WO1", "Warrant Officer 1"},
    {"CW2", "Chief Warrant Officer 2"},
    {"CW3", "Chief Warrant Officer 3"},
    {"CW4", "Chief Warrant Officer 4"},
    {"CW5", "Chief Warrant Officer 5"},
    {"2LT", "Second Lieutenant"},
    {"1LT", "First Lieutenant"},
    {"CPT", "Captain"},
    {"MAJ", "Major"},
    {"LTC", "Lieutenant Colonel"},
    {"COL", "Colonel"},
    {"BRG", "Brigadier General"},
    {"MAG", "Major General"},
    {"LTG", "Lieutenant General"},
    {"GEN", "General"},
}};

// The last row of the award table has no content.
constexpr std::array<AwardRow, 25> AwardRows = {{
    // key      title                                repeatable  chained
    {"MOH",    "Medal of Honor",                     0,         -1},
    {"DSC",    "Distinguished Service Cross",        1,         -1},
    {"DSM",    "Distinguished Service Medal",        1,         -1},
    {"SS",     "Silver Star",                        1,         -1},
    {"SSM",    "Superior Service Medal",             1,         -1},
    {"LOM",    "Legion of Merit",                    0,         -1},
    {"SM",     "Soldier's Medal",                    1,         -1},
    {"BS",     "Bronze Star",                        1,         -1},
    {"PH",     "Purple Heart",                       1,         0},
    {"MSM",    "Meritorious Service Medal",          1,         -1},
    {"ARCOM",  "Army Commendation Medal",            1,         -1},
    {"AAM",    "Army Achievement Medal",             1,         -1},
    {"CAR",    "Combat Action Ribbon",               1,         0},
    {"GLM",    "Gold Lifesaving Medal",              1,         0},
    {"SLM",    "Silver Lifesaving Medal",            1,         0},
    {"POW",    "Prisoner of War Medal",              1,         0},
    {"GCM",    "Good Conduct Medal",                 1,         0},
    {"MCB",    "Major Combat Bar",                   0,         0},
    {"LCB",    "Lieutenant Colonel Combat Bar",      0,         0},
    {"CCB",    "Colonel Combat Bar",                 0,         0},
    {"EKC",    "Enemy Kills Counter",                1,         0},
    {"SOSR",   "Special Operations Service Ribbon",  1,         0},
    {"SGSR",   "Security Guard Service Ribbon",      1,         0},
    {"RSR",    "Recruiting Service Ribbon",          1,         0},
    {"DISR",   "Drill Instructor Service Ribbon",    1,         0},
}};
// clang-format on

void FillItemKinds() {
    for (std::size_t row = 0; row < KindRows.size(); ++row) {
        ItemKind& kind = itemKinds[static_cast<int>(row)];
        kind.name = KindRows[row].name;
        kind.title = KindRows[row].title;
        for (std::size_t i = 0; i < KindRows[row].sizes.size(); ++i)
            kind.sizes[static_cast<int>(i)] = KindRows[row].sizes[i];
    }
}

void FillRanks() {
    for (std::size_t rank = 0; rank < RankRows.size(); ++rank) {
        rankNames[static_cast<int>(rank)] = RankRows[rank].shortName;
        rankNames[static_cast<int>(rank) + LongNames] = RankRows[rank].longName;
    }
}

void FillAwards() {
    for (std::size_t row = 0; row < AwardRows.size(); ++row) {
        Award& award = awardTable[static_cast<int>(row)];
        award.name = AwardRows[row].name;
        award.title = AwardRows[row].title;
        award.repeatable = AwardRows[row].repeatable;
        award.chained = AwardRows[row].chained;
    }
}

}  // namespace

void InitTables() {
    FillItemKinds();
    ReadWeapons();
    FillRanks();
    FillAwards();
}

const ItemKind& ItemKindByName(std::string_view key) {
    static const ItemKind none;
    for (const ItemKind& kind : itemKinds)
        if (kind.name == key) return kind;
    return none;
}
