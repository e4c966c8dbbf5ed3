// What has happened in a mission, in words and in figures: the lines that matter, and what each unit has done
// and suffered. It is fed by an Onlooker, so a game that is taken up from its journal has it whole.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "shell/happening.h"
#include "state/state.h"

enum class EntryKind { Turn, Sighting, Hit, Death, Refusal };

struct ChronicleEntry {
    EntryKind kind = EntryKind::Turn;
    int turn = 0;       // of the squad's, from 1
    int team = -1;      // whose turn it was
    std::string text;   // as "Diego Salinas killed by rifle fire, [45,9]"
    Spot cell = {};     // of the field; (0, 0) for no place
    bool ours = false;  // it happened to one of the squad
};

/// What one unit has done and suffered.
struct Tally {
    int shots = 0;   // bullets
    int hits = 0;    // on enemies, that cost them health
    int kills = 0;   // of enemies
    int wounds = 0;  // times that it lost health by a hit
    int damage = 0;  // health that it took from enemies
};

class Chronicle {
  public:
    void Clear();
    void Note(const Happening& happening);

    /// Why an order did nothing.
    void NoteRefusal(const std::string& reason);

    const std::vector<ChronicleEntry>& Entries() const { return entries; }
    const Tally& TallyOf(int unit) const { return tallies.at(static_cast<std::size_t>(unit)); }

  private:
    void Add(EntryKind kind, const std::string& text, const Happening& happening);
    void NoteHit(const Happening& hit);
    void NoteDeath(const Happening& death);

    std::vector<ChronicleEntry> entries;
    std::array<Tally, UnitCount> tallies = {};
};

/// How a person names what a thing does to somebody, as "rifle fire", "a grenade", "a charge".
std::string MeansOf(const std::string& weapon);
