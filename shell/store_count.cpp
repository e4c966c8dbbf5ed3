#include "shell/store_count.h"

#include "state/state.h"

StoreCount CountStore() {
    StoreCount count;
    for (const InvItem& item : storeItems)
        if (!item.name.empty()) ++count[item.name];
    return count;
}
