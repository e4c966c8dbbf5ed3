// What the front end sounds of its own accord: bullets that end, sightings, turns, the verdict.
#include "shell/own_sounds.h"

#include "data/mode_words.h"
#include "data/terrain.h"
#include "platform/files.h"
#include "shell/companion.h"
#include "tests/support/game_test.h"

namespace {

constexpr Moment Begin{std::chrono::hours(1)};
constexpr int OverThere = 60 * CellSize;

std::string NameOf(const std::optional<SoundRequest>& sound) {
    return sound ? sound->fileName : "";
}

class OwnSoundsTest : public GameTest {
  protected:
    OwnSoundsTest() { ClearField(); }

    static Happening Shot(const char* weapon, std::string_view mode = AimedMode) {
        return {.kind = HappeningKind::Shot,
                .unit = 0,
                .toX = OverThere,
                .toY = OverThere / 2,
                .text = weapon,
                .mode = std::string(mode)};
    }

    static Happening Sighting(int enemy) { return {.kind = HappeningKind::Sighting, .unit = enemy, .by = 0}; }

    Impacts impacts;
    Cues cues;
};

TEST_F(OwnSoundsTest, ABulletSoundsByWhatItStrikes) {
    struct Case {
        TileRange tile;
        const char* file;
        const char* ricochet;
    };
    constexpr Case Cases[] = {
        {{Surface, 0}, "\\wav\\land\\earth.wav", ""},
        {{Water, 0}, "\\wav\\land\\water.wav", ""},
        {{Trees, 14}, "\\wav\\land\\leaves.wav", ""},
        {{Wooden, 0}, "\\wav\\land\\wood.wav", ""},
        {{Stone, 11}, "\\wav\\land\\stone.wav", "\\wav\\ric\\stone.wav"},
        {{Various, 20}, "\\wav\\land\\metal.wav", "\\wav\\ric\\metal.wav"},
    };
    for (const Case& row : Cases) {
        PutTile(60, 30, row.tile.first, row.tile.terrain);
        int ricochets = 0;
        for (int i = 0; i < 60; ++i) {
            const std::string heard = NameOf(impacts.Of(Shot("m4")));
            if (heard == row.file) continue;
            EXPECT_EQ(heard, row.ricochet);
            ++ricochets;
        }
        EXPECT_EQ(ricochets > 10 && ricochets < 30, *row.ricochet != '\0') << row.file << ": " << ricochets;
    }
}

TEST_F(OwnSoundsTest, WhatIsNoBulletOrEndsInSomebodyMakesNoImpact) {
    EXPECT_EQ(NameOf(impacts.Of(Shot("shuriken", ThrowMode))), "");
    EXPECT_EQ(NameOf(impacts.Of(Shot("m67"))), "") << "it bursts";
    Happening unseen = Shot("m4");
    unseen.seen = false;
    EXPECT_EQ(NameOf(impacts.Of(unseen)), "");
    Happening beyond = Shot("m4");
    beyond.toX = -5;
    EXPECT_EQ(NameOf(impacts.Of(beyond)), "");
    PutUnit(20, 60, 30);
    EXPECT_EQ(NameOf(impacts.Of(Shot("m4"))), "");
}

TEST_F(OwnSoundsTest, TheirSlotsAreNotTheRules) {
    for (int i = 0; i < 4; ++i) {
        const int slot = impacts.Of(Shot("m4"))->slot;
        EXPECT_TRUE(slot >= FirstOwnSlot && slot <= LastOwnSlot);
    }
    EXPECT_GE(Cues::YourTurn()->slot, FirstOwnSlot);
    EXPECT_NE(Cues::YourTurn()->slot, cues.Of(Sighting(20), Begin)->slot) << "they may come together";
}

TEST_F(OwnSoundsTest, AnEnemyIsAnnouncedWhenHeHasBeenOutOfSightForATurn) {
    struct Case {
        int turn;
        int second;
        int enemy;
        bool heard;
    };
    constexpr Case Cases[] = {
        {1, 0, 20, true},  {1, 0, 21, false},  // both in one look
        {1, 5, 20, false},                     // by another soldier
        {2, 9, 20, false}, {3, 12, 20, false}, {5, 15, 20, true}, {5, 20, 22, true},
    };
    for (const Case& row : Cases) {
        squadTurns = row.turn;
        const auto cue = cues.Of(Sighting(row.enemy), Begin + std::chrono::seconds(row.second));
        EXPECT_EQ(cue.has_value(), row.heard) << "turn " << row.turn << ", enemy " << row.enemy;
    }
    EXPECT_FALSE(cues.Of(Sighting(45), Begin + std::chrono::minutes(1))) << "a civilian";
}

TEST_F(OwnSoundsTest, VictoryAndDefeatHaveCues) {
    EXPECT_EQ(NameOf(Cues::OfVerdict("Victory")), "\\wav\\cue\\victory.wav");
    EXPECT_EQ(NameOf(Cues::OfVerdict("Defeat")), "\\wav\\cue\\defeat.wav");
    EXPECT_EQ(NameOf(Cues::OfVerdict("Withdrawal")), "");
}

TEST_F(OwnSoundsTest, AMissingFileIsSilence) {
    SetProgramFolder(folder.Path() / "dat");
    EXPECT_FALSE(Cues::YourTurn());
    EXPECT_FALSE(impacts.Of(Shot("m4")));
}

TEST_F(OwnSoundsTest, TheTurnsCueComesWithItsBanner) {
    std::string heard;
    Companion companion;
    companion.SoundThrough([&heard](const SoundRequest& sound) { heard += sound.fileName; });
    StartGame();
    EXPECT_EQ(heard, "\\wav\\cue\\your-turn.wav");
    EXPECT_TRUE(std::none_of(host.sounds.begin(), host.sounds.end(), [](const SoundRequest& sound) {
        return sound.slot >= FirstOwnSlot;
    })) << "whoever listens to the game hears the rules alone";
}

}  // namespace
