#include "tools/tiled/tmx_reader.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <pugixml.hpp>

#include "campaign_rules.h"
#include "map_files.h"
#include "nearest.h"
#include "platform/code_page.h"
#include "platform/quoted.h"
#include "tools/tiled/tmx_format.h"

namespace {

struct FixedAttribute {
    const char* name;
    const char* value;
    bool mayLack;
};

constexpr FixedAttribute MapAttributes[] = {
    {"orientation", "orthogonal", false}, {"width", "76", false},      {"height", "46", false},
    {"tilewidth", "20", false},           {"tileheight", "20", false}, {"infinite", "0", true},
};
constexpr FixedAttribute TilesetAttributes[] = {{"firstgid", "1", false},
                                                {"tilewidth", "20", false},
                                                {"tileheight", "20", false},
                                                {"columns", "32", false}};

constexpr std::size_t KeyLength = 10;  // of a thing's name and feeds in the file
constexpr int HighestByte = 255;
constexpr int HighestNumber = 32767;

class TmxReader {
  public:
    TmxReader(const std::string& read, SourceFaults& collected) : text(read), faults(collected) {
        for (std::size_t at = text.find('\n'); at != std::string::npos; at = text.find('\n', at + 1))
            lineStarts.push_back(static_cast<std::ptrdiff_t>(at) + 1);
    }

    GameMap Run() {
        // Line ends stay as they are, so that places in a text can be counted.
        const auto options =
            static_cast<unsigned>(pugi::parse_default) & ~static_cast<unsigned>(pugi::parse_eol);
        const pugi::xml_parse_result parsed = document.load_buffer(text.data(), text.size(), options);
        const pugi::xml_node root = document.child("map");
        if (!parsed)
            faults.Add(
                {PlaceAt(parsed.offset), std::string("no XML: ") + parsed.description(), "a map of Tiled"});
        else if (!root)
            faults.Add({{1, 1}, "there is no element \"map\"", "a map of Tiled"});
        else
            ReadMap(root);
        return map;
    }

  private:
    SourcePlace PlaceAt(std::ptrdiff_t offset) const {
        const std::ptrdiff_t at = std::max<std::ptrdiff_t>(offset, 0);
        const auto next = std::upper_bound(lineStarts.begin(), lineStarts.end(), at);
        return {static_cast<int>(next - lineStarts.begin()), static_cast<int>(at - *(next - 1)) + 1};
    }

    SourcePlace PlaceOf(const pugi::xml_node& node) const { return PlaceAt(node.offset_debug()); }

    void CheckAttributes(const pugi::xml_node& node, std::span<const FixedAttribute> attributes) {
        for (const FixedAttribute& attribute : attributes) {
            const pugi::xml_attribute found = node.attribute(attribute.name);
            if (!found && attribute.mayLack) continue;
            if (std::strcmp(found.value(), attribute.value) != 0)
                faults.Add({PlaceOf(node), std::string(attribute.name) + " is " + Quoted(found.value()),
                            Quoted(attribute.value)});
        }
    }

    // The one child with this name attribute; a fault when there is none or a second.
    pugi::xml_node Layer(const pugi::xml_node& root, const char* element, const char* name) {
        pugi::xml_node layer;
        for (const pugi::xml_node child : root.children(element)) {
            if (std::strcmp(child.attribute("name").value(), name) != 0) continue;
            if (layer)
                faults.Add({PlaceOf(child), "a second layer " + Quoted(name), "one"});
            else
                layer = child;
        }
        if (!layer)
            faults.Add({PlaceOf(root), "there is no layer " + Quoted(name),
                        std::string(element) + " " + Quoted(name)});
        return layer;
    }

    void ReadMap(const pugi::xml_node& root) {
        CheckAttributes(root, MapAttributes);
        CheckTilesets(root);
        CheckLayers(root);
        ReadTerrain(Layer(root, "layer", TerrainLayer));
        ReadThings(Layer(root, "objectgroup", ThingsLayer));
        ReadLanding(Layer(root, "objectgroup", LandingLayer));
    }

    void CheckTilesets(const pugi::xml_node& root) {
        const pugi::xml_node first = root.child("tileset");
        if (!first) {
            faults.Add({PlaceOf(root), "there is no tileset", std::string("the sheet ") + SheetFile});
            return;
        }
        if (first.attribute("source"))
            faults.Add({PlaceOf(first), "the tileset is a file of its own", "an embedded one"});
        else
            CheckAttributes(first, TilesetAttributes);
        if (const pugi::xml_node second = first.next_sibling("tileset"))
            faults.Add({PlaceOf(second), "a second tileset", "one"});
    }

