#include "shell/squad_rows.h"

#include <algorithm>

#include "mission/turns.h"
#include "personal/dossier.h"
#include "personal/info_form.h"
#include "platform/keys.h"
#include "view/mini_map.h"

namespace {

struct FitnessText {
    const char* word;
    const char* help;
};

// By Fitness.
constexpr FitnessText Texts[] = {
    {"ready", "Awaits orders."},
    {"spent", "Has no time left in this turn."},
    {"wounded", "Too weak to act. Recovers slowly, sooner with a medical kit."},
    {"immobile", "Can't act, and gets weaker. A medical kit helps."},
    {"dead", "Has fallen."},
};

const FitnessText& TextOf(Fitness fitness) {
    return Texts[static_cast<std::size_t>(fitness)];
}

Fitness FitnessOf(const Unit& unit) {
    switch (unit.status) {
        case Dead:
            return Fitness::Dead;
        case Immobile:
            return Fitness::Immobile;
        case Wounded:
            return Fitness::Wounded;
        default:
            return unit.time < TimeToAct ? Fitness::Spent : Fitness::Ready;
    }
}

}  // namespace

std::vector<SquadRow> SquadRows() {
    std::vector<SquadRow> rows;
    for (int i = 0; i <= teamLast[SquadTeam]; ++i) {
        const Unit& unit = UnitTable[i];
        rows.push_back({.unit = i,
                        .name = unit.name,
                        .rank = rankNames[unit.rank],
                        .face = FaceFile(unit),
                        .health = unit.health,
                        .mostHealth = unit.vitality,
                        .time = unit.time,
                        .mostTime = TimeOfTurn(unit),
                        .fitness = FitnessOf(unit),
                        .isSelected = curTeam == SquadTeam && curUnit == i});
    }
    return rows;
}

std::string FitnessWord(Fitness fitness) {
    return TextOf(fitness).word;
}

std::string FitnessHelp(Fitness fitness) {
    return TextOf(fitness).help;
}

std::string SpokenRow(const SquadRow& row) {
    const auto ofMost = [](int value, int most) {
        return std::to_string(value) + " of " + std::to_string(most);
    };
    std::string text = row.name + ", " + row.rank + ", " + FitnessWord(row.fitness);
    if (row.fitness != Fitness::Dead)
        text += ", health " + ofMost(row.health, row.mostHealth) + ", time " + ofMost(row.time, row.mostTime);
    return text + (row.isSelected ? ", selected" : "");
}

std::optional<InputEvent> SelectionOf(int unit) {
    const Unit& soldier = UnitTable[unit];
    const bool awaitsOrders = curTeam == SquadTeam && curUnit <= teamLast[SquadTeam] && !frmInfo.Visible;
    if (!awaitsOrders || FitnessOf(soldier) != Fitness::Ready) return {};
    if (cellGrid[soldier.cellY][soldier.cellX].occupant != unit) return {};
    return InputEvent{.kind = EventKind::MouseDown,
                      .control = "frmField.area",
                      .code = LeftButton,
                      .x = static_cast<float>(soldier.cellX * CellSize + HalfCell),
                      .y = static_cast<float>(soldier.cellY * CellSize + HalfCell)};
}

InputEvent LookAt(Spot cell) {
    return {.kind = EventKind::MouseDown,
            .control = "frmField.picAreaMap",
            .code = LeftButton,
            .x = static_cast<float>(std::clamp<int>(cell.x, 0, FieldWidth - 1) * MiniMapCellSize),
            .y = static_cast<float>(std::clamp<int>(cell.y, 0, FieldHeight - 1) * MiniMapCellSize)};
}
