#include "shell/questions.h"

#include <vector>

#include "personal/info_form.h"
#include "state/state.h"

namespace {

constexpr std::size_t MostNames = 3;

bool Clicks(const InputEvent& event, std::string_view control) {
    return event.kind == EventKind::Click && event.control == control && !frmInfo.Visible;
}

std::vector<std::string> SoldiersWithTime() {
    std::vector<std::string> names;
    for (int i = 0; i <= teamLast[SquadTeam]; ++i)
        if (UnitTable[i].status == Active && UnitTable[i].time >= TimeToAct)
            names.push_back(UnitTable[i].name);
    return names;
}

// As "A, B and C", or "A, B, C and 4 others".
std::string Listed(const std::vector<std::string>& names) {
    std::string list = names[0];
    const std::size_t others = names.size() > MostNames ? names.size() - MostNames : 0;
    for (std::size_t i = 1; i < names.size() - others; ++i)
        list += (i + 1 == names.size() ? " and " : ", ") + names[i];
    if (others != 0) list += " and " + std::to_string(others) + (others == 1 ? " other" : " others");
    return list;
}

std::optional<Question> BeforeEndTurn() {
    const std::vector<std::string> names = SoldiersWithTime();
    if (curTeam != SquadTeam || names.empty()) return std::nullopt;
    const std::string count = names.size() == 1 ? "One soldier" : std::to_string(names.size()) + " soldiers";
    return Question{"End the turn?",
                    count + " could still act: " + Listed(names) + ".\n\nTime that is left is lost.",
                    "&End turn", "&Keep playing", "&Don't ask again"};
}

Question BeforeExit() {
    return {"Leave the mission?",
            "The mission ends as a withdrawal and can't be continued.\n\nWhat lies in the vehicle's store is "
            "kept. What the soldiers carry, and what lies on the field, is left behind.",
            "&Leave the mission", "&Keep playing", ""};
}

std::optional<Question> BeforeClosing(Keeping keeping) {
    switch (keeping) {
        case Keeping::Nothing:
            return std::nullopt;
        case Keeping::Journal:
            return Question{"Close the game?",
                            "The mission isn't over. It is kept: the next start offers to continue here.",
                            "&Close", "&Keep playing", ""};
        case Keeping::GivenUp:
            break;
    }
    return Question{"Close the game?",
                    "The mission isn't over, and its journal couldn't be written: it can't be continued.\n\n"
                    "The vehicle's store stays as it was before the mission.",
                    "&Close", "&Keep playing", ""};
}

}  // namespace

std::optional<Question> QuestionBefore(const InputEvent& event, bool asksBeforeEndTurn, Keeping keeping) {
    if (!missionVerdict.empty()) return std::nullopt;
    if (event.kind == EventKind::CloseRequest && event.control == "frmField") return BeforeClosing(keeping);
    if (Clicks(event, "frmField.mnuExit")) return BeforeExit();
    if (Clicks(event, "frmField.cmdNextTurn") && asksBeforeEndTurn) return BeforeEndTurn();
    return std::nullopt;
}

bool Questions::LetsIn(const InputEvent& event) const {
    Settings changed = settings.Now();
    const auto question = QuestionBefore(event, changed.askBeforeEndTurn, session.Keeps());
    if (!question) return true;
    const Answer answer = ask(*question);
    if (answer.yes && answer.ticked) {
        changed.askBeforeEndTurn = false;
        settings.Change(changed);
    }
    return answer.yes;
}
