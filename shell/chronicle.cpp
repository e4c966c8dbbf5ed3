#include "shell/chronicle.h"

#include "data/weapons_file.h"

namespace {

bool IsOurs(int unit) {
    return TeamOfUnit(unit) == SquadTeam;
}

// A charge is a unit without a name.
std::string NameOf(int unit) {
    return unit >= 0 && unit < ChargeBase ? UnitTable[unit].name : "A charge";
}

std::string InCell(const Happening& happening) {
    return ", [" + std::to_string(happening.x / CellSize) + "," + std::to_string(happening.y / CellSize) +
           "]";
}

bool AreEnemies(int one, int other) {
    return one >= 0 && one < ChargeBase && TeamOfUnit(one) != TeamOfUnit(other);
}

}  // namespace

std::string MeansOf(const std::string& weapon) {
    if (weapon.empty()) return "a charge";
    const WeaponInfo& row = WeaponInfoByName(weapon);
    const bool fires = (row.kind == "m" || row.kind == "w") && row.range > 1;
    return row.title + (fires ? " fire" : "");
}

void Chronicle::Clear() {
    entries.clear();
    tallies.fill({});
}

void Chronicle::Note(const Happening& happening) {
    switch (happening.kind) {
        case HappeningKind::TurnBegins:
            return Add(
                EntryKind::Turn,
                happening.unit == SquadTeam ? "Turn " + std::to_string(squadTurns) : "The enemy's turn",
                happening);
        case HappeningKind::Sighting:
            return Add(EntryKind::Sighting,
                       NameOf(happening.by) + " sights " + NameOf(happening.unit) + InCell(happening),
                       happening);
        case HappeningKind::Shot:
            ++tallies.at(static_cast<std::size_t>(happening.unit)).shots;
            return;
        case HappeningKind::Hit:
            return NoteHit(happening);
        case HappeningKind::Death:
            return NoteDeath(happening);
        default:
            return;
    }
}

void Chronicle::NoteRefusal(const std::string& reason) {
    Add(EntryKind::Refusal, reason, {});
}

void Chronicle::NoteHit(const Happening& hit) {
    if (hit.amount > 0) {
        Tally& hurt = tallies.at(static_cast<std::size_t>(hit.unit));
        ++hurt.wounds;
        if (AreEnemies(hit.by, hit.unit)) {
            Tally& by = tallies.at(static_cast<std::size_t>(hit.by));
            ++by.hits;
            by.damage += hit.amount;
        }
    }
    if (!hit.seen) return;
    const std::string whom = NameOf(hit.unit) + " hit by " + MeansOf(hit.text);
    const std::string by = IsOurs(hit.by) ? " of " + NameOf(hit.by) : "";
    Add(EntryKind::Hit, whom + by + ", " + std::to_string(-hit.amount) + " health" + InCell(hit), hit);
}

void Chronicle::NoteDeath(const Happening& death) {
    if (AreEnemies(death.by, death.unit)) ++tallies.at(static_cast<std::size_t>(death.by)).kills;
    if (!death.seen) return;
    const bool ofWounds = death.by < 0;
    Add(EntryKind::Death,
        NameOf(death.unit) + (ofWounds ? " died of wounds" : " killed by " + MeansOf(death.text)) +
            InCell(death),
        death);
}

void Chronicle::Add(EntryKind kind, const std::string& text, const Happening& happening) {
    entries.push_back({.kind = kind,
                       .turn = squadTurns,
                       .team = curTeam,
                       .text = text,
                       .cell = {happening.x / CellSize, happening.y / CellSize},
                       .ours = happening.kind != HappeningKind::TurnBegins && happening.unit >= 0 &&
                               IsOurs(happening.unit)});
}
