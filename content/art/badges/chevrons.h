// Badges of rank for the file window. The window types the rank's three letters behind the badge, so its
// middle is see-through.
#pragma once

#include <array>

#include <QImage>

namespace art {

// The file names of the badges, lowest rank first.
inline constexpr std::array<const char*, 24> RankNames{
    "pvt", "pfc", "lcp", "cpl", "sgt", "ssg", "sfc", "msg", "sgm", "wo1", "cw2", "cw3",
    "cw4", "cw5", "2lt", "1lt", "cpt", "maj", "ltc", "col", "brg", "mag", "ltg", "gen"};

// 32 by 32. The letters stand in rows 13 to 21 and columns 0 to 24, around whose middle the badge is drawn.
QImage Chevron(std::size_t rank);

}  // namespace art
