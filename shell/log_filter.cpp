#include "shell/log_filter.h"

namespace {

bool IsShown(EntryKind kind, const LogFilter& filter) {
    switch (kind) {
        case EntryKind::Hit:
        case EntryKind::Death:
            return filter.hits;
        case EntryKind::Sighting:
            return filter.sightings;
        case EntryKind::Refusal:
            return filter.refusals;
        case EntryKind::Turn:
            return true;
    }
    return true;
}

bool BeginsEnemysTurn(const ChronicleEntry& entry) {
    return entry.kind == EntryKind::Turn && entry.team != SquadTeam;
}

}  // namespace

std::vector<std::size_t> Filtered(const std::vector<ChronicleEntry>& entries, const LogFilter& filter) {
    std::vector<std::size_t> places;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (!IsShown(entries[i].kind, filter)) continue;
        if (entries[i].kind == EntryKind::Turn && !places.empty() && BeginsEnemysTurn(entries[places.back()]))
            places.pop_back();
        places.push_back(i);
    }
    if (!places.empty() && BeginsEnemysTurn(entries[places.back()])) places.pop_back();
    return places;
}
