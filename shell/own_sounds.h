// What the front end lets be heard beside the rules' sounds: where a bullet ends, and cues for a sighting, a
// turn and the mission's end. They play in slots of their own and reach no rule, no recording.
#pragma once

#include <array>
#include <optional>
#include <random>
#include <string>

#include "platform/host.h"
#include "shell/happening.h"
#include "shell/moment.h"
#include "state/state.h"

/// Slots from here on are the front end's own; those of the rules' sounds lie below.
constexpr int FirstOwnSlot = 5;
constexpr int LastOwnSlot = 8;

/// The sound of a bullet that ends, of stone or metal now and then as a ricochet; nothing where it ends in
/// somebody, isn't seen, or where the sound is missing.
class Impacts {
  public:
    std::optional<SoundRequest> Of(const Happening& shot);

  private:
    std::minstd_rand chance;
    int slot = 0;
    int pellets = 0;
};

class Cues {
  public:
    Cues() { Clear(); }

    /// Nothing is sighted yet.
    void Clear() { sightedIn.fill(Never); }

    /// For a sighting that is seen now. Nothing for an enemy that somebody has sighted in this turn or the
    /// one before, and right after another cue of the kind.
    std::optional<SoundRequest> Of(const Happening& sighting, Moment now);

    static std::optional<SoundRequest> EnemysTurn();
    static std::optional<SoundRequest> YourTurn();

    /// At the mission's end; nothing for a withdrawal.
    static std::optional<SoundRequest> OfVerdict(const std::string& verdict);

  private:
    static constexpr int Never = -2;

    std::array<int, 2 * TeamStride> sightedIn;  // turn of the squad, by unit
    Moment sounded;
};
