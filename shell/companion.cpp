#include "shell/companion.h"

Companion::Companion(Clock whichClock)
    : clock(whichClock), onlooker([this](const Happening& happening) { Witness(happening); }) {}

void Companion::Witness(const Happening& happening) {
    chronicle.Note(happening);
    effects.Add(happening, clock());
}

void Companion::Look() {
    onField.clear();
    onView.clear();
    effects.Draw(clock(), onField);
}
