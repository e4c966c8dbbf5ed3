// What has happened in a mission, in words and in figures: the lines that matter, and what each unit has done
// and suffered. It is fed by an Onlooker, so a game that is taken up from its journal has it whole.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "shell/happening.h"
#include "shell/store_count.h"
#include "state/state.h"

enum class EntryKind { Turn, Sighting, Hit, Death, Refusal };

struct ChronicleEntry {
    EntryKind kind = EntryKind::Turn;
    int turn = 0;       // of the squad's, from 1
    int team = -1;      // whose turn it was
    std::string text;   // as "Diego Salinas killed by AK fire, [45,9]"
    Spot cell = {};     // of the field; (0, 0) for no place
    bool ours = false;  // it happened to one of the squad

    bool operator==(const ChronicleEntry&) const = default;
};

/// What one unit has done and suffered.
struct Tally {
    int shots = 0;   // rounds that were fired and things that were thrown
    int hits = 0;    // enemies that one of those, or a blow, cost health
    int kills = 0;   // of enemies
    int wounds = 0;  // times that it lost health by a hit
    int damage = 0;  // done to enemies, also beyond what health they had

    bool operator==(const Tally&) const = default;
};

class Chronicle {
  public:
    void Clear();
    void Note(const Happening& happening);

    /// Why an order did nothing. The same reason again and again is noted once.
    void NoteRefusal(const std::string& reason);

    /// The newest last. While somebody is hit again and again, and when he dies of it, the last one changes.
    const std::vector<ChronicleEntry>& Entries() const { return entries; }

    /// Counts on with each change of the entries.
    std::size_t Revision() const { return revision; }

    const Tally& TallyOf(int unit) const { return tallies.at(static_cast<std::size_t>(unit)); }

    /// What lay in the squad's vehicle when the mission began.
    const StoreCount& StoreAtStart() const { return storeAtStart; }

  private:
    // What a unit's newest round did already.
    struct Round {
        int pellets = 0;  // that have flown; 0 when all have
        int hit = -1;     // the unit that lost health by it last
    };

    // The hits that the last entry says.
    struct Hits {
        Happening last;
        int times = 0;
        int amount = 0;  // of health
        int order = 0;   // by which they came
    };

    // Where the squad saw a unit last, and in which turn; 0 for never.
    struct Sighted {
        Spot cell = {};
        int turn = 0;
    };

    void NoteTurn(const Happening& happening);
    void NoteSighting(const Happening& sighting);
    void CountShot(const Happening& shot);
    void CountHit(const Happening& hit);
    void NoteHit(const Happening& hit);
    void NoteDeath(const Happening& death);
    bool IsOfLastHits(const Happening& act) const;
    void Add(EntryKind kind, const std::string& text, const Happening& happening);

    std::vector<ChronicleEntry> entries;
    std::size_t revision = 0;
    std::array<Tally, UnitCount> tallies = {};
    std::array<Round, UnitCount> rounds = {};
    std::array<Sighted, UnitCount> sighted = {};
    Hits hits;
    int turn = 0;  // of the squad
    StoreCount storeAtStart;
};
