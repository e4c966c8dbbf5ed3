// sarnoth-tiled: a map of the game as a map of the editor Tiled, and back.
#include <iostream>
#include <memory>

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

struct Files {
    fs::path map;
    fs::path tmx;
};

void AddMap(CLI::App& command, Files& files) {
    AddFile(command, "MAP", files.map,
            "the files' name without their endings, as game/map/49 for\n"
            "game/map/491.map, 492.map, 493.map and 49g.map");
}

void AddTmx(CLI::App& command, Files& files) {
    AddFile(command, "FILE.tmx", files.tmx, "the map of Tiled");
}

Work AddCommands(CLI::App& app) {
    const auto files = std::make_shared<Files>();
    app.require_subcommand(1);
    CLI::App* const out =
        app.add_subcommand("export", "MAP to FILE.tmx, with the tile sheet, picMap.bmp, beside it.");
    AddMap(*out, *files);
    AddTmx(*out, *files);
    CLI::App* const in =
        app.add_subcommand("import",
                           "FILE.tmx to MAP; refuses what the game can't hold.\n"
                           "Whether a mission can be played on the map is what sarnoth-check shows.");
    AddTmx(*in, *files);
    AddMap(*in, *files);
    return [out, files] {
        return out->parsed() ? Export(files->map, files->tmx) : Import(files->tmx, files->map);
    };
}

}  // namespace

int main(int count, char** arguments) {
    CommandLine line("sarnoth-tiled", "Turns a map of the game into a map of the editor Tiled and back.",
                     "Exit code 0: done; 1: not done, standard error says why; 2: a wrong command line.");
    return line.Follow(count, arguments, AddCommands);
}
