#include "shell/settings.h"

#include <sys/stat.h>

#include "platform/files.h"
#include "tests/support/game_test.h"

namespace {

namespace fs = std::filesystem;

class SettingsTest : public testing::Test {
  protected:
    SettingsTest() { SetProgramFolder(folder.Path()); }

    // Standard error meanwhile.
    template <typename Action>
    static std::string Printed(Action action) {
        testing::internal::CaptureStderr();
        action();
        return testing::internal::GetCapturedStderr();
    }

    ProgramFolder folder;
    const fs::path path = folder.Path() / "settings.txt";
    SettingsFile file;
};

TEST_F(SettingsTest, WhatIsWrittenIsRead) {
    EXPECT_EQ(file.Load(), "") << "no file is no trouble";
    const Settings others[] = {{3, true, 0, true, false, true, false},
                               {8, false, 70, false, true, false, true}};
    for (const Settings& settings : others) {
        file.Change(settings);
        SettingsFile again;
        EXPECT_EQ(again.Load(), "");
        EXPECT_EQ(again.Now(), settings) << folder.Read("settings.txt");
    }
    fs::remove(path);
    file.Change(others[1]);
    EXPECT_FALSE(fs::exists(path)) << "nothing has changed";
}

TEST_F(SettingsTest, ABrokenLineIsNamedAndTheOthersCount) {
    struct Case {
        const char* text;
        const char* trouble;  // its beginning
        Settings settings;
    };
    const Case cases[] = {
        {"", "", {}},
        {" volume=70 \r\n\nscale = 2.5", "", {.halves = 5, .volume = 70}},
        {"scale = auto\nmuted = yes\n", "", {.muted = true}},
        {"volume = 101\nmuted = yes\n",
         "line 1: expected volume = 0 to 100, found \"volume = 101\"",
         {.muted = true}},
        {"muted = maybe", "line 1: expected muted = yes or no", {}},
        {"scale = 4.5", "line 1: expected scale = auto", {}},
        {"scale = 1.7", "line 1: expected scale = auto", {}},
        {"scale = 99999999999", "line 1: expected scale = auto", {}},
        {"volume = ", "line 1: expected volume", {}},
        {"volume", "line 1: expected a setting", {}},
        {"muted = yes\ncolour = red\nvolume = x\n", "line 2: expected a setting", {.muted = true}},
        {"\xFF\xFE v \x01", "line 1: expected a setting", {}},
    };
    for (const Case& row : cases) {
        Settings settings;
        const std::string trouble = TakeSettings(row.text, settings);
        EXPECT_EQ(trouble.substr(0, std::string_view(row.trouble).size()), row.trouble) << row.text;
        EXPECT_EQ(trouble.empty(), *row.trouble == '\0') << row.text;
        EXPECT_EQ(settings, row.settings) << row.text;
    }
}

TEST_F(SettingsTest, WhatIsNoFileIsReportedOnceAndDoesNoHarm) {
    const auto put = [this](bool aFolder) {
        fs::remove(path);
        return aFolder ? fs::create_directory(path) : mkfifo(path.c_str(), 0600) == 0;
    };
    for (const bool aFolder : {false, true}) {
        ASSERT_TRUE(put(aFolder));
        std::string trouble;
        EXPECT_EQ(Printed([&] { trouble = file.Load(); }),
                  "Sarnoth III: settings: settings.txt: expected a file, found a folder or a device\n");
        EXPECT_TRUE(trouble.starts_with("Not all of your settings could be read: settings.txt")) << trouble;
    }
    Settings settings;
    settings.volume = 60;
    EXPECT_EQ(Printed([&] { file.Change(settings); }),
              "Sarnoth III: settings: settings.txt: Is a directory\n");
    settings.volume = 50;
    EXPECT_EQ(Printed([&] { file.Change(settings); }), "") << "once";
    EXPECT_EQ(file.Now().volume, 50);
}

}  // namespace
