// sarnoth-check: shows every fault in the game's data.
#include "tools/check/run_check.h"

int main(int count, char** arguments) {
    CommandLine line(
        "sarnoth-check",
        "Reads the data of the game and shows every fault in it: the file, the place, what is wrong and what "
        "was\nexpected. Without a folder it checks the sources and the game that were built with it.",
        "Exit code 0: no fault; 1: faults; 2: a wrong command line.");
    return line.Follow(count, arguments, [](CLI::App& app) {
        return AddCheck(app, {GAME_FOLDER, SOURCES_FOLDER});
    });
}
