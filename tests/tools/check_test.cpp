// Faults put into the game's data one by one: each is found, at its place, and nothing else with it.
#include "tools/check/checker.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>

#include "data/campaign_files.h"
#include "data/countries_file.h"
#include "data/tables.h"
#include "map_files.h"
#include "nearest.h"
#include "platform/files.h"
#include "tests/support/game_test.h"
#include "tools/check/picture_checks.h"
#include "view/stored_pictures.h"

namespace fs = std::filesystem;

namespace {

// Replaces the first `from` of a line by `to`.
struct TextFault {
    const char* file;
    int line;
    const char* from;
    const char* to;
    const char* place;
    const char* word;  // of the message
    std::size_t findings = 1;
};

struct ByteFault {
    const char* file;
    std::size_t offset;
    int value;
    const char* place;
    const char* word;
    std::size_t findings = 1;
};

// Tabs are single ones except where the columns would part.
// clang-format off
constexpr TextFault TextFaults[] = {
    // file                     line  from         to           place     word
    {"content/dat/weapons.dat",  100, "\t68",      "",          "100:91" , "19 columns"},
    {"content/dat/weapons.dat",   89, "\tm\t",     "\tx\t",     "89:6",   "no kind"},
    {"content/dat/weapons.dat",   92, "smg\t",     "smgg\t",    "92:1",   "did you mean \"smg\""},
    {"content/dat/weapons.dat",   92, "\t39\t",    "\t390\t",   "92:22",  "30 to 55"},
    {"content/dat/weapons.dat",   95, "\t_\t1101", "\tz\t1101", "95:36",  "\"z\" is no 9"},
    {"content/dat/weapons.dat",   62, "1100000",   "1200000",   "62:47",  "0 or 1"},
    {"content/dat/weapons.dat",   95, "1101000",   "0000000",   "95:38",  "no mode"},
    {"content/dat/weapons.dat",   95, "1101000",   "1101100",   "95:52",  "Secondary"},
    {"content/dat/weapons.dat",   54, "40gren",    "_",         "54:54",  "launches grenades", 2},
    {"content/dat/weapons.dat",   95, "\tFI\t",    "\tZZ\t",    "95:62",  "no country \"ZZ\""},
    {"content/dat/weapons.dat",   95, "Suomi M31", "Suomi_M31", "95:70",  "underscore"},
    {"content/dat/weapons.dat",   94, "\tsten\t",  "\tsuomi\t", "95:8",   "first in line 94", 2},
    {"content/dat/weapons.dat",   68, "\tcrossbow\t", "\tcrosbow\t", "68:8",  "did you mean \"crosbow\"", 3},
    {"content/dat/countries.dat",  1, "AD\n",      "",          "1:1",    "no country's code"},
    {"content/dat/countries.dat",  5, "AF",        "AE",        "5:1",    "comes twice"},
    {"content/dat/ori.dat",        4, ",90",       "",          "4:8",    "4 values"},
    {"content/campaign/roster.txt", 15, "CPT",     "CAP",       "15:17",  "no rank"},
    {"content/campaign/roster.txt", 17, "a 1 b",   "a 13 b",    "17:17",  "usa13.bmp"},
    {"content/campaign/roster.txt", 20, "43",      "101",       "20:17",  "1 to 100"},
    {"content/campaign/roster.txt", 21, "48",      "1",         "21:17",  "2 to 100"},
    {"content/campaign/roster.txt", 24, "  mood          76\n", "", "13:1",   "lacks \"mood\""},
    {"content/campaign/roster.txt", 38, "30/30",   "30/31",     "38:59",  "31 rounds"},
    {"content/campaign/roster.txt", 38, "5nato",   "7nato",     "38:48",  "isn't fed"},
    {"content/campaign/roster.txt", 39, "slot 1:", "slot 8:",   "39:13",  "too long for slot 8", 2},
    {"content/campaign/roster.txt", 51, "slot 15:", "slot 16:", "51:8",   "6 pockets"},
    {"content/campaign/store.txt",  9, "12/12",    "12-12",     "9:74",   "no feed"},
    {"content/map/49g.txt",         5, "25 3",     "76 3",      "5:7",    "0 to 75"},
    {"content/map/49g.txt",         5, "25 3",     "0 0",       "5:1",    "nobody can stand"},
    {"content/map/49.txt",        134, "|......",  "|.\x60....", "134:3", "no such glyph"},
    {"content/map/49.txt",        134, "|......",  "|.!....",   "134:3",  "in sight of the squad"},
    {"content/map/49.txt",        133, "||||",     "||.|",      "133:3",  "row 0"},
    {"content/map/49.txt",        134, "|......",  ".......",   "134:1",  "column 0"},
    {"map/491.map",                 7, "\r",       "   \r",     "7:77",   "79 cells"},
};

constexpr ByteFault ByteFaults[] = {
    // file         offset         value       place                                        word
    {"map/491.map", 78 + 1,        32 + 32,    "2:2",                                       "no tile 32 of surface"},
    {"map/493.map", 10 * 78 + 4,   7,          "11:5",                                      "control character"},
    {"map/492.map", 5,             32,         "1:6",                                       "row 0"},
    {"map/492.map", 3 * 78 + 6,    32 + 5,     "1:1",                                       "7 cells of the squad's vehicle"},
    {"dat/save.dat", 2,            20,         "record 1, rank, byte 2",                    "last soldier's place"},
    {"dat/save.dat", 882 + 2,      24,         "record 2, rank, byte 884",                  "up to 23"},
    {"dat/save.dat", 882 + 41,     101,        "record 2, strength, byte 923",              "1 to 100"},
    {"dat/save.dat", 882 + 42,     1,          "record 2, agility, byte 924",               "2 to 100"},
    {"dat/save.dat", 882 + 66,     'n',        "record 2, items[0].name, byte 948",         "no thing \"n4\""},
    {"map/49g.map",  1112,         76,         "record 2, cellX, byte 1112",                "outside the field"},
    {"map/49g.map",  12,           3,          "record 5, its end, byte 4448",              "4448 bytes"},
};
// clang-format on

std::string Edited(std::string content, const TextFault& fault) {
    std::size_t begin = 0;
    for (int line = 1; line < fault.line; ++line)
        begin = content.find('\n', begin) + 1;
    const std::size_t at = content.find(fault.from, begin);
    EXPECT_LE(at, content.find('\n', begin)) << fault.file << " has changed: " << fault.from;
    return content.replace(at, std::string(fault.from).size(), fault.to);
}

class CheckTest : public GameTest {
  protected:
    CheckTest() {
        fs::create_directory(folder.Path() / "content");
        for (const char* part : {"dat", "map", "campaign"})
            fs::copy(fs::path(SOURCES_FOLDER) / part, folder.Path() / "content" / part,
                     fs::copy_options::recursive);
    }

