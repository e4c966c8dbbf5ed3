// Firearms from the side, muzzle to the right, put together from a few measures each.
#pragma once

#include <vector>

#include "kit/palette.h"
#include "kit/relief.h"

namespace art {

enum class Stock { None, Solid, Folded, Tube, Thumbhole, Bullpup, Sporter, Rods, Wire, Skeleton };
enum class Feed { None, Straight, Curved, Grip, Belt, Tube, Top, Side, Cylinder };
enum class Sight { Irons, Handle, Scope, Dot, Peep };
enum class Muzzle { Plain, Hider, Brake, Silencer, Shroud };
enum class Below { None, Launcher, Shotgun, Bipod, Pump, Lever };

// Details that tell guns of a family apart; a gun may have several.
enum Part : unsigned {
    Plain = 0,
    Hump = 1u << 0,         // a raised cover on the body
    UpperGuard = 1u << 1,   // furniture above the barrel too
    GasTube = 1u << 2,      // a bare tube above the barrel
    UnderTube = 1u << 3,    // a tube below it
    CockingTube = 1u << 4,  // a short one above, with a lever and a ring sight
    TallPost = 1u << 5,     // a triangular front sight right before the guard
    SlabGuard = 1u << 6,    // a deep guard
    Bolt = 1u << 7,         // a handle to be turned
    Carry = 1u << 8,        // a handle to be carried by
    Rail = 1u << 9,         // teeth for sights along the top
    Cheek = 1u << 10,       // a rest on the stock
    Heavy = 1u << 11,       // a thick barrel
    Nose = 1u << 12,        // a blunt iron cap over the muzzle
    Spike = 1u << 13,       // a bayonet folded under the barrel
    Fins = 1u << 14,        // cooling rings along the barrel
    NoPost = 1u << 15       // no front sight
};

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
    unsigned parts = Plain;
};

// In the order of the catalogue. Those that measure up to 40 altogether are small things.
const std::vector<Gun>& Guns();

bool IsSmall(const Gun& gun);

// With a magazine of that many rounds, 0 for none.
void LayGun(Relief& relief, const Gun& gun, int capacity);

}  // namespace art
