// Read-outs of the panel: digits and strips of the four bars, the durability column, the number of sighted
// enemies.
#pragma once

#include <array>
#include <string>

#include <QImage>

#include "kit/palette.h"

namespace art {

constexpr int BarCount = 4;
constexpr int BarLength = 135;

struct BarLook {
    const char* label;
    Ink light, middle, dark;
};

inline constexpr std::array<BarLook, BarCount> Bars{{
    {"TIME", Ink::Straw, Ink::Stubble, Ink::Bark},
    {"ENERGY", Ink::Gold, Ink::Amber, Ink::Brick},
    {"HEALTH", Ink::Sprout, Ink::Signal, Ink::Meadow},
    {"ACCUR.", Ink::Shallow, Ink::Cobalt, Ink::Navy},
}};

QImage BarDigits();        // 50 by 24: ten digits across, a row a bar
QImage BarStrip(int bar);  // 135 by 3

// The durability bands by the least percentage that they show.
inline constexpr std::array<int, 4> DurabilityBands{0, 25, 50, 75};
QImage DurabilityFill(std::size_t band);  // 3 by 40
QImage DurabilityCover();                 // 3 by 40

QImage EnemyCounter(int count);  // 25 by 19

}  // namespace art
