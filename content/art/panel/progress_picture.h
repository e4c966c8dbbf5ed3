// The picture that is shown while a mission is set up. Its groove holds the bar at 19, 39, 460 by 3.
#pragma once

#include <QImage>

namespace art {

QImage ProgressPicture();  // 529 by 67

}  // namespace art
