#include "tools/missions/options.h"

#include <charconv>
#include <limits>

#include "tools/squad_player.h"

namespace {

struct Option {
    const char* name;
    const char* value;  // what it needs, nullptr for nothing
    void (*apply)(MissionOptions&, const std::string& value);
};

// A whole number from `least` up. Throws UsageError.
template <typename Number>
Number ReadNumber(const std::string& text, Number least) {
    Number number = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (text.empty() || stop != end || error != std::errc() || number < least)
        throw UsageError("\"" + text + "\" is no whole number from " + std::to_string(least) + " to " +
                         std::to_string(std::numeric_limits<Number>::max()));
    return number;
}

std::uint32_t ReadSeed(const std::string& text) {
    return ReadNumber<std::uint32_t>(text, 0);
}

void ReadSeeds(MissionOptions& options, const std::string& range) {
    const std::size_t dots = range.find("..");
    if (dots == std::string::npos) throw UsageError("--seeds needs A..B, as 1..1000");
    options.firstSeed = ReadSeed(range.substr(0, dots));
    options.lastSeed = ReadSeed(range.substr(dots + 2));
    if (options.firstSeed > options.lastSeed) throw UsageError("--seeds counts upward: " + range);
}

void ReadGame(MissionOptions& options, const std::string& folder) {
    if (!std::filesystem::is_directory(std::filesystem::path(folder) / "dat"))
        throw UsageError("no game folder: " + folder);
    options.game = folder;
}

void ReadPlayer(MissionOptions& options, const std::string& name) {
    options.habits = HabitsNamed(name);
    if (options.habits == nullptr && name != "simple") throw UsageError("no such player: " + name);
}

// The limit fits a clock that counts nanoseconds.
void ReadLimit(MissionOptions& options, const std::string& seconds) {
    options.limit = std::chrono::seconds(ReadNumber<std::int32_t>(seconds, 0));
}

// clang-format off
constexpr Option Options[] = {
    {"--seeds", "A..B",    ReadSeeds},
    {"--turns", "N",       [](MissionOptions& o, const std::string& v) { o.turns = ReadNumber<int>(v, 1); }},
    {"--player", "NAME",   ReadPlayer},
    {"--log",   "SEED",    [](MissionOptions& o, const std::string& v) { o.log = ReadSeed(v); }},
    {"--game",  "FOLDER",  ReadGame},
    {"--limit", "SECONDS", ReadLimit},
    {"--json",  nullptr,   [](MissionOptions& o, const std::string&) { o.json = true; }},
    {"--time",  nullptr,   [](MissionOptions& o, const std::string&) { o.time = true; }},
    {"--help",  nullptr,   [](MissionOptions& o, const std::string&) { o.help = true; }},
};
// clang-format on

const Option& FindOption(const std::string& name) {
    for (const Option& option : Options)
        if (name == option.name) return option;
    throw UsageError("no such option: " + name);
}

}  // namespace

const char* const MissionUsage =
    "usage: sarnoth-missions [--seeds A..B] [--player NAME] [--turns N] [--json] [--time]\n"
    "                        [--game FOLDER] [--limit SECONDS]\n"
    "       sarnoth-missions --log SEED [--player NAME] [--turns N] [--game FOLDER] [--limit SECONDS]\n"
    "\n"
    "Plays whole missions without a window, one for each seed, and tells how they ended.\n"
    "The same command prints the same bytes. The game folder is only read.\n"
    "\n"
    "  --seeds A..B     the seeds, both included (1..1000)\n"
    "  --player NAME    simple: knows where the enemy is, walks there and fires (the default);\n"
    "                   sensible: searches in short bounds, fires when the odds are fair, takes cover;\n"
    "                   careless: searches at a run, runs at the enemy, fires whoever is in the way\n"
    "  --turns N        the squad leaves the field after so many turns (40)\n"
    "  --json           for programs: the same figures, and each mission's own\n"
    "  --log SEED       the whole log of that one mission instead\n"
    "  --game FOLDER    the game to play: the folder of dat/, map/, pic/ and wav/ (the one built with this)\n"
    "  --limit SECONDS  a mission that takes longer is endless (60)\n"
    "  --time           tells on standard error how long it took\n"
    "\n"
    "Exit code 0: every mission ended; 1: one didn't, standard error names its seed; 2: a wrong command "
    "line.\n";

MissionOptions ReadMissionOptions(const std::vector<std::string>& arguments) {
    MissionOptions options;
    bool table = false;  // whether something was asked that a log alone hasn't
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const Option& option = FindOption(arguments[i]);
        table = table || arguments[i] == "--seeds" || arguments[i] == "--json";
        if (option.value != nullptr && ++i == arguments.size())
            throw UsageError(std::string(option.name) + " needs " + option.value);
        option.apply(options, option.value != nullptr ? arguments[i] : "");
    }
    if (options.log && table) throw UsageError("--log goes with neither --seeds nor --json");
    return options;
}
