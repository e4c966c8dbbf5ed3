#include "tests/support/writing_audience.h"

#include <utility>

#include "state/state.h"

std::string WritingAudience::Take() {
    Write("");
    lines.pop_back();
    return std::exchange(lines, {});
}

void WritingAudience::EnemiesCounted() {
    Write("enemies: " + std::to_string(enemyCount));
}

void WritingAudience::SoundPlayed(const std::string& name, int column) {
    Write("sound " + name + (column == AtCurrentUnit ? "" : " at " + std::to_string(column)));
}

void WritingAudience::OverlayBegins(Overlay overlay, int x, int y) {
    Write((overlay == Overlay::Blowup ? "explosion at " : "card at ") + Cell(x, y));
}

void WritingAudience::OverlayEnds(Overlay overlay) {
    Write(overlay == Overlay::Blowup ? "explosion ends" : "card ends");
}

void WritingAudience::Write(const std::string& line) {
    if (!frames.empty()) lines += "frames " + std::exchange(frames, {}) + "\n";
    if (pixels > 0) lines += std::to_string(std::exchange(pixels, 0)) + " pixels\n";
    lines += line + "\n";
}
