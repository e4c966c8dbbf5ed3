#include "shell/takes.h"

#include <string_view>

#include "field/geometry.h"
#include "platform/files.h"
#include "shell/materials.h"
#include "state/state.h"

namespace {

constexpr std::string_view Extension = ".wav";
constexpr int MostTakes = 9;

bool IsStep(const std::string& stem) {
    return stem.find("bump/step") != std::string::npos || stem.find("bump\\step") != std::string::npos;
}

// Of the cell that the current unit leaves: a step begins there.
std::string_view GroundUnderFoot() {
    const Unit& unit = UnitTable[curUnit];
    if (!InField(unit.cellX, unit.cellY)) return {};
    const Cell& cell = cellGrid[unit.cellY][unit.cellX];
    return StepGround(cell.tileX, cell.tileY);
}

}  // namespace

SoundRequest Takes::Of(const SoundRequest& sound) {
    if (!sound.fileName.ends_with(Extension)) return sound;
    const std::string stem = sound.fileName.substr(0, sound.fileName.size() - Extension.size());
    Choice* choice = nullptr;
    if (IsStep(stem)) {
        const std::string_view ground = GroundUnderFoot();
        if (!ground.empty()) choice = &ChoiceOf(stem + "-" + std::string(ground));
    }
    if (choice == nullptr || choice->files.empty()) choice = &ChoiceOf(stem);
    const std::size_t count = choice->files.size();
    if (count == 0) return sound;
    if (count > 1) choice->last = (choice->last + 1 + chance() % (count - 1)) % count;
    SoundRequest take = sound;
    take.fileName = choice->files[choice->last];
    return take;
}

Takes::Choice& Takes::ChoiceOf(const std::string& stem) {
    const auto [entry, isNew] = choices.try_emplace(stem);
    Choice& choice = entry->second;
    if (!isNew) return choice;
    for (int number = 1; number <= MostTakes; ++number) {
        std::string file = stem + (number == 1 ? "" : "-" + std::to_string(number)) + std::string(Extension);
        if (FileExists(file)) choice.files.push_back(std::move(file));
    }
    return choice;
}
