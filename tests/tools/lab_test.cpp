// Recordings: what was recorded replays to the same state, and a run that goes another way is caught where it
// does.
#include <algorithm>
#include <fstream>
#include <sstream>

#include "state/state.h"
#include "tests/support/game_test.h"
#include "tools/lab/recording.h"
#include "tools/lab/remake.h"
#include "tools/lab/replay.h"
#include "tools/lab/soak.h"
#include "view/log.h"

namespace {

class LabTest : public GameTest {
  protected:
    // A recorded run of random events, some of which come in the middle of others.
    Recording Record(std::uint32_t seed, int events) {
        const std::filesystem::path file = folder.Path() / "run.rec";
        const SoakedMission mission = Soak(seed, events, file);
        EXPECT_EQ(mission.fault, "");
        return ReadRecording(file);
    }
};

TEST_F(LabTest, WhatWasRecordedReplaysToTheSameStates) {
    const Recording recording = Record(3, 120);
    EXPECT_TRUE(std::ranges::any_of(recording.events, [](const RecordedEvent& e) { return e.pump > 0; }))
        << "some events came at pumps";
    const ReplayResult result = ReplayHeadless(recording);
    EXPECT_EQ(result.difference, "");
    EXPECT_EQ(result.events, recording.events.size());
}

TEST_F(LabTest, TheFirstDifferenceIsNamedWithItsEventAndField) {
    Recording recording = Record(5, 10);
    const auto changed = std::ranges::find_if(
        recording.lines, [](const std::string& line) { return line.starts_with("  UnitTable"); });
    ASSERT_NE(changed, recording.lines.end());
    const std::string was = *changed;
    *changed += "0";
    const ReplayResult result = ReplayHeadless(recording);
    EXPECT_NE(result.difference.find("replayed: " + was), std::string::npos) << result.difference;
    EXPECT_NE(result.difference.find("event "), std::string::npos);
}

TEST_F(LabTest, ARemadeRecordingIsTheOneThatWasMade) {
    for (const std::uint32_t seed : {3U, 8U}) {
        const Recording recording = Record(seed, 120);
        EXPECT_EQ(RemakeLines(recording), recording.lines) << "seed " << seed;
    }
}

TEST_F(LabTest, ABareListOfEventsIsMadeARecording) {
    std::istringstream text(
        "sarnoth recording 1\nbuild by hand\nseed 5\n"
        "event 1 0 KeyDown frmField -1 13 0 0 0\n"
        "event 7 0 KeyDown frmInfo -1 40 0 0 0\n"
        "event 7 0 KeyDown frmInfo -1 13 0 0 0\n"
        "event 9 0 Click frmField.imgStance 0 0 0 0 0\n");
    Recording recording = ReadRecording(text, "x.rec");
    recording.lines = RemakeLines(recording);
    std::vector<std::string> events;
    for (const std::string& line : recording.lines)
        if (line.starts_with("event ")) events.push_back(line.substr(0, 7));
    EXPECT_EQ(events, (std::vector<std::string>{"event 1", "event 2", "event 3", "event 4"}));
    const auto has = [&recording](const char* line) {
        return std::count(recording.lines.begin(), recording.lines.end(), line) == 1;
    };
    EXPECT_TRUE(has("  weaponPage 1 -> 2")) << "the file was open for its keys";
    EXPECT_TRUE(has("  UnitTable[0].stance 2 -> 0")) << "and closed for the field's";
}

TEST_F(LabTest, ARecordingThatIsNoneIsToldByItsLine) {
    struct Case {
        const char* text;
        const char* where;
    };
    constexpr Case Cases[] = {
        {"sarnoth recording 2\n", "x.rec:1"},
        {"sarnoth recording 1\nbuild x\nseed -4x\n", "x.rec:3"},
        {"sarnoth recording 1\nbuild x\nseed 4\nafter 0 00\nevent 1\n", "x.rec:5"},
        {"sarnoth recording 1\nbuild x\nseed 4\nafter 0 00\nnonsense\n", "x.rec:5"},
    };
    for (const Case& c : Cases) {
        std::istringstream stream(c.text);
        const std::string error = ErrorOf([&] { ReadRecording(stream, "x.rec"); });
        EXPECT_NE(error.find(c.where), std::string::npos) << c.text;
    }
}

TEST_F(LabTest, TheWatchTellsEveryKindOfChange) {
    StartGame();
    StateWatch watch;
    const std::uint64_t before = watch.Hash();
    UnitTable[3].time = 7;
    UnitTable[3].items[2].name = "ak";
    cellGrid[5][9].durab = 1;
    groundItems[4][8][1].roundsMain = 3;
    curUnit = 2;
    AddToLog("one", 1);
    AddToLog("two", 1);
    const std::vector<std::string> lines = watch.Look();
    EXPECT_EQ(lines.size(), 7U);
    EXPECT_EQ(lines[0], "frmField.cmbLog \"one\"");
    EXPECT_EQ(lines[1], "frmField.cmbLog \"two\"");
    EXPECT_EQ(lines[2], "curUnit 0 -> 2");
    EXPECT_EQ(lines[6], "groundItems[4][8][1].roundsMain 0 -> 3");
    EXPECT_NE(watch.Hash(), before);
}

}  // namespace
