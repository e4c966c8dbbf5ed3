#include "tools/tiled/game_map.h"

#include "map_files.h"
#include "record_files.h"
#include "tools/check/record_file.h"
#include "tools/whole_file.h"

namespace fs = std::filesystem;

namespace {

ThingPlace ReadPlace(RecordFile& file, int record) {
    ThingPlace place;
    place.x = file.Byte(record, 0);
    place.y = file.Byte(record, 1);
    for (int slot = 0; slot < CellItemSlots; ++slot) {
        const std::size_t base = PlaceItemsAt + static_cast<std::size_t>(slot) * ItemLength;
        place.items.push_back(file.ReadThing(record, base, "items[" + std::to_string(slot) + "]."));
    }
    while (!place.items.empty() && place.items.back().name.empty())
        place.items.pop_back();
    if (!OnMap(place.x, place.y))
        file.Add(record, 0, "cellX", "this cell is outside the field", "a cell of the field");
    return place;
}

std::vector<ThingPlace> ReadPlaces(const fs::path& path, Findings& findings) {
    RecordFile file(path, PlaceLength, findings);
    std::vector<ThingPlace> places;
    if (file.Count() == 0) return places;
    const int count = file.ReadThing(1, PlaceItemsAt, "items[0].").count;
    file.CheckCount(1 + count, "a header and the places that it counts");
    for (int record = 2; record <= 1 + count && record <= file.Count(); ++record)
        places.push_back(ReadPlace(file, record));
    return places;
}

}  // namespace

GameMap ReadGameMap(const fs::path& stem, Findings& findings) {
    GameMap map;
    CheckedText columns = OpenText(stem.string() + "1.map", findings);
    CheckedText classes = OpenText(stem.string() + "2.map", findings);
    map.grid = ReadLayers(columns.content, classes.content, columns.faults, classes.faults);
    TakeFaults(columns, findings);
    TakeFaults(classes, findings);
    map.places = ReadPlaces(stem.string() + "g.map", findings);
    return map;
}

void WriteGameMap(const fs::path& stem, const GameMap& map) {
    const LayerTexts layers = LayersOf(map.grid);
    WriteWholeFile(stem.string() + "1.map", layers.columns);
    WriteWholeFile(stem.string() + "2.map", layers.classes);
    WriteWholeFile(stem.string() + "3.map", layers.strengths);
    WriteWholeFile(stem.string() + "g.map", GroundBytes(map.places));
}
