#include "tools/missions/options.h"

#include <limits>

void AddMissionOptions(CLI::App& app, MissionOptions& options) {
    constexpr int Most = std::numeric_limits<std::int32_t>::max();  // seconds that fit a clock's nanoseconds
    CLI::Option* const seeds = AddSeeds(app, options.seeds);
    AddPlayer(app, options.player);
    AddTurns(app, options.turns);
    CLI::Option* const json =
        app.add_flag("--json", options.json, "for programs: the same figures, and each mission's own");
    app.add_flag("--markdown", options.markdown, "the row of the table in docs/map.md")->excludes(json);
    app.add_option("--heat", options.heat,
                   "paints where men fell, and where the missions were decided, over the field, an SVG")
        ->type_name("FILE");
    app.add_option("--log", options.log,
                   "the whole log of that one mission instead; goes with neither --seeds nor --json")
        ->type_name("SEED")
        ->excludes(seeds)
        ->excludes(json);
    AddGame(app, options.game);
    app.add_option("--limit", options.limit, "a mission that takes longer is endless")
        ->type_name("SECONDS")
        ->check(Within(0, Most))
        ->capture_default_str();
    app.add_flag("--time", options.time, "shows on standard error how long it took");
}
