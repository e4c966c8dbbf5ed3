// The panel's five picture buttons: four stances and the switch for fire in motion.
#pragma once

#include <QImage>

namespace art {

constexpr int FireSwitch = 4;
constexpr int StanceButtons = 5;

// 32 by 25. Lit buttons are pressed in and glow, others stand out.
QImage StanceButton(int button, bool lit);

}  // namespace art
