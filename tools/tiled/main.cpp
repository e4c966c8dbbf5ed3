// sarnoth-tiled: a map of the game as a map of the editor Tiled, and back.
#include <iostream>

#include "tools/tiled/game_map.h"
#include "tools/tiled/tmx_format.h"
#include "tools/tiled/tmx_reader.h"
#include "tools/tiled/tmx_writer.h"
#include "tools/whole_file.h"
#include "view/embedded_files.h"

namespace fs = std::filesystem;

namespace {

enum ExitCode { Done, Failed, WrongUsage };

constexpr const char* Usage = R"(usage: sarnoth-tiled export MAP FILE.tmx
       sarnoth-tiled import FILE.tmx MAP

Turns a map of the game into a map of the editor Tiled and back. MAP is the files' name without their endings,
as game/map/49 for game/map/491.map, 492.map, 493.map and 49g.map.

export also writes the tile sheet, picMap.bmp, beside FILE.tmx. import refuses what the game can't hold;
whether a mission can be played on the map is what sarnoth-check tells.

Exit code 0: done; 1: not done, standard error says why; 2: a wrong command line.
)";

// The report of faults, and the exit code.
ExitCode Told(const Findings& findings) {
    std::cerr << FindingsText(findings);
    return findings.empty() ? Done : Failed;
}

ExitCode Export(const fs::path& stem, const fs::path& target) {
    Findings findings;
    const GameMap map = ReadGameMap(stem, findings);
    if (!findings.empty()) return Told(findings);
    WriteWholeFile(target, TmxText(map));
    for (const EmbeddedFile& file : EmbeddedFiles())
        if (file.name == SheetFile) WriteWholeFile(target.parent_path() / SheetFile, file.content);
    return Done;
}

ExitCode Import(const fs::path& source, const fs::path& stem) {
    Findings findings;
    CheckedText text = OpenText(source, findings);
    if (!findings.empty()) return Told(findings);
    const GameMap map = ReadTmx(text.content, text.faults);
    TakeFaults(text, findings);
    if (findings.empty()) WriteGameMap(stem, map);
    return Told(findings);
}

}  // namespace

int main(int count, char** arguments) try {
    const std::vector<std::string> words(arguments + 1, arguments + count);
    if (words == std::vector<std::string>{"--help"}) {
        std::cout << Usage;
        return Done;
    }
    if (words.size() == 3 && words[0] == "export") return Export(words[1], words[2]);
    if (words.size() == 3 && words[0] == "import") return Import(words[1], words[2]);
    std::cerr << "sarnoth-tiled: wrong arguments\nsarnoth-tiled --help tells more.\n";
    return WrongUsage;
} catch (const std::exception& error) {
    std::cerr << "sarnoth-tiled: " << error.what() << "\n";
    return Failed;
}
