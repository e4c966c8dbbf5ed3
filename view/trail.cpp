#include "view/trail.h"

#include <cstddef>
#include <utility>
#include <vector>

#include "view/colours.h"
#include "view/field_form.h"

namespace {

constexpr std::size_t NewestStretch = 21;  // pixels of the trail that a repaint in mid-flight may touch

struct TrailPixel {
    int x;
    int y;
    Colour under;
};

using Path = std::vector<TrailPixel>;

Path path;                    // of the flight that runs; nothing between flights
std::vector<Path> suspended;  // of the flights that wait for a show to end

void Draw(TrailPixel& pixel) {
    Picture& area = frmField.area.canvas;
    pixel.under = area.Pixel(pixel.x, pixel.y);
    area.SetPixel(pixel.x, pixel.y, TrailGrey);
}

void DrawFrom(std::size_t first) {
    for (std::size_t i = first; i < path.size(); ++i)
        Draw(path[i]);
}

// Newest first: the first pixel of a flight is drawn twice, and its second note is the trail's own grey.
void TakeAwayFrom(std::size_t first) {
    for (std::size_t i = path.size(); i > first; --i)
        frmField.area.canvas.SetPixel(path[i - 1].x, path[i - 1].y, path[i - 1].under);
}

std::size_t NewestStart() {
    return path.size() > NewestStretch ? path.size() - NewestStretch : 0;
}

void Suspend() {
    TakeAwayFrom(0);
    suspended.push_back(std::exchange(path, {}));
}

void Resume() {
    path = std::move(suspended.back());
    suspended.pop_back();
    DrawFrom(0);
}

void Finish() {
    TakeAwayFrom(0);
    path.clear();
}

struct Change {
    std::string_view mode;
    void (*run)();
};

constexpr Change Changes[] = {
    {"initialize", [] { path.clear(); }},
    {"return", [] { TakeAwayFrom(NewestStart()); }},
    {"store", [] { DrawFrom(NewestStart()); }},
    {"suspend", Suspend},
    {"resume", Resume},
    {"finalize", Finish},
};

}  // namespace

void ChangeTrail(std::string_view mode) {
    for (const Change& change : Changes)
        if (change.mode == mode) change.run();
}

void DrawTrail(int pixelX, int pixelY) {
    path.push_back({pixelX, pixelY, 0});
    Draw(path.back());
}

void ForgetTrails() {
    path.clear();
    suspended.clear();
}
