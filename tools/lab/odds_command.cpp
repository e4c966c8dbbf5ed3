// The odds on the firing range, printed or written as documents.
#include <cstdlib>
#include <iostream>
#include <memory>

#include "data/weapons_file.h"
#include "platform/files.h"
#include "tools/game_copy.h"
#include "tools/lab/commands.h"
#include "tools/lab/odds_charts.h"
#include "tools/lab/odds_study.h"
#include "tools/lab/odds_tables.h"
#include "tools/whole_file.h"

namespace {

struct OddsOptions {
    std::string weapon;  // empty for all
    int trials = 1000;
    std::uint32_t seed = 1;
    bool json = false;
    std::filesystem::path out;  // empty for none
    std::filesystem::path game = GAME_FOLDER;
};

OddsPlan PlanFor(const std::string& weapon, OddsStudy& study) {
    if (weapon.empty()) return WholePlan();
    if (ItemClass(weapon) != "Weapon")
        throw CLI::ValidationError("--weapon", "there is no weapon \"" + weapon + "\"");
    if (study.OrdersOf(weapon, {1}).empty())
        throw CLI::ValidationError("--weapon", "\"" + weapon + "\" hurts nobody");
    return {{weapon}, weapon};
}

void WriteAll(const std::filesystem::path& folder, const OddsPlan& plan, OddsStudy& study) {
    std::filesystem::create_directories(folder);
    WriteWholeFile(folder / "tables.md", OddsMarkdown(plan, study));
    for (const ChartFile& chart : OddsCharts(plan, study))
        WriteWholeFile(folder / chart.name, chart.svg);
}

int MeasureOdds(const OddsOptions& options) {
    const GameCopy copy(options.game);
    SetProgramFolder(copy.Path());
    FiringRange range;
    OddsStudy study(range, options.trials, options.seed);
    const OddsPlan plan = PlanFor(options.weapon, study);
    if (!options.out.empty()) {
        WriteAll(options.out, plan, study);
        return EXIT_SUCCESS;
    }
    const std::string tables = OddsMarkdown(plan, study);
    std::cout << (options.json ? study.Json() : tables);
    return EXIT_SUCCESS;
}

}  // namespace

Work AddOdds(CLI::App& command) {
    const auto options = std::make_shared<OddsOptions>();
    command.add_option("--weapon", options->weapon, "this one alone: a key of weapons.dat")
        ->type_name("NAME");
    command.add_option("--trials", options->trials, "orders for each figure")
        ->type_name("N")
        ->check(Within(1, 1'000'000))
        ->capture_default_str();
    AddSeed(command, options->seed);
    CLI::Option* const json =
        command.add_flag("--json", options->json, "for programs: every count instead of the tables");
    command.add_option("--out", options->out, "writes tables and charts there; not with --json")
        ->type_name("FOLDER")
        ->excludes(json);
    AddGame(command, options->game);
    return [options] { return MeasureOdds(*options); };
}
