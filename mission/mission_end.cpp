#include "mission/mission_end.h"

#include <string>

#include "data/campaign_files.h"
#include "platform/host.h"
#include "state/audience.h"
#include "state/log.h"
#include "state/state.h"

namespace {

constexpr int LastTeamSearched = 4;

std::string VerdictOf(int eliminated) {
    if (eliminated == -1) return "Withdrawal";
    if (eliminated == SquadTeam) return "Defeat";
    if (eliminated == EnemyTeam) return "Victory";
    return "Team #" + std::to_string(eliminated) + " exterminated";
}

// Logs the team's roll up to the member that completes its dead; whether there was one.
bool AllDead(int team) {
    int dead = 0;
    for (int i = FirstOf(team); i <= FirstOf(team) + teamLast[team]; ++i) {
        const bool isDead = UnitTable[i].status == Dead;
        AddToLog(LogName(i) + " from team #" + std::to_string(team), 0);
        AddToLog(isDead ? " dead." : " alive.", 1);
        if (isDead) ++dead;
    }
    return dead == teamLast[team] + 1;
}

}  // namespace

void EndGame() {
    SaveStore();
    SaveRosterBack();
    missionVerdict = VerdictOf(TeamEliminated());
    AddToLog(missionVerdict + ". ", 0);
    TheHost().ShowMessage(openLine + "The end.");
    AddToLog("The end.", 1);
    TheAudience().MissionEnds();
    TheHost().EndProcess(0);
}

void EndIfEliminated() {
    if (TeamEliminated() > -1) EndGame();
}

int TeamEliminated() {
    for (int team = 0; team <= LastTeamSearched; ++team) {
        if (teamLast[team] == -1 || !AllDead(team)) continue;
        AddToLog("All " + std::to_string(teamLast[team] + 1) + " fighters of team #" + std::to_string(team) +
                     " eliminated",
                 1);
        return team;
    }
    return -1;
}

void SaveRosterBack() {
    teamLast[RosterTeam] = teamLast[SquadTeam];
    for (int i = 0; i <= teamLast[RosterTeam]; ++i)
        UnitTable[FirstOf(RosterTeam) + i] = UnitTable[i];
}
