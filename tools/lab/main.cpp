// sarnoth-lab: the makers' program around the game: plays and records, replays, rewrites recordings, plays
// missions by itself, soaks, checks, measures the odds, paints.
#include <map>

#include "tools/check/run_check.h"
#include "tools/lab/commands.h"

namespace {

struct Command {
    const char* name;
    Work (*add)(CLI::App& command);
    const char* help;
};

constexpr Command Commands[] = {
    {"play", AddPlay, "Plays in a window, and records it."},
    {"replay", AddReplay,
     "Replays a recording and compares the state, the field's picture, the windows and the\n"
     "sounds after each event; stops at the first difference and names it."},
    {"record", AddRecord,
     "Plays the events of a recording, and rewrites it with what they change now: for one\n"
     "that was written by hand as the first three lines and events alone, or when data or\n"
     "rules were changed on purpose."},
    {"mission", AddMission, "Plays a mission by a player in code and records it."},
    {"soak", AddSoak,
     "Plays missions, turns to win them with random events between and within the orders, and\n"
     "looks after each whether all is in order."},
    {"check",
     [](CLI::App& command) {
         return AddCheck(command, {GAME_FOLDER, SOURCES_FOLDER});
     },
     "Shows all faults in the game's data and their sources, as sarnoth-check does."},
    {"odds", AddOdds,
     "Fires orders for each weapon, fire mode, distance, stance and facing by the game's rules,\n"
     "and shows what they come to."},
    {"roster", AddRoster, "Shows the squad as a page: docs/roster.md."},
    {"shot", AddShot, "Paints a window of a new game; needs no display."},
};

Work AddCommands(CLI::App& app) {
    app.require_subcommand(1);
    std::map<const CLI::App*, Work> works;
    for (const Command& command : Commands) {
        CLI::App* const added = app.add_subcommand(command.name, command.help);
        works[added] = command.add(*added);
    }
    return [&app, works] { return works.at(app.get_subcommands().front())(); };
}

}  // namespace

int main(int count, char** arguments) {
    CommandLine line("sarnoth-lab", "The makers' program around the game.",
                     "The game folder is only read: every run works on a copy of its data.\n"
                     "Exit code 0: well; 1: something was found, or an error; 2: a wrong command line.");
    return line.Follow(count, arguments, AddCommands);
}
