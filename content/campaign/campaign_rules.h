// What a thing or a soldier must be to make sense to the game, wherever it is told: in a readable source, in
// a binary file, on a drawn map. Rules report by field, and whoever asks knows where the field stands.
#pragma once

#include <span>
#include <string>
#include <variant>
#include <vector>

#include "state/state.h"

struct Flaw {
    std::string field;  // the record's field, as "capMain"
    std::string wrong;
    std::string expected;
    std::string meant;  // empty for no suggestion
};

/// A number of a soldier and its range; `key` is its name in sources, `field` in the record.
struct SoldierNumber {
    const char* key;
    const char* field;
    std::variant<u8 Unit::*, i16 Unit::*> member;
    int low, high;
};

std::span<const SoldierNumber> SoldierNumbers();

constexpr int RankCount = 24;
constexpr int FirstPocket = 10;
constexpr std::size_t MaxPlaces =
    60;  // piles that a map may begin with: the game's markers leave some to fall

/// The kind of a row that stands for one that couldn't be read.
constexpr const char* UnreadRow = "?";

/// Against the thing's row: its feeds are the row's, magazines and grades come in that size, no feed holds
/// more than its capacity. An empty slot
/// holds keys of feeds at most; a thing whose row couldn't be read has no flaws. Needs the tables.
std::vector<Flaw> ThingFlaws(const InvItem& item);

/// Long things fit the slots 0 to 3 alone; head, body and back take what is worn there.
std::vector<Flaw> SlotFlaws(int slot, const InvItem& item);

/// Things in pockets that the pack doesn't have; the field is their slot, as "items[15]".
std::vector<Flaw> PocketFlaws(const Unit& soldier);

std::vector<Flaw> CountryFlaws(const std::string& code);

/// The name of the soldier's face picture in pic/faces; empty for an unknown type.
std::string FacePicture(const Unit& soldier);
