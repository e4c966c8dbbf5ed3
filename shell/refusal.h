// Why an order does nothing, or less than it was given for, and what it would take: as data, and in words.
#pragma once

#include <string>

enum class Why {
    None,
    NotOurTurn,
    // of steps and walks
    FieldEnds,
    WayClosed,
    NoWay,
    StepTime,
    StepEnergy,
    WalkTime,
    WalkEnergy,
    // of the thing in hand
    ActTime,
    WornOut,
    NoRounds,
    OwnCell,
    BeyondReach,
    TimeForRounds,
    RoundsForRounds,
    ArmsLength,
    NobodyThere,
    ArmsCorner,
    GroundIsHard,
    DeepEnough,
    FullEnough,
    // of what a soldier does with himself
    SameStance,
    StanceTime,
    SwitchTime,
    OnlyMode,
    LastMode,
    // of a selection
    CannotAct,
    SpentTime,
    Nothing,
};

/// The two figures are what the words need, most often what it takes and what there is.
struct Refusal {
    Why why = Why::None;
    int needs = 0;
    int has = 0;
    std::string what = {};  // a thing, a ground, a person

    explicit operator bool() const { return why != Why::None; }
    bool operator==(const Refusal&) const = default;
};

/// Whether the order did a part of what it was given for: a walk goes as far as the time lasts, a burst fires
/// the rounds that it pays for.
bool IsPartial(Why why);

/// As "Needs 12 time, has 8."; empty for none.
std::string WordsOf(const Refusal& refusal);
