#include "state/state.h"

#include <array>
#include <memory>

TeamLasts AllTeamsEmpty() {
    TeamLasts lasts;
    for (i16& last : lasts)
        last = -1;
    return lasts;
}

GameState game;

void ResetState() {
    std::destroy_at(&game);
    std::construct_at(&game);
}

const char* UnitStatusText(int index) {
    static constexpr std::array<const char*, 5> Names = {"not landed (!)", "active", "wounded", "immobile",
                                                         "dead"};
    const int status = UnitTable[index].status;
    return status >= NotLanded && status <= Dead ? Names[static_cast<std::size_t>(status)]
                                                 : "smth strange (!)";
}

std::string LogName(int index) {
    return UnitTable[index].name + " (#" + std::to_string(index) + ")";
}
