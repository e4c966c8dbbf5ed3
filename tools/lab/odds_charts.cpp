#include "tools/lab/odds_charts.h"

#include <algorithm>

#include "data/mode_words.h"
#include "data/weapons_file.h"
#include "tools/lab/line_chart.h"

namespace {

const std::vector<int> Distances = {1, 2, 3, 5, 7, 10, 12, 15, 18, 20, 23, 26, 30, 35, 40};

const ChartAxis Across = {"distance (cells)", 40, 5};
const ChartAxis HitAxis = {"chance to hit (%)", 100, 10};
const ChartAxis DamageAxis = {"mean damage (points of health)", 45, 5};  // the target has 41

double HitPercent(const Score& score) {
    return PercentOf(score.hitting, score);
}

double MeanDamage(const Score& score) {
    return MeanOf(score.damage, score);
}

using Figure = double (*)(const Score&);

// To the weapon's reach, where the line ends.
ChartLine LineOf(const std::string& name, Drill drill, Figure figure, OddsStudy& study) {
    const int reach = WeaponInfoByName(drill.weapon).range;
    ChartLine line{name, {}};
    for (const int distance : Distances) {
        drill.east = std::min(distance, reach);
        line.points.push_back({static_cast<double>(drill.east), figure(study.Of(drill))});
        if (distance >= reach) break;
    }
    return line;
}

// Of a whole plan those that are told apart best; their first modes.
std::vector<std::string> Charted(const OddsPlan& plan) {
    static const std::vector<std::string> Chosen = {"p226", "mp5",     "m4",       "l96",
                                                    "m249", "rem870m", "crossbow", "knife"};
    if (plan.weapons.size() <= Chosen.size()) return plan.weapons;
    return Chosen;
}

// A blade that can be thrown is charted thrown.
int ChartedMode(const std::vector<std::string>& modes) {
    const auto thrown = std::find(modes.begin(), modes.end(), ThrowMode);
    return thrown == modes.end() ? 0 : static_cast<int>(thrown - modes.begin());
}

LineChart ByWeapon(const std::string& title, const ChartAxis& up, Figure figure, const OddsPlan& plan,
                   OddsStudy& study) {
    LineChart chart{title, Across, up, {}};
    for (const std::string& weapon : Charted(plan)) {
        const std::vector<std::string> modes = study.Range().ModesOf(weapon);
        const int mode = ChartedMode(modes);
        chart.lines.push_back(LineOf(WeaponTitle(weapon) + ", " + modes.at(static_cast<std::size_t>(mode)),
                                     {.weapon = weapon, .mode = mode}, figure, study));
    }
    return chart;
}

LineChart ByMode(const std::string& title, const ChartAxis& up, Figure figure, const OddsPlan& plan,
                 OddsStudy& study) {
    LineChart chart{title, Across, up, {}};
    for (const ToldOrder& order : study.OrdersOf(plan.studied, Distances))
        chart.lines.push_back(
            LineOf(order.modes, {.weapon = order.weapon, .mode = order.mode}, figure, study));
    return chart;
}

LineChart ByStance(const OddsPlan& plan, OddsStudy& study) {
    static constexpr const char* Names[] = {"prone", "crouching", "standing", "running"};
    LineChart chart{
        WeaponTitle(plan.studied) + ": chance to hit, by the target's stance", Across, HitAxis, {}};
    for (const int facing : {West, North})
        for (int stance = Run; stance >= Prone; --stance)
            chart.lines.push_back(LineOf(
                std::string(Names[stance]) + (facing == West ? ", facing you" : ", side on"),
                {.weapon = plan.studied, .targetStance = stance, .targetFacing = facing}, HitPercent, study));
    return chart;
}

}  // namespace

std::vector<ChartFile> OddsCharts(const OddsPlan& plan, OddsStudy& study) {
    const std::string studied = WeaponTitle(plan.studied);
    return {
        {"weapons.svg", ChartSvg(ByWeapon("Chance that an order hits, to the weapon's reach", HitAxis,
                                          HitPercent, plan, study))},
        {"damage.svg", ChartSvg(ByWeapon("Damage of an order, to the weapon's reach", DamageAxis, MeanDamage,
                                         plan, study))},
        {"modes.svg", ChartSvg(ByMode(studied + ": damage of an order, by fire mode", DamageAxis, MeanDamage,
                                      plan, study))},
        {"stances.svg", ChartSvg(ByStance(plan, study))},
    };
}
