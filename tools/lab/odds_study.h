// The measurements behind the odds: each drill is fired once, however many tables and charts ask for it.
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <vector>

#include "tools/lab/firing_range.h"

/// A weapon's order as it is told: modes that came to the same in every drill share one row.
struct ToldOrder {
    std::string weapon;  // key
    int mode = 0;
    std::string modes;  // as "Aimed shot, Snap shot"
};

class OddsStudy {
  public:
    /// Every drill fires `toFire` orders, and its chance begins at `fromSeed`: a drill comes to the same
    /// alone and among others.
    OddsStudy(FiringRange& on, int toFire, std::uint32_t fromSeed);

    const Score& Of(const Drill& drill);

    /// The orders of a weapon that can hurt, told apart by what they come to at `distances`.
    std::vector<ToldOrder> OrdersOf(const std::string& weapon, const std::vector<int>& distances);

    FiringRange& Range() { return range; }
    const FiringRange& Range() const { return range; }
    int Orders() const { return orders; }
    std::uint32_t Seed() const { return seed; }

    /// Every drill fired so far with its score.
    std::string Json() const;

  private:
    struct Fired {
        Drill drill;
        Score score;
    };

    FiringRange& range;
    int orders;
    std::uint32_t seed;
    std::deque<Fired> fired;  // scores are handed out by reference
};

/// Of all orders of a score, in percent.
double PercentOf(int count, const Score& score);

/// For one order.
double MeanOf(int sum, const Score& score);
