#include "shell/effects.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "data/terrain.h"
#include "field/geometry.h"
#include "state/state.h"
#include "view/mini_map.h"

namespace {

using std::chrono::milliseconds;

constexpr float Circle = 6.2831853F;

// How long each is seen; ours, within the 300 to 700 ms that the eye needs and a burst allows.
constexpr milliseconds TracerTime(400);
constexpr milliseconds FlashTime(110);
constexpr milliseconds PuffTime(500);
constexpr milliseconds HitTime(700);
constexpr milliseconds FlinchTime(300);
constexpr milliseconds BlastTime(700);
constexpr milliseconds SightingTime(600);
constexpr milliseconds SelectedTime(1200);

constexpr Colour Tracer = Rgb(255, 236, 170);
constexpr Colour MuzzleFlash = Rgb(255, 214, 96);
constexpr Colour Blood = Rgb(140, 16, 12);
constexpr Colour OursHurt = Rgb(255, 92, 72);
constexpr Colour TheirsHurt = Rgb(255, 200, 64);
constexpr Colour Healed = Rgb(128, 232, 128);
constexpr Colour Sighted = Rgb(255, 64, 48);
constexpr Colour Smoke = Rgb(90, 84, 76);
constexpr Colour Fire = Rgb(255, 190, 80);
constexpr Colour White = Rgb(255, 255, 255);

// What a bullet throws up where it ends.
struct Material {
    int terrain;
    Colour dust;
    bool sparks;
};

constexpr Material Materials[] = {
    // clang-format off
    // terrain    dust                sparks
    {Surface,    Rgb(150, 126,  84), false},
    {Water,      Rgb(214, 232, 244), false},
    {Trees,      Rgb( 92, 128,  60), false},
    {Wooden,     Rgb(188, 150,  98), false},
    {Concrete,   Rgb(190, 190, 186), true},
    {Stone,      Rgb(176, 174, 168), true},
    {Roads,      Rgb(160, 152, 140), true},
    {Trenches,   Rgb(132, 106,  70), false},
    {Prickles,   Rgb(160, 158, 150), true},
    {Ships,      Rgb(170, 176, 182), true},
    {Various,    Rgb(170, 168, 160), true},
    {Highways,   Rgb(150, 148, 144), true},
    {Fence,      Rgb(170, 160, 140), true},
    // clang-format on
};

const Material& MaterialOf(int terrain) {
    const auto* const row =
        std::find_if(std::begin(Materials), std::end(Materials),
                     [terrain](const Material& entry) { return entry.terrain == terrain; });
    return row == std::end(Materials) ? Materials[0] : *row;
}

// How much of `length` has passed at `age`, 1 when all of it has.
float Share(milliseconds age, milliseconds length) {
    return std::min(1.0F, static_cast<float>(age.count()) / static_cast<float>(length.count()));
}

// 0 to 1, the same for the same place and number.
float Scatter(const Happening& at, int number) {
    const auto wide = [](int value) { return static_cast<unsigned>(value); };
    unsigned mixed = wide(at.toX) * 73856093U ^ wide(at.toY) * 19349663U ^ wide(at.x) * 83492791U ^
                     wide(at.y + 97 * number) * 2971215073U;
    mixed ^= mixed >> 13;
    mixed *= 0x5bd1e995U;
    mixed ^= mixed >> 15;
    return static_cast<float>(mixed & 0xFFFFU) / 65536.0F;
}

// Wholly on the field, also over a unit at its edge.
Stroke WordsInside(float x, float y, float height, Colour colour, const std::string& text) {
    constexpr float HalfOfLetter = 0.36F;  // of its width, for one of height 1
    const float half = HalfOfLetter * height * static_cast<float>(text.size()) + 2;
    x = std::clamp(x, half, static_cast<float>(FieldWidth * CellSize) - half);
    y = std::clamp(y, height / 2 + 2, static_cast<float>(FieldHeight * CellSize) - height / 2 - 2);
    return Words(x, y, height, colour, text);
}

// `count` specks that fly from (x, y) to `reach` pixels away.
void DrawSpecks(const Happening& cause, float x, float y, int count, float reach, float across, Colour colour,
                Sketch& sketch) {
    for (int i = 0; i < count; ++i) {
        const float angle = Scatter(cause, 2 * i) * Circle;
        const float way = reach * (0.4F + 0.6F * Scatter(cause, 2 * i + 1));
        sketch.push_back(Disc(x + way * std::cos(angle), y + way * std::sin(angle), across, colour));
    }
}

void DrawShot(const Happening& shot, milliseconds age, int ground, Sketch& sketch) {
    const auto x = static_cast<float>(shot.x);
    const auto y = static_cast<float>(shot.y);
    const auto toX = static_cast<float>(shot.toX);
    const auto toY = static_cast<float>(shot.toY);
    if (age < TracerTime) {
        const double left = 1 - static_cast<double>(Share(age, TracerTime));
        sketch.push_back(Line(x, y, toX, toY, 3.5F, Faded(MuzzleFlash, 0.35 * left * left)));
        sketch.push_back(Line(x, y, toX, toY, 1.3F, Faded(Tracer, left)));
    }
    if (age < FlashTime) {
        const float left = 1 - Share(age, FlashTime);
        sketch.push_back(Disc(x, y, 6 + 8 * left, Faded(MuzzleFlash, 0.9)));
        sketch.push_back(Disc(x, y, 3 + 4 * left, White));
    }
    if (age < PuffTime) {
        const float grown = Share(age, PuffTime);
        const Material& material = MaterialOf(ground);
        const auto left = static_cast<double>(1 - grown);
        sketch.push_back(Disc(toX, toY, 4 + 10 * grown, Faded(material.dust, 0.7 * left)));
        DrawSpecks(shot, toX, toY, 5, 3 + 9 * grown, 2, Faded(material.dust, left), sketch);
        if (material.sparks && age < FlashTime) DrawSpecks(shot, toX, toY, 4, 8, 1.5F, White, sketch);
    }
}

Colour ColourOfPoints(const Happening& hit) {
    if (hit.amount < 0) return Healed;
    return TeamOfUnit(hit.unit) == SquadTeam ? OursHurt : TheirsHurt;
}

std::string Points(const Happening& hit) {
    if (hit.amount == 0) return "0";
    return (hit.amount < 0 ? "+" : "-") + std::to_string(std::abs(hit.amount));
}

float SignOf(int difference) {
    return difference < 0 ? -1.0F : difference > 0 ? 1.0F : 0.0F;
}

// Who is hit jerks away from where it came from, and back: his cell's picture is shown aside.
void DrawFlinch(const Happening& hit, milliseconds age, Sketch& sketch) {
    constexpr float Jerk = 3;  // pixels, at first
    const float push = std::round(Jerk * (1 - Share(age, FlinchTime)));
    if (push == 0) return;
    const Unit& from = UnitTable[std::max(0, hit.by)];
    const float sideways = SignOf(int{UnitTable[hit.unit].cellX} - int{from.cellX});
    const float downwards = SignOf(int{UnitTable[hit.unit].cellY} - int{from.cellY});
    constexpr float Half = static_cast<float>(CellSize) / 2;
    const float left = static_cast<float>(hit.x) - Half;
    const float top = static_cast<float>(hit.y) - Half;
    sketch.push_back(Piece(left, top, CellSize, left + push * sideways, top + push * downwards));
}

void DrawHit(const Happening& hit, milliseconds age, int /*ground*/, Sketch& sketch) {
    const auto x = static_cast<float>(hit.x);
    const auto y = static_cast<float>(hit.y);
    const float grown = Share(age, HitTime);
    const auto left = static_cast<double>(1 - grown);
    if (hit.amount > 0) {
        DrawFlinch(hit, age, sketch);
        DrawSpecks(hit, x, y, 7, 4 + 9 * std::sqrt(grown), 2.5F, Faded(Blood, left), sketch);
        if (age < FlinchTime)
            sketch.push_back(Ring(x, y, 22 + 6 * Share(age, FlinchTime),
                                  Faded(White, 1 - static_cast<double>(Share(age, FlinchTime)))));
    }
    constexpr float Rise = 16;
    sketch.push_back(
        WordsInside(x, y - 14 - Rise * grown, 13, Faded(ColourOfPoints(hit), 2 * left), Points(hit)));
}

void DrawDeath(const Happening& death, milliseconds age, int /*ground*/, Sketch& sketch) {
    const auto x = static_cast<float>(death.x);
    const auto y = static_cast<float>(death.y);
    const auto left = static_cast<double>(1 - Share(age, HitTime));
    DrawSpecks(death, x, y, 12, 6 + 8 * Share(age, HitTime), 3, Faded(Blood, left), sketch);
    const Colour colour = TeamOfUnit(death.unit) == SquadTeam ? OursHurt : TheirsHurt;
    sketch.push_back(WordsInside(x, y + 18, 12, Faded(colour, 2 * left), death.by < 0 ? "died" : "killed"));
}

void DrawBlast(const Happening& blast, milliseconds age, int /*ground*/, Sketch& sketch) {
    const auto x = static_cast<float>(blast.x);
    const auto y = static_cast<float>(blast.y);
    const float grown = Share(age, BlastTime);
    const auto left = static_cast<double>(1 - grown);
    DrawSpecks(blast, x, y, 9, 12 + 22 * std::sqrt(grown), 12 + 10 * grown, Faded(Smoke, 0.5 * left), sketch);
    if (age < FlashTime) sketch.push_back(Disc(x, y, 56, Faded(Fire, 0.8)));
    sketch.push_back(Ring(x, y, 30 + 50 * grown, Faded(Fire, left)));
}

void DrawSighting(const Happening& sighting, milliseconds age, int /*ground*/, Sketch& sketch) {
    const auto x = static_cast<float>(sighting.x);
    const auto y = static_cast<float>(sighting.y);
    const float grown = Share(age, SightingTime);
    const auto left = static_cast<double>(1 - grown);
    sketch.push_back(Ring(x, y, 44 - 20 * grown, Faded(Sighted, 2 * left)));
    sketch.push_back(WordsInside(x, y - 20, 14, Faded(Sighted, 2 * left), "!"));
}

void DrawPing(const Happening& cause, milliseconds age, Sketch& onMap) {
    const float grown = Share(age, HitTime);
    onMap.push_back(Ring(static_cast<float>(cause.x) / MiniMapRatio,
                         static_cast<float>(cause.y) / MiniMapRatio, 24 - 18 * grown,
                         Faded(Sighted, 2 * static_cast<double>(1 - grown))));
}

// Who awaits orders now.
void DrawSelected(const Happening& selected, milliseconds age, int /*ground*/, Sketch& sketch) {
    const auto x = static_cast<float>(selected.x);
    const auto y = static_cast<float>(selected.y);
    const auto left = static_cast<double>(1 - Share(age, SelectedTime));
    sketch.push_back(WordsInside(x, y - 19, 12, Faded(White, 2 * left), UnitTable[selected.unit].name));
}

struct Look {
    HappeningKind kind;
    milliseconds length;
    void (*draw)(const Happening& cause, milliseconds age, int ground, Sketch& sketch);
};

constexpr Look Looks[] = {
    {HappeningKind::Shot, PuffTime, DrawShot},
    {HappeningKind::Hit, HitTime, DrawHit},
    {HappeningKind::Death, HitTime, DrawDeath},
    {HappeningKind::Blast, BlastTime, DrawBlast},
    {HappeningKind::Sighting, SightingTime, DrawSighting},
    {HappeningKind::Selected, SelectedTime, DrawSelected},
};

const Look* LookOf(HappeningKind kind) {
    const auto* const row = std::find_if(std::begin(Looks), std::end(Looks),
                                         [kind](const Look& look) { return look.kind == kind; });
    return row == std::end(Looks) ? nullptr : row;
}

milliseconds AgeOf(Moment begun, Moment now) {
    return std::chrono::duration_cast<milliseconds>(now - begun);
}

int GroundAt(int pixelX, int pixelY) {
    const int x = CellOfPixel(pixelX);
    const int y = CellOfPixel(pixelY);
    return InField(x, y) ? int{cellGrid[y][x].tileY} : int{Surface};
}

}  // namespace

