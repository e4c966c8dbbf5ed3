#include "shell/rehearsal.h"

#include <string>

#include "field/geometry.h"
#include "platform/host.h"
#include "platform/run_time_error.h"

namespace {

constexpr int Nowhere = 200;      // a cell outside the field
constexpr int PlentyOf = 20'000;  // more than any order costs

// Of a hand-over this alone is left: it ends the walk that runs.
void EndWalk() {
    walkOn = 0;
    ++orderCount;
}

}  // namespace

Rehearsal::Kept::Kept()
    : host(TheHost()),
      audience(TheAudience()),
      rules(TheHigherRules()),
      state(std::make_unique<GameState>(game)) {}

// Copied back and not moved: whoever waits for a pump to end may hold on to a part of the state.
Rehearsal::Kept::~Kept() {
    game = *state;
    InstallHigherRules(rules);
    InstallAudience(&audience);
    InstallHost(&host);
}

Rehearsal::Rehearsal() {
    InstallAudience(&witness);
    InstallHigherRules({EndWalk, [] {}, kept.rules.listActions, kept.rules.handSync});
    HideUnsighted();
    cells = cellGrid;
}

void Rehearsal::HideUnsighted() {
    for (int unit = FirstOf(EnemyTeam); unit < FightingUnits; ++unit) {
        Unit& enemy = UnitTable[unit];
        if (SquadHasSighted(unit) || !InField(enemy.cellX, enemy.cellY)) continue;
        i16& occupant = cellGrid[enemy.cellY][enemy.cellX].occupant;
        if (occupant == unit) occupant = -1;
        enemy.cellX = enemy.cellY = Nowhere;
    }
}

Trial Rehearsal::Try(const std::function<void()>& order, Purse purse) {
    if (tried) TakeBack();
    tried = true;
    Unit& unit = UnitTable[curUnit];
    if (purse == Purse::Plenty) unit.time = unit.energy = PlentyOf;
    Trial trial;
    witness.Begin(trial);
    const int time = unit.time;
    const int energy = unit.energy;
    const int condition = unit.hand.durab;
    const std::string held = unit.hand.name;
    try {
        order();
    } catch (const RunTimeError&) {
        trial.failed = true;
    } catch (const ProcessEnded&) {
        trial.failed = true;
    }
    trial.time = time - unit.time;
    trial.energy = energy - unit.energy;
    if (unit.hand.name == held) trial.condition = condition - unit.hand.durab;
    return trial;
}

// What an order can have changed: whoever acted or was hurt, the ground, and who gives orders to whom.
void Rehearsal::TakeBack() {
    const GameState& was = *kept.state;
    const auto putPile = [&was](int x, int y) {
        if (InField(x, y)) groundItems[y][x] = was.groundItems[y][x];
    };
    putPile(impactX, impactY);
    UnitTable[was.curUnit] = was.UnitTable[was.curUnit];
    for (int unit = 0; unit < FightingUnits; ++unit) {
        const Unit& before = was.UnitTable[unit];
        Unit& now = UnitTable[unit];
        if (now.health == before.health && now.status == before.status) continue;
        putPile(now.cellX, now.cellY);
        now = before;
    }
    cellGrid = cells;
    teamLast = was.teamLast;
    curTeam = was.curTeam;
    curUnit = was.curUnit;
    openLine = was.openLine;
    walkOn = was.walkOn;
    lastClickX = was.lastClickX;
    lastClickY = was.lastClickY;
    fireInMotion = was.fireInMotion;
    enemyCount = was.enemyCount;
    flightValues = was.flightValues;
    handOverAsked = was.handOverAsked;
    if (!(fireModes == was.fireModes)) fireModes = was.fireModes;
}

void Rehearsal::Witness::Begin(Trial& of) {
    trial = &of;
    time = UnitTable[curUnit].time;
    energy = UnitTable[curUnit].energy;
}

void Rehearsal::Witness::StepEnds(int /*fromX*/, int /*fromY*/) {
    const Unit& unit = UnitTable[curUnit];
    trial->steps.push_back({{unit.cellX, unit.cellY}, time - unit.time, energy - unit.energy});
}

void Rehearsal::Witness::UnitHurt(int /*by*/, int damage) {
    if (damage > 0 && curUnit < FightingUnits) ++trial->hits.at(static_cast<std::size_t>(int{curUnit}));
}

void Rehearsal::Witness::SoundPlayed(const std::string& name, int /*column*/) {
    if (name.starts_with("weapons\\") && name != "weapons\\empty") trial->acted = true;
}

void Rehearsal::Witness::TrailChanged(std::string_view mode) {
    if (mode == "initialize") ++trial->flights;
}

bool SquadHasSighted(int unit) {
    if (TeamOfUnit(unit) != EnemyTeam) return false;
    for (int soldier = 0; soldier <= teamLast[SquadTeam]; ++soldier)
        if (UnitTable[soldier].seen[unit - FirstOf(EnemyTeam)] == 1) return true;
    return false;
}
