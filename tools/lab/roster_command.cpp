// The squad as a page.
#include <cstdlib>
#include <iostream>
#include <memory>

#include "mission/setup.h"
#include "platform/files.h"
#include "platform/quiet_host.h"
#include "state/quiet_audience.h"
#include "tools/game_copy.h"
#include "tools/lab/commands.h"
#include "tools/lab/roster_page.h"

namespace {

struct RosterOptions {
    std::string faces = "../content/art/hand/pic/faces";
    std::filesystem::path game = GAME_FOLDER;
};

int PrintRoster(const RosterOptions& options) {
    const GameCopy copy(options.game);
    SetProgramFolder(copy.Path());
    const QuietHost host;
    QuietAudience nobody;
    InstallAudience(&nobody);
    BeginGame(1);
    std::cout << RosterMarkdown(options.faces);
    return EXIT_SUCCESS;
}

}  // namespace

Work AddRoster(CLI::App& command) {
    const auto options = std::make_shared<RosterOptions>();
    command.add_option("--faces", options->faces, "the folder of the portraits, as the page links to it")
        ->type_name("FOLDER")
        ->capture_default_str();
    AddGame(command, options->game);
    return [options] { return PrintRoster(*options); };
}
