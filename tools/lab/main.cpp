// sarnoth-lab: the makers' program around the game: plays and records, replays, records anew, soaks, checks,
// measures the odds, paints.
#include <algorithm>
#include <iostream>

#include "tools/lab/commands.h"
#include "tools/usage_error.h"

namespace {

enum ExitCode { Well, Found, WrongUsage };

struct Command {
    const char* name;
    int (*run)(const Words& words, char** arguments);
    const char* help;
};

constexpr Command Commands[] = {
    {"play", PlayInWindow, R"(play [--seed N] [--record FILE] [--game FOLDER]
  Plays in a window, and writes every event with what it changed into FILE.
)"},
    {"replay", ReplayFile, R"(replay FILE [--window] [--pictures FOLDER] [--game FOLDER]
  Replays a recording and compares the state, the field's picture, the windows and the sounds after each event;
  stops at the first difference and names it. Where the field looks different, its two pictures are painted into
  FOLDER as recorded.png and replayed.png.
)"},
    {"record", [](const Words& words, char** /*arguments*/) { return RecordFile(words); },
     R"(record FILE [--game FOLDER]
  Plays the events of a recording anew, and writes what they change now into it: for one that was written by
  hand as the first three lines and events alone, or when data or rules were changed on purpose.
)"},
    {"soak", [](const Words& words, char** /*arguments*/) { return SoakSeeds(words); },
     R"(soak [--seeds A..B] [--events N] [--jobs J] [--json] [--record FOLDER] [--game FOLDER]
  Plays missions of N events (600) at most in J processes at once, turns to win them with random events between
  and within the orders, and looks after each whether all is in order. A mission that isn't is recorded into
  FOLDER when one is named.
)"},
    {"check", [](const Words& words, char** /*arguments*/) { return CheckData(words); },
     R"(check [--game FOLDER] [--sources FOLDER] [--json]
  Tells all faults in the game's data and their sources, as sarnoth-check does.
)"},
    {"odds", [](const Words& words, char** /*arguments*/) { return MeasureOdds(words); },
     R"(odds [--weapon NAME] [--trials N] [--seed N] [--json | --out FOLDER] [--game FOLDER]
  Fires N orders (1000) for each weapon, fire mode, distance, stance and facing by the game's rules, and prints
  what they come to as tables; with --out writes tables and charts into FOLDER. NAME is a key of weapons.dat.
)"},
    {"shot", PaintShot, R"(shot FILE.png [--seed N] [--window field|info|map] [--game FOLDER]
  Paints a window of a new game into FILE.png; needs no display.
)"},
};

constexpr const char* Ending =
    R"(The game folder is only read: every run works on a copy of its data. Exit code 0: well; 1: something was
found, or an error; 2: a wrong command line.
)";

void PrintHelp(std::ostream& to) {
    to << "usage: sarnoth-lab COMMAND ...\n\n";
    for (const Command& command : Commands)
        to << command.help << "\n";
    to << Ending;
}

int Run(const Words& words, char** arguments) {
    if (words.empty()) throw UsageError("a command is missing");
    if (words[0] == "--help") {
        PrintHelp(std::cout);
        return Well;
    }
    const Words rest(words.begin() + 1, words.end());
    for (const Command& command : Commands) {
        if (words[0] != command.name) continue;
        if (std::find(rest.begin(), rest.end(), "--help") == rest.end()) return command.run(rest, arguments);
        std::cout << "usage: sarnoth-lab " << command.help;
        return Well;
    }
    throw UsageError("there is no command \"" + words[0] + "\"");
}

}  // namespace

int main(int count, char** arguments) try {
    return Run({arguments + 1, arguments + count}, arguments);
} catch (const UsageError& error) {
    std::cerr << "sarnoth-lab: " << error.what() << "\nsarnoth-lab --help tells more.\n";
    return WrongUsage;
} catch (const std::exception& error) {
    std::cerr << "sarnoth-lab: " << error.what() << "\n";
    return Found;
}
