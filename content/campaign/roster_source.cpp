#include "roster_source.h"

#include <algorithm>
#include <map>
#include <set>
#include <variant>

#include "campaign_rules.h"
#include "data/campaign_layout.h"
#include "item_source.h"
#include "nearest.h"
#include "platform/code_page.h"
#include "platform/quoted.h"

namespace {

const std::vector<std::string> WordKeys = {"name", "rank", "country", "face", "facing", "stance"};
const std::vector<std::string> FacingWords = {"east",       "west",       "north",      "south",
                                              "north-east", "south-east", "south-west", "north-west"};
const std::vector<std::string> StanceWords = {"prone", "crouch", "stand", "run"};

constexpr std::size_t NameLength = 30;
std::string TextOf(const SourceWord& word, std::size_t length, const std::string& name) {
    if (word.text.size() != length) {
        throw SourceError(word.place, Quoted(word.text) + " is no " + name,
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
    for (const Flaw& flaw : CountryFlaws(word.text))
        throw SourceError(word.place, flaw.wrong, flaw.expected, flaw.meant);
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

void ReadWordKey(int key, LineWords& line, RosterEntry& entry) {
    Unit& soldier = entry.soldier;
    switch (key) {
        case 0:
            soldier.name = NameOf(line);
            break;
        case 1:
            soldier.rank = RankOf(line.Take("a rank"));
            break;
        case 2:
            entry.country = line.Place();
            soldier.country = CountryOf(line.Take("a country"));
            break;
        case 3:
            entry.face = line.Place();
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

void ReadNumber(const SoldierNumber& number, LineWords& line, Unit& soldier) {
    const int value = NumberOf(line.Take("a number"), number.low, number.high, number.key);
    std::visit([&](const auto member) { soldier.*member = value; }, number.member);
}

std::vector<std::string> AllKeys() {
    std::vector<std::string> keys = WordKeys;
    for (const SoldierNumber& number : SoldierNumbers())
        keys.emplace_back(number.key);
    return keys;
}

// What a soldier's block has told so far.
struct Told {
    RosterEntry entry;
    std::set<std::string> keys;
    std::map<std::string, SourcePlace> slots;  // by the name of the field, as "items[7]"
};

void ReadKey(const SourceWord& word, LineWords& line, Told& told) {
    std::vector<std::string> known = AllKeys();
    known.emplace_back("slot");
    // Who mistypes a key hasn't forgotten it.
    if (std::find(known.begin(), known.end(), word.text) == known.end())
        told.keys.insert(Nearest(word.text, known));
    const auto key = static_cast<std::size_t>(IndexOf(word, known, "key of a soldier"));
    if (!told.keys.insert(word.text).second)
        throw SourceError(word.place, Quoted(word.text) + " comes twice", "each key once");
    if (key < WordKeys.size())
        ReadWordKey(static_cast<int>(key), line, told.entry);
    else
        ReadNumber(SoldierNumbers()[key - WordKeys.size()], line, told.entry.soldier);
}

// "slot 0: ak count 1 ..."
void ReadSlot(LineWords& line, Told& told, SourceFaults& faults) {
    SourceWord number = line.Take("the number of a slot");
    if (number.text.back() == ':') number.text.pop_back();
    const int slot = NumberOf(number, 0, RosterItems - 1, "slot");
    if (!told.slots.insert({"items[" + number.text + "]", number.place}).second) {
        throw SourceError(number.place, "slot " + std::to_string(slot) + " comes twice", "each slot once");
    }
    const SourcePlace place = line.Place();
    InvItem& item = told.entry.soldier.items[slot];
    item = ReadItem(line, faults);
    for (const Flaw& flaw : SlotFlaws(slot, item))
        faults.Add({place, flaw.wrong, flaw.expected, flaw.meant});
}

RosterEntry ReadSoldier(const Block& block, SourceFaults& faults) {
    Told told;
    for (const BlockLine& text : block.lines) {
        LineWords line(text);
        faults.Try([&] {
            const SourceWord& key = line.Take("a key");
            if (key.text == "slot")
                ReadSlot(line, told, faults);
            else
                ReadKey(key, line, told);
            line.Finish();
        });
    }
    for (const std::string& key : AllKeys()) {
        if (!told.keys.contains(key))
            faults.Add({block.head.words.front().place, "this soldier lacks " + Quoted(key), "all keys"});
    }
    for (const Flaw& flaw : PocketFlaws(told.entry.soldier))
        faults.Add({told.slots[flaw.field], flaw.wrong, flaw.expected, flaw.meant});
    return told.entry;
}

}  // namespace

std::vector<RosterEntry> ReadRoster(const std::vector<std::string>& lines, SourceFaults& faults) {
    std::vector<RosterEntry> roster;
    for (const Block& block : ReadBlocks(lines, "soldier", faults)) {
        if (roster.size() == static_cast<std::size_t>(RosterSize)) {
            faults.Add({block.head.words.front().place, "one soldier too many",
                        std::to_string(RosterSize) + " soldiers at most"});
            break;
        }
        roster.push_back(ReadSoldier(block, faults));
    }
    return roster;
}

std::vector<Unit> Soldiers(const std::vector<RosterEntry>& roster) {
    std::vector<Unit> soldiers;
    soldiers.reserve(roster.size());
    for (const RosterEntry& entry : roster)
        soldiers.push_back(entry.soldier);
    return soldiers;
}
