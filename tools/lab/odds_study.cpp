#include "tools/lab/odds_study.h"

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>

#include "data/mode_words.h"
#include "tools/json_text.h"

namespace {

constexpr std::array HarmlessModes = {DigMode, FillMode, FoldMode, UnfoldMode};

bool IsHarmless(const std::string& mode) {
    return std::find(HarmlessModes.begin(), HarmlessModes.end(), mode) != HarmlessModes.end();
}

nlohmann::ordered_json FiredJson(const Drill& drill, const Score& score) {
    return {{"weapon", drill.weapon},
            {"mode", drill.mode},
            {"east", drill.east},
            {"south", drill.south},
            {"shooterStance", drill.shooterStance},
            {"targetStance", drill.targetStance},
            {"targetFacing", drill.targetFacing},
            {"screen", drill.screen.name},
            {"orders", score.orders},
            {"hitting", score.hitting},
            {"hits", score.hits},
            {"damage", score.damage},
            {"disabled", score.disabled},
            {"killed", score.killed},
            {"time", score.time},
            {"energy", score.energy}};
}

}  // namespace

OddsStudy::OddsStudy(FiringRange& on, int toFire, std::uint32_t fromSeed)
    : range(on), orders(toFire), seed(fromSeed) {}

const Score& OddsStudy::Of(const Drill& drill) {
    const auto known =
        std::find_if(fired.begin(), fired.end(), [&drill](const Fired& one) { return one.drill == drill; });
    if (known != fired.end()) return known->score;
    return fired.emplace_back(Fired{drill, range.Fire(drill, orders, seed)}).score;
}

std::vector<ToldOrder> OddsStudy::OrdersOf(const std::string& weapon, const std::vector<int>& distances) {
    std::vector<ToldOrder> told;
    std::vector<std::vector<Score>> scores;
    const std::vector<std::string> modes = range.ModesOf(weapon);
    for (std::size_t mode = 0; mode < modes.size(); ++mode) {
        if (IsHarmless(modes[mode])) continue;
        std::vector<Score> ofMode;
        ofMode.reserve(distances.size());
        for (const int distance : distances)
            ofMode.push_back(Of({.weapon = weapon, .mode = static_cast<int>(mode), .east = distance}));
        const auto same = std::find(scores.begin(), scores.end(), ofMode);
        if (same != scores.end()) {
            told[static_cast<std::size_t>(same - scores.begin())].modes += ", " + modes[mode];
        } else {
            told.push_back({weapon, static_cast<int>(mode), modes[mode]});
            scores.push_back(ofMode);
        }
    }
    return told;
}

std::string OddsStudy::Json() const {
    auto drills = nlohmann::ordered_json::array();
    for (const Fired& one : fired)
        drills.push_back(FiredJson(one.drill, one.score));
    return JsonText(
        {{"orders", orders}, {"seed", seed}, {"shooter", range.Shooter().name}, {"drills", drills}});
}

double PercentOf(int count, const Score& score) {
    return 100.0 * MeanOf(count, score);
}

double MeanOf(int sum, const Score& score) {
    return static_cast<double>(sum) / score.orders;
}
