#include "item_source.h"

#include <map>

#include "campaign_rules.h"
#include "data/weapons_file.h"
#include "platform/quoted.h"

namespace {

constexpr int MaxByte = 255;
constexpr int MaxNumber = 32767;
constexpr const char* NoFeed = "-";

// Where the fields of a thing are told, by the names that the rules use.
using FieldPlaces = std::map<std::string, SourcePlace>;

// A feed's key, "-" for none.
std::string KindOf(const SourceWord& word) {
    return word.text == NoFeed ? "" : word.text;
}

// "31/29": 29 rounds in a feed for 31. `fields` is the end of their names, "Main" or "Second".
void ReadFeed(LineWords& line, const std::string& fields, std::string& kind, u8& capacity, u8& rounds,
              FieldPlaces& places) {
    const SourceWord& key = line.Take("the kind of rounds, or -");
    kind = KindOf(key);
    const SourceWord& word = line.Take("capacity/rounds");
    const std::size_t slash = word.text.find('/');
    if (slash == std::string::npos)
        throw SourceError(word.place, Quoted(word.text) + " is no feed", "capacity/rounds, as 31/29");
    const SourcePlace after{word.place.line, word.place.column + static_cast<int>(slash) + 1};
    capacity = NumberOf({word.text.substr(0, slash), word.place}, 0, MaxByte, "capacity");
    rounds = NumberOf({word.text.substr(slash + 1), after}, 0, MaxByte, "number of rounds");
    places["ammo" + fields] = key.place;
    places["cap" + fields] = word.place;
    places["rounds" + fields] = after;
}

void ReadProperty(LineWords& line, InvItem& item, FieldPlaces& places) {
    const SourceWord& key = line.Take("a property");
    switch (IndexOf(key, {"count", "durab", "main", "second"}, "property of a thing")) {
        case 0:
            places["count"] = line.Place();
            item.count = NumberOf(line.Take("0 or 1"), 0, MaxByte, "count");
            break;
        case 1:
            places["durab"] = line.Place();
            item.durab = NumberOf(line.Take("the condition"), 0, MaxNumber, "condition");
            break;
        case 2:
            ReadFeed(line, "Main", item.ammoMain, item.capMain, item.roundsMain, places);
            break;
        default:
            ReadFeed(line, "Second", item.ammoSecond, item.capSecond, item.roundsSecond, places);
            break;
    }
}

}  // namespace

InvItem ReadItem(LineWords& line, SourceFaults& faults) {
    const SourceWord& name = line.Take("the name of a thing");
    const WeaponInfo& row = WeaponInfoByName(name.text);
    FieldPlaces places;
    InvItem item;
    item.name = name.text;
    item.count = row.unitCount;
    item.durab = row.durab;
    item.ammoMain = row.weaponClass;
    item.ammoSecond = row.ammoSecond;
    while (!line.AtEnd())
        ReadProperty(line, item, places);
    for (const Flaw& flaw : ThingFlaws(item)) {
        const auto place = places.find(flaw.field);
        faults.Add(
            {place == places.end() ? name.place : place->second, flaw.wrong, flaw.expected, flaw.meant});
    }
    return item;
}
