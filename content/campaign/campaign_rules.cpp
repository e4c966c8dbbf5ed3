#include "campaign_rules.h"

#include "data/campaign_layout.h"
#include "data/countries_file.h"
#include "data/tables.h"
#include "data/weapons_file.h"
#include "nearest.h"
#include "platform/quoted.h"
#include "source_text.h"

namespace {

constexpr int MaxAttribute = 100;
constexpr int MinAgility = 2;  // a turn's time is twice the agility, and who has under 4 can't act
constexpr int MaxDurab = 1000;
constexpr int LastLongSlot = 3;  // long things fit the hand and the long places
constexpr int HeadSlot = 4, BodySlot = 5, BackSlot = 6;
constexpr std::size_t CountryLength = 2;

// clang-format off
const SoldierNumber Numbers[] = {
    // key             field           member               low  high
    {"serial",        "serialNo",      &Unit::serialNo,        0, 32767},
    {"vitality",      "vitality",      &Unit::vitality,        1, MaxAttribute},
    {"strength",      "strength",      &Unit::strength,        1, MaxAttribute},
    {"agility",       "agility",       &Unit::agility,         MinAgility, MaxAttribute},
    {"perception",    "perception",    &Unit::perception,      1, MaxAttribute},
    {"intelligence",  "intelligence",  &Unit::intelligence,    1, MaxAttribute},
    {"mood",          "mood",          &Unit::mood,            1, MaxAttribute},
    {"marksmanship",  "marksmanship",  &Unit::marksmanship,    1, MaxAttribute},
    {"stealth",       "stealth",       &Unit::stealth,         1, MaxAttribute},
    {"melee",         "melee",         &Unit::melee,           1, MaxAttribute},
    {"sidearms",      "sidearms",      &Unit::sidearms,        1, MaxAttribute},
    {"smgs",          "smgs",          &Unit::smgs,            1, MaxAttribute},
    {"rifles",        "rifles",        &Unit::rifles,          1, MaxAttribute},
    {"machineguns",   "machineguns",   &Unit::machineguns,     1, MaxAttribute},
    {"explosives",    "explosives",    &Unit::explosives,      1, MaxAttribute},
    {"time",          "time",          &Unit::time,            0, 800},
    {"health",        "health",        &Unit::health,          1, 255},
    {"energy",        "energy",        &Unit::energy,          0, 800},
};
// clang-format on

struct WornPlace {
    int slot;
    const char* kind;  // what alone it takes
};

constexpr WornPlace WornPlaces[] = {{HeadSlot, "helmet"}, {BodySlot, "vest"}, {BackSlot, "pack"}};

// One of a thing's two feeds, and the names of its fields.
struct Feed {
    const char* kindField;
    const char* capField;
    const char* roundsField;
    std::string kind, rowKind;
    int capacity, rounds;
};

std::string ShownKey(const std::string& key) {
    return key.empty() ? "no kind" : Quoted(key);
}

void CheckFeed(const Feed& feed, const std::string& thing, std::vector<Flaw>& flaws) {
    if (feed.kind != feed.rowKind)
        flaws.push_back({feed.kindField, thing + " isn't fed with " + ShownKey(feed.kind),
                         ShownKey(feed.rowKind), Nearest(feed.kind, {feed.rowKind})});
    // A thing that is its own round, a charge, has one and no kind.
    if (feed.rowKind.empty() && feed.capacity > 1)
        flaws.push_back({feed.capField, thing + " has no such feed", "0/0 or 1/1", ""});
    if (feed.rounds > feed.capacity)
        flaws.push_back(
            {feed.roundsField,
             std::to_string(feed.rounds) + " rounds in a feed for " + std::to_string(feed.capacity),
             std::to_string(feed.capacity) + " at most", ""});
}

bool ComesInSizes(const WeaponInfo& row) {
    return row.kind == "m" || row.kind == "a" || row.kind == "i";
}

void CheckSize(const WeaponInfo& row, int capacity, std::vector<Flaw>& flaws) {
    const ItemKind& kind = ItemKindByName(row.weaponClass);
    if (!ComesInSizes(row) || kind.name.empty() || (row.kind == "m" && capacity == 0)) return;
    std::vector<std::string> sizes;
    for (const i16 size : kind.sizes) {
        if (size == capacity && size != 0) return;
        if (size != 0) sizes.push_back(std::to_string(size));
    }
    flaws.push_back({"capMain", Quoted(row.weaponClass) + " doesn't come in size " + std::to_string(capacity),
                     "one of " + JoinWords(sizes), ""});
}

std::vector<std::string> RowNames() {
    std::vector<std::string> names;
    names.reserve(weaponTable.size());
    for (const WeaponInfo& row : weaponTable)
        names.push_back(row.name);
    return names;
}

// The game reads the feeds' keys in an empty slot too, where an earlier thing may have left some.
std::vector<Flaw> EmptySlotFlaws(const InvItem& item) {
    struct FeedKey {
        const char* field;
        const std::string& key;
    };
    std::vector<Flaw> flaws;
    for (const FeedKey& feed : {FeedKey{"ammoMain", item.ammoMain}, FeedKey{"ammoSecond", item.ammoSecond}}) {
        if (!feed.key.empty() && ItemKindByName(feed.key).name.empty())
            flaws.push_back({feed.field, "there is no feed " + Quoted(feed.key), "a built-in kind", ""});
    }
    return flaws;
}

}  // namespace

