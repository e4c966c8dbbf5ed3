#include "state/log.h"

#include <utility>

#include "state/audience.h"
#include "state/state.h"

void AddToLog(const std::string& text, int level) {
    openLine += text;
    if (level == 1) TheAudience().LineLogged(std::exchange(openLine, {}));
}
