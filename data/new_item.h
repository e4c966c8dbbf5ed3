// Things as they are before anybody has used them.
#pragma once

#include "state/state.h"

/// A new thing of a row, with the feeds that such things come with.
InvItem MakeItem(const WeaponInfo& row);
