// The squad as rows of a list: what a player wants to know of every soldier at a glance, and the events by
// which he selects one or looks at a place.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/input_event.h"
#include "state/state.h"

enum class Fitness { Ready, Spent, Wounded, Immobile, Dead };

struct SquadRow {
    int unit = 0;
    std::string name;
    std::string rank;  // short, as "CPT"
    std::string face;  // file of the picture
    int health = 0;
    int mostHealth = 0;
    int time = 0;
    int mostTime = 0;  // that a turn gives
    Fitness fitness = Fitness::Ready;
    bool isSelected = false;

    bool operator==(const SquadRow&) const = default;
};

/// One for each soldier, in their order.
std::vector<SquadRow> SquadRows();

/// As "spent".
std::string FitnessWord(Fitness fitness);

/// What a soldier so fit can do, in a sentence.
std::string FitnessHelp(Fitness fitness);

/// All of a row in words, as "Marcus Hale, CPT, ready, health 51 of 51, time 96 of 96, selected".
std::string SpokenRow(const SquadRow& row);

/// The press on the field that selects a soldier. Nothing while the squad awaits no order, and for one who
/// can't act: the rules would pass him over, which costs or gives him health.
std::optional<InputEvent> SelectionOf(int unit);

/// The press on the mini map that brings a cell of the field into view.
InputEvent LookAt(Spot cell);
