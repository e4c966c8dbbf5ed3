#include "place_source.h"

#include "campaign_rules.h"
#include "item_source.h"

namespace {

// Lines "item <thing>", in the order in which they lie there.
std::vector<InvItem> ReadItems(const Block& block, SourceFaults& faults) {
    std::vector<InvItem> items;
    for (const BlockLine& text : block.lines) {
        LineWords line(text);
        faults.Try([&] {
            const SourceWord& key = line.Take("a key");
            IndexOf(key, {"item"}, "key of a place");
            if (items.size() == static_cast<std::size_t>(CellItemSlots)) {
                throw SourceError(key.place, "one thing too many",
                                  std::to_string(CellItemSlots) + " things at most");
            }
            items.push_back(ReadItem(line, faults));
        });
    }
    return items;
}

ThingPlace ReadPlace(const Block& block, SourceFaults& faults) {
    LineWords head(block.head);
    ThingPlace place;
    place.place = block.head.words.front().place;
    const bool told = faults.Try([&] {
        head.Take("place");
        place.x = NumberOf(head.Take("a column of the field"), 0, FieldWidth - 1, "column");
        place.y = NumberOf(head.Take("a row of the field"), 0, FieldHeight - 1, "row");
        head.Finish();
    });
    if (!told) place.x = place.y = Nowhere;
    place.items = ReadItems(block, faults);
    if (place.items.empty() && block.lines.empty())
        faults.Add({place.place, "this place has no things", "at least one item"});
    return place;
}

}  // namespace

ThingPlace ReadStore(const std::vector<std::string>& lines, SourceFaults& faults) {
    const std::vector<Block> blocks = ReadBlocks(lines, "store", faults);
    if (blocks.empty()) return {};
    LineWords head(blocks.front().head);
    head.Take("store");
    faults.Try([&] { head.Finish(); });
    if (blocks.size() > 1) faults.Add({blocks[1].head.words.front().place, "a second store", "one store"});
    return {0, 0, ReadItems(blocks.front(), faults), blocks.front().head.words.front().place};
}

std::vector<ThingPlace> ReadGround(const std::vector<std::string>& lines, SourceFaults& faults) {
    std::vector<ThingPlace> places;
    for (const Block& block : ReadBlocks(lines, "place", faults)) {
        const ThingPlace place = ReadPlace(block, faults);
        if (places.size() == MaxPlaces)
            faults.Add({place.place, "one place too many", std::to_string(MaxPlaces) + " places at most"});
        for (const ThingPlace& other : places) {
            if (place.x != Nowhere && other.x == place.x && other.y == place.y)
                faults.Add({place.place, "this cell comes twice", "each cell once"});
        }
        places.push_back(place);
    }
    return places;
}
