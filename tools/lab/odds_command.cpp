// The odds on the firing range, printed or written as documents.
#include <cstdlib>
#include <iostream>

#include "data/weapons_file.h"
#include "platform/files.h"
#include "tools/arguments.h"
#include "tools/game_copy.h"
#include "tools/lab/commands.h"
#include "tools/lab/odds_charts.h"
#include "tools/lab/odds_study.h"
#include "tools/lab/odds_tables.h"
#include "tools/whole_file.h"

namespace {

OddsPlan PlanFor(const std::string& weapon, OddsStudy& study) {
    if (weapon.empty()) return WholePlan();
    if (ItemClass(weapon) != "Weapon") throw UsageError("there is no weapon \"" + weapon + "\"");
    if (study.OrdersOf(weapon, {1}).empty()) throw UsageError("\"" + weapon + "\" hurts nobody");
    return {{weapon}, weapon};
}

void WriteAll(const std::filesystem::path& folder, const OddsPlan& plan, OddsStudy& study) {
    std::filesystem::create_directories(folder);
    WriteWholeFile(folder / "tables.md", OddsMarkdown(plan, study));
    for (const ChartFile& chart : OddsCharts(plan, study))
        WriteWholeFile(folder / chart.name, chart.svg);
}

}  // namespace

int MeasureOdds(const Words& words) {
    const Arguments given(words, {"--weapon", "--trials", "--seed", "--out", "--game"}, {"--json"}, 0);
    const std::uint32_t trials = given.Number("--trials", 1000, 1, 1'000'000);
    if (given.Has("--json") && given.Has("--out")) throw UsageError("--json is printed, --out writes tables");
    const GameCopy copy(given.Text("--game", GAME_FOLDER));
    SetProgramFolder(copy.Path());
    FiringRange range;
    OddsStudy study(range, static_cast<int>(trials), given.Number("--seed", 1));
    const OddsPlan plan = PlanFor(given.Text("--weapon", ""), study);
    if (given.Has("--out")) {
        WriteAll(given.Text("--out", ""), plan, study);
        return EXIT_SUCCESS;
    }
    const std::string tables = OddsMarkdown(plan, study);
    std::cout << (given.Has("--json") ? study.Json() : tables);
    return EXIT_SUCCESS;
}
