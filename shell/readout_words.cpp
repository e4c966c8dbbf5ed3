#include "shell/readout_words.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "combat/families.h"
#include "platform/code_page.h"
#include "shell/wording.h"

namespace {

std::string Number(int number) {
    return std::to_string(number);
}

std::size_t Length(const std::string& text) {
    return ToCodePage(text).size();
}

// At least one in a hundred for what can happen, at most 99 for what can fail.
std::string Percent(double share) {
    const int rounded = static_cast<int>(std::lround(share * 100));
    const int kept = share > 0 && share < 1 ? std::clamp(rounded, 1, 99) : rounded;
    return Number(kept) + " %";
}

std::string Cells(int count) {
    return Number(count) + (count == 1 ? " cell" : " cells");
}

// The last of his names; an enemy's number.
std::string Surname(int unit) {
    constexpr std::size_t Longest = 12;
    if (TeamOfUnit(unit) != SquadTeam) return NameOf(unit);
    const std::string& name = UnitTable[unit].name;
    const std::size_t blank = name.rfind(' ');
    return Shortened(blank == std::string::npos ? name : name.substr(blank + 1), Longest);
}

bool IsEnemy(int unit) {
    return unit >= 0 && TeamOfUnit(unit) == EnemyTeam;
}

std::string ActName(const ActForecast& act) {
    return act.mode.empty() ? UnitTable[curUnit].hand.title : act.mode;
}

std::string WayToTarget(const ActForecast& act) {
    if (act.range <= 0) return "";
    if (act.distance > act.range) return Cells(act.distance) + ", reaches " + Number(act.range);
    return Number(act.distance) + " of " + Cells(act.range);
}

using Lines = std::vector<ReadoutLine>;

void Add(Lines& lines, const std::string& text, Tone tone = Tone::Plain) {
    for (const ReadoutLine& line : Wrapped(text, tone))
        lines.push_back(line);
}

void AddWalk(const WalkForecast& walk, Lines& lines) {
    if (!walk.known) return;
    if (walk.steps.empty()) {
        if (walk.refusal) Add(lines, WordsOf(walk.refusal), Tone::Warning);
        if (walk.refusal.why != Why::NoWay && walk.turnsFirst && walk.turnTime > 0)
            Add(lines, "A click turns: " + Number(walk.turnTime) + " time");
        return;
    }
    const int steps = static_cast<int>(walk.steps.size());
    Add(lines, (walk.closed ? "Up to it, " : "Walk ") + Cells(steps) + ": " + Number(walk.time) + " time, " +
                   Number(walk.energy) + " energy");
    if (walk.paid < walk.steps.size()) {
        const bool byEnergy = walk.refusal.why == Why::WalkEnergy || walk.refusal.why == Why::StepEnergy;
        Add(lines,
            std::string(byEnergy ? "Energy" : "Time") + " for " + Number(static_cast<int>(walk.paid)) +
                " of " + Cells(steps),
            Tone::Warning);
    } else {
        Add(lines, "Leaves " + Number(walk.timeLeft) + " time, " + Number(walk.energyLeft) + " energy");
    }
}

void AddAct(const ActForecast& act, Lines& lines) {
    if (!act.known) return;
    const std::string way = WayToTarget(act);
    if (act.refusal)
        Add(lines, ActName(act) + ": " + WordsOf(act.refusal), Tone::Warning);
    else
        Add(lines, ActName(act) + ": " + Number(act.time) + " time" + (way.empty() ? "" : ", " + way));
}

std::string OddsText(const Odds& odds) {
    std::string text = "Hits " + Percent(odds.hits);
    if (odds.disables > odds.kills) text += ", disables " + Percent(odds.disables);
    if (odds.kills > 0) text += ", kills " + Percent(odds.kills);
    return text;
}

// What is worn out by bodies before it heals, too.
std::string EffectText(const Odds& odds) {
    const int health = static_cast<int>(std::lround(std::abs(odds.damage)));
    return (odds.damage < 0 ? "Heals about " : "About ") + Number(health) + " health";
}

// The most endangered first.
void AddDangers(const Forecast& forecast, Lines& lines) {
    if (!forecast.odds || forecast.odds->ours.empty()) return;
    std::vector<Danger> ours = forecast.odds->ours;
    std::stable_sort(ours.begin(), ours.end(),
                     [](const Danger& one, const Danger& other) { return one.share > other.share; });
    std::string text = forecast.act.blasts ? "In the blast:" : "In the line:";
    std::size_t named = 0;
    for (; named < ours.size(); ++named) {
        const double share = ours[named].share;
        const std::string one =
            (named > 0 ? ", " : " ") + Surname(ours[named].unit) + (share < 0 ? "" : " " + Percent(share));
        constexpr std::size_t RoomForMore = 4;
        if (Length(text + one) + RoomForMore > LineLength) break;
        text += one;
    }
    if (named < ours.size()) text += " +" + Number(static_cast<int>(ours.size() - named));
    lines.push_back({text, Tone::Danger});
}

void AddTarget(const Forecast& forecast, Lines& lines) {
    const ActForecast& act = forecast.act;
    if (!act.known) return;
    const bool partly = IsPartial(act.refusal.why);
    Add(lines, ActName(act) + (act.family == "cure" ? " " : " at ") + Surname(act.target) + ": " +
                   Number(act.time) + " time");
    if (act.refusal) Add(lines, WordsOf(act.refusal), Tone::Warning);
    if (act.refusal && !partly) return;
    if (!forecast.odds) return Add(lines, WayToTarget(act));
    const bool cures = act.family == "cure";
    const Tone tone = IsEnemy(act.target) || cures ? Tone::Good : Tone::Danger;
    if (!cures) Add(lines, OddsText(*forecast.odds), tone);
    AddDangers(forecast, lines);
    Add(lines, EffectText(*forecast.odds) + (act.range > 0 ? ", " + WayToTarget(act) : ""), tone);
}

}  // namespace

