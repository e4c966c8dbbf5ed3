#include "kit/joints.h"

#include <vector>

namespace art {
namespace {

constexpr double Reach = 19;  // from the middle to well beyond the hidden margin
const QPointF Middle(10, 10);

// A quarter turn between two sides: straight in the margin, curved inside the cell.
void Bend(QPainterPath& line, QPointF from, QPointF to) {
    line.moveTo(Middle + from * Reach);
    line.lineTo(Middle + from * 10);
    line.quadTo(Middle, Middle + to * 10);
    line.lineTo(Middle + to * Reach);
}

}  // namespace

QPainterPath JointLine(const Joint& joint, bool bent) {
    std::vector<QPointF> arms;
    EachArm(joint, [&](QPointF outward) { arms.push_back(outward); });
    QPainterPath line;
    if (arms.size() == 2) {
        if (bent && QPointF::dotProduct(arms[0], arms[1]) == 0) {
            Bend(line, arms[0], arms[1]);
        } else {
            line.moveTo(Middle + arms[0] * Reach);
            line.lineTo(Middle);
            line.lineTo(Middle + arms[1] * Reach);
        }
        return line;
    }
    for (const QPointF& outward : arms) {
        line.moveTo(Middle);
        line.lineTo(Middle + outward * Reach);
    }
    return line;
}

}  // namespace art
