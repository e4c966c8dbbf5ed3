// Missing, truncated and garbled versions of every data file, and other things in its place: each gives one
// message that names the file and the place.
#include <sys/stat.h>

#include <random>

#include "data/campaign_files.h"
#include "platform/run_time_error.h"
#include "state/setup.h"
#include "tests/support/game_test.h"

namespace {

struct DataFile {
    const char* name;
    void (*read)();  // what opens it
};

void StartMission() {
    Main(1);
}
void OpenDossier() {
    FacingText(7);
}

constexpr DataFile Files[] = {
    {"dat/weapons.dat", StartMission}, {"dat/countries.dat", StartMission}, {"dat/save.dat", StartMission},
    {"dat/apc.dat", StartMission},     {"dat/ori.dat", OpenDossier},        {"map/491.map", StartMission},
    {"map/492.map", StartMission},     {"map/493.map", StartMission},       {"map/49g.map", StartMission},
};

class BrokenFiles : public GameTest, public testing::WithParamInterface<DataFile> {
  protected:
    // The message of reading the file with `content`; it must name the file.
    std::string Message(const std::string& content) {
        folder.Write(GetParam().name, content);
        return ErrorOf(GetParam().read);
    }

    void ExpectPlace(const std::string& message, const char* what) {
        const std::string place = std::string(": ") + GetParam().name + ":";
        EXPECT_NE(message.find(place), std::string::npos) << what << ": " << message;
        EXPECT_NE(message.find("expected"), std::string::npos) << what << ": " << message;
    }
};

TEST_P(BrokenFiles, AMissingOneIsNamed) {
    folder.Remove(GetParam().name);
    EXPECT_EQ(ErrorOf(GetParam().read), std::string("Run-time error 3: File not found: ") + GetParam().name);
}

TEST_P(BrokenFiles, ATruncatedOneIsNamedWithItsPlace) {
    const std::string whole = folder.Read(GetParam().name);
    ExpectPlace(Message(""), "empty");
    ExpectPlace(Message(whole.substr(0, 10)), "ten bytes");
    const bool text = whole.ends_with('\n');
    const std::size_t lastLine = whole.rfind('\n', whole.size() - 2) + 1;
    ExpectPlace(Message(whole.substr(0, text ? lastLine + 5 : whole.size() - 5)),
                "within its last line or record");
}

TEST_P(BrokenFiles, AGarbledOneIsNamedWithItsPlace) {
    std::mt19937 generator(7);
    std::string noise = folder.Read(GetParam().name);
    for (char& byte : noise)
        byte = static_cast<char>(generator() & 0xFF);
    ExpectPlace(Message(noise), "noise");
}

// A pipe has nobody at its other end, and the device never ends: neither is waited for.
TEST_P(BrokenFiles, WhatIsNoFileIsNamed) {
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
    for (const Case& c : Cases) {
        folder.Remove(GetParam().name);
        c.put(folder.Path() / GetParam().name);
        EXPECT_EQ(ErrorOf(GetParam().read),
                  std::string("Run-time error 3: File not found: ") + GetParam().name + ": " + c.found);
    }
}

std::string CaseName(const testing::TestParamInfo<DataFile>& file) {
    std::string name = file.param.name;
    for (char& c : name)
        if (c == '/' || c == '.') c = '_';
    return name;
}

INSTANTIATE_TEST_SUITE_P(EveryFile, BrokenFiles, testing::ValuesIn(Files), CaseName);

}  // namespace
