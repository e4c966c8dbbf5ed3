// The lower panel, and the pieces of it that are shown as pictures of their own.
#pragma once

#include <QImage>

namespace art {

QImage Panel();  // 801 by 200

// Pieces of the finished panel.
QImage BarsFrame(const QImage& panel);    // 210 by 31
QImage WeaponBoard(const QImage& panel);  // 117 by 42
QImage ColumnFrame(const QImage& panel);  // 5 by 42, the durability column

}  // namespace art
