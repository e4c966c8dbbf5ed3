// The fire modes: their words in the list, and the places of those that a row of the weapons file offers.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

inline constexpr std::string_view AimedMode = "Aimed shot";
inline constexpr std::string_view SnapMode = "Snap shot";
inline constexpr std::string_view BurstMode = "Burst";  // in the list its rounds follow, as "Burst [3]"
inline constexpr std::string_view FullAutoMode = "Full auto";
inline constexpr std::string_view SecondaryMode = "Secondary";
inline constexpr std::string_view HitMode = "Hit";
inline constexpr std::string_view ThrowMode = "Throw";

// Of tools, whatever their rows say.
inline constexpr std::string_view DigMode = "Dig";
inline constexpr std::string_view FillMode = "Fill";
inline constexpr std::string_view FoldMode = "Fold";
inline constexpr std::string_view UnfoldMode = "Unfold";
inline constexpr std::string_view CureMode = "Cure";

/// By place of WeaponInfo::modes.
inline constexpr std::array ModesOfRow = {AimedMode,     SnapMode, BurstMode, FullAutoMode,
                                          SecondaryMode, HitMode,  ThrowMode};

/// Places that are asked for.
inline constexpr std::size_t BurstPlace = 2;
inline constexpr std::size_t SecondaryPlace = 4;
static_assert(ModesOfRow[BurstPlace] == BurstMode && ModesOfRow[SecondaryPlace] == SecondaryMode);
