// sarnoth_map_compiler SOURCE OUTDIR: turns the text source of a map into the three layers that the game
// reads, named after the source: 49.txt gives 491.map (columns of the tile sheet), 492.map (terrain classes)
// and 493.map.

#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>

#include "joints.h"
#include "map_checks.h"
#include "map_files.h"

namespace {

void WriteFile(const std::filesystem::path& path, const std::string& content) {
    std::ofstream file(path, std::ios::binary);
    file << content;
    file.close();
    if (!file) throw std::runtime_error("can't write " + path.string());
}

void Compile(const std::string& source, const std::filesystem::path& folder, SourceFaults& faults) {
    const MapSource map = ReadMapSource(ReadSourceLines(source), faults);
    if (!faults.Empty()) return;
    const TileGrid grid = PlaceTiles(map, faults);
    CheckMap(grid, map.firstLine, faults);
    if (!faults.Empty()) return;
    const std::string name = std::filesystem::path(source).stem().string();
    std::filesystem::create_directories(folder);
    const LayerTexts layers = LayersOf(grid);
    WriteFile(folder / (name + "1.map"), layers.columns);
    WriteFile(folder / (name + "2.map"), layers.classes);
    WriteFile(folder / (name + "3.map"), layers.strengths);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: sarnoth_map_compiler SOURCE OUTDIR\n";
        return 1;
    }
    return RunCompiler(argv[1], [&](SourceFaults& faults) { Compile(argv[1], argv[2], faults); });
}
