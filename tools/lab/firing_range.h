// A firing range on the game's own field: a soldier of the squad, one of the computer's, open ground between
// them, and orders that the rules carry out as they do in a mission. Before each order everything that the
// last one can have changed is put back from a copy.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "data/terrain.h"
#include "platform/quiet_host.h"
#include "state/quiet_audience.h"
#include "state/state.h"

/// Whole columns of one tile across the line of fire, counted in cells from the target's own, which is 0.
struct Screen {
    std::string name = "open ground";
    int terrain = Surface;
    int tile = 0;
    int nearest = 0;
    int farthest = -1;  // below `nearest`: no column at all

    bool operator==(const Screen&) const = default;
};

/// An order and what it is given against.
struct Drill {
    std::string weapon;  // key of a row of the weapons file
    int mode = 0;        // place in the weapon's list of fire modes
    int east = 10;       // cells from the shooter to the target; up to 60
    int south = 0;       // up to 30
    int shooterStance = Stand;
    int targetStance = Stand;
    int targetFacing = West;
    Screen screen = {};

    bool operator==(const Drill&) const = default;
};

/// What many orders came to, all counts and sums.
struct Score {
    int orders = 0;
    int hitting = 0;   // orders that cost the target some health
    int hits = 0;      // bullets, blows and blasts that did; the dead are hit no more
    int damage = 0;    // health that the target lost
    int disabled = 0;  // orders that left the target immobile or dead
    int killed = 0;
    int time = 0;  // that the shooter paid
    int energy = 0;

    bool operator==(const Score&) const = default;
};

class FiringRange {
  public:
    /// Starts a game with the data of the program's folder, and installs a host and an audience for as long
    /// as it lives.
    FiringRange();
    ~FiringRange() { InstallAudience(nullptr); }
    FiringRange(const FiringRange&) = delete;
    FiringRange& operator=(const FiringRange&) = delete;

    /// The soldier of the squad with the middle marksmanship, who fires.
    const Unit& Shooter() const;
    const Unit& Target() const;

    /// The fire modes that the weapon offers, as the player reads them.
    std::vector<std::string> ModesOf(const std::string& weapon);

    /// Gives the same order `orders` times, each time with the weapon full, a whole turn's time, and the
    /// target in full health. Chance begins at `seed`.
    Score Fire(const Drill& drill, int orders, std::uint32_t seed);

  private:
    void SetUp(const Drill& drill);
    void PutBack();

    // A hit may also cost nothing, or give back: what only strokes him counts as a miss.
    struct HitCounter : QuietAudience {
        void UnitHurt(int /*by*/, int damage) override { count += damage > 0 ? 1 : 0; }
        int count = 0;
    };

    QuietHost host;
    HitCounter hits;
    int mode = 0;
    std::string modeText;
    Unit shooter;
    Unit target;
    decltype(GameState::cellGrid) cells;
};
