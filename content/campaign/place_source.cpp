#include "place_source.h"

#include "item_source.h"

namespace {

// The game marks piles by records of their own and has room for so many at the start of a mission, leaving
// some to fall.
constexpr std::size_t MaxPlaces = 60;

// Lines "item <thing>", in the order in which they lie there.
std::vector<InvItem> ReadItems(const Block& block) {
    std::vector<InvItem> items;
    for (const BlockLine& text : block.lines) {
        LineWords line(text);
        const SourceWord& key = line.Take("a key");
        IndexOf(key, {"item"}, "key of a place");
        if (items.size() == static_cast<std::size_t>(CellItemSlots)) {
            throw SourceError(key.place, "one thing too many",
                              std::to_string(CellItemSlots) + " things at most");
        }
        items.push_back(ReadItem(line));
    }
    return items;
}

ThingPlace ReadPlace(const Block& block) {
    LineWords head(block.head);
    ThingPlace place;
    head.Take("place");
    place.x = NumberOf(head.Take("a column of the field"), 0, FieldWidth - 1, "column");
    place.y = NumberOf(head.Take("a row of the field"), 0, FieldHeight - 1, "row");
    head.Finish();
    place.items = ReadItems(block);
    return place;
}

}  // namespace

ThingPlace ReadStore(const std::vector<std::string>& lines) {
    const std::vector<Block> blocks = ReadBlocks(lines, "store");
    LineWords head(blocks.front().head);
    head.Take("store");
    head.Finish();
    if (blocks.size() > 1)
        throw SourceError(blocks[1].head.words.front().place, "a second store", "one store");
    return {0, 0, ReadItems(blocks.front())};
}

std::vector<ThingPlace> ReadGround(const std::vector<std::string>& lines) {
    std::vector<ThingPlace> places;
    for (const Block& block : ReadBlocks(lines, "place")) {
        const ThingPlace place = ReadPlace(block);
        const SourcePlace at = block.head.words.front().place;
        if (places.size() == MaxPlaces)
            throw SourceError(at, "one place too many", std::to_string(MaxPlaces) + " places at most");
        if (place.items.empty()) throw SourceError(at, "this place has no things", "at least one item");
        for (const ThingPlace& other : places) {
            if (other.x == place.x && other.y == place.y)
                throw SourceError(at, "this cell comes twice", "each cell once");
        }
        places.push_back(place);
    }
    return places;
}