std::span<const SoldierNumber> SoldierNumbers() {
    return Numbers;
}

std::vector<Flaw> ThingFlaws(const InvItem& item) {
    if (item.name.empty()) return EmptySlotFlaws(item);
    const WeaponInfo& row = WeaponInfoByName(item.name);
    if (row.name.empty())
        return {{"name", "there is no thing " + Quoted(item.name), "a name of weapons.dat",
                 Nearest(item.name, RowNames())}};
    if (row.kind == UnreadRow) return {};
    std::vector<Flaw> flaws;
    const std::string thing = Shortened(item.name);
    if (item.count != row.unitCount)
        flaws.push_back({"count", std::to_string(item.count) + " is no count of " + thing,
                         std::to_string(row.unitCount), ""});
    if (item.durab < 0 || item.durab > MaxDurab)
        flaws.push_back({"durab", std::to_string(item.durab) + " is no condition",
                         "a number from 0 to " + std::to_string(MaxDurab), ""});
    CheckFeed(
        {"ammoMain", "capMain", "roundsMain", item.ammoMain, row.weaponClass, item.capMain, item.roundsMain},
        thing, flaws);
    CheckSize(row, item.capMain, flaws);
    CheckFeed({"ammoSecond", "capSecond", "roundsSecond", item.ammoSecond, row.ammoSecond, item.capSecond,
               item.roundsSecond},
              thing, flaws);
    return flaws;
}

std::vector<Flaw> SlotFlaws(int slot, const InvItem& item) {
    std::vector<Flaw> flaws;
    if (item.name.empty()) return flaws;
    if (WeaponInfoByName(item.name).unitCount == 1 && slot > LastLongSlot)
        flaws.push_back({"name", Shortened(item.name) + " is too long for slot " + std::to_string(slot),
                         "one of the slots 0 to 3", ""});
    for (const WornPlace& worn : WornPlaces) {
        if (slot == worn.slot && item.ammoMain != worn.kind)
            flaws.push_back({"name", Shortened(item.name) + " doesn't go to slot " + std::to_string(slot),
                             std::string("a ") + worn.kind, ""});
    }
    return flaws;
}

std::vector<Flaw> PocketFlaws(const Unit& soldier) {
    std::vector<Flaw> flaws;
    const int pockets = soldier.items[BackSlot].name.empty() ? 0 : int{soldier.items[BackSlot].capMain};
    for (int slot = FirstPocket + pockets; slot < RosterItems; ++slot) {
        if (!soldier.items[slot].name.empty())
            flaws.push_back({"items[" + std::to_string(slot) + "]",
                             soldier.name + " has a thing in slot " + std::to_string(slot),
                             std::to_string(pockets) + " pockets at most by the pack", ""});
    }
    return flaws;
}

std::vector<Flaw> CountryFlaws(const std::string& code) {
    if (code.size() == CountryLength && !CountryName(code).empty()) return {};
    return {{"country", "there is no country " + Quoted(code), "a code of countries.dat",
             Nearest(code, CountryCodes())}};
}

std::string FacePicture(const Unit& soldier) {
    struct FaceType {
        const char* letter;
        const char* extension;
    };
    constexpr FaceType Types[] = {{"b", ".bmp"}, {"j", ".jpg"}, {"g", ".gif"}};
    const std::string number = std::to_string(soldier.faceNo);
    for (const FaceType& type : Types) {
        if (soldier.faceType == type.letter)
            return soldier.facePrefix + soldier.faceGroup + (number.size() < 2 ? "0" : "") + number +
                   type.extension;
    }
    return "";
}
