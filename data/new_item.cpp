#include "data/new_item.h"

#include "data/tables.h"
#include "data/weapon_keys.h"

namespace {

NewFeeds FeedsByKind(const WeaponInfo& row) {
    int capacity = 0;
    if (row.kind == "a" || row.kind == "i") capacity = ItemKindByName(row.weaponClass).sizes[0];
    if (row.kind == "w") capacity = 1;
    return {capacity, capacity, 0};
}

}  // namespace

InvItem MakeItem(const WeaponInfo& row) {
    const WeaponKey* const known = WeaponKeyOf(row.name);
    const NewFeeds feeds = known != nullptr && known->newFeeds ? *known->newFeeds : FeedsByKind(row);
    InvItem item;
    item.name = row.name;
    item.durab = row.durab;
    item.ammoMain = row.weaponClass;
    item.ammoSecond = row.ammoSecond;
    item.count = row.unitCount;
    item.capMain = feeds.main;
    item.roundsMain = feeds.rounds;
    item.capSecond = feeds.second;
    return item;
}