    // Whatever else is drawn would be lost.
    void CheckLayers(const pugi::xml_node& root) {
        for (const pugi::xml_node child : root.children()) {
            const std::string element = child.name(), name = child.attribute("name").value();
            const bool known =
                element == "layer" ? name == TerrainLayer : name == ThingsLayer || name == LandingLayer;
            const bool layer = element == "layer" || element == "objectgroup" || element == "imagelayer" ||
                               element == "group";
            if (layer && !known)
                faults.Add({PlaceOf(child), "a layer " + Quoted(name),
                            JoinWords({TerrainLayer, ThingsLayer, LandingLayer}) + " alone",
                            Nearest(name, {TerrainLayer, ThingsLayer, LandingLayer})});
        }
    }

    void ReadTerrain(const pugi::xml_node& layer) {
        if (!layer) return;
        const pugi::xml_node data = layer.child("data");
        const std::string encoding = data.attribute("encoding").value();
        if (encoding != "csv") {
            faults.Add({PlaceOf(data ? data : layer), "the layer's encoding is " + Quoted(encoding),
                        "\"csv\": Map, Map Properties, Tile Layer Format"});
            return;
        }
        const std::string numbers = data.child_value();
        const std::ptrdiff_t start = data.first_child().offset_debug();
        std::size_t begin = 0, cell = 0;
        while (begin <= numbers.size()) {
            const std::size_t end = std::min(numbers.find(',', begin), numbers.size());
            const std::size_t first = std::min(numbers.find_first_not_of(" \t\r\n", begin), end);
            const std::size_t last = numbers.find_last_not_of(" \t\r\n", end == 0 ? 0 : end - 1) + 1;
            const std::string number = last > first ? numbers.substr(first, last - first) : "";
            const SourcePlace place = PlaceAt(start + static_cast<std::ptrdiff_t>(first));
            if (cell < Cells && !faults.Full()) faults.Try([&] { SetTile(cell, TileOf({number, place})); });
            ++cell;
            begin = end + 1;
        }
        drawn = cell == Cells;
        if (!drawn)
            faults.Add({PlaceOf(data), std::to_string(cell) + " cells", std::to_string(Cells) + " cells"});
    }

    static Tile TileOf(const SourceWord& number) {
        constexpr int LastGid = FirstGid + SheetColumns * SheetColumns - 1;
        if (number.text == "0") throw SourceError(number.place, "this cell is empty", "a tile");
        const int id = NumberOf(number, FirstGid, LastGid, "tile of the sheet, as it stands") - FirstGid;
        const int row = id / SheetColumns, column = id % SheetColumns;
        if (row >= TerrainCount || column >= KnownColumns(static_cast<Terrain>(row)))
            throw SourceError(
                number.place,
                "the sheet has no tile at column " + std::to_string(column) + ", row " + std::to_string(row),
                "a tile that is drawn");
        if (IsLandingSpot({column, static_cast<Terrain>(row)}))
            throw SourceError(number.place, "a landing spot as a tile",
                              "an object in the layer " + Quoted(LandingLayer));
        return {column, static_cast<Terrain>(row)};
    }

    void SetTile(std::size_t cell, const Tile& tile) { map.grid[cell / MapWidth][cell % MapWidth] = tile; }

    // The cell that an object stands in.
    ThingPlace CellOf(const pugi::xml_node& object) {
        const double x = std::floor(object.attribute("x").as_double(Nowhere) / CellSize);
        const double y = std::floor(object.attribute("y").as_double(Nowhere) / CellSize);
        if (!(x >= 0 && x < MapWidth && y >= 0 && y < MapHeight))
            throw SourceError(PlaceOf(object), "this object is outside the field", "a cell of the field");
        ThingPlace place;
        place.x = static_cast<int>(x);
        place.y = static_cast<int>(y);
        return place;
    }

    void ReadThings(const pugi::xml_node& layer) {
        for (const pugi::xml_node object : layer.children("object"))
            faults.Try([&] { ReadThing(object); });
        if (map.places.size() > MaxPlaces)
            faults.Add({PlaceOf(layer), std::to_string(map.places.size()) + " places with things",
                        std::to_string(MaxPlaces) + " at most"});
    }

