#include "tools/tiled/tmx_writer.h"

#include <array>
#include <sstream>

#include "map_files.h"
#include "tools/tiled/tmx_format.h"

namespace {

constexpr std::array<const char*, 4> StopWords = {"nothing", "steps", "view", "both"};

std::string Escaped(const std::string& text) {
    std::string escaped;
    for (const char c : text) {
        switch (c) {
            case '&':
                escaped += "&amp;";
                break;
            case '<':
                escaped += "&lt;";
                break;
            case '"':
                escaped += "&quot;";
                break;
            default:
                escaped.push_back(c);
        }
    }
    return escaped;
}

class TmxWriter {
  public:
    explicit TmxWriter(const GameMap& written) : map(written) {}

    std::string Run() {
        WriteTileset();
        WriteTerrain();
        WriteThings();
        WriteLanding();
        std::ostringstream head;
        head << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
             << R"(<map version="1.8" orientation="orthogonal" renderorder="right-down" width=")" << MapWidth
             << R"(" height=")" << MapHeight << R"(" tilewidth=")" << CellSize << R"(" tileheight=")"
             << CellSize << R"(" infinite="0" nextlayerid="4" nextobjectid=")" << nextObject << "\">\n";
        return head.str() + body.str() + "</map>\n";
    }

  private:
    void WriteProperty(const char* name, int value) {
        body << R"(    <property name=")" << name << R"(" type="int" value=")" << value << "\"/>\n";
    }
    void WriteProperty(const char* name, const std::string& value) {
        body << R"(    <property name=")" << name << R"(" value=")" << Escaped(value) << "\"/>\n";
    }

    void WriteTile(Terrain terrain, int column) {
        body << R"(  <tile id=")" << terrain * SheetColumns + column << R"(" type=")" << TerrainName(terrain)
             << "\">\n   <properties>\n";
        WriteProperty("durab", CellDurab(column, terrain));
        WriteProperty("stops", StopWords[static_cast<std::size_t>(TileBlock(column, terrain))]);
        body << "   </properties>\n  </tile>\n";
    }

    void WriteTileset() {
        body << R"( <tileset firstgid=")" << FirstGid << R"(" name="picMap" tilewidth=")" << CellSize
             << R"(" tileheight=")" << CellSize << R"(" tilecount=")" << SheetColumns * SheetColumns
             << R"(" columns=")" << SheetColumns << "\">\n"
             << R"(  <image source=")" << SheetFile << R"(" width=")" << SheetSize << R"(" height=")"
             << SheetSize << "\"/>\n";
        for (int terrain = 0; terrain < TerrainCount; ++terrain) {
            for (int column = 0; column < KnownColumns(static_cast<Terrain>(terrain)); ++column)
                WriteTile(static_cast<Terrain>(terrain), column);
        }
        body << " </tileset>\n";
    }

    // A landing spot is grass with an object on it.
    void WriteTerrain() {
        body << R"( <layer id="1" name=")" << TerrainLayer << R"(" width=")" << MapWidth << R"(" height=")"
             << MapHeight << "\">\n  <data encoding=\"csv\">\n";
        for (int y = 0; y < MapHeight; ++y) {
            for (int x = 0; x < MapWidth; ++x) {
                const Tile tile = IsLandingSpot(TileAt(map.grid, x, y)) ? Tile() : TileAt(map.grid, x, y);
                const bool last = x == MapWidth - 1 && y == MapHeight - 1;
                body << FirstGid + tile.terrain * SheetColumns + tile.column << (last ? "" : ",");
            }
            body << "\n";
        }
        body << "</data>\n </layer>\n";
    }

    void OpenObject(const std::string& name, const char* type, int x, int y) {
        body << R"(  <object id=")" << nextObject++ << "\"";
        if (!name.empty()) body << R"( name=")" << Escaped(name) << "\"";
        body << R"( type=")" << type << R"(" x=")" << x * CellSize << R"(" y=")" << y * CellSize
             << R"(" width=")" << CellSize << R"(" height=")" << CellSize << "\"";
    }

    void WriteThing(const ThingPlace& place, int index, const InvItem& item) {
        OpenObject(item.name, "thing", place.x, place.y);
        body << ">\n   <properties>\n";
        WriteProperty(PlaceProperty, index);
        for (const ThingProperty& property : ThingProperties)
            std::visit([&](const auto member) { WriteProperty(property.name, item.*member); },
                       property.member);
        body << "   </properties>\n  </object>\n";
    }

    void WriteThings() {
        body << R"( <objectgroup id="2" name=")" << ThingsLayer << R"(" color="#d08000">)"
             << "\n";
        for (const ThingPlace& place : map.places) {
            for (std::size_t i = 0; i < place.items.size(); ++i)
                if (!place.items[i].name.empty()) WriteThing(place, static_cast<int>(i), place.items[i]);
        }
        body << " </objectgroup>\n";
    }

    void WriteLanding() {
        body << R"( <objectgroup id="3" name=")" << LandingLayer << R"(" color="#c00000">)"
             << "\n";
        for (int y = 0; y < MapHeight; ++y) {
            for (int x = 0; x < MapWidth; ++x) {
                if (!IsLandingSpot(TileAt(map.grid, x, y))) continue;
                OpenObject("", "landing spot", x, y);
                body << "/>\n";
            }
        }
        body << " </objectgroup>\n";
    }

    const GameMap& map;
    std::ostringstream body;
    int nextObject = 1;
};

}  // namespace

std::string TmxText(const GameMap& map) {
    return TmxWriter(map).Run();
}
