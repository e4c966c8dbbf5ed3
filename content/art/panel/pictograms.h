// Faint signs in the empty places of a soldier's file.
#pragma once

#include <cstdint>

#include <QPainterPath>

namespace art {

enum class Pictogram : std::uint8_t { Helmet, Vest, Pack, Pistol, Grenade, Knife, Rifle, Hand };

// Within a place of 42 by 42, or 117 by 42 for the rifle, from its upper left corner.
QPainterPath SignOf(Pictogram sign);

}  // namespace art
