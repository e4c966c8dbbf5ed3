// The odds on the firing range, printed or written as documents.
#include <cstdlib>
#include <fstream>
#include <iostream>

#include "data/weapons_file.h"
#include "platform/files.h"
#include "tools/game_copy.h"
#include "tools/lab/arguments.h"
#include "tools/lab/commands.h"
#include "tools/lab/odds_charts.h"
#include "tools/lab/odds_study.h"
#include "tools/lab/odds_tables.h"
#include "tools/usage_error.h"

namespace lab {

namespace {

OddsPlan PlanFor(const std::string& weapon, OddsStudy& study) {
    if (weapon.empty()) return WholePlan();
    if (ItemClass(weapon) != "Weapon") throw UsageError("there is no weapon \"" + weapon + "\"");
    if (study.OrdersOf(weapon, {1}).empty()) throw UsageError("\"" + weapon + "\" hurts nobody");
    return {{weapon}, weapon};
}

void Write(const std::filesystem::path& file, const std::string& content) {
    std::ofstream to(file, std::ios::binary);
    to << content;
    to.close();
    if (!to) throw std::runtime_error("can't write " + file.string());
}

void WriteAll(const std::filesystem::path& folder, const OddsPlan& plan, OddsStudy& study) {
    std::filesystem::create_directories(folder);
    Write(folder / "tables.md", OddsMarkdown(plan, study));
    for (const ChartFile& chart : OddsCharts(plan, study))
        Write(folder / chart.name, chart.svg);
}

}  // namespace

int Odds(const Words& words) {
    const Arguments given(words, {"--weapon", "--trials", "--seed", "--out", "--game"}, {"--json"}, 0);
    constexpr std::uint32_t MostTrials = 1'000'000;
    const std::uint32_t trials = given.Number("--trials", 1000);
    if (trials < 1 || trials > MostTrials) throw UsageError("--trials needs 1 to 1000000");
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

}  // namespace lab
