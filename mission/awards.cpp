#include "mission/awards.h"

#include "platform/host.h"
#include "state/audience.h"
#include "state/log.h"
#include "state/operation.h"
#include "state/state.h"

namespace {

constexpr int EmptyRow = 25;  // past the last award
constexpr int NoRow = -1;

int RowOf(std::string_view code) {
    int row = 0;
    while (row < EmptyRow && awardTable[row].name != code)
        ++row;
    return row;
}

void ShowGranted(int row) {
    TheAudience().AwardShown(row);
    TheHost().ShowMessage("");
    TheAudience().AwardPutAway();
}

}  // namespace

std::vector<std::string_view> AwardsOfMission(const Unit& unit) {
    if (unit.status == Dead || unit.wasWounded != False) return {"PH", "GCM"};
    return {"GCM"};
}

void AwardMissionEnd() {
    RunOperation([] {
        for (curUnit = 0; curUnit <= teamLast[SquadTeam]; ++curUnit)
            for (const std::string_view code : AwardsOfMission(UnitTable[curUnit]))
                AwardGive(code);
    });
}

int AwardRowFor(const Unit& unit, std::string_view code) {
    for (int row = RowOf(code);;) {
        if (unit.awards[row] <= 0 || awardTable[row].repeatable != 0 || awardTable[row].chained == 0)
            return row;
        if (++row == EmptyRow) return NoRow;
    }
}

void AwardGive(std::string_view code) {
    Unit& unit = UnitTable[curUnit];
    const int row = AwardRowFor(unit, code);
    if (row == NoRow) return;
    ++unit.awards[row];
    AddToLog(unit.name + " awarded the " + AwardOrdinal(row) + awardTable[row].title, 0);
    AddToLog(unit.status == Dead ? " posthumously." : ".", 1);
    // The empty row has no place in the file.
    if (row == EmptyRow)
        TheHost().ShowMessage("");
    else
        RunOperation([row] { ShowGranted(row); });
}

std::string AwardOrdinal(int row) {
    return AwardOrdinalOf(UnitTable[curUnit].awards[row]);
}

// ODDITY: every number from the fourth on ends alike, so the 21st is the "21th".
std::string AwardOrdinalOf(int count) {
    constexpr int LastTold = 100;
    if (count < 2 || count > LastTold) return "";
    if (count == 2) return "2nd ";
    return std::to_string(count) + (count == 3 ? "rd " : "th ");
}
