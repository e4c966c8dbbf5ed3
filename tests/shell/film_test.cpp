// The computer's turn on film: what was painted, heard and done comes again in its order, where the eye is.
#include "shell/film.h"

#include <gtest/gtest.h>

#include "shell/screening.h"
#include "state/state.h"

namespace {

using std::chrono::milliseconds;

constexpr Moment Begin{std::chrono::hours(1)};
constexpr ViewPlace Corner = {0, 0};

class FilmTest : public testing::Test {
  protected:
    FilmTest() { film.Begin(field, {&blast, &card}); }

    // Shows the film in steps of a millisecond, and writes down what happens when.
    std::string Shown(ViewPlace atLast = Corner) {
        std::string told;
        Moment now = Begin;
        const auto when = [&now] { return " at " + std::to_string((now - Begin) / milliseconds(1)) + "\n"; };
        Screening screening(
            film, Corner, atLast, now, [&](const SoundRequest& sound) { told += sound.fileName + when(); },
            [&](const Happening& happening) { told += "act at " + std::to_string(happening.x) + when(); });
        while (screening.Advance(now)) {
            now += milliseconds(1);
            furthest = std::max(furthest, screening.View(now).left);
        }
        EXPECT_TRUE(screening.Field().SameAs(field));
        EXPECT_EQ(screening.View(now), atLast);
        return told + "end" + when();
    }

    void Hit(int x, int y, bool seen = true) {
        film.Keep({.kind = HappeningKind::Hit, .unit = 0, .x = x, .y = y, .seen = seen});
    }

    Picture field{FieldWidth * CellSize, FieldHeight* CellSize, Rgb(0, 80, 0)};
    ImageControl blast;
    ImageControl card;
    Film film;
    int furthest = 0;  // that the view went to the right
};

TEST_F(FilmTest, FramesComeInTheirOrderAndTakeTheirTime) {
    film.Keep(SoundRequest{"shot"});
    field.SetPixel(100, 100, Rgb(255, 0, 0));
    film.Shoot(milliseconds(40));
    field.SetPixel(100, 100, Rgb(0, 80, 0));
    field.SetPixel(101, 100, Rgb(255, 0, 0));
    film.Shoot({});
    film.Shoot(milliseconds(60));  // nothing new: the last one stays
    Hit(100, 100);
    film.End();
    // 300 to read whose turn it is, then 40, 60 and the rest on a hit.
    EXPECT_EQ(Shown(), "shot at 300\nact at 100 at 400\nend at 950\n");
}

TEST_F(FilmTest, TheViewGoesToWhatIsSeenAndBack) {
    Hit(1400, 100, false);
    film.Shoot({});
    EXPECT_FALSE(film.IsWorthSeeing({0, 0, 760, 460}));
    Hit(1400, 100);
    film.End();
    EXPECT_TRUE(film.IsWorthSeeing({0, 0, 760, 460}));
    // There in 350, 200 to arrive, 550 on the hit, 350 back.
    EXPECT_EQ(Shown(), "act at 1400 at 300\nact at 1400 at 850\nend at 1750\n");
    EXPECT_EQ(furthest, 760) << "the field's end";
}

TEST_F(FilmTest, TheViewIsThereBeforeATrailIsSeen) {
    field.SetPixel(1400, 100, Rgb(255, 0, 0));
    film.Shoot(milliseconds(23));
    field.SetPixel(1400, 100, Rgb(0, 80, 0));
    film.Keep({.kind = HappeningKind::Shot, .unit = 20, .x = 1300, .y = 100, .toX = 1400, .toY = 100});
    film.End();
    EXPECT_EQ(film.Frames()[0].happenings.size(), 1U);
    // There in 350, 200 to arrive, 450 on the shot, 350 back.
    EXPECT_EQ(Shown(), "act at 1300 at 850\nend at 1650\n");
}

TEST_F(FilmTest, MovementOutOfViewTakesNoTime) {
    field.SetPixel(1200, 100, Rgb(255, 0, 0));
    film.Shoot(milliseconds(500));
    EXPECT_FALSE(film.IsWorthSeeing({0, 0, 760, 460}));
    field.SetPixel(200, 100, Rgb(255, 0, 0));
    film.Shoot(milliseconds(70));
    EXPECT_TRUE(film.IsWorthSeeing({0, 0, 760, 460}));
    film.NoteTurnOver();
    field.SetPixel(210, 100, Rgb(255, 0, 0));
    film.Shoot(milliseconds(1500));  // the selection's flash, which the rules wait for
    film.End();
    EXPECT_EQ(Shown(), "end at 370\n");
}

TEST_F(FilmTest, AnOverlayIsSeenAndLeavesNothing) {
    blast.Picture = std::make_shared<Picture>(60, 60, Rgb(255, 255, 0));
    blast.Left = 1500;  // partly beyond the field
    blast.Top = 40;
    blast.Visible = true;
    film.Shoot(milliseconds(100));
    blast.Visible = false;
    film.Shoot({});
    film.End();
    Screening screening(
        film, Corner, Corner, Begin, [](const auto&) {}, [](const auto&) {});
    screening.Advance(Begin + milliseconds(350));
    EXPECT_EQ(screening.Field().Pixel(1510, 50), Rgb(255, 255, 0));
    EXPECT_EQ(screening.Field().Pixel(1490, 50), Rgb(0, 80, 0));
    while (screening.Advance(Begin + std::chrono::seconds(5))) {
    }
    EXPECT_TRUE(screening.Field().SameAs(field));
}

TEST_F(FilmTest, SkippedItEndsAtOnceAndTheFieldIsPaintedWhole) {
    Hit(100, 100);
    film.End();
    EXPECT_EQ(field.TakeChanged(), field.Bounds()) << "whoever shows it has missed something";
    Screening screening(
        film, Corner, Corner, Begin, [](const auto&) {}, [](const auto&) { FAIL(); });
    EXPECT_TRUE(screening.Advance(Begin));
    screening.Skip();
    EXPECT_FALSE(screening.Advance(Begin));
}

}  // namespace
