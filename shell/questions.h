// What is asked before an event enters the game: leaving a mission, closing the window, ending a turn in
// which soldiers could still act. Nothing is asked where the event does nothing, nor after the verdict.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "platform/input_event.h"
#include "shell/session.h"
#include "shell/settings.h"

struct Question {
    std::string title;
    std::string text;
    std::string yes;   // the button that lets the event in
    std::string no;    // the button that Esc and Enter press
    std::string tick;  // an offer below the text, as "Don't ask again"; empty for none
};

struct Answer {
    bool yes = false;
    bool ticked = false;
};

/// What must be asked before the event, if anything.
std::optional<Question> QuestionBefore(const InputEvent& event, bool asksBeforeEndTurn, Keeping keeping);

class Questions {
  public:
    using Asker = std::function<Answer(const Question&)>;

    /// `toAsk` shows a question and waits for the answer. All must outlive this.
    Questions(SettingsFile& ofPlayer, const Session& ofGame, Asker toAsk)
        : settings(ofPlayer), session(ofGame), ask(std::move(toAsk)) {}

    /// Whether the event may enter the game. A tick is remembered, if the answer is yes.
    bool LetsIn(const InputEvent& event) const;

  private:
    SettingsFile& settings;
    const Session& session;
    const Asker ask;
};
