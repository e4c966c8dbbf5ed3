// Missing, truncated and garbled versions of every data file: each gives one message that names the file and
// the place.
#include <sys/stat.h>

#include <random>

#include "data/campaign_files.h"
#include "state/setup.h"
#include "tests/support/game_test.h"

namespace {

class BrokenFiles : public GameTest {
  protected:
    static std::string ReadingError(const std::string& name) {
        return ErrorOf([&] { name == "dat/ori.dat" ? (void)FacingText(7) : Main(1); });
    }
};

TEST_F(BrokenFiles, EachIsNamedWithItsPlace) {
    std::mt19937 generator(7);
    for (const std::string name :
         {"dat/weapons.dat", "dat/countries.dat", "dat/save.dat", "dat/apc.dat", "dat/ori.dat", "map/491.map",
          "map/492.map", "map/493.map", "map/49g.map"}) {
        const std::string whole = folder.Read(name);
        const bool text = whole.ends_with('\n');
        const std::size_t lastLine = whole.rfind('\n', whole.size() - 2) + 1;
        std::string noise = whole;
        for (char& byte : noise)
            byte = static_cast<char>(generator() & 0xFF);
        for (const std::string& broken : {std::string(), whole.substr(0, 10), noise,
                                          whole.substr(0, text ? lastLine + 5 : whole.size() - 5)}) {
            folder.Write(name, broken);
            const std::string error = ReadingError(name);
            EXPECT_NE(error.find(": " + name + ":"), std::string::npos) << broken.size() << ": " << error;
            EXPECT_NE(error.find("expected"), std::string::npos) << error;
        }
        folder.Remove(name);
        EXPECT_EQ(ReadingError(name), "Run-time error 3: File not found: " + name);
        folder.Write(name, whole);
    }
}

// A pipe has nobody at its other end, and the device never ends: neither is waited for.
TEST_F(BrokenFiles, WhatIsNoFileIsNamed) {
    struct Case {
        void (*put)(const std::filesystem::path& place);
        const char* found;
    };
    constexpr Case Cases[] = {
        {[](const auto& place) { std::filesystem::create_directory(place); },
         "expected a file, found a folder or a device"},
        {[](const auto& place) { mkfifo(place.c_str(), 0666); },
         "expected a file, found a folder or a device"},
        {[](const auto& place) { std::filesystem::create_symlink("/dev/zero", place); },
         "expected a file, found a folder or a device"},
        {[](const auto& place) { std::filesystem::create_symlink(place, place); },
         "Too many levels of symbolic links"},
        {[](const auto& place) { std::filesystem::create_symlink("/proc/self/mem", place); },
         "it can't be read: Input/output error"},
    };
    for (const std::string name : {"dat/ori.dat", "map/49g.map"}) {
        for (const Case& c : Cases) {
            folder.Remove(name);
            c.put(folder.Path() / name);
            EXPECT_EQ(ReadingError(name), "Run-time error 3: File not found: " + name + ": " + c.found);
        }
    }
}

}  // namespace
