// sarnoth-tiled: a map of the game as a map of the editor Tiled, and back.
#include <iostream>

#include "tools/command_line.h"
#include "tools/tiled/game_map.h"
#include "tools/tiled/tmx_format.h"
#include "tools/tiled/tmx_reader.h"
#include "tools/tiled/tmx_writer.h"
#include "tools/whole_file.h"
#include "view/embedded_files.h"

namespace fs = std::filesystem;

namespace {

enum ExitCode { Done, Failed };

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

int main(int count, char** arguments) {
    CommandLine line("sarnoth-tiled", "Turns a map of the game into a map of the editor Tiled and back.",
                     "Exit code 0: done; 1: not done, standard error says why; 2: a wrong command line.");
    line.require_subcommand(1);
    fs::path map, tmx;
    const auto addMap = [&map](CLI::App* command) {
        AddFile(*command, "MAP", map,
                "the files' name without their endings, as game/map/49 for\n"
                "game/map/491.map, 492.map, 493.map and 49g.map");
    };
    const auto addTmx = [&tmx](CLI::App* command) { AddFile(*command, "FILE.tmx", tmx, "the map of Tiled"); };
    CLI::App* const out =
        line.add_subcommand("export", "MAP to FILE.tmx, with the tile sheet, picMap.bmp, beside it.");
    addMap(out);
    addTmx(out);
    CLI::App* const in =
        line.add_subcommand("import",
                            "FILE.tmx to MAP; refuses what the game can't hold.\n"
                            "Whether a mission can be played on the map is what sarnoth-check shows.");
    addTmx(in);
    addMap(in);
    return line.Follow(count, arguments, [&] { return out->parsed() ? Export(map, tmx) : Import(tmx, map); });
}
