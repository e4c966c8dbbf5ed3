// A player in code: he searches the map with sections of the squad, each where nobody has looked for longest,
// and fights whom his soldiers sight. What he does is one routine; how he does it is a row of habits. He
// knows the map and what his soldiers see, nothing else.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "state/state.h"
#include "tools/player/enemy_memory.h"
#include "tools/player/search_map.h"
#include "tools/player/way_map.h"

struct Habits {
    std::string_view name;
    Stance marching;   // on his way
    Stance inContact;  // on his way while an enemy is known of
    Stance resting;    // at the turn's end, at most
    int bound;         // steps of a soldier in one turn, at most
    int shotsKept;     // rounds whose time he keeps while he walks
    double fairOdds;   // he fires when a round's chance to pass through the target's cell is as good
    int closest;       // cells; he goes no nearer to an enemy whom he sees
    bool careful;  // fires before he walks on, prone, past comrades; waits for his section and its wounded;
                   // ends the turn behind cover or prone
};

/// The row of that name; nullptr for none.
const Habits* HabitsNamed(std::string_view name);

class SquadPlayer {
  public:
    explicit SquadPlayer(const Habits& habits);

    /// All orders of one turn, up to its end.
    void PlayTurn();

  private:
    using Orders = void (SquadPlayer::*)(const Unit&);

    static constexpr int SectionSize = 4;

    // Soldiers with a common goal.
    struct Section {
        std::optional<Spot> goal;
        std::optional<WayMap> way;  // to the goal
    };

    bool GiveAll(Orders orders);
    void Advance(const Unit& unit);
    void Fire(const Unit& unit);
    void Settle(const Unit& unit);

    void Observe();
    std::optional<Spot> Danger(const Unit& unit) const;
    std::optional<Spot> Target(const Unit& unit) const;
    bool FireOnce(const Unit& unit);
    bool MayWalk(const Unit& unit);
    bool StepOnce(const Unit& unit);
    void TurnAndStep(const Unit& unit, int facing);
    const WayMap& WayOf(const Unit& unit);
    bool KeepsUp(const Unit& unit);

    const Habits& habits;
    int turn = 0;
    EnemyMemory memory;
    SearchMap search;
    std::array<Section, TeamStride / SectionSize> sections;
};
