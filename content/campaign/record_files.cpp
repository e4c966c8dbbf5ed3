#include "record_files.h"

#include "data/campaign_layout.h"
#include "platform/files.h"

namespace {

constexpr std::size_t RosterTailAt =
    880;  // two characters at the end of a soldier's record that nobody reads
constexpr std::size_t RosterTailLength = 2;

void Append(std::string& bytes, const Record& record) {
    bytes.append(record.Bytes().begin(), record.Bytes().end());
}

std::size_t ItemAt(std::size_t first, int slot) {
    return first + static_cast<std::size_t>(slot) * ItemLength;
}

Record SoldierRecord(const Unit& soldier) {
    Record record(RosterLength, "soldier");
    WriteFields(record, 0, soldier);
    for (int slot = 0; slot < RosterItems; ++slot)
        WriteFields(record, ItemAt(RosterItemsAt, slot), soldier.items[slot]);
    record.WriteText(RosterTailAt, RosterTailLength, "");
    return record;
}

Record PlaceRecord(const ThingPlace& place) {
    Record record(PlaceLength, "place");
    record.WriteByte(0, place.x);
    record.WriteByte(1, place.y);
    for (int slot = 0; slot < CellItemSlots; ++slot) {
        const auto index = static_cast<std::size_t>(slot);
        WriteFields(record, ItemAt(PlaceItemsAt, slot),
                    index < place.items.size() ? place.items[index] : InvItem());
    }
    return record;
}

// A label in the place of the name; what means nothing is zero.
Record RosterHeader(std::size_t soldiers) {
    constexpr std::size_t NameAt = 3, NameLength = 30;
    Record header(RosterLength, "the header of the roster");
    header.WriteByte(RosterLastAt, static_cast<int>(soldiers) - 1);
    header.WriteText(NameAt, NameLength, "roster");
    return header;
}

}  // namespace

std::string RosterBytes(const std::vector<Unit>& soldiers) {
    std::string bytes;
    Append(bytes, RosterHeader(soldiers.size()));
    for (std::size_t place = 0; place < static_cast<std::size_t>(RosterSize); ++place) {
        Append(bytes, SoldierRecord(place < soldiers.size() ? soldiers[place] : Unit()));
    }
    return bytes;
}

std::string StoreBytes(const ThingPlace& store) {
    std::string bytes;
    Append(bytes, PlaceHeader("apc", 1));
    Append(bytes, PlaceRecord(store));
    return bytes;
}

std::string GroundBytes(const std::vector<ThingPlace>& places) {
    std::string bytes;
    Append(bytes, PlaceHeader("ground", static_cast<int>(places.size())));
    for (const ThingPlace& place : places)
        Append(bytes, PlaceRecord(place));
    return bytes;
}
