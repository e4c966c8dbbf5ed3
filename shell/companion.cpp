#include "shell/companion.h"

Companion::Companion(Clock whichClock)
    : clock(whichClock), onlooker([this](const Happening& happening) { Witness(happening); }) {}

void Companion::Witness(const Happening& happening) {
    chronicle.Note(happening);
    effects.Add(happening, clock());
}

void Companion::Pass(const InputEvent& event, const std::function<void()>& door) {
    const Refusal refusal = guide.Pass(event, clock(), door);
    const auto& entries = chronicle.Entries();
    const std::string words = WordsOf(refusal);
    // A person who presses again and again is told once.
    const bool repeats = !entries.empty() && entries.back().text == words;
    if (refusal && !repeats) chronicle.NoteRefusal(words);
}

void Companion::Look() {
    onField.clear();
    onView.clear();
    guide.Look(clock(), onField);
    effects.Draw(clock(), onField);
}
