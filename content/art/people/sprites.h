// Small masked pictures that lie on a cell.
#pragma once

#include <vector>

#include <QImage>

namespace art {

constexpr int ChargeSprite = 12;
constexpr int PileSprite = 13;
constexpr int DeadSprite = 14;

// One sprite, see-through around it; an empty one for a number that nothing uses.
QImage SpritePicture(int sprite);

// 640 by 320: 32 sprites a row, masks 160 pixels below.
QImage SpriteSheet();

// 440 by 40: the tops of the trees, their masks below.
QImage ForestSheet(const std::vector<QImage>& tops);

}  // namespace art
