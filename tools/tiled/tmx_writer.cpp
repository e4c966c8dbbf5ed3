#include "tools/tiled/tmx_writer.h"

#include <array>

#include "map_files.h"
#include "tools/tiled/tmx_format.h"
#include "tools/xml_text.h"

namespace {

constexpr std::array<const char*, 4> StopWords = {"nothing", "steps", "view", "both"};

class TmxWriter {
  public:
    explicit TmxWriter(const GameMap& written) : map(written) {}

    std::string Run() {
        pugi::xml_node declaration = document.append_child(pugi::node_declaration);
        declaration.append_attribute("version") = "1.0";
        declaration.append_attribute("encoding") = "UTF-8";
        root = AppendElement(document.root(), "map",
                             {{"version", "1.8"},
                              {"orientation", "orthogonal"},
                              {"renderorder", "right-down"},
                              {"width", MapWidth},
                              {"height", MapHeight},
                              {"tilewidth", CellSize},
                              {"tileheight", CellSize},
                              {"infinite", 0},
                              {"nextlayerid", 4}});
        WriteTileset();
        WriteTerrain();
        WriteThings();
        WriteLanding();
        root.append_attribute("nextobjectid") = nextObject;
        return XmlText(document, " ");
    }

  private:
    static void WriteProperty(pugi::xml_node properties, const char* name, int value) {
        AppendElement(properties, "property", {{"name", name}, {"type", "int"}, {"value", value}});
    }
    static void WriteProperty(pugi::xml_node properties, const char* name, const std::string& value) {
        AppendElement(properties, "property", {{"name", name}, {"value", value}});
    }

    static void WriteTile(pugi::xml_node tileset, Terrain terrain, int column) {
        pugi::xml_node tile = AppendElement(
            tileset, "tile", {{"id", terrain * SheetColumns + column}, {"type", TerrainName(terrain)}});
        pugi::xml_node properties = tile.append_child("properties");
        WriteProperty(properties, "durab", CellDurab(column, terrain));
        WriteProperty(properties, "stops", StopWords[static_cast<std::size_t>(TileBlock(column, terrain))]);
    }

    void WriteTileset() {
        const pugi::xml_node tileset = AppendElement(root, "tileset",
                                                     {{"firstgid", FirstGid},
                                                      {"name", "picMap"},
                                                      {"tilewidth", CellSize},
                                                      {"tileheight", CellSize},
                                                      {"tilecount", SheetColumns * SheetColumns},
                                                      {"columns", SheetColumns}});
        AppendElement(tileset, "image", {{"source", SheetFile}, {"width", SheetSize}, {"height", SheetSize}});
        for (int terrain = 0; terrain < TerrainCount; ++terrain) {
            for (int column = 0; column < KnownColumns(static_cast<Terrain>(terrain)); ++column)
                WriteTile(tileset, static_cast<Terrain>(terrain), column);
        }
    }

    // A landing spot is grass with an object on it.
    void WriteTerrain() {
        std::string tiles = "\n";
        for (int y = 0; y < MapHeight; ++y) {
            for (int x = 0; x < MapWidth; ++x) {
                const Tile tile = IsLandingSpot(TileAt(map.grid, x, y)) ? Tile() : TileAt(map.grid, x, y);
                const bool last = x == MapWidth - 1 && y == MapHeight - 1;
                tiles += std::to_string(FirstGid + tile.terrain * SheetColumns + tile.column);
                tiles += last ? "" : ",";
            }
            tiles += "\n";
        }
        const pugi::xml_node layer = AppendElement(
            root, "layer", {{"id", 1}, {"name", TerrainLayer}, {"width", MapWidth}, {"height", MapHeight}});
        AppendElement(layer, "data", {{"encoding", "csv"}}, tiles);
    }

    pugi::xml_node AppendObject(pugi::xml_node layer, const char* type, int x, int y) {
        return AppendElement(layer, "object",
                             {{"id", nextObject++},
                              {"type", type},
                              {"x", x * CellSize},
                              {"y", y * CellSize},
                              {"width", CellSize},
                              {"height", CellSize}});
    }

    void WriteThing(pugi::xml_node layer, const ThingPlace& place, int index, const InvItem& item) {
        pugi::xml_node object = AppendObject(layer, "thing", place.x, place.y);
        object.insert_attribute_after("name", object.attribute("id")) = item.name.c_str();
        const pugi::xml_node properties = object.append_child("properties");
        WriteProperty(properties, PlaceProperty, index);
        for (const ThingProperty& property : ThingProperties)
            std::visit([&](const auto member) { WriteProperty(properties, property.name, item.*member); },
                       property.member);
    }

    void WriteThings() {
        const pugi::xml_node layer =
            AppendElement(root, "objectgroup", {{"id", 2}, {"name", ThingsLayer}, {"color", "#d08000"}});
        for (const ThingPlace& place : map.places) {
            for (std::size_t i = 0; i < place.items.size(); ++i)
                if (!place.items[i].name.empty())
                    WriteThing(layer, place, static_cast<int>(i), place.items[i]);
        }
    }

    void WriteLanding() {
        const pugi::xml_node layer =
            AppendElement(root, "objectgroup", {{"id", 3}, {"name", LandingLayer}, {"color", "#c00000"}});
        for (int y = 0; y < MapHeight; ++y) {
            for (int x = 0; x < MapWidth; ++x)
                if (IsLandingSpot(TileAt(map.grid, x, y))) AppendObject(layer, "landing spot", x, y);
        }
    }

    const GameMap& map;
    pugi::xml_document document;
    pugi::xml_node root;
    int nextObject = 1;
};

}  // namespace

std::string TmxText(const GameMap& map) {
    return TmxWriter(map).Run();
}
