#include "tools/check/options.h"

namespace fs = std::filesystem;

namespace {

void ReadFolder(fs::path& folder, const std::string& value, const std::string& what) {
    if (!fs::is_directory(fs::path(value) / "dat")) throw UsageError("no " + what + ": " + value);
    folder = value;
}

}  // namespace

const char* const CheckUsage =
    "usage: sarnoth-check [--game FOLDER] [--sources FOLDER] [--json]\n"
    "\n"
    "Reads the data of the game and tells every fault in it: the file, the place, what is wrong and what "
    "was\n"
    "expected. Without a folder it checks the sources and the game that were built with it.\n"
    "\n"
    "  --game FOLDER     a game: the folder of dat/, map/, pic/ and wav/\n"
    "  --sources FOLDER  the sources of one: the folder of dat/, map/ and campaign/; their pictures and "
    "sounds\n"
    "                    are those of the game\n"
    "  --json            for programs: a list of objects\n"
    "\n"
    "Exit code 0: no fault; 1: faults; 2: a wrong command line.\n";

CheckOptions ReadCheckOptions(const std::vector<std::string>& arguments) {
    CheckOptions options;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& name = arguments[i];
        if (name == "--json") {
            options.json = true;
        } else if (name == "--help") {
            options.help = true;
        } else if (name == "--game" || name == "--sources") {
            if (++i == arguments.size()) throw UsageError(name + " needs FOLDER");
            if (name == "--game")
                ReadFolder(options.game, arguments[i], "game folder");
            else
                ReadFolder(options.sources, arguments[i], "folder of sources");
        } else {
            throw UsageError("no such option: " + name);
        }
    }
    return options;
}
