// Where the game's files are found and where the player's are kept, beside the program and installed.
#include "platform/game_folders.h"

#include <cstdlib>

#include "platform/files.h"
#include "tests/support/game_test.h"

namespace fs = std::filesystem;

namespace {

// A small installation, a home, and an environment.
class GameFoldersTest : public GameTest {
  protected:
    GameFoldersTest() : root(folder.Path() / "root") {
        fs::create_directories(root / "usr/games");
        fs::create_directories(root / "usr/share/sarnoth/dat");
        Write("usr/share/sarnoth/dat/apc.dat", "stock");
        Write("usr/share/sarnoth/dat/other.dat", "other");
        SetEnvironment("/home/me", nullptr);
    }
    ~GameFoldersTest() override { SetProgramFolder("."); }

    static void SetEnvironment(const char* home, const char* data) {
        unsetenv("HOME");
        unsetenv("XDG_DATA_HOME");
        if (home != nullptr) setenv("HOME", home, 1);
        if (data != nullptr) setenv("XDG_DATA_HOME", data, 1);
    }

    void Write(const std::string& name, const std::string& content) const {
        folder.Write("root/" + name, content);
    }
    std::string Read(const std::string& name) const { return folder.Read("root/" + name); }

    fs::path root;
};

TEST_F(GameFoldersTest, AFolderThatRunsWhereItLiesComesBeforeAnInstallation) {
    fs::create_directories(root / "usr/games/dat");
    const GameFolders found = FoldersOf(root / "usr/games");
    EXPECT_EQ(found.program, root / "usr/games");
    EXPECT_EQ(found.players, "");
}

TEST_F(GameFoldersTest, AnInstallationKeepsThePlayersFilesInHisHome) {
    struct Case {
        const char* home;
        const char* data;
        const char* players;
    };
    constexpr Case Cases[] = {
        {"/home/me", nullptr, "/home/me/.local/share/sarnoth"},
        {"/home/me", "data", "/home/me/.local/share/sarnoth"},  // only a whole path counts
        {"/home/me", "/data", "/data/sarnoth"},
        {nullptr, "/data", "/data/sarnoth"},
    };
    for (const Case& row : Cases) {
        SetEnvironment(row.home, row.data);
        const GameFolders found = FoldersOf(root / "usr/games");
        EXPECT_EQ(found.program, root / "usr/share/sarnoth");
        EXPECT_EQ(found.players, row.players);
    }
    SetEnvironment(nullptr, nullptr);
    EXPECT_NE(ErrorOf([&] { FoldersOf(root / "usr/games"); }), "");
}

TEST_F(GameFoldersTest, ThePlayerGetsAFileOnceAndWritesOnlyHisOwn) {
    SetProgramFolder(root / "usr/share/sarnoth", root / "home/sarnoth");
    EXPECT_EQ(ReadWholeFile("\\dat\\apc.dat"), "stock");
    KeepForPlayer("\\dat\\apc.dat");
    EXPECT_EQ(Read("home/sarnoth/dat/apc.dat"), "stock");

    ReplaceFile("\\dat\\apc.dat", "played");
    KeepForPlayer("\\dat\\apc.dat");
    EXPECT_EQ(ReadWholeFile("\\dat\\apc.dat"), "played");
    EXPECT_EQ(Read("usr/share/sarnoth/dat/apc.dat"), "stock");
    EXPECT_EQ(ReadWholeFile("\\dat\\other.dat"), "other");
    EXPECT_EQ(ShownName("\\dat\\other.dat"), "dat/other.dat");
    EXPECT_EQ(ShownName("\\dat\\apc.dat"), root / "home/sarnoth/dat/apc.dat") << "tells which of the two";
}

TEST_F(GameFoldersTest, AFileThatCanNotBeKeptIsRefusedWithItsWholePath) {
    Write("home", "a file where the folder should be");
    SetProgramFolder(root / "usr/share/sarnoth", root / "home");
    EXPECT_EQ(ErrorOf([] { KeepForPlayer("\\dat\\apc.dat"); }),
              "Run-time error 5: File can't be written: " + (root / "home/dat/apc.dat").string() +
                  ": expected a folder that can be written to, found: Not a directory");
}

}  // namespace
