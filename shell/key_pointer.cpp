#include "shell/key_pointer.h"

#include <algorithm>

#include "shell/seen_part.h"
#include "shell/stops.h"

namespace {

// The middle of the square that `place` lies in.
PixelPoint InSquare(PixelPoint place, int grid) {
    const auto middle = [grid](int at) { return at - at % grid + grid / 2; };
    return {middle(place.x), middle(place.y)};
}

}  // namespace

bool KeyPointer::StandsOn(const Control& stop) const {
    const Rectangle seen = SeenPart(stop);
    if (GridOf(stop) == 0) return !seen.Empty();
    const auto place = places.find(&stop);
    return place != places.end() && Contains(seen, OriginOf(stop) + place->second);
}

void KeyPointer::Begin(const Control& stop) {
    const int grid = GridOf(stop);
    if (grid == 0 || StandsOn(stop)) return;
    Put(stop, InSquare(StartOn(stop), grid));
    if (StandsOn(stop)) return;
    Put(stop, InSquare(MiddleOf(SeenPart(stop)) - OriginOf(stop), grid));
}

void KeyPointer::Step(const Control& stop, PixelPoint squares) {
    const int grid = GridOf(stop);
    const PixelPoint wanted = places[&stop] + squares * grid;
    Put(stop,
        InSquare({std::clamp(wanted.x, 0, stop.Width - 1), std::clamp(wanted.y, 0, stop.Height - 1)}, grid));
}

Rectangle KeyPointer::Spot(const Control& stop) const {
    const Rectangle seen = SeenPart(stop);
    const int grid = GridOf(stop);
    if (grid == 0) return seen;
    const auto place = places.find(&stop);
    if (place == places.end()) return {};
    const PixelPoint corner = OriginOf(stop) + place->second - PixelPoint{grid / 2, grid / 2};
    return Common({corner.x, corner.y, grid, grid}, seen);
}

FinePoint KeyPointer::At(const Control& stop) const {
    const auto place = places.find(&stop);
    if (place != places.end())
        return {static_cast<double>(place->second.x), static_cast<double>(place->second.y)};
    const Rectangle spot = Spot(stop);
    const PixelPoint origin = OriginOf(stop);
    return {spot.left - origin.x + spot.width / 2.0, spot.top - origin.y + spot.height / 2.0};
}
