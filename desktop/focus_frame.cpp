#include "desktop/focus_frame.h"

#include <QPainter>

#include "desktop/scale.h"

namespace {

constexpr QRgb DarkLine = 0xFF0E1A14;
constexpr QRgb LightLine = 0xFFFFE36E;

struct Line {
    int from;  // pixels of the records, from the outer edge
    int to;
    QRgb colour;
};

constexpr Line Lines[] = {{0, 1, DarkLine}, {1, 3, LightLine}, {3, 4, DarkLine}};
constexpr int Breadth = 4;
constexpr int Outside = 3;  // the rest lies over the edge of what it stands around

QRect Inset(const QRect& outer, int by) {
    const int edge = ToScreen(by);
    return outer.adjusted(edge, edge, -edge, -edge);
}

}  // namespace

FocusFrame::FocusFrame(QWidget& inside) : QFocusFrame(&inside) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void FocusFrame::StandAround(const QRect& place) {
    if (place == Around()) return;
    around = place;
    setVisible(!place.isEmpty());
    if (place.isEmpty()) return;
    setGeometry(Inset(place, -Outside));
    // Nothing beneath but the frame itself is painted again.
    setMask(QRegion(rect()) - Inset(rect(), Breadth));
    raise();
    update();
}

void FocusFrame::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    for (const Line& line : Lines) {
        painter.setClipRegion(QRegion(Inset(rect(), line.from)) - Inset(rect(), line.to));
        painter.fillRect(rect(), QColor(line.colour));
    }
}
