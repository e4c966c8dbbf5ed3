// The lower panel, and the pieces of it that are shown as pictures of their own.
#pragma once

#include <QImage>

namespace art {

struct PanelPictures {
    QImage panel;        // 801 by 200
    QImage barsFrame;    // 210 by 31
    QImage weaponBox;    // 117 by 42
    QImage columnFrame;  // 5 by 42, the durability column
};

PanelPictures DrawPanel();

}  // namespace art
