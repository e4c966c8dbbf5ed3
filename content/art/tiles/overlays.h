// Short animations over the field.
#pragma once

#include <QImage>

namespace art {

constexpr int OverlayFrames = 5;

// Frame 1 to 5 of an explosion, 60 by 60.
QImage BlowupFrame(int frame);

// Frame 1 to 5 of the mark on a target that was hit, 20 by 20.
QImage TargetFrame(int frame);

}  // namespace art
