#include "tools/check/record_checks.h"

#include <set>
#include <utility>

#include "campaign_rules.h"
#include "tools/check/record_file.h"
#include "tools/check/soldier_pictures.h"

namespace fs = std::filesystem;

namespace {

constexpr int HeaderRecord = 1;
constexpr int FirstRecord = 2;  // after the header

std::string SlotName(int slot) {
    return "items[" + std::to_string(slot) + "]";
}

std::size_t SlotAt(std::size_t first, int slot) {
    return first + static_cast<std::size_t>(slot) * ItemLength;
}

void AddThingFlaws(RecordFile& file, int record, std::size_t base, const std::string& owner,
                   const std::vector<Flaw>& flaws) {
    for (const Flaw& flaw : flaws)
        file.Add(record, base + ThingOffset(flaw.field), owner + "." + flaw.field, flaw.wrong, flaw.expected,
                 flaw.meant);
}

InvItem CheckThing(RecordFile& file, int record, std::size_t base, const std::string& owner) {
    InvItem item = file.ReadThing(record, base, owner + ".");
    AddThingFlaws(file, record, base, owner, ThingFlaws(item));
    return item;
}

void AddSoldierFlaws(RecordFile& file, int record, const std::vector<Flaw>& flaws) {
    for (const Flaw& flaw : flaws)
        file.Add(record, SoldierOffset(flaw.field), flaw.field, flaw.wrong, flaw.expected, flaw.meant);
}

void CheckNumbers(RecordFile& file, int record, const Unit& soldier) {
    for (const SoldierNumber& number : SoldierNumbers()) {
        const int value = std::visit([&](const auto member) { return int{soldier.*member}; }, number.member);
        if (value < number.low || value > number.high)
            file.Add(record, SoldierOffset(number.field), number.field,
                     std::to_string(value) + " is no " + number.key,
                     "a number from " + std::to_string(number.low) + " to " + std::to_string(number.high));
    }
}

void CheckSoldier(RecordFile& file, int record, const fs::path& gameFolder) {
    Unit soldier = file.ReadSoldier(record);
    if (soldier.name.empty())
        file.Add(record, SoldierOffset("name"), "name", "the soldier has no name", "a name");
    CheckNumbers(file, record, soldier);
    AddSoldierFlaws(file, record, CountryFlaws(soldier.country));
    AddSoldierFlaws(file, record, SoldierPictureFlaws(soldier, gameFolder));
    for (int slot = 0; slot < RosterItems; ++slot) {
        const std::size_t base = SlotAt(RosterItemsAt, slot);
        InvItem& item = soldier.items[slot];
        item = CheckThing(file, record, base, SlotName(slot));
        AddThingFlaws(file, record, base, SlotName(slot), SlotFlaws(slot, item));
    }
    for (const Flaw& flaw : PocketFlaws(soldier)) {
        const int slot = std::stoi(flaw.field.substr(flaw.field.find('[') + 1));
        file.Add(record, SlotAt(RosterItemsAt, slot), flaw.field, flaw.wrong, flaw.expected);
    }
}

// The game reads the places that nobody takes as well.
void CheckUnused(RecordFile& file, int record) {
    file.ReadSoldier(record);
    for (int slot = 0; slot < RosterItems; ++slot)
        CheckThing(file, record, SlotAt(RosterItemsAt, slot), SlotName(slot));
}

void CheckCell(RecordFile& file, int record, const TileGrid* grid, std::set<std::pair<int, int>>& cells) {
    const int x = file.Byte(record, 0), y = file.Byte(record, 1);
    const std::string cell = "cell " + std::to_string(x) + ", " + std::to_string(y);
    if (!OnMap(x, y))
        file.Add(
            record, x < MapWidth ? 1 : 0, x < MapWidth ? "cellY" : "cellX", cell + " is outside the field",
            "columns 0 to " + std::to_string(MapWidth - 1) + ", rows 0 to " + std::to_string(MapHeight - 1));
    else if (grid != nullptr && StopsStep(TileAt(*grid, x, y)))
        file.Add(record, 0, "cellX", "things lie on " + cell + ", where nobody can stand", "a free cell");
    if (!cells.insert({x, y}).second) file.Add(record, 0, "cellX", cell + " comes twice", "each cell once");
}

}  // namespace

void CheckRosterFile(const fs::path& path, const fs::path& gameFolder, Findings& findings) {
    RecordFile file(path, RosterLength, findings);
    file.CheckCount(HeaderRecord + RosterSize, "a header and " + std::to_string(RosterSize) + " soldiers");
    if (file.Count() < HeaderRecord) return;
    const int last = file.Byte(HeaderRecord, RosterLastAt);
    if (last >= RosterSize) {
        file.Add(HeaderRecord, RosterLastAt, "rank", std::to_string(last) + " is no soldier's place",
                 "the last soldier's place, 0 to " + std::to_string(RosterSize - 1));
        return;
    }
    for (int record = FirstRecord; record < FirstRecord + RosterSize && record <= file.Count(); ++record) {
        if (record <= FirstRecord + last)
            CheckSoldier(file, record, gameFolder);
        else
            CheckUnused(file, record);
    }
}

void CheckStoreFile(const fs::path& path, Findings& findings) {
    RecordFile file(path, PlaceLength, findings);
    file.CheckCount(FirstRecord, "a header and the store");
    if (file.Count() < FirstRecord) return;
    for (int slot = 0; slot < CellItemSlots; ++slot)
        CheckThing(file, FirstRecord, SlotAt(PlaceItemsAt, slot), SlotName(slot));
}

void CheckGroundFile(const fs::path& path, const TileGrid* grid, Findings& findings) {
    RecordFile file(path, PlaceLength, findings);
    if (file.Count() < HeaderRecord) {
        file.CheckCount(HeaderRecord, "a header at least");
        return;
    }
    const std::size_t countAt = PlaceItemsAt + ThingOffset("count");
    const int places = file.Byte(HeaderRecord, countAt);
    file.CheckCount(HeaderRecord + places, "a header and the places that it counts");
    if (places > static_cast<int>(MaxPlaces))
        file.Add(HeaderRecord, countAt, "items[0].count", std::to_string(places) + " places",
                 std::to_string(MaxPlaces) + " at most");
    std::set<std::pair<int, int>> cells;
    for (int record = FirstRecord; record <= HeaderRecord + places && record <= file.Count(); ++record) {
        CheckCell(file, record, grid, cells);
        bool empty = true;
        for (int slot = 0; slot < CellItemSlots; ++slot)
            empty =
                CheckThing(file, record, SlotAt(PlaceItemsAt, slot), SlotName(slot)).name.empty() && empty;
        if (empty)
            file.Add(record, PlaceItemsAt, "items[0].name", "this place has no things", "at least one");
    }
}
