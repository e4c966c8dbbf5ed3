#include "data/campaign_files.h"

#include <cstddef>
#include <string_view>

#include "data/campaign_layout.h"
#include "data/tables.h"
#include "data/weapons_file.h"
#include "platform/files.h"
#include "platform/quoted.h"
#include "state/state.h"

namespace {

constexpr const char* RosterFile = "\\dat\\save.dat";
constexpr const char* StoreFile = "\\dat\\apc.dat";
constexpr int HeaderRecord = 1;
constexpr int RosterDurab = 270;  // every thing of the roster is in this condition, whatever the file says

void CheckKey(const Record& record, std::size_t offset, const std::string& key, bool known) {
    if (!key.empty() && !known) record.Refuse(offset, "expected the key of a thing, found " + Quoted(key));
}

bool IsItemKind(const std::string& key) {
    return !ItemKindByName(key).name.empty();
}

InvItem ReadItem(const Record& record, std::size_t base) {
    InvItem item;
    ReadFields(record, base, item);
    CheckKey(record, base, item.name, WeaponIndex(item.name) >= 0 || IsItemKind(item.name));
    CheckKey(record, base, item.ammoMain, IsItemKind(item.ammoMain));
    CheckKey(record, base, item.ammoSecond, IsItemKind(item.ammoSecond));
    return item;
}

std::size_t PlaceItemAt(int place) {
    return PlaceItemsAt + static_cast<std::size_t>(place) * ItemLength;
}

void ReadSoldier(const Record& record, Unit& soldier) {
    ReadFields(record, 0, soldier);
    for (int slot = 0; slot < RosterItems; ++slot) {
        soldier.items[slot] = ReadItem(record, RosterItemsAt + static_cast<std::size_t>(slot) * ItemLength);
        soldier.items[slot].durab = RosterDurab;
    }
}

}  // namespace

void LoadRoster() {
    const RecordReader file(RosterFile, RosterLength);
    const Record header = file.ReadCounted(HeaderRecord, "the header");
    const int last = header.ReadByte(RosterLastAt);
    if (last >= RosterSize)
        header.Refuse(RosterLastAt,
                      "expected the last soldier's place, 0 to 19, found " + std::to_string(last));
    teamLast[RosterTeam] = last;
    for (int place = 0; place < RosterSize; ++place) {
        const int number = HeaderRecord + 1 + place;
        const Record record = place <= last
                                  ? file.ReadCounted(number, "soldier " + std::to_string(place + 1) + " of " +
                                                                 std::to_string(last + 1))
                                  : file.Read(number);
        ReadSoldier(record, UnitTable[FirstOf(RosterTeam) + place]);
    }
}

void KeepStore() {
    KeepForPlayer(StoreFile);
}

void LoadStore() {
    const RecordReader file(StoreFile, PlaceLength);
    file.ReadCounted(HeaderRecord, "the header");
    const Record record = file.ReadCounted(HeaderRecord + 1, "the things of the vehicle store");
    for (int place = 0; place < CellItemSlots; ++place)
        storeItems[place] = ReadItem(record, PlaceItemAt(place));
}

void SaveStore() {
    Record header = PlaceHeader("apc", teamLast[PileList] + 1);
    Record things(PlaceLength, "dat/apc.dat: record 2");
    for (int place = 0; place < CellItemSlots; ++place)
        WriteFields(things, PlaceItemAt(place), storeItems[place]);
    std::string content;
    for (const Record* record : {&header, &things})
        content.append(record->Bytes().begin(), record->Bytes().end());
    ReplaceFile(StoreFile, content);
}

std::vector<Spot> LoadGroundItems(const std::string& name) {
    const RecordReader file("\\map\\" + name + "g.map", PlaceLength);
    InvItem label;
    const Record header = file.ReadCounted(HeaderRecord, "the header");
    ReadFields(header, PlaceItemsAt, label);
    if (label.count > MaxPiles)
        header.Refuse(PlaceCountAt,
                      "expected up to " + std::to_string(MaxPiles) + " places with things, found " +
                          std::to_string(label.count),
                      Fault::Subscript);
    std::vector<Spot> places;
    for (int j = 0; j < label.count; ++j) {
        const Record record = file.ReadCounted(
            HeaderRecord + 1 + j, "place " + std::to_string(j + 1) + " of " + std::to_string(label.count));
        const int x = record.ReadByte(0);
        const int y = record.ReadByte(1);
        if (!InField(x, y))
            record.Refuse(
                0, "expected a cell of the field, found " + std::to_string(x) + ", " + std::to_string(y),
                Fault::Subscript);
        for (int place = 0; place < CellItemSlots; ++place)
            groundItems[y][x][place] = ReadItem(record, PlaceItemAt(place));
        places.push_back({x, y});
    }
    return places;
}

std::string FacingText(int facing) {
    constexpr int ValuesInRow = 5;
    constexpr int Shown = 3;
    CommaReader file("\\dat\\ori.dat");
    std::string kept;
    for (int row = 0; row <= facing; ++row) {
        for (int column = 0; column < ValuesInRow; ++column) {
            const std::string value = file.ReadValue("five values for each of the eight facings");
            if (column == Shown) kept = value;
        }
    }
    return kept;
}