    Findings Check(const std::string& file) const {
        return file.starts_with("content/") ? CheckSources(folder.Path() / "content", folder.Path())
                                            : CheckGame(folder.Path());
    }

    // Checks with the file's content replaced, and puts it back.
    template <typename Fault>
    void ExpectFound(const Fault& fault, const std::string& content) {
        const std::string whole = folder.Read(fault.file);
        folder.Write(fault.file, content);
        const Findings findings = Check(fault.file);
        folder.Write(fault.file, whole);
        const std::string start = (folder.Path() / fault.file).string() + ":" +
                                  (std::string(fault.place).starts_with("record") ? " " : "") + fault.place;
        EXPECT_EQ(findings.size(), fault.findings);
        EXPECT_TRUE(std::ranges::any_of(findings,
                                        [&](const Finding& finding) {
                                            const std::string text = FindingsText({finding});
                                            return text.starts_with(start + ": ") &&
                                                   text.substr(0, text.find('\n')).find(fault.word) !=
                                                       std::string::npos;
                                        }))
            << fault.file << ":" << fault.place << ": " << fault.word << "\n"
            << FindingsText(findings);
    }
};

TEST_F(CheckTest, FaultsInTextsAreFoundAtTheirPlace) {
    for (const TextFault& fault : TextFaults)
        ExpectFound(fault, Edited(folder.Read(fault.file), fault));
}

TEST_F(CheckTest, FaultsInBytesAreFoundAtTheirPlace) {
    for (const ByteFault& fault : ByteFaults) {
        std::string content = folder.Read(fault.file);
        content.at(fault.offset) = static_cast<char>(fault.value);
        ExpectFound(fault, content);
    }
}

TEST_F(CheckTest, EmptyAndMissingFilesAreTold) {
    for (const std::string file :
         {"dat/weapons.dat", "dat/countries.dat", "dat/ori.dat", "dat/save.dat", "dat/apc.dat", "map/491.map",
          "map/492.map", "map/493.map", "map/49g.map"}) {
        const std::string whole = folder.Read(file);
        folder.Write(file, "");
        EXPECT_NE(FindingsText(Check(file)).find(file), std::string::npos) << file;
        folder.Remove(file);
        EXPECT_NE(FindingsText(Check(file)).find(file + ": the file can't be opened"), std::string::npos);
        folder.Write(file, whole);
    }
}

TEST_F(CheckTest, FilesThatWereCutAreFoundWhereTheyEnd) {
    struct Case {
        const char* file;
        std::size_t cut;   // bytes
        const char* told;  // empty for no finding
    };
    constexpr Case Cases[] = {
        {"dat/weapons.dat", 1, ""},
        {"dat/weapons.dat", 2, ""},
        {"dat/weapons.dat", 2 + 15, "19 columns"},  // "Sheaf of papers"
        {"dat/countries.dat", 2, ""},
        {"dat/countries.dat", 10, "has no name"},  // "Zimbabwe"
        {"map/491.map", 2, "46:77: the file ends within a line"},
        {"map/493.map", 1, "46:77: the file ends within a line"},
    };
    for (const Case& c : Cases) {
        const std::string whole = folder.Read(c.file);
        folder.Write(c.file, whole.substr(0, whole.size() - c.cut));
        const Findings findings = Check(c.file);
        EXPECT_EQ(findings.size(), *c.told == '\0' ? 0U : 1U) << c.file << " " << c.cut;
        EXPECT_NE(FindingsText(findings).find(c.told), std::string::npos) << FindingsText(findings);
        folder.Write(c.file, whole);
    }
}

TEST_F(CheckTest, PicturesAreDecodedAndLargeFilesRefused) {
    const fs::path game = folder.Path() / "g";
    fs::create_directories(game / "pic/inv");
    folder.Write("g/pic/inv/cut.gif", "GIF89a");
    folder.Write("g/pic/notes.txt", "GIF89a");
    folder.Write("g/pic/large.bmp", "");
    fs::resize_file(game / "pic/large.bmp", (20U << 20) + 1);
    Findings findings;
    CheckPictures(game, findings);
    EXPECT_EQ(FindingsText(findings),
              (game / "pic/inv/cut.gif").string() + ": byte 6: the end of the file, expected a whole GIF\n" +
                  (game / "pic/large.bmp").string() + ": 20971521 bytes, expected 20971520 bytes at most\n");
}

// Whatever the game would stop at must be found here.
TEST_F(CheckTest, NothingThatTheGameRefusesPasses) {
    constexpr std::array<const char*, 6> Files = {"dat/weapons.dat", "dat/countries.dat", "dat/ori.dat",
                                                  "dat/save.dat",    "dat/apc.dat",       "map/49g.map"};
    std::mt19937 generator(49);
    int refused = 0;
    for (int i = 0; i < 200; ++i) {
        const char* file = Files[generator() % Files.size()];
        const std::string whole = folder.Read(file);
        std::string content = whole;
        const std::size_t at = generator() % content.size();
        content[at] = static_cast<char>(generator() % 128);
        folder.Write(file, content);
        SetProgramFolder(folder.Path());
        const std::string error = ErrorOf([] {
            InitTables();
            LoadCountries();
            LoadRoster();
            LoadStore();
            LoadGroundItems("49");
            FacingText(7);
        });
        refused += error.empty() ? 0 : 1;
        EXPECT_TRUE(error.empty() || !Check(file).empty()) << error << " after byte " << at << " of " << file;
        folder.Write(file, whole);
        ResetState();
    }
    EXPECT_GT(refused, 10);
}

// Tabs stay tabs and a letter of two bytes takes one place, so that the caret stands under its column.
TEST(FindingsTest, TheCaretStandsUnderTheColumnAndJsonIsEscaped) {
    Finding finding;
    finding.file = "f";
    finding.line = 1;
    finding.column = 5;
    finding.wrong = "no \"w\"";
    finding.expected = "e";
    finding.meant = "m";
    EXPECT_EQ(FindingsJson({finding}),
              R"([
  {
    "file": "f",
    "line": 1,
    "column": 5,
    "wrong": "no \"w\"",
    "expected": "e",
    "meant": "m"
  }
]
)");
    finding.meant.clear();
    finding.text = "\t\xC3\xA9\tx";
    EXPECT_EQ(FindingsText({finding}), "f:1:5: no \"w\", expected e\n    \t\xC3\xA9\tx\n    \t \t^\n");
}

