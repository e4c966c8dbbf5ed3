#include "tools/missions/summary.h"

#include <algorithm>
#include <iomanip>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string_view>

#include "tools/json_text.h"

namespace {

using Json = nlohmann::ordered_json;

// What is told about some of the missions; without missions the other figures mean nothing.
struct Figures {
    std::size_t missions = 0;
    double share = 0;  // of all that ended
    int least = 0;     // turns
    int tenth = 0;
    int median = 0;
    int ninetieth = 0;
    int most = 0;
    double squadWounded = 0;  // a mission
    double squadDead = 0;
    double enemiesDead = 0;
    double costly = 0;  // share of these that cost a wounded or dead soldier
};

using Missions = std::vector<const PlayedMission*>;

// The smallest value that so many percent of all don't exceed.
int Percentile(const std::vector<int>& sorted, std::size_t percent) {
    return sorted[(sorted.size() * percent + 99) / 100 - 1];
}

double Mean(const Missions& missions, int MissionResult::*figure) {
    int sum = 0;
    for (const PlayedMission* mission : missions)
        sum += mission->result.*figure;
    return sum / static_cast<double>(missions.size());
}

double CostlyShare(const Missions& missions) {
    const auto costly = std::count_if(missions.begin(), missions.end(), [](const PlayedMission* mission) {
        return mission->result.squadWounded + mission->result.squadDead > 0;
    });
    return static_cast<double>(costly) / static_cast<double>(missions.size());
}

Missions Ended(const std::vector<PlayedMission>& all, std::string_view verdict) {
    Missions chosen;
    for (const PlayedMission& mission : all)
        if (mission.error.empty() && (verdict.empty() || mission.result.verdict == verdict))
            chosen.push_back(&mission);
    return chosen;
}

// Of the missions with this verdict; of all that ended for an empty one.
Figures FiguresOf(const std::vector<PlayedMission>& all, std::string_view verdict) {
    const Missions missions = Ended(all, verdict);
    Figures figures;
    if (missions.empty()) return figures;
    std::vector<int> turns;
    turns.reserve(missions.size());
    for (const PlayedMission* mission : missions)
        turns.push_back(mission->result.turns);
    std::sort(turns.begin(), turns.end());
    figures.missions = missions.size();
    figures.share = static_cast<double>(missions.size()) / static_cast<double>(Ended(all, "").size());
    figures.least = turns.front();
    figures.tenth = Percentile(turns, 10);
    figures.median = Percentile(turns, 50);
    figures.ninetieth = Percentile(turns, 90);
    figures.most = turns.back();
    figures.squadWounded = Mean(missions, &MissionResult::squadWounded);
    figures.squadDead = Mean(missions, &MissionResult::squadDead);
    figures.enemiesDead = Mean(missions, &MissionResult::enemiesDead);
    figures.costly = CostlyShare(missions);
    return figures;
}

std::string Row(const std::string& name, const Figures& figures) {
    std::ostringstream row;
    row << std::left << std::setw(10) << name << std::right << std::setw(10) << figures.missions;
    if (figures.missions > 0) {
        row << std::fixed << std::setprecision(1) << std::setw(7) << figures.share * 100 << "%"
            << std::setw(7) << figures.least << std::setw(8) << figures.median << std::setw(6)
            << figures.ninetieth << std::setw(6) << figures.most << std::setprecision(2) << std::setw(9)
            << figures.squadWounded << std::setw(7) << figures.squadDead << std::setw(14)
            << figures.enemiesDead << std::setprecision(1) << std::setw(7) << figures.costly * 100 << "%";
    }
    row << "\n";
    return row.str();
}

using QuarterShares = std::array<double, Quarters>;

// Of all missions that ended.
QuarterShares SharesOf(const std::vector<PlayedMission>& all) {
    const Missions missions = Ended(all, "");
    QuarterShares shares = {};
    for (const PlayedMission* mission : missions)
        if (const std::optional<Spot> cell = DecidingCell(*mission))
            shares[static_cast<std::size_t>(QuarterOf(*cell))] += 1.0 / static_cast<double>(missions.size());
    return shares;
}

std::string Percent(double share) {
    std::ostringstream text;
    text << std::fixed << std::setprecision(1) << share * 100 << "%";
    return text.str();
}

std::string QuarterLine(const std::vector<PlayedMission>& missions) {
    const QuarterShares shares = SharesOf(missions);
    std::string line = "decided in the";
    for (std::size_t quarter = 0; quarter < Quarters; ++quarter)
        line += std::string(" ") + QuarterNames[quarter] + " " + Percent(shares[quarter]);
    return line + "\n";
}

Json QuartersJson(const std::vector<PlayedMission>& missions) {
    const QuarterShares shares = SharesOf(missions);
    Json json;
    for (std::size_t quarter = 0; quarter < Quarters; ++quarter)
        json[QuarterNames[quarter]] = shares[quarter];
    return json;
}

Json SpotJson(const std::optional<Spot>& cell) {
    if (!cell) return nullptr;
    return {{"x", int{cell->x}}, {"y", int{cell->y}}};
}

Json FallsJson(const std::vector<Fall>& falls) {
    Json json = Json::array();
    for (const Fall& fall : falls)
        json.push_back({{"unit", fall.unit}, {"x", int{fall.cell.x}}, {"y", int{fall.cell.y}}});
    return json;
}

Json FiguresJson(const Figures& figures) {
    if (figures.missions == 0)
        return {{"missions", 0}, {"share", 0}, {"turns", nullptr}, {"mean", nullptr}, {"costly", nullptr}};
    return {{"missions", figures.missions},
            {"share", figures.share},
            {"turns",
             {{"minimum", figures.least},
              {"median", figures.median},
              {"percentile90", figures.ninetieth},
              {"maximum", figures.most}}},
            {"mean",
             {{"squadWounded", figures.squadWounded},
              {"squadDead", figures.squadDead},
              {"enemiesDead", figures.enemiesDead}}},
            {"costly", figures.costly}};
}

Json PlayedJson(const PlayedMission& mission) {
    if (!mission.error.empty()) return {{"seed", mission.seed}, {"error", mission.error}};
    const MissionResult& result = mission.result;
    return {{"seed", mission.seed},
            {"verdict", result.verdict},
            {"turns", result.turns},
            {"squadWounded", result.squadWounded},
            {"squadDead", result.squadDead},
            {"enemiesDead", result.enemiesDead},
            {"decidedAt", SpotJson(DecidingCell(mission))},
            {"fell", FallsJson(mission.falls)}};
}

}  // namespace

