#include "shell/companion.h"

Companion::Companion(Clock whichClock)
    : clock(whichClock), onlooker([this](const Happening& happening) { Witness(happening); }) {}

void Companion::Witness(const Happening& happening) {
    chronicle.Note(happening);
    effects.Add(happening, clock());
}

void Companion::Pass(const InputEvent& event, const std::function<void()>& door) {
    if (const Refusal refusal = guide.Pass(event, clock(), door)) chronicle.NoteRefusal(WordsOf(refusal));
}

void Companion::Look() {
    onField.clear();
    onView.clear();
    guide.Look(clock(), onField);
    effects.Draw(clock(), onField);
}
