#include "roster_source.h"

#include <algorithm>
#include <set>
#include <variant>

#include "data/campaign_layout.h"
#include "data/countries_file.h"
#include "item_source.h"
#include "platform/code_page.h"

namespace {

struct NumberKey {
    const char* word;
    std::variant<u8 Unit::*, i16 Unit::*> field;
    int low, high;
};

constexpr int MaxAttribute = 100;

// clang-format off
const NumberKey NumberKeys[] = {
    // key             field                low  high
    {"serial",        &Unit::serialNo,        0, 32767},
    {"vitality",      &Unit::vitality,        1, MaxAttribute},
    {"strength",      &Unit::strength,        1, MaxAttribute},
    {"agility",       &Unit::agility,         1, MaxAttribute},
    {"perception",    &Unit::perception,      1, MaxAttribute},
    {"intelligence",  &Unit::intelligence,    1, MaxAttribute},
    {"mood",          &Unit::mood,            1, MaxAttribute},
    {"marksmanship",  &Unit::marksmanship,    1, MaxAttribute},
    {"stealth",       &Unit::stealth,         1, MaxAttribute},
    {"melee",         &Unit::melee,           1, MaxAttribute},
    {"sidearms",      &Unit::sidearms,        1, MaxAttribute},
    {"smgs",          &Unit::smgs,            1, MaxAttribute},
    {"rifles",        &Unit::rifles,          1, MaxAttribute},
    {"machineguns",   &Unit::machineguns,     1, MaxAttribute},
    {"explosives",    &Unit::explosives,      1, MaxAttribute},
    {"time",          &Unit::time,            0, 800},
    {"health",        &Unit::health,          1, 255},
    {"energy",        &Unit::energy,          0, 800},
};
// clang-format on

const std::vector<std::string> WordKeys = {"name", "rank", "country", "face", "facing", "stance"};
const std::vector<std::string> FacingWords = {"east",       "west",       "north",      "south",
                                              "north-east", "south-east", "south-west", "north-west"};
const std::vector<std::string> StanceWords = {"prone", "crouch", "stand", "run"};

constexpr std::size_t NameLength = 30;
constexpr std::size_t CountryLength = 2;
constexpr int RankCount = 24;
constexpr int LastLongSlot = 3;  // long things fit the hand and the long places
constexpr int HeadSlot = 4, BodySlot = 5, BackSlot = 6;
constexpr int FirstPocket = 10;

struct WornPlace {
    int slot;
    const char* kind;  // what alone it takes
};

constexpr WornPlace WornPlaces[] = {{HeadSlot, "helmet"}, {BodySlot, "vest"}, {BackSlot, "pack"}};

std::string TextOf(const SourceWord& word, std::size_t length, const std::string& name) {
    if (word.text.size() != length) {
        throw SourceError(word.place, "\"" + word.text + "\" is no " + name,
                          std::to_string(length) + " characters");
    }
    return word.text;
}

std::string NameOf(LineWords& line) {
    const SourceWord& first = line.Take("a name");
    std::string name = first.text;
    while (!line.AtEnd())
        name += " " + line.Take("a word").text;
    if (FromCodePage(ToCodePage(name)) != name) {
        throw SourceError(first.place, "the name has characters that the game can't store",
                          "characters of Windows-1252");
    }
    if (ToCodePage(name).size() > NameLength) {
        throw SourceError(first.place, "the name is too long",
                          "up to " + std::to_string(NameLength) + " characters");
    }
    return name;
}

std::string CountryOf(const SourceWord& word) {
    if (CountryName(word.text).empty() || word.text.size() != CountryLength) {
        throw SourceError(word.place, "there is no country \"" + word.text + "\"", "a code of countries.dat");
    }
    return word.text;
}

int RankOf(const SourceWord& word) {
    const std::vector<std::string> ranks(rankNames.begin(), rankNames.begin() + RankCount);
    return IndexOf(word, ranks, "rank");
}

void ReadFace(LineWords& line, Unit& soldier) {
    constexpr int MaxFace = 99;  // the file's name has two digits
    soldier.facePrefix = TextOf(line.Take("the prefix of the face"), 2, "prefix");
    soldier.faceGroup = TextOf(line.Take("the group of the face"), 1, "group");
    soldier.faceNo = NumberOf(line.Take("the number of the face"), 0, MaxFace, "face number");
    const SourceWord& type = line.Take("the type of the face");
    IndexOf(type, {"b", "j", "g"}, "picture type");
    soldier.faceType = type.text;
}

void ReadWordKey(int key, LineWords& line, Unit& soldier) {
    switch (key) {
        case 0:
            soldier.name = NameOf(line);
            break;
        case 1:
            soldier.rank = RankOf(line.Take("a rank"));
            break;
        case 2:
            soldier.country = CountryOf(line.Take("a country"));
            break;
        case 3:
            ReadFace(line, soldier);
            break;
        case 4:
            soldier.facing = IndexOf(line.Take("a facing"), FacingWords, "facing");
            break;
        default:
            soldier.stance = IndexOf(line.Take("a stance"), StanceWords, "stance");
            break;
    }
}

void StoreNumber(Unit& soldier, const NumberKey& key, int value) {
    std::visit([&](const auto field) { soldier.*field = value; }, key.field);
}

std::vector<std::string> AllKeys() {
    std::vector<std::string> keys = WordKeys;
    for (const NumberKey& key : NumberKeys)
        keys.emplace_back(key.word);
    return keys;
}

void ReadKey(const SourceWord& word, LineWords& line, Unit& soldier) {
    const int key = IndexOf(word, AllKeys(), "key of a soldier");
    const int words = static_cast<int>(WordKeys.size());
    if (key < words) {
        ReadWordKey(key, line, soldier);
    } else {
        const NumberKey& number = NumberKeys[key - words];
        StoreNumber(soldier, number, NumberOf(line.Take("a number"), number.low, number.high, number.word));
    }
}

void CheckSlotTakes(int slot, const InvItem& item, SourcePlace place) {
    if (item.count == 1 && slot > LastLongSlot) {
        throw SourceError(place, item.name + " is too long for slot " + std::to_string(slot),
                          "one of the slots 0 to 3");
    }
    for (const WornPlace& worn : WornPlaces) {
        if (slot == worn.slot && item.ammoMain != worn.kind) {
            throw SourceError(place, item.name + " doesn't go to slot " + std::to_string(slot),
                              std::string("a ") + worn.kind);
        }
    }
}

// "slot 0: ak count 1 ..."
void ReadSlot(LineWords& line, Unit& soldier) {
    SourceWord number = line.Take("the number of a slot");
    if (number.text.back() == ':') number.text.pop_back();
    const int slot = NumberOf(number, 0, RosterItems - 1, "slot");
    if (!soldier.items[slot].name.empty()) {
        throw SourceError(number.place, "slot " + std::to_string(slot) + " comes twice", "each slot once");
    }
    const SourcePlace place = line.Place();
    soldier.items[slot] = ReadItem(line);
    CheckSlotTakes(slot, soldier.items[slot], place);
}

// The pack gives as many pockets as its size.
void CheckPockets(const Unit& soldier, SourcePlace place) {
    const int pockets = soldier.items[BackSlot].capMain;
    for (int slot = FirstPocket + pockets; slot < RosterItems; ++slot) {
        if (!soldier.items[slot].name.empty()) {
            throw SourceError(place, soldier.name + " has a thing in slot " + std::to_string(slot),
                              std::to_string(pockets) + " pockets at most by the pack");
        }
    }
}

Unit ReadSoldier(const Block& block) {
    Unit soldier;
    std::set<std::string> seen;
    LineWords(block.head).Take("soldier");
    for (const BlockLine& text : block.lines) {
        LineWords line(text);
        const SourceWord& key = line.Take("a key");
        if (key.text == "slot") {
            ReadSlot(line, soldier);
        } else {
            if (!seen.insert(key.text).second)
                throw SourceError(key.place, "\"" + key.text + "\" comes twice", "each key once");
            ReadKey(key, line, soldier);
        }
        line.Finish();
    }
    for (const std::string& key : AllKeys()) {
        if (!seen.contains(key))
            throw SourceError(block.head.words.front().place, "this soldier lacks \"" + key + "\"",
                              "all keys");
    }
    CheckPockets(soldier, block.head.words.front().place);
    return soldier;
}

}  // namespace

std::vector<Unit> ReadRoster(const std::vector<std::string>& lines) {
    std::vector<Unit> soldiers;
    for (const Block& block : ReadBlocks(lines, "soldier")) {
        if (soldiers.size() == static_cast<std::size_t>(RosterSize)) {
            throw SourceError(block.head.words.front().place, "one soldier too many",
                              std::to_string(RosterSize) + " soldiers at most");
        }
        soldiers.push_back(ReadSoldier(block));
    }
    return soldiers;
}