std::optional<Spot> DecidingCell(const PlayedMission& mission) {
    if (mission.falls.empty() || mission.result.verdict == "Withdrawal") return std::nullopt;
    return mission.falls.back().cell;
}

std::string MissionTable(const std::vector<PlayedMission>& missions) {
    std::string table =
        "                              turns                      mean of a mission\n"
        "            missions   share    min  median   90%   max  wounded   dead  enemies dead  costly\n";
    for (const char* verdict : Verdicts)
        table += Row(verdict, FiguresOf(missions, verdict));
    return table + Row("All", FiguresOf(missions, "")) +
           "costly: cost the squad a wounded or dead soldier\n" + QuarterLine(missions);
}

std::string MissionMarkdown(const std::string& player, const std::vector<PlayedMission>& missions) {
    const Figures all = FiguresOf(missions, "");
    const Figures won = FiguresOf(missions, "Victory");
    std::ostringstream row;
    row << "| " << player << " | " << Percent(won.share) << " | "
        << Percent(FiguresOf(missions, "Defeat").share) << " | " << won.tenth << ", " << won.median << ", "
        << won.ninetieth << " | " << std::fixed << std::setprecision(2) << all.squadWounded << " | "
        << all.squadDead << " | " << Percent(all.costly) << " |";
    for (const double share : SharesOf(missions))
        row << " " << Percent(share) << " |";
    row << "\n";
    return row.str();
}

std::string MissionJson(const std::vector<PlayedMission>& missions) {
    Json json;
    for (const char* verdict : Verdicts)
        json[verdict] = FiguresJson(FiguresOf(missions, verdict));
    json["All"] = FiguresJson(FiguresOf(missions, ""));
    json["quarters"] = QuartersJson(missions);
    json["missions"] = Json::array();
    for (const PlayedMission& mission : missions)
        json["missions"].push_back(PlayedJson(mission));
    return JsonText(json);
}