// The letter "\u00EB" has two bytes, in columns 101 and 102: it is shown whole or not at all.
TEST(FindingsTest, OfALongLineOnlyWhatLiesAroundTheFaultIsShown) {
    CheckedText text;
    text.path = "f";
    text.lines = {std::string(100, 'a') + "\u00EB" + std::string(1000, 'b'), std::string(200, 'c')};
    text.faults.Add({{2, 200}, "w", "e"});
    for (const int column : {1, 202, 203, 1103})
        text.faults.Add({{1, column}, "w", "e"});
    Findings findings;
    TakeFaults(text, findings);
    const std::string expected[] = {
        "f:1:1: w, expected e\n    " + std::string(100, 'a') + "\u00EB" + std::string(98, 'b') + "\n    ^\n",
        "f:1:202: w, expected e\n    \u00EB" + std::string(198, 'b') + "\n    " + std::string(100, ' ') +
            "^\n",
        "f:1:203: w, expected e\n    " + std::string(200, 'b') + "\n    " + std::string(100, ' ') + "^\n",
        "f:1:1103: w, expected e\n    " + std::string(100, 'b') + "\n    " + std::string(100, ' ') + "^\n",
        "f:2:200: w, expected e\n    " + std::string(200, 'c') + "\n    " + std::string(199, ' ') + "^\n"};
    for (std::size_t i = 0; i < findings.size(); ++i)
        EXPECT_EQ(FindingsText({findings[i]}), expected[i]);
}