    void ReadThing(const pugi::xml_node& object) {
        const ThingPlace cell = CellOf(object);
        InvItem item;
        item.name = KeyOf(object.attribute("name").value(), PlaceOf(object), "name of a thing");
        if (item.name.empty())
            throw SourceError(PlaceOf(object), "the thing has no name", "a name of weapons.dat");
        const pugi::xml_node properties = object.child("properties");
        CheckPropertyNames(properties);
        for (const ThingProperty& property : ThingProperties) {
            const SourceWord value = ValueOf(object, property.name);
            std::visit([&](const auto member) { SetMember(item.*member, value, property.name); },
                       property.member);
        }
        const SourceWord slot = ValueOf(object, PlaceProperty);
        PutThing(cell, NumberOf(slot, 0, CellItemSlots - 1, PlaceProperty), item, slot.place);
    }

    void CheckPropertyNames(const pugi::xml_node& properties) {
        std::vector<std::string> known = {PlaceProperty};
        known.reserve(1 + std::size(ThingProperties));
        for (const ThingProperty& property : ThingProperties)
            known.emplace_back(property.name);
        for (const pugi::xml_node property : properties.children("property"))
            IndexOf({property.attribute("name").value(), PlaceOf(property)}, known, "property of a thing");
    }

    SourceWord ValueOf(const pugi::xml_node& object, const char* name) const {
        const pugi::xml_node property =
            object.child("properties").find_child_by_attribute("property", "name", name);
        if (!property)
            throw SourceError(PlaceOf(object), "the thing has no property " + Quoted(name), "all of them");
        return {property.attribute("value").value(), PlaceOf(property)};
    }

    static std::string KeyOf(const std::string& key, SourcePlace place, const std::string& name) {
        if (ToCodePage(key).size() > KeyLength)
            throw SourceError(place, Quoted(key) + " is too long for the " + name,
                              std::to_string(KeyLength) + " characters at most");
        return key;
    }

    static void SetMember(u8& member, const SourceWord& value, const char* name) {
        member = NumberOf(value, 0, HighestByte, name);
    }
    static void SetMember(i16& member, const SourceWord& value, const char* name) {
        member = NumberOf(value, -HighestNumber - 1, HighestNumber, name);
    }
    static void SetMember(std::string& member, const SourceWord& value, const char* name) {
        member = KeyOf(value.text, value.place, name);
    }

    // Cells keep the order in which their first things come.
    void PutThing(const ThingPlace& cell, int slot, const InvItem& item, SourcePlace where) {
        auto place = std::find_if(map.places.begin(), map.places.end(), [&](const ThingPlace& other) {
            return other.x == cell.x && other.y == cell.y;
        });
        if (place == map.places.end()) place = map.places.insert(place, cell);
        const auto index = static_cast<std::size_t>(slot);
        if (place->items.size() <= index) place->items.resize(index + 1);
        if (!place->items[index].name.empty())
            throw SourceError(where, "place " + std::to_string(slot) + " of this cell is taken",
                              "a free one");
        place->items[index] = item;
    }

    void ReadLanding(const pugi::xml_node& layer) {
        for (const pugi::xml_node object : layer.children("object")) {
            faults.Try([&] {
                const ThingPlace cell = CellOf(object);
                Tile& tile = map.grid[static_cast<std::size_t>(cell.y)][static_cast<std::size_t>(cell.x)];
                if (IsLandingSpot(tile))
                    throw SourceError(PlaceOf(object), "a second landing spot here", "one");
                // The game shows grass there, whatever was drawn.
                if (drawn && (tile.terrain != Surface || tile.column != 0))
                    throw SourceError(PlaceOf(object),
                                      std::string("a landing spot on tile ") + std::to_string(tile.column) +
                                          " of " + TerrainName(tile.terrain),
                                      "plain grass under it");
                tile = {LandingMark, Various};
            });
        }
    }

    static constexpr std::size_t Cells = std::size_t{MapWidth} * MapHeight;

    const std::string& text;
    SourceFaults& faults;
    std::vector<std::ptrdiff_t> lineStarts = {0};
    pugi::xml_document document;
    GameMap map;
    bool drawn = false;  // whether the terrain has as many cells as it should
};

}  // namespace

GameMap ReadTmx(const std::string& text, SourceFaults& faults) {
    return TmxReader(text, faults).Run();
}
