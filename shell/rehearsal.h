// Orders tried out by the rules themselves, on the game's own record, and taken back: what an order would
// come to. Before quiet windows, without the enemies that the squad hasn't sighted, without a hand-over, and
// with a chance of its own.
#pragma once

#include <array>
#include <functional>
#include <memory>
#include <vector>

#include "platform/quiet_host.h"
#include "state/higher_rules.h"
#include "state/quiet_audience.h"
#include "state/state.h"

constexpr int FightingUnits = FirstOf(EnemyTeam) + TeamStride;  // the squad's and the enemy's

/// A step that was made, and what the unit had paid by then.
struct Footstep {
    Spot cell;
    int time = 0;
    int energy = 0;

    bool operator==(const Footstep&) const = default;
};

/// What one order came to.
struct Trial {
    bool failed = false;  // the rules ended it by an error
    int time = 0;         // paid, as are the two below
    int energy = 0;
    int condition = 0;
    bool acted = false;  // the thing in hand was heard, and not for want of rounds
    int flights = 0;     // bullets, pellets and thrown things
    std::vector<Footstep> steps;
    std::array<int, FightingUnits> hits = {};  // that cost the unit some health
};

enum class Purse { Own, Plenty };  // of time and energy

class Rehearsal {
  public:
    /// Only between orders, when no operation runs. The game is as it was when this ends.
    Rehearsal();
    ~Rehearsal() = default;
    Rehearsal(const Rehearsal&) = delete;
    Rehearsal& operator=(const Rehearsal&) = delete;

    /// Takes back what was tried before, and runs `order`. What it did can be looked at until the next one.
    Trial Try(const std::function<void()>& order, Purse purse = Purse::Own);

    /// The state as it is.
    const GameState& Before() const { return *kept.state; }

  private:
    // Puts everything back when the rehearsal ends; the first member, and so the last to go.
    struct Kept {
        Kept();
        ~Kept();
        Kept(const Kept&) = delete;
        Kept& operator=(const Kept&) = delete;

        Host& host;
        Audience& audience;
        const HigherRules rules;
        std::unique_ptr<GameState> state;
    };

    // Writes down what an order does.
    class Witness : public QuietAudience {
      public:
        void Begin(Trial& of);
        void StepEnds(int fromX, int fromY) override;
        void UnitHurt(int by, int damage) override;
        void SoundPlayed(const std::string& name, int column) override;
        void TrailChanged(std::string_view mode) override;

      private:
        Trial* trial = nullptr;
        int time = 0;  // at the beginning
        int energy = 0;
    };

    void HideUnsighted();
    void TakeBack();

    Kept kept;
    QuietHost host;
    Witness witness;
    CellGrid cells;  // without the hidden enemies
    bool tried = false;
};

/// Whether one of the squad has sighted the enemy, so that a player sees him. False for any other unit.
bool SquadHasSighted(int unit);
