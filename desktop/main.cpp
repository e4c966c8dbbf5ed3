// The game: it takes no arguments and reads no settings.
#include "desktop/game_window.h"
#include "state/setup.h"
#include "view/events.h"

int main(int /*count*/, char** arguments) {
    return RunInWindow(arguments, {.folder = OwnFolder(), .begin = [] { Main(); }, .dispatch = Dispatch});
}
