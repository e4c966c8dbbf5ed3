#include "tools/missions/options.h"

#include <limits>

#include "tools/player/squad_player.h"

namespace {

const Habits* PlayerNamed(const std::string& name) {
    const Habits* const habits = HabitsNamed(name);
    if (habits == nullptr && name != "simple") throw UsageError("no such player: " + name);
    return habits;
}

}  // namespace

const char* const MissionUsage =
    R"(usage: sarnoth-missions [--seeds A..B] [--player NAME] [--turns N] [--json] [--time]
                        [--game FOLDER] [--limit SECONDS]
       sarnoth-missions --log SEED [--player NAME] [--turns N] [--game FOLDER] [--limit SECONDS]

Plays whole missions without a window, one for each seed, and tells how they ended.
The same command prints the same bytes. The game folder is only read.

  --seeds A..B     the seeds, both included (1..1000)
  --player NAME    simple: knows where the enemy is, walks there and fires (the default);
                   sensible: searches in short bounds, fires when the odds are fair, takes cover;
                   careless: searches at a run, runs at the enemy, fires whoever is in the way
  --turns N        the squad leaves the field after so many turns (40)
  --json           for programs: the same figures, and each mission's own
  --log SEED       the whole log of that one mission instead
  --game FOLDER    the game to play: the folder of dat/, map/, pic/ and wav/ (the one built with this)
  --limit SECONDS  a mission that takes longer is endless (60)
  --time           tells on standard error how long it took

Exit code 0: every mission ended; 1: one didn't, standard error names its seed; 2: a wrong command line.
)";

MissionOptions ReadMissionOptions(const std::vector<std::string>& arguments) {
    constexpr std::uint32_t Most = std::numeric_limits<std::int32_t>::max();  // fits a clock's nanoseconds
    const Arguments given(arguments, {"--seeds", "--turns", "--player", "--log", "--game", "--limit"},
                          {"--json", "--time", "--help"});
    MissionOptions options;
    options.help = given.Has("--help");
    options.json = given.Has("--json");
    options.time = given.Has("--time");
    options.seeds = given.Seeds("--seeds", options.seeds);
    options.turns = static_cast<int>(given.Number("--turns", 40, 1, Most));
    options.limit = std::chrono::seconds(given.Number("--limit", 60, 0, Most));
    options.habits = PlayerNamed(given.Text("--player", "simple"));
    options.game = given.DataFolder("--game", "");
    if (!given.Has("--log")) return options;
    options.log = given.Number("--log", 0);
    if (given.Has("--seeds") || options.json) throw UsageError("--log goes with neither --seeds nor --json");
    return options;
}
