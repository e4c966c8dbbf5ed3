// What lies under everything else on a tile. Each routine covers the whole relief, margin included, with
// grain that repeats from tile to tile.
#pragma once

#include <cstdint>

#include "kit/palette.h"
#include "kit/relief.h"

namespace art {

// A loose ground: two inks mixed by noise, with roughness that the light catches.
struct Loose {
    Ink dark, light;
    float cell;      // size of the lumps, pixels
    float contrast;  // 0 a flat mixture of the two, 1 from one to the other
    float bump;      // height of the lumps, pixels
    std::uint32_t seed;
};

inline constexpr Loose EarthGround{Ink::Soil, Ink::Plank, 2.5f, 0.6f, 0.7f, 31};
inline constexpr Loose SandGround{Ink::Clay, Ink::Shell, 2.5f, 0.45f, 0.35f, 37};
inline constexpr Loose GravelGround{Ink::Fieldstone, Ink::Chalk, 1.67f, 0.7f, 0.75f, 41};
inline constexpr Loose MudGround{Ink::Loam, Ink::Timber, 4, 0.75f, 1.0f, 43};
inline constexpr Loose AsphaltGround{Ink::Asphalt, Ink::Ash, 1.25f, 0.9f, 0.3f, 47};
inline constexpr Loose SlabGround{Ink::Ash, Ink::Concrete, 1.67f, 0.5f, 0.2f, 53};
inline constexpr Loose DirtRoadGround{Ink::Timber, Ink::Sand, 2, 0.5f, 0.4f, 59};

void LooseGround(Relief& relief, const Loose& ground);

// The same only where the path is, its edge ragged by about `ragged` pixels, at a height.
void LoosePatch(Relief& relief, const QPainterPath& path, const Loose& ground, float height = 0,
                float ragged = 0.6f);

// Plain grass, the ground of surface 0.
void GrassGround(Relief& relief);

// Blades in a small bunch.
void Tuft(Relief& relief, float x, float y, float reach, Ink dark, Ink light, std::uint32_t seed);

// Boards over the whole tile, four to a tile, running west-east or north-south.
void BoardGround(Relief& relief, bool westEast, Ink dark, Ink light, std::uint32_t seed);

// A concrete slab with its joint along the tile's sides.
void SlabFloor(Relief& relief);

// Four irregular flags a tile.
void FlagFloor(Relief& relief);

// Water too deep to walk in.
void OpenWater(Relief& relief);

// Colours and height of water `depth` pixels from the shore, 0 at the shore, 12 and more is open.
void WaterTexel(Texel& texel, float x, float y, float depth);

// The whole tile and the margin around it.
QPainterPath WholeTile();

// Stones scattered on a tile, each at least `inset` pixels from its sides.
void ScatterStones(Relief& relief, int count, float smallest, float largest, float inset, Ink colour,
                   std::uint32_t seed);

}  // namespace art
