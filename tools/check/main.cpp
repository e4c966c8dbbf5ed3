// sarnoth-check: tells every fault in the game's data.
#include <iostream>

#include "tools/check/run_check.h"
#include "tools/usage_error.h"

namespace {

enum ExitCode { Faults = 1, WrongUsage };

}  // namespace

int main(int count, char** arguments) try {
    return RunCheck({arguments + 1, arguments + count}, {GAME_FOLDER, SOURCES_FOLDER});
} catch (const UsageError& error) {
    std::cerr << "sarnoth-check: " << error.what() << "\nsarnoth-check --help tells more.\n";
    return WrongUsage;
} catch (const std::exception& error) {
    std::cerr << "sarnoth-check: " << error.what() << "\n";
    return Faults;
}
