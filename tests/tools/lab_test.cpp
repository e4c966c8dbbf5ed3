// Recordings: what was recorded replays to the same state, and a run that goes another way is caught where it
// does.
#include <algorithm>
#include <fstream>
#include <sstream>

#include "shell/journal.h"
#include "state/state.h"
#include "tests/support/game_test.h"
#include "tools/lab/field_referee.h"
#include "tools/lab/journal_recording.h"
#include "tools/lab/recording.h"
#include "tools/lab/remake.h"
#include "tools/lab/replay.h"
#include "tools/lab/soak.h"
#include "view/field_form.h"
#include "view/painting.h"
#include "view/unit_painting.h"

namespace {

using namespace std::string_literals;

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

TEST_F(LabTest, WhatWasRecordedReplaysAndIsRemadeToTheSameStates) {
    for (const std::uint32_t seed : {3U, 8U}) {
        const Recording recording = Record(seed, 120);
        EXPECT_TRUE(std::ranges::any_of(recording.events, [](const auto& event) { return event.pump > 0; }))
            << "some events came at pumps";
        EXPECT_EQ(ReplayHeadless(recording).difference, "");
        EXPECT_EQ(RemakeLines(recording), recording.lines) << "seed " << seed;
    }
}

TEST_F(LabTest, ASquareOfTheFieldThatLooksOtherwiseIsNamedAndPainted) {
    Recording recording = Record(5, 40);
    const auto square = std::ranges::find_if(
        recording.lines, [](const std::string& line) { return line.starts_with("  area "); });
    ASSERT_NE(square, recording.lines.end());
    const std::string place = square->substr(7, square->find("20x20") - 7) + "20x20";
    square->back() = square->back() == '0' ? '1' : '0';
    const std::filesystem::path pictures = folder.Path() / "pictures";
    const std::string difference = ReplayHeadless(recording, pictures).difference;
    EXPECT_NE(difference.find("first picture rectangle that differs: " + place), std::string::npos)
        << difference;
    for (const char* name : {"recorded.png", "replayed.png"})
        EXPECT_TRUE(std::filesystem::exists(pictures / name)) << name;
}

TEST_F(LabTest, TheRefereeOfTheFieldFindsWhatWasNotRepainted) {
    StartGame();
    FieldReferee referee;
    const Rectangle nothing;
    EXPECT_EQ(referee.Look(nothing), "");
    const Unit& soldier = UnitTable[curUnit];
    cellGrid[40][40].tileX = 1;
    EXPECT_EQ(referee.Look(nothing), "the cell 40,40 doesn't show what is there");
    PaintCell(40, 40, frmField.area.canvas);
    frmField.area.canvas.SetPixel(soldier.pixelX + 10, soldier.pixelY + 10, Rgb(1, 2, 3));
    EXPECT_NE(referee.Look({soldier.pixelX, soldier.pixelY, 20, 20}), "");
    PaintUnitAtCell(soldier.cellX, soldier.cellY);
    frmField.picBuffer[curUnit].SetPixel(3, 3, Rgb(1, 2, 3));
    EXPECT_NE(referee.Look({soldier.pixelX, soldier.pixelY, 20, 20}).find("another ground under"),
              std::string::npos);
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
        if (line.starts_with("event "))
            events.push_back(line.substr(6, 2) + (line[8] == '0' ? "outside" : "inside"));
    EXPECT_EQ(events, (std::vector<std::string>{"1 outside", "2 inside", "3 inside", "4 outside"}));
    const auto has = [&recording](const char* line) {
        return std::count(recording.lines.begin(), recording.lines.end(), line) == 1;
    };
    EXPECT_TRUE(has("  weaponPage 1 -> 2")) << "the file was open for its keys";
    EXPECT_TRUE(has("  UnitTable[0].stance 2 -> 0")) << "and closed for the field's";
}

TEST_F(LabTest, AJournalIsReplayedWithTheStoreThatItBeganWith) {
    const std::string things = folder.Read("dat/apc.dat");
    const std::filesystem::path file = folder.Path() / "game.txt";
    const std::string head = HeadText(HeadOfGame(5));
    const std::string rest = StoreText() + "event 1 0 Click frmField.mnuExit -1 0 0 0 0\n";
    std::ofstream(file) << head << rest;
    folder.Write("dat/apc.dat", "");
    ASSERT_TRUE(IsJournal(file));
    const Recording recording = RecordingOfJournal(file, folder.Path());
    EXPECT_EQ(folder.Read("dat/apc.dat"), things);
    ASSERT_FALSE(recording.lines.empty());
    EXPECT_EQ(recording.lines.back(), "end 0");
    EXPECT_EQ(ReplayHeadless(recording).difference, "");
    std::ofstream(file) << head.substr(0, head.find("data")) << "data 0\nstore 0\nseed 5\n" << rest;
    EXPECT_NE(ErrorOf([&] { RecordingOfJournal(file, folder.Path()); }).find("other data"),
              std::string::npos);
}

TEST_F(LabTest, ARecordingThatIsNoneIsToldByItsLine) {
    const std::string head = "sarnoth recording 1\nbuild x\nseed 4\nafter 0 00\n";
    for (const auto& [text, where] : {std::pair("sarnoth recording 2\n"s, "x.rec:1"),
                                      {"sarnoth recording 1\nbuild x\nseed -4x\n", "x.rec:3"},
                                      {head + "event 1\n", "x.rec:5"},
                                      {head + "nonsense\n", "x.rec:5"}}) {
        std::istringstream stream(text);
        const std::string error = ErrorOf([&] { ReadRecording(stream, "x.rec"); });
        EXPECT_NE(error.find(where), std::string::npos) << text;
    }
}

}  // namespace
