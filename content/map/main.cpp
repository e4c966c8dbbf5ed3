// sarnoth_map_compiler SOURCE OUTDIR: turns the text source of a map into the three layers that the game
// reads, named after the source: 49.txt gives 491.map (columns of the tile sheet), 492.map (terrain classes)
// and 493.map.

#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <stdexcept>

#include "joints.h"
#include "map_checks.h"

namespace {

using LayerValue = std::function<int(const Tile&)>;

constexpr int FirstCode = 32;  // the character of the value 0

void WriteLayer(const std::filesystem::path& path, const TileGrid& grid, const LayerValue& valueOf) {
    std::ofstream file(path, std::ios::binary);
    for (const auto& row : grid) {
        for (const Tile& tile : row)
            file.put(static_cast<char>(FirstCode + valueOf(tile)));
        file << "\r\n";
    }
    file.close();
    if (!file) throw std::runtime_error("can't write " + path.string());
}

void Compile(const std::string& source, const std::filesystem::path& folder) {
    const MapSource map = ReadMapSource(ReadSourceLines(source));
    const TileGrid grid = PlaceTiles(map);
    CheckMap(map, grid);
    const std::string name = std::filesystem::path(source).stem().string();
    std::filesystem::create_directories(folder);
    WriteLayer(folder / (name + "1.map"), grid, [](const Tile& tile) { return tile.column; });
    WriteLayer(folder / (name + "2.map"), grid,
               [](const Tile& tile) { return static_cast<int>(tile.terrain); });
    // The game reads the third layer's strength values and then works them out itself: any character does.
    WriteLayer(folder / (name + "3.map"), grid, [](const Tile&) { return 0; });
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: sarnoth_map_compiler SOURCE OUTDIR\n";
        return 1;
    }
    return RunCompiler(argv[1], [&] { Compile(argv[1], argv[2]); });
}
