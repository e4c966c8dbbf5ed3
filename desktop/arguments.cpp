#include "desktop/arguments.h"

#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace {

constexpr int WrongArgument = 2;

constexpr const char* Usage =
    "Usage: sarnoth [--help | --version | --watch FILE]\n"
    "\n"
    "Sarnoth III, turn-based squad combat. F1 in the game shows its keys.\n"
    "\n"
    "  --help     prints this\n"
    "  --version  prints the version\n"
    "  --watch    plays back a recording that the debriefing has saved\n"
    "\n"
    "The vehicle's store, the settings and the journal of a mission that was broken off lie beside the "
    "program,\n"
    "or in ~/.local/share/sarnoth where it is installed.\n"
    "\n"
    "Exit codes: 0 the mission ended or the window was closed, 1 an error, 2 an argument that it doesn't "
    "know\n";

int Print(const char* text) {
    return std::fputs(text, stdout) >= 0 && std::fflush(stdout) == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace

Arguments ReadArguments(int count, const char* const* arguments) {
    if (count < 2) return {};
    const std::string_view first = arguments[1];
    if (count == 2 && first == "--help") return {Print(Usage), {}};
    if (count == 2 && first == "--version") return {Print("Sarnoth III " SARNOTH_VERSION "\n"), {}};
    if (count == 3 && first == "--watch") return {std::nullopt, std::filesystem::absolute(arguments[2])};
    const bool firstIsKnown = first == "--help" || first == "--version" || first == "--watch";
    if (firstIsKnown && count == 2)
        std::fprintf(stderr, "Sarnoth III: \"%s\" needs a file; see sarnoth --help\n", arguments[1]);
    else
        std::fprintf(stderr, "Sarnoth III: unknown argument \"%s\"; see sarnoth --help\n",
                     arguments[!firstIsKnown        ? 1
                               : first == "--watch" ? 3
                                                    : 2]);
    return {WrongArgument, {}};
}
