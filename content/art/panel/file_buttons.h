// Buttons and small frames of the file window.
#pragma once

#include <QImage>

namespace art {

constexpr int FileButtons = 16;

// 60 by 19: an even number is a face at rest, the odd one after it the same pressed. 6 ("close") and 8
// ("info") are complete in their left upper 49 by 17, all that the window shows of them.
QImage FileButton(int index);

QImage InfoPanel();           // 145 by 158, the frame around a text of 127 by 140 at (9, 9)
QImage DeleteMark();          // 14 by 12
QImage FeedArrow(int arrow);  // 14 by 12: 1 next row, 2 smaller feed, 3 larger feed
QImage AwardBorder();         // 102 by 34, see-through inside

}  // namespace art
