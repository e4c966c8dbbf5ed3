// Where the fields of the binary campaign files lie: one table for the game's readers and writer and for the
// compilers of the content. Integers are little-endian, texts have a fixed length and are filled with blanks;
// nothing is padded.
#pragma once

#include <cstddef>
#include <string>
#include <variant>

#include "platform/files.h"
#include "state/state.h"

constexpr std::size_t ItemLength = 37;                   // bytes of one thing
constexpr std::size_t RosterLength = 882;                // bytes of one soldier's record
constexpr std::size_t PlaceLength = 1112;                // bytes of one place with its things
constexpr std::size_t PlaceItemsAt = 2;                  // after the place's column and row
constexpr std::size_t PlaceCountAt = PlaceItemsAt + 10;  // in the header of places: how many follow
constexpr std::size_t RosterItemsAt = 66;
constexpr int RosterItems = 22;          // slots 0 to 21 are in the roster
constexpr std::size_t RosterLastAt = 2;  // in the header record: the last soldier's place

/// One field of a record in a file: how long it is follows from what it stores.
template <typename RecordType>
struct FieldLayout {
    std::size_t offset;
    std::size_t textLength;  // 0 for a number
    std::variant<u8 RecordType::*, i16 RecordType::*, std::string RecordType::*> field;
    bool trimmed;  // a text loses its trailing blanks
    int highest;   // a u8 above this is bad data
};

// clang-format off
inline constexpr FieldLayout<InvItem> ItemFields[] = {
    // offset, text length, field,           trimmed, highest
    { 0, 10, &InvItem::name,         true,    0},
    {10,  0, &InvItem::count,        false, 255},
    {11,  0, &InvItem::durab,        false,   0},
    {13, 10, &InvItem::ammoMain,     true,    0},
    {23,  0, &InvItem::capMain,      false, 255},
    {24,  0, &InvItem::roundsMain,   false, 255},
    {25, 10, &InvItem::ammoSecond,   true,    0},
    {35,  0, &InvItem::capSecond,    false, 255},
    {36,  0, &InvItem::roundsSecond, false, 255},
};

inline constexpr FieldLayout<Unit> SoldierFields[] = {
    // offset, text length, field,           trimmed, highest
    { 0,  0, &Unit::serialNo,     false,   0},
    { 2,  0, &Unit::rank,         false,  23},
    { 3, 30, &Unit::name,         true,    0},
    {33,  2, &Unit::country,      false,   0},
    {35,  2, &Unit::facePrefix,   false,   0},
    {37,  1, &Unit::faceGroup,    false,   0},
    {38,  0, &Unit::faceNo,       false, 255},
    {39,  1, &Unit::faceType,     false,   0},
    {40,  0, &Unit::vitality,     false, 255},
    {41,  0, &Unit::strength,     false, 255},
    {42,  0, &Unit::agility,      false, 255},
    {43,  0, &Unit::perception,   false, 255},
    {44,  0, &Unit::intelligence, false, 255},
    {45,  0, &Unit::mood,         false, 255},
    {46,  0, &Unit::marksmanship, false, 255},
    {47,  0, &Unit::stealth,      false, 255},
    {48,  0, &Unit::melee,        false, 255},
    {49,  0, &Unit::sidearms,     false, 255},
    {50,  0, &Unit::smgs,         false, 255},
    {51,  0, &Unit::rifles,       false, 255},
    {52,  0, &Unit::machineguns,  false, 255},
    {53,  0, &Unit::explosives,   false, 255},
    {54,  0, &Unit::cellX,        false, 255},
    {55,  0, &Unit::cellY,        false, 255},
    {56,  0, &Unit::facing,       false,   7},
    {57,  0, &Unit::stance,       false,   3},
    {58,  0, &Unit::time,         false,   0},
    {60,  0, &Unit::health,       false,   0},
    {62,  0, &Unit::energy,       false,   0},
    {64,  0, &Unit::aimChance,    false,   0},
};
// clang-format on

/// Fields from a record, beginning at `base`. Throws RunTimeError (BadData) with file, record and byte.
void ReadFields(const Record& record, std::size_t base, InvItem& item);
void ReadFields(const Record& record, std::size_t base, Unit& soldier);

/// Fields into a record, beginning at `base`.
void WriteFields(Record& record, std::size_t base, const InvItem& item);
void WriteFields(Record& record, std::size_t base, const Unit& soldier);

/// The header of a file of places: a label and how many places follow, as a thing's name and count. All else
/// means nothing and is zero.
Record PlaceHeader(const std::string& label, int count);

/// Cuts trailing blanks; a text of blanks alone becomes empty.
std::string TrimBlanks(const std::string& text);

/// `text` followed by as many blanks as take it 2 characters past the length of `current`, the field's
/// present content. Throws RunTimeError (Overflow) for a text that is longer than that.
std::string PadField(const std::string& text, const std::string& current);
