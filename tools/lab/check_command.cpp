// The data's faults, told by the library that sarnoth-check runs.
#include "tools/check/run_check.h"
#include "tools/lab/commands.h"

int CheckData(const Words& words) {
    return RunCheck(words, {GAME_FOLDER, SOURCES_FOLDER});
}
