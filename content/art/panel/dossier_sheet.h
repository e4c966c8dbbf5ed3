// The board behind a soldier's file: a recessed place for every thing, face, badge, attribute and award.
#pragma once

#include <QImage>

namespace art {

// 760 by 640.
QImage DossierSheet();

}  // namespace art
