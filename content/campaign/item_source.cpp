#include "item_source.h"

#include "data/tables.h"
#include "data/weapons_file.h"

namespace {

constexpr int MaxByte = 255;
constexpr int MaxDurab = 1000;
constexpr const char* NoFeed = "-";

struct Feed {
    int capacity = 0;
    int rounds = 0;
};

std::string ShownKey(const std::string& key) {
    return key.empty() ? NoFeed : "\"" + key + "\"";
}

// "31/29": 29 rounds in a feed for 31.
Feed FeedOf(const SourceWord& word) {
    const std::size_t slash = word.text.find('/');
    if (slash == std::string::npos) {
        throw SourceError(word.place, "\"" + word.text + "\" is no feed", "capacity/rounds, as 31/29");
    }
    const int after = static_cast<int>(slash) + 1;
    Feed feed;
    feed.capacity = NumberOf({word.text.substr(0, slash), word.place}, 0, MaxByte, "capacity");
    feed.rounds = NumberOf({word.text.substr(slash + 1), {word.place.line, word.place.column + after}}, 0,
                           feed.capacity, "number of rounds");
    return feed;
}

// The key of a feed and what it holds. The key is written out for the reader and must be the one of the
// thing's row.
Feed ReadFeed(LineWords& line, const std::string& key, const std::string& thing) {
    const SourceWord& word = line.Take("the kind of rounds, or -");
    if (word.text != (key.empty() ? NoFeed : key)) {
        throw SourceError(word.place, thing + " isn't fed with \"" + word.text + "\"", ShownKey(key));
    }
    const SourcePlace place = line.Place();
    const Feed feed = FeedOf(line.Take("capacity/rounds"));
    // A thing that is its own round, a charge, has one and no kind.
    if (key.empty() && feed.capacity > 1) throw SourceError(place, thing + " has no such feed", "0/0 or 1/1");
    return feed;
}

bool ComesInSizes(const WeaponInfo& row) {
    return row.kind == "m" || row.kind == "a" || row.kind == "i";
}

void CheckSize(const WeaponInfo& row, int capacity, SourcePlace place) {
    if (!ComesInSizes(row) || (row.kind == "m" && capacity == 0)) return;
    std::vector<std::string> sizes;
    for (const i16 size : ItemKindByName(row.weaponClass).sizes) {
        if (size == capacity && size != 0) return;
        if (size != 0) sizes.push_back(std::to_string(size));
    }
    throw SourceError(place, "\"" + row.weaponClass + "\" doesn't come in size " + std::to_string(capacity),
                      "one of " + JoinWords(sizes));
}

const WeaponInfo& RowOf(const SourceWord& word) {
    const WeaponInfo& row = WeaponInfoByName(word.text);
    if (row.name.empty())
        throw SourceError(word.place, "there is no thing \"" + word.text + "\"", "a name of weapons.dat");
    if (!row.weaponClass.empty() && ItemKindByName(row.weaponClass).name.empty()) {
        throw SourceError(word.place, "weapons.dat gives it the unknown kind \"" + row.weaponClass + "\"",
                          "a built-in kind");
    }
    return row;
}

void ReadProperty(LineWords& line, const WeaponInfo& row, InvItem& item) {
    const SourceWord& key = line.Take("a property");
    switch (IndexOf(key, {"count", "durab", "main", "second"}, "property of a thing")) {
        case 0:
            item.count = NumberOf(line.Take("0 or 1"), row.unitCount, row.unitCount, "count of this thing");
            break;
        case 1:
            item.durab = NumberOf(line.Take("the condition"), 0, MaxDurab, "condition");
            break;
        case 2: {
            const Feed feed = ReadFeed(line, row.weaponClass, item.name);
            item.capMain = feed.capacity;
            item.roundsMain = feed.rounds;
            break;
        }
        default: {
            const Feed feed = ReadFeed(line, row.ammoSecond, item.name);
            item.capSecond = feed.capacity;
            item.roundsSecond = feed.rounds;
            break;
        }
    }
}

}  // namespace

InvItem ReadItem(LineWords& line) {
    const SourceWord& name = line.Take("the name of a thing");
    const WeaponInfo& row = RowOf(name);
    InvItem item;
    item.name = row.name;
    item.count = row.unitCount;
    item.durab = row.durab;
    item.ammoMain = row.weaponClass;
    item.ammoSecond = row.ammoSecond;
    while (!line.AtEnd())
        ReadProperty(line, row, item);
    CheckSize(row, item.capMain, name.place);
    return item;
}
