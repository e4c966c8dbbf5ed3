// The catalogue says truly who draws what, and the program says what it doesn't understand.
#include <fstream>
#include <iterator>

#include "tests/pictures/art_run.h"

namespace {

namespace fs = std::filesystem;

using CatalogueTest = ArtRun;

std::string Content(const fs::path& path) {
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), {}};
}

TEST_F(CatalogueTest, EveryPictureOfTheBuildIsListedWithItsSource) {
    ASSERT_EQ(Run({"--list"}), 0) << printed;
    std::size_t listed = 0;
    std::istringstream lines(printed);
    for (std::string line; std::getline(lines, line); ++listed) {
        std::istringstream words(line);
        std::string path, source;
        words >> path >> source;
        EXPECT_TRUE(fs::exists(fs::path(ART_FOLDER) / path)) << path;
        const std::size_t colon = source.find(':');
        const std::string text = Content(fs::path(ART_SOURCES) / source.substr(0, colon));
        ASSERT_FALSE(text.empty()) << line;
        if (colon == std::string::npos) continue;
        EXPECT_NE(text.find(" " + source.substr(colon + 1) + "("), std::string::npos) << line;
    }
    std::size_t made = 0;
    for (const char* part : {"stored", "pic", "sheets"}) {
        for (const auto& file : fs::recursive_directory_iterator(fs::path(ART_FOLDER) / part))
            made += file.is_regular_file() ? 1 : 0;
    }
    EXPECT_EQ(listed, made) << "pictures in " ART_FOLDER " that no row of the catalogue makes";
}

TEST_F(CatalogueTest, CallsThatAreNotUnderstoodAreExplained) {
    struct Case {
        std::vector<std::string> arguments;
        const char* message;
    };
    const Case cases[] = {
        {{}, "a folder to write into is missing"},
        {{"--hlep"}, "unknown option --hlep; did you mean --help?"},
        {{"--only", "pic/faces/usa03"}, "expected: sarnoth_art --only NAME OUTDIR"},
        {{"--only", "pic/faces/usa3", out.string()}, "\"pic/faces/usa3\"; did you mean pic/faces/usa03?"},
        {{"--only", "nothing/*", out.string()}, "\"nothing/*\"; --list names them all"},
        {{out.string(), "--list"}, "expected: sarnoth_art OUTDIR"},
        {{"--export", "sheets/flags"}, "is made of other pictures"},
    };
    for (const Case& row : cases) {
        EXPECT_EQ(Run(row.arguments), 2) << row.message;
        EXPECT_NE(printed.find(row.message), std::string::npos) << row.message << "\n" << printed;
    }
    EXPECT_EQ(Run({"--help"}), 0);
    EXPECT_NE(printed.find("--export NAME"), std::string::npos);
    EXPECT_FALSE(fs::exists(out));
}

TEST_F(CatalogueTest, NamesArePathsStemsAndPatterns) {
    for (const char* name : {"pic/chevrons/cpt.gif", "pic/chevrons/cpt", "*cp?"}) {
        fs::remove_all(out);
        EXPECT_EQ(Run({"--only", name, out.string()}), 0) << printed;
        EXPECT_TRUE(fs::exists(out / "pic/chevrons/cpt.gif")) << name;
        EXPECT_FALSE(fs::exists(out / "pic/chevrons/maj.gif")) << name;
    }
}

}  // namespace