std::vector<ReadoutLine> LinesOf(const Forecast& forecast) {
    Lines lines;
    if (forecast.occupant == curUnit) {
        const bool isTool = forecast.act.family == "cure" || forecast.act.family == "dig";
        if (isTool && forecast.act.refusal.why != Why::OwnCell) AddAct(forecast.act, lines);
        for (const ReadoutLine& line : LinesOf(UnitTable[curUnit]))
            lines.push_back(line);
        return lines;
    }
    if (IsEnemy(forecast.occupant)) {
        AddTarget(forecast, lines);
    } else if (forecast.left == LeftClick::Selects) {
        const Unit& comrade = UnitTable[forecast.occupant];
        if (forecast.selection)
            Add(lines, WordsOf(forecast.selection), Tone::Warning);
        else
            Add(lines, "Select " + Surname(forecast.occupant) + ": " + Number(comrade.time) + " time, " +
                           Number(comrade.health) + " health");
        AddTarget(forecast, lines);
    } else {
        if (forecast.left == LeftClick::OpensStore) Add(lines, "A click opens the vehicle's store");
        AddWalk(forecast.walk, lines);
        AddAct(forecast.act, lines);
        AddDangers(forecast, lines);
    }
    const bool turnsFirst = forecast.walk.turnsFirst && !forecast.walk.steps.empty();
    if (forecast.occupant < 0 && turnsFirst) Add(lines, "The first click only turns.");
    return lines;
}

std::vector<ReadoutLine> LinesOf(const Unit& soldier) {
    static constexpr std::array<const char*, 4> Stances = {"Prone", "Crouching", "Standing", "Running"};
    Lines lines;
    Add(lines, Stances.at(static_cast<std::size_t>(int{soldier.stance})) +
                   std::string(fireInMotion ? ", fires in motion" : ", stops for fire"));
    Add(lines, Number(soldier.time) + " time, " + Number(soldier.energy) + " energy");
    Add(lines, Number(soldier.health) + " of " + Number(soldier.vitality) + " health",
        soldier.health < soldier.vitality ? Tone::Warning : Tone::Plain);
    if (soldier.load > soldier.strength)
        Add(lines,
            "Load " + Number(soldier.load) + " of " + Number(soldier.strength) + ": double energy for steps",
            Tone::Warning);
    return lines;
}

std::vector<ReadoutLine> Wrapped(const std::string& text, Tone tone) {
    std::vector<ReadoutLine> lines;
    std::string line;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find(' ', at), text.size());
        const std::string word = text.substr(at, end - at);
        if (!line.empty() && Length(line) + 1 + Length(word) > LineLength) {
            lines.push_back({line, tone});
            line.clear();
        }
        line += (line.empty() ? "" : " ") + word;
        at = end + 1;
    }
    if (!line.empty()) lines.push_back({Shortened(line, LineLength), tone});
    return lines;
}

std::string Shortened(const std::string& text, std::size_t longest) {
    const std::string letters = ToCodePage(text);
    return letters.size() <= longest ? text : FromCodePage(letters.substr(0, longest - 1)) + "…";
}

std::string NameLine(const Unit& soldier) {
    return Shortened(rankNames[soldier.rank] + " " + soldier.name, ShortLineLength);
}

std::string TurnLine() {
    int living = 0;
    for (int soldier = 0; soldier <= teamLast[SquadTeam]; ++soldier)
        living += UnitTable[soldier].status == Dead ? 0 : 1;
    return "Turn " + Number(squadTurns) + " · " + Number(living) + " of " + Number(teamLast[SquadTeam] + 1) +
           " left";
}

std::string HandLine(const Unit& soldier) {
    const std::string hand = soldier.hand.title.empty() ? soldier.hand.name : soldier.hand.title;
    if (soldier.handCap <= 0) return Shortened(hand, ShortLineLength);
    const std::string rounds = ": " + Number(soldier.handRounds) + " of " + Number(soldier.handCap);
    return Shortened(hand, ShortLineLength - rounds.size()) + rounds;
}