TEST(NearestTest, CountsEditsAndStopsAtAThird) {
    EXPECT_EQ(EditDistance("form", "from"), 1U) << "two letters exchanged";
    EXPECT_EQ(Nearest("vestt", {"pack", "vest"}), "vest");
    EXPECT_EQ(Nearest("abc", {"abdd", "axyz"}), "");
    EXPECT_EQ(Nearest("vest", {"vest"}), "");
}

// A class's last tile is drawn, the one after it is plain grass.
TEST(KnownColumnsTest, AreThoseOfTheTileSheet) {
    const Picture& sheet = StoredPicture("picMap.bmp");
    const auto isGrass = [&](int row, int column) {
        int same = 0;
        for (int x = 0, y = 0; y < CellSize; ++x, y += x / CellSize, x %= CellSize)
            same += sheet.Pixel(column * CellSize + x, row * CellSize + y) == sheet.Pixel(x, y) ? 1 : 0;
        return same == CellSize * CellSize;
    };
    for (int row = 0; row < TerrainCount; ++row) {
        const int columns = KnownColumns(static_cast<Terrain>(row));
        EXPECT_FALSE(isGrass(row, columns - 1)) << TerrainName(row);
        if (columns < SheetColumns) {
            EXPECT_TRUE(isGrass(row, columns)) << TerrainName(row);
        }
    }
}

}  // namespace
