// What lingers of a shot, a hit or a blast: for how long, and nothing that the squad doesn't see.
#include "shell/effects.h"

#include <gtest/gtest.h>

#include "state/state.h"

namespace {

using std::chrono::milliseconds;

constexpr Moment Begin{std::chrono::hours(1)};

struct Case {
    HappeningKind kind;
    bool seen;
    milliseconds length;  // that it is drawn
    bool onMap;
};

TEST(EffectsTest, EachIsSeenForItsTimeAndNoLonger) {
    const Case cases[] = {
        {HappeningKind::Shot, true, milliseconds(500), false},
        {HappeningKind::Hit, true, milliseconds(700), true},
        {HappeningKind::Death, true, milliseconds(700), true},
        {HappeningKind::Blast, true, milliseconds(700), true},
        {HappeningKind::Hit, false, milliseconds(0), false},
        {HappeningKind::TurnBegins, true, milliseconds(0), false},
    };
    for (const Case& entry : cases) {
        Effects effects;
        effects.Add({.kind = entry.kind,
                     .unit = 0,
                     .amount = 12,
                     .x = 100,
                     .y = 100,
                     .toX = 180,
                     .toY = 90,
                     .seen = entry.seen},
                    Begin);
        for (const milliseconds age :
             {milliseconds(0), milliseconds(250), milliseconds(499), milliseconds(699)}) {
            Sketch onField;
            Sketch onMap;
            effects.Draw(Begin + age, onField, onMap);
            EXPECT_EQ(!onField.empty(), age < entry.length)
                << static_cast<int>(entry.kind) << " " << age.count();
            EXPECT_EQ(!onMap.empty(), entry.onMap && age < entry.length);
        }
        EXPECT_FALSE(effects.Any(Begin + milliseconds(700)));
    }
}

// A tracer from where the shot left the muzzle to where it ended; points over who was hit, wholly on the
// field.
TEST(EffectsTest, LiesWhereItHappened) {
    Effects effects;
    effects.Add({.kind = HappeningKind::Shot, .unit = 0, .x = 100, .y = 100, .toX = 180, .toY = 90}, Begin);
    effects.Add({.kind = HappeningKind::Hit, .unit = 0, .amount = 12, .x = 1515, .y = 8}, Begin);
    Sketch onField;
    Sketch onMap;
    effects.Draw(Begin, onField, onMap);
    int tracers = 0;
    for (const Stroke& stroke : onField) {
        if (stroke.kind == StrokeKind::Line && stroke.x == 100 && stroke.y == 100 && stroke.toX == 180 &&
            stroke.toY == 90)
            ++tracers;
        if (stroke.kind != StrokeKind::Words) continue;
        EXPECT_EQ(stroke.text, "-12");
        EXPECT_LT(stroke.x, 1510);
        EXPECT_GT(stroke.y, 6);
    }
    EXPECT_GT(tracers, 0);
}

}  // namespace
