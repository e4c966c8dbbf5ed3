#include "shell/refusal.h"

#include <iterator>
#include <string_view>

namespace {

struct Words {
    Why why;
    std::string_view text;  // # needs, @ has, $ what
};

// clang-format off
constexpr Words Table[] = {
    {Why::None,            ""},
    {Why::NotOurTurn,      "Not now: it is the enemy's turn."},
    {Why::FieldEnds,       "The field ends here."},
    {Why::WayClosed,       "No step there: $ in the way."},
    {Why::NoWay,           "No way there. Trying costs # time."},
    {Why::StepTime,        "A step needs # time, he has @. Its energy is spent all the same."},
    {Why::StepEnergy,      "A step costs # energy, he has @."},
    {Why::WalkTime,        "$ stops: the next step needs # time, @ is left."},
    {Why::WalkEnergy,      "$ stops: a step costs # energy, @ is left."},
    {Why::ActTime,         "Needs # time, has @."},
    {Why::WornOut,         "$ is worn out."},
    {Why::NoRounds,        "No rounds, costs # time: load (Enter)."},
    {Why::OwnCell,         "That is his own cell."},
    {Why::BeyondReach,     "Out of reach: # cells, $ reaches @."},
    {Why::TimeForRounds,   "Time for @ of # rounds."},
    {Why::RoundsForRounds, "Loaded: @ of # rounds."},
    {Why::ArmsLength,      "Beyond arm's length."},
    {Why::NobodyThere,     "Nobody is there."},
    {Why::ArmsCorner,      "Out here it does nothing: only up to column #, row @."},
    {Why::GroundIsHard,    "Of class $: that can't be dug or filled."},
    {Why::DeepEnough,      "The trench is as deep as it gets."},
    {Why::FullEnough,      "The ground is full."},
    {Why::SameStance,      "That is his stance already."},
    {Why::StanceTime,      "That stance needs # time, he has @."},
    {Why::SwitchTime,      "The switch needs # time, he has @."},
    {Why::OnlyMode,        "$ has no other mode."},
    {Why::LastMode,        "No further mode that way."},
    {Why::CannotAct,       "$ can't act: passed over."},
    {Why::SpentTime,       "$ has no time left: passed over."},
    {Why::Nothing,         "Nothing came of it."},
};
// clang-format on
static_assert(std::size(Table) == static_cast<std::size_t>(Why::Nothing) + 1);

}  // namespace

bool IsPartial(Why why) {
    return why == Why::WalkTime || why == Why::WalkEnergy || why == Why::TimeForRounds ||
           why == Why::RoundsForRounds;
}

std::string WordsOf(const Refusal& refusal) {
    std::string words;
    for (const Words& row : Table) {
        if (row.why != refusal.why) continue;
        for (const char letter : row.text) {
            if (letter == '#')
                words += std::to_string(refusal.needs);
            else if (letter == '@')
                words += std::to_string(refusal.has);
            else if (letter == '$')
                words += refusal.what;
            else
                words += letter;
        }
    }
    return words;
}
