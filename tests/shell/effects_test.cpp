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

// Nine pellets are one number; another's hit, and one that comes later, have their own.
TEST(EffectsTest, HitsOfOneBurstAddUp) {
    const auto wordsAfter = [](std::initializer_list<std::pair<int, milliseconds>> byAndTime) {
        Effects effects;
        Moment now = Begin;
        for (const auto& [by, time] : byAndTime) {
            now = Begin + time;
            effects.Add({.kind = HappeningKind::Hit, .unit = 25, .by = by, .amount = 9, .x = 400, .y = 400},
                        now);
        }
        Sketch onField;
        Sketch onMap;
        effects.Draw(now, onField, onMap);
        std::string words;
        for (const Stroke& stroke : onField)
            if (stroke.kind == StrokeKind::Words) words += stroke.text;
        return words;
    };
    EXPECT_EQ(wordsAfter({{1, milliseconds(0)}, {1, milliseconds(30)}, {1, milliseconds(600)}}), "-27");
    EXPECT_EQ(wordsAfter({{1, milliseconds(0)}, {2, milliseconds(30)}}), "-9-9");
    EXPECT_EQ(wordsAfter({{1, milliseconds(0)}, {1, milliseconds(700)}}), "-9");
}

// The one hit jerks away from the other, and stands still again before the number is gone.
TEST(EffectsTest, WhoIsHitFlinches) {
    ResetState();
    UnitTable[3].cellX = 20;
    UnitTable[3].cellY = 9;
    UnitTable[7].cellX = 12;
    UnitTable[7].cellY = 9;
    Effects effects;
    effects.Add({.kind = HappeningKind::Hit, .unit = 3, .by = 7, .amount = 5, .x = 410, .y = 190}, Begin);
    struct {
        milliseconds age;
        Sketch pieces;
    } const cases[] = {
        {milliseconds(0), {Piece(400, 180, 20, 403, 180)}},
        {milliseconds(150), {Piece(400, 180, 20, 402, 180)}},
        {milliseconds(350), {}},
    };
    for (const auto& [age, pieces] : cases) {
        Sketch onField;
        Sketch onMap;
        effects.Draw(Begin + age, onField, onMap);
        std::erase_if(onField, [](const Stroke& stroke) { return stroke.kind != StrokeKind::Piece; });
        EXPECT_EQ(onField, pieces) << age.count();
    }
}

}  // namespace
