// Where the game's files are found and where the player's are kept, beside the program and installed.
#include "platform/game_folders.h"

#include <cstdlib>

#include "platform/files.h"
#include "tests/support/game_test.h"

namespace fs = std::filesystem;

namespace {

// A small installation.
class GameFoldersTest : public GameTest {
  protected:
    GameFoldersTest() {
        fs::create_directories(root / "games");
        fs::create_directories(root / "share/sarnoth/dat");
        folder.Write("usr/share/sarnoth/dat/apc.dat", "stock");
        folder.Write("usr/share/sarnoth/dat/other.dat", "other");
    }
    ~GameFoldersTest() override { SetProgramFolder("."); }

    const fs::path root = folder.Path() / "usr";
};

TEST_F(GameFoldersTest, AnInstallationKeepsThePlayersFilesInHisHomeAndAFolderOfItsOwnComesFirst) {
    struct Case {
        const char* home;
        const char* data;
        const char* players;
    };
    constexpr Case Cases[] = {
        {"/home/me", "", "/home/me/.local/share/sarnoth"},
        {"/home/me", "data", "/home/me/.local/share/sarnoth"},  // only a whole path counts
        {"", "/data", "/data/sarnoth"},
    };
    for (const Case& row : Cases) {
        setenv("HOME", row.home, 1);
        setenv("XDG_DATA_HOME", row.data, 1);
        const GameFolders found = FoldersOf(root / "games");
        EXPECT_EQ(found.program, root / "share/sarnoth");
        EXPECT_EQ(found.players, row.players);
    }
    unsetenv("HOME");
    unsetenv("XDG_DATA_HOME");
    EXPECT_NE(ErrorOf([&] { FoldersOf(root / "games"); }), "");
    fs::create_directories(root / "games/dat");
    EXPECT_EQ(FoldersOf(root / "games").program, root / "games");
    EXPECT_EQ(FoldersOf(root / "games").players, "");
}

TEST_F(GameFoldersTest, ThePlayerGetsAFileOnceAndWritesOnlyHisOwn) {
    SetProgramFolder(root / "share/sarnoth", folder.Path() / "home");
    KeepForPlayer("\\dat\\apc.dat");
    EXPECT_EQ(folder.Read("home/dat/apc.dat"), "stock");
    ReplaceFile("\\dat\\apc.dat", "played");
    KeepForPlayer("\\dat\\apc.dat");
    EXPECT_EQ(ReadWholeFile("\\dat\\apc.dat"), "played");
    EXPECT_EQ(folder.Read("usr/share/sarnoth/dat/apc.dat"), "stock");
    EXPECT_EQ(ReadWholeFile("\\dat\\other.dat"), "other");
    EXPECT_EQ(ShownName("\\dat\\other.dat"), "dat/other.dat");
    EXPECT_EQ(ShownName("\\dat\\apc.dat"), folder.Path() / "home/dat/apc.dat") << "tells which of the two";
}

TEST_F(GameFoldersTest, WhatWouldStandInTheWayAtTheMissionsEndIsToldAtTheStart) {
    const std::string own = (folder.Path() / "home/dat/apc.dat").string();
    for (const bool apart : {false, true}) {
        SetProgramFolder(root / "share/sarnoth", apart ? folder.Path() / "home" : fs::path());
        KeepForPlayer("\\dat\\apc.dat");
        fs::create_directory(ProgramPath("\\dat\\apc.dat") += ".new");
        EXPECT_EQ(ErrorOf([] { KeepForPlayer("\\dat\\apc.dat"); }),
                  "Run-time error 5: File can't be written: " + (apart ? own : "dat/apc.dat") +
                      ".new: expected a name for a new file, found a folder");
    }
    EXPECT_EQ(ErrorOf([] { KeepForPlayer("\\dat\\none.dat"); }),
              "Run-time error 3: File not found: dat/none.dat");
    SetProgramFolder(root / "share/sarnoth");
    EXPECT_EQ(ErrorOf([] { KeepForPlayer("\\dat\\none.dat"); }), "") << "whoever reads it says so";
}

}  // namespace
