#include "shell/chronicle.h"

#include <utility>

#include "combat/families.h"
#include "data/mode_words.h"
#include "shell/wording.h"

namespace {

bool AreEnemies(int one, int other) {
    return one >= 0 && one < ChargeBase && TeamOfUnit(one) != TeamOfUnit(other);
}

template <typename Table>
auto& EntryOf(Table& table, int unit) {
    return table.at(static_cast<std::size_t>(unit));
}

Spot CellOf(const Happening& happening) {
    return {happening.x / CellSize, happening.y / CellSize};
}

}  // namespace

void Chronicle::Clear() {
    const std::size_t before = revision;
    *this = Chronicle();
    revision = before + 1;
}

void Chronicle::Note(const Happening& happening) {
    switch (happening.kind) {
        case HappeningKind::TurnBegins:
            return NoteTurn(happening);
        case HappeningKind::Sighting:
            return NoteSighting(happening);
        case HappeningKind::Shot:
            return CountShot(happening);
        case HappeningKind::Hit:
            CountHit(happening);
            return NoteHit(happening);
        case HappeningKind::Death:
            return NoteDeath(happening);
        default:
            return;
    }
}

void Chronicle::NoteRefusal(const std::string& reason) {
    const bool again =
        !entries.empty() && entries.back().kind == EntryKind::Refusal && entries.back().text == reason;
    if (!again) Add(EntryKind::Refusal, reason, {});
}

// The rules count the turn only after it has begun.
void Chronicle::NoteTurn(const Happening& happening) {
    if (happening.unit != SquadTeam) return Add(EntryKind::Turn, "Enemy's turn", happening);
    if (++turn == 1) storeAtStart = CountStore();
    Add(EntryKind::Turn, "Turn " + std::to_string(turn), happening);
}

// Whoever is selected sights everybody once more; an enemy where he was seen last, a turn ago at most, is no
// news.
void Chronicle::NoteSighting(const Happening& sighting) {
    const Sighted now = {CellOf(sighting), turn};
    const Sighted before = std::exchange(EntryOf(sighted, sighting.unit), now);
    if (before.cell == now.cell && before.turn > 0 && turn - before.turn <= 1) return;
    Add(EntryKind::Sighting, SightingText(sighting), sighting);
}

void Chronicle::CountShot(const Happening& shot) {
    Round& round = EntryOf(rounds, shot.unit);
    const int pellets = FamilyNamed(FamilyOf(shot.text, shot.mode)).pellets;
    if (round.pellets == 0) {
        ++EntryOf(tallies, shot.unit).shots;
        round.hit = -1;
    }
    round.pellets = (round.pellets + 1) % pellets;
}

void Chronicle::CountHit(const Happening& hit) {
    if (hit.amount <= 0) return;
    ++EntryOf(tallies, hit.unit).wounds;
    if (!AreEnemies(hit.by, hit.unit)) return;
    Tally& by = EntryOf(tallies, hit.by);
    by.damage += hit.amount;
    const bool sameRound = std::exchange(EntryOf(rounds, hit.by).hit, hit.unit) == hit.unit;
    if (!sameRound || hit.mode == HitMode) ++by.hits;
}

// The bullets of an order that hit the same man are one entry.
void Chronicle::NoteHit(const Happening& hit) {
    if (!hit.seen) return;
    const bool goesOn = IsOfLastHits(hit);
    if (!goesOn) hits = {};
    hits.last = hit;
    hits.order = orderCount;
    ++hits.times;
    hits.amount += hit.amount;
    const std::string text = HitText(hit, hits.times, hits.amount);
    if (!goesOn) return Add(EntryKind::Hit, text, hit);
    entries.back().text = text;
    ++revision;
}

// Who dies of what hit him is said to have been killed.
void Chronicle::NoteDeath(const Happening& death) {
    if (AreEnemies(death.by, death.unit)) ++EntryOf(tallies, death.by).kills;
    if (!death.seen) return;
    if (IsOfLastHits(death)) entries.pop_back();
    Add(EntryKind::Death, DeathText(death), death);
}

bool Chronicle::IsOfLastHits(const Happening& act) const {
    const Happening& last = hits.last;
    return !entries.empty() && entries.back().kind == EntryKind::Hit && last.unit == act.unit &&
           last.by == act.by && last.text == act.text && last.mode == act.mode && hits.order == orderCount;
}

void Chronicle::Add(EntryKind kind, const std::string& text, const Happening& happening) {
    ++revision;
    entries.push_back({.kind = kind,
                       .turn = turn,
                       .team = curTeam,
                       .text = text,
                       .cell = CellOf(happening),
                       .ours = happening.kind != HappeningKind::TurnBegins && happening.unit >= 0 &&
                               TeamOfUnit(happening.unit) == SquadTeam});
}
