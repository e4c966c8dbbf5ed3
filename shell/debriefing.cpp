#include "shell/debriefing.h"

#include <algorithm>

#include "data/weapons_file.h"
#include "mission/awards.h"
#include "shell/squad_rows.h"
#include "state/state.h"

namespace {

// The state in which he comes home; what time he has left means nothing any more.
std::string StateOf(const SquadRow& row) {
    if (row.fitness == Fitness::Dead) return FitnessWord(row.fitness);
    const bool isFit = row.fitness == Fitness::Ready || row.fitness == Fitness::Spent;
    const std::string health = std::to_string(row.health) + " of " + std::to_string(row.mostHealth);
    return isFit ? health : FitnessWord(row.fitness) + ", " + health;
}

SoldierReport ReportOf(const SquadRow& row, const Tally& tally) {
    return {.name = row.name,
            .tally = tally,
            .points = tally.damage + PointsForKill * tally.kills,
            .state = StateOf(row)};
}

std::vector<ThingReport> ThingsSince(const StoreCount& before) {
    StoreCount more = CountStore();
    for (const auto& [key, count] : before)
        more[key] -= count;
    std::vector<ThingReport> things;
    for (const auto& [key, count] : more)
        if (count != 0) things.push_back({WeaponInfoByName(key).title, count});
    std::stable_sort(things.begin(), things.end(),
                     [](const ThingReport& a, const ThingReport& b) { return a.more > b.more; });
    return things;
}

void AddMedal(std::vector<MedalReport>& medals, const std::string& title, const std::string& soldier) {
    auto medal = std::find_if(medals.begin(), medals.end(),
                              [&title](const MedalReport& report) { return report.title == title; });
    if (medal == medals.end()) medal = medals.insert(medals.end(), {title, {}});
    medal->soldiers.push_back(soldier);
}

// Which one of its kind it would be, and whether he lives to wear it.
std::string WithOrdinal(const Unit& unit, int row) {
    std::string ordinal = AwardOrdinalOf(unit.awards[row] + 1);
    if (!ordinal.empty()) ordinal.pop_back();  // its blank
    if (unit.status == Dead) ordinal += ordinal.empty() ? "posthumously" : ", posthumously";
    return ordinal.empty() ? unit.name : unit.name + " (" + ordinal + ")";
}

std::vector<MedalReport> MedalsEarned() {
    std::vector<MedalReport> medals;
    for (int i = 0; i <= teamLast[SquadTeam]; ++i) {
        const Unit& unit = UnitTable[i];
        for (const std::string_view code : AwardsOfMission(unit))
            if (const int row = AwardRowFor(unit, code); row >= 0)
                AddMedal(medals, awardTable[row].title, WithOrdinal(unit, row));
    }
    return medals;
}

std::string Escaped(const std::string& text) {
    std::string escaped;
    for (const char letter : text) {
        if (letter == '&')
            escaped += "&amp;";
        else if (letter == '<')
            escaped += "&lt;";
        else
            escaped += letter;
    }
    return escaped;
}

std::string Cell(const char* tag, const char* align, const std::string& text) {
    return std::string("<") + tag + " align=\"" + align + "\">" + text + "</" + tag + ">";
}

// The first cell and the last are words, those between them figures.
std::string Row(const char* tag, const std::vector<std::string>& cells) {
    std::string row = "<tr>";
    for (std::size_t i = 0; i < cells.size(); ++i)
        row += i == 0                  ? Cell(tag, "left", cells[i])
               : i + 1 == cells.size() ? Cell(tag, "left", "&nbsp; &nbsp;" + cells[i])
                                       : Cell(tag, "right", cells[i]);
    return row + "</tr>\n";
}

std::string SoldiersTable(const std::vector<SoldierReport>& soldiers) {
    std::string table = "<table width=\"98%\" cellspacing=\"0\" cellpadding=\"2\">\n" +
                        Row("th", {"Soldier", "Shots", "Hits", "Kills", "Wounds", "Points", "Health"});
    for (const SoldierReport& soldier : soldiers) {
        const Tally& tally = soldier.tally;
        std::vector<std::string> cells = {Escaped(soldier.name)};
        for (const int figure : {tally.shots, tally.hits, tally.kills, tally.wounds, soldier.points})
            cells.push_back(std::to_string(figure));
        cells.push_back(soldier.state);
        table += Row("td", cells);
    }
    return table + "</table>\n";
}

std::string ThingsList(const std::vector<ThingReport>& things) {
    if (things.empty()) return "<p>The vehicle holds what it held before.</p>\n";
    std::string home;
    std::string taken;
    for (const ThingReport& thing : things) {
        std::string& list = thing.more > 0 ? home : taken;
        list += (list.empty() ? "" : ", ") + std::to_string(std::abs(thing.more)) + " &times; " +
                Escaped(thing.title);
    }
    std::string text;
    if (!home.empty()) text += "<p>Laid into the vehicle: " + home + ".</p>\n";
    if (!taken.empty()) text += "<p>Taken out of it: " + taken + ".</p>\n";
    return text;
}

std::string MedalsList(const std::vector<MedalReport>& medals) {
    std::string text;
    for (const MedalReport& medal : medals) {
        text += "<p><b>" + Escaped(medal.title) + "</b>: ";
        for (std::size_t i = 0; i < medal.soldiers.size(); ++i)
            text += (i == 0 ? "" : ", ") + Escaped(medal.soldiers[i]);
        text += ".</p>\n";
    }
    return text;
}

}  // namespace

Debriefing DebriefingOf(const Chronicle& chronicle) {
    Debriefing debriefing;
    debriefing.outcome = missionVerdict;
    debriefing.turns = squadTurns;
    debriefing.enemies = teamLast[EnemyTeam] + 1;
    for (int i = FirstOf(EnemyTeam); i <= FirstOf(EnemyTeam) + teamLast[EnemyTeam]; ++i)
        if (UnitTable[i].status == Dead) ++debriefing.enemiesKilled;
    for (const SquadRow& row : SquadRows())
        debriefing.soldiers.push_back(ReportOf(row, chronicle.TallyOf(row.unit)));
    debriefing.things = ThingsSince(chronicle.StoreAtStart());
    debriefing.medals = MedalsEarned();
    return debriefing;
}

std::string PageOf(const Debriefing& debriefing) {
    return "<h2>" + Escaped(debriefing.outcome) + "</h2>\n<p>Turns: " + std::to_string(debriefing.turns) +
           ". Enemies killed: " + std::to_string(debriefing.enemiesKilled) + " of " +
           std::to_string(debriefing.enemies) + ".</p>\n" + SoldiersTable(debriefing.soldiers) +
           "<p>Points: one for each point of damage done to the enemy, " + std::to_string(PointsForKill) +
           " for each one killed.</p>\n<h3>Brought home</h3>\n" + ThingsList(debriefing.things) +
           "<h3>Medals that such a mission earns</h3>\n" + MedalsList(debriefing.medals);
}
