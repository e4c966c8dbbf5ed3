// Firearms from the side, muzzle to the right, put together from a few measures each.
#pragma once

#include <vector>

#include "palette.h"
#include "relief.h"

namespace art {

enum class Stock { None, Solid, Folded, Tube, Thumbhole, Bullpup };
enum class Feed { None, Straight, Curved, Grip, Belt, Tube, Top, Side, Cylinder };
enum class Sight { Irons, Handle, Scope, Dot, Peep };
enum class Muzzle { Plain, Hider, Brake, Silencer, Shroud };
enum class Below { None, Launcher, Shotgun, Bipod, Pump, Lever };

// Lengths are pixels of the finished picture, from butt to muzzle.
struct Gun {
    const char* name;
    const char* feedKind;  // key of its magazines, empty for a gun without
    Stock stock;
    double butt, body, guard, barrel;
    Feed feed;
    Sight sight;
    Muzzle muzzle;
    Below below;
    Ink metal, furniture;
};

// In the order of the catalogue. Those that measure up to 40 altogether are small things.
const std::vector<Gun>& Guns();

bool IsSmall(const Gun& gun);

// With a magazine of that many rounds, 0 for none.
void LayGun(Relief& relief, const Gun& gun, int capacity);

}  // namespace art