void Effects::Add(const Happening& happening, Moment now) {
    if (!happening.seen || LookOf(happening.kind) == nullptr) return;
    running.push_back({happening, now, GroundAt(happening.toX, happening.toY)});
    if (happening.kind == HappeningKind::Hit) TakeIn(running.back());
}

// Pellets and bullets of a burst that hit the same man are one number, which grows.
void Effects::TakeIn(Effect& hit) {
    std::size_t earlier = 0;
    for (; earlier + 1 < running.size(); ++earlier) {
        const Happening& cause = running[earlier].cause;
        if (cause.kind == HappeningKind::Hit && cause.unit == hit.cause.unit && cause.by == hit.cause.by &&
            (cause.amount > 0) == (hit.cause.amount > 0) &&
            AgeOf(running[earlier].begun, hit.begun) < HitTime)
            break;
    }
    if (earlier + 1 == running.size()) return;
    hit.cause.amount += running[earlier].cause.amount;
    running.erase(running.begin() + static_cast<std::ptrdiff_t>(earlier));
}

void Effects::Draw(Moment now, Sketch& onField, Sketch& onMap) {
    std::erase_if(running, [now](const Effect& effect) {
        return AgeOf(effect.begun, now) >= LookOf(effect.cause.kind)->length;
    });
    for (const Effect& effect : running) {
        const milliseconds age = AgeOf(effect.begun, now);
        LookOf(effect.cause.kind)->draw(effect.cause, age, effect.ground, onField);
        if (IsAct(effect.cause.kind) && effect.cause.kind != HappeningKind::Shot)
            DrawPing(effect.cause, age, onMap);
    }
}

bool Effects::Any(Moment now) const {
    return std::any_of(running.begin(), running.end(), [now](const Effect& effect) {
        return AgeOf(effect.begun, now) < LookOf(effect.cause.kind)->length;
    });
}

bool Effects::AnyAct(Moment now) const {
    return std::any_of(running.begin(), running.end(), [now](const Effect& effect) {
        return IsAct(effect.cause.kind) && AgeOf(effect.begun, now) < LookOf(effect.cause.kind)->length;
    });
}
