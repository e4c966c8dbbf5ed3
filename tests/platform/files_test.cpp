// Readers that know where they are, safe replacement of a file, the code page.
#include "platform/files.h"

#include <sys/stat.h>

#include "platform/code_page.h"
#include "platform/picture_file.h"
#include "platform/quoted.h"
#include "tests/support/game_test.h"

namespace {

using FilesTest = GameTest;

TEST_F(FilesTest, TheTextReaderEndsLinesAtEitherEndingAndNamesThePlace) {
    folder.Write("dat/t.txt", "ab\r\nd");
    TextReader reader("\\dat\\t.txt");
    const auto next = [&] { reader.ReadCharacter("a letter"); };
    EXPECT_EQ(reader.ReadCharacter("a letter"), 'a');
    EXPECT_EQ(ErrorOf([&] { reader.ReadLineEnd("the line's end"); }),
              "Run-time error 4: Bad data: dat/t.txt:1:2: expected the line's end");
    EXPECT_EQ(reader.ReadCharacter("a letter"), 'b');
    EXPECT_EQ(ErrorOf(next),
              "Run-time error 4: Bad data: dat/t.txt:1:3: expected a letter, found the end of the line");
    reader.ReadLineEnd("the line's end");
    EXPECT_EQ(reader.ReadLine(), "d");
    EXPECT_FALSE(reader.LineEnded());
    EXPECT_EQ(ErrorOf(next),
              "Run-time error 4: Bad data: dat/t.txt:2:2: expected a letter, found the end of the file");
    EXPECT_EQ(
        ErrorOf([&] { reader.ReadLineEnd("the line's end"); }),
        "Run-time error 4: Bad data: dat/t.txt:2:2: expected the line's end, found the end of the file");
    folder.Write("dat/t.txt", "a\rb\n\nc\r\nd\r");
    TextReader lines("\\dat\\t.txt");
    EXPECT_EQ(lines.ReadLine(), "a\rb") << "a carriage return alone ends no line";
    EXPECT_TRUE(lines.LineEnded());
    EXPECT_EQ(lines.ReadLine() + lines.ReadLine(), "c");
    EXPECT_EQ(lines.Line(), 4);
    EXPECT_EQ(lines.ReadLine(), "d") << "half an end isn't text";
    EXPECT_TRUE(lines.AtEnd());
}

// Gigabytes are refused without being read: these take no room on the disk.
TEST_F(FilesTest, AFileThatIsTooLargeIsNamed) {
    struct Case {
        void (*read)();
        std::uintmax_t most;
    };
    constexpr Case Cases[] = {
        {[] { TextReader("\\dat\\t.gif"); }, 1 << 20},
        {[] { RecordReader("\\dat\\t.gif", 882); }, 1 << 20},
        {[] { ReadPictureFile("\\dat\\t.gif"); }, 20 << 20},
        {[] { ReadWholeFile("\\dat\\t.gif"); }, 64 << 20},
    };
    folder.Write("dat/t.gif", "");
    const std::filesystem::path file = folder.Path() / "dat/t.gif";
    for (const Case& c : Cases) {
        const std::string error =
            "Run-time error 4: Bad data: dat/t.gif: expected up to " + std::to_string(c.most) + " bytes";
        for (const std::uintmax_t size : {c.most + 1, std::uintmax_t{3} << 30}) {
            std::filesystem::resize_file(file, size);
            EXPECT_EQ(ErrorOf(c.read), error + ", found more");
        }
        std::filesystem::resize_file(file, c.most);
        EXPECT_FALSE(ErrorOf(c.read).starts_with(error));
    }
}

TEST(Quotations, AreCutBetweenCharacters) {
    const std::string sixty(60, 'x');
    EXPECT_EQ(Quoted(sixty), "\"" + sixty + "\"");
    EXPECT_EQ(Quoted(sixty + "y"), "\"" + sixty + "...\"");
    EXPECT_EQ(Shortened(sixty.substr(1) + "\u00EB"), sixty.substr(1) + "...") << "a letter of two bytes";
}

TEST_F(FilesTest, RecordsAreCountedFromOneAndEmptyBeyondTheEnd) {
    folder.Write("dat/t.dat", "1     2     3");
    const RecordReader reader("\\dat\\t.dat", 6);
    EXPECT_EQ(reader.Read(2).ReadText(0, 1), "2");
    EXPECT_EQ(reader.Read(4).ReadText(0, 6), "");
    const std::string place = "Run-time error 4: Bad data: dat/t.dat: record ";
    EXPECT_EQ(ErrorOf([&] { reader.Read(3); }), place + "3: expected 6 bytes, found 1");
    EXPECT_EQ(ErrorOf([&] { reader.ReadCounted(3, "a soldier"); }), place + "3: expected 6 bytes, found 1");
    EXPECT_EQ(ErrorOf([&] { reader.ReadCounted(4, "a soldier"); }),
              place + "4: expected a soldier, found the end of the file");
    folder.Write("dat/t.dat", "1     2     ");
    const RecordReader whole("\\dat\\t.dat", 6);
    EXPECT_EQ(whole.Read(3).ReadText(0, 6), "");
    EXPECT_EQ(ErrorOf([&] { whole.ReadCounted(3, "a soldier"); }),
              place + "3: expected a soldier, found the end of the file");
}

// A pipe has nobody at its other end, and the device never ends: neither is waited for.
TEST_F(FilesTest, WhatIsNoFileIsNamed) {
    struct Case {
        void (*put)(const std::filesystem::path& place);
        const char* found;
    };
    constexpr Case Cases[] = {
        {[](const auto& /*place*/) {}, ""},
        {[](const auto& place) { std::filesystem::create_directory(place); },
         ": expected a file, found a folder or a device"},
        {[](const auto& place) { mkfifo(place.c_str(), 0666); },
         ": expected a file, found a folder or a device"},
        {[](const auto& place) { std::filesystem::create_symlink("/dev/zero", place); },
         ": expected a file, found a folder or a device"},
        {[](const auto& place) { std::filesystem::create_symlink(place, place); },
         ": Too many levels of symbolic links"},
        {[](const auto& place) { std::filesystem::create_symlink("/proc/self/mem", place); },
         ": it can't be read: Input/output error"},
    };
    for (const Case& c : Cases) {
        folder.Remove("map/49g.map");
        c.put(folder.Path() / "map/49g.map");
        EXPECT_EQ(ErrorOf([] { ReadWholeFile("\\map\\49g.map"); }),
                  std::string("Run-time error 3: File not found: map/49g.map") + c.found);
    }
}

TEST(RecordTexts, AreEightBitAndRefuseControlCharacters) {
    Record record(4, "r");
    record.WriteText(0, 4, "Zoë€ und mehr");
    EXPECT_EQ(record.ReadByte(3), 0x80);
    EXPECT_EQ(record.ReadText(0, 4), "Zoë€");
    record.WriteByte(1, 7);
    EXPECT_EQ(ErrorOf([&] { record.ReadText(0, 4); }),
              "Run-time error 4: Bad data: r, byte 1: expected a text, found the code 7");
}

TEST_F(FilesTest, ValuesArePartedByCommasAndLineEndsButNotWithinQuotes) {
    folder.Write("dat/t.txt", " a ,\"b, c\",\r\n\n d\"e\"");
    CommaReader reader("\\dat\\t.txt");
    for (const char* value : {"a", "b, c", "", "", "de"})
        EXPECT_EQ(reader.ReadValue("a value"), value);
    EXPECT_EQ(ErrorOf([&] { reader.ReadValue("a value"); }),
              "Run-time error 4: Bad data: dat/t.txt:3:6: expected a value, found the end of the file");
}

TEST(CodePage, EveryByteSurvivesTheWayThereAndBack) {
    for (int code = 1; code < 256; ++code) {
        const std::string byte(1, static_cast<char>(code));
        EXPECT_EQ(ToCodePage(FromCodePage(byte)), byte) << code;
    }
    EXPECT_EQ(ToCodePage("x\u0445y\xC3"), "x?y?") << "a letter that the page lacks, and broken text";
}

TEST_F(FilesTest, AFileIsReplacedWholeOrStaysAsItWas) {
    const std::filesystem::path aside = folder.Path() / "dat/t.dat.new";
    mkfifo(aside.c_str(), 0666);  // nobody reads from it
    ReplaceFile("\\dat\\t.dat", "two");
    EXPECT_EQ(folder.Read("dat/t.dat"), "two");
    EXPECT_FALSE(std::filesystem::exists(aside));
    std::filesystem::create_directories(folder.Path() / "dat/folder/inside");
    EXPECT_NE(ErrorOf([] { ReplaceFile("\\dat\\folder", "new"); }), "");
    EXPECT_FALSE(FileExists("\\dat\\folder.new")) << "what was written aside is taken away";
    std::filesystem::create_directory(aside);
    EXPECT_EQ(ErrorOf([] { ReplaceFile("\\dat\\t.dat", "three"); }),
              "Run-time error 5: File can't be written: dat/t.dat: Is a directory");
    EXPECT_EQ(folder.Read("dat/t.dat"), "two");
}

TEST_F(FilesTest, AFileThatIsReplacedKeepsItsLinksAndItsPermissions) {
    const std::filesystem::path link = folder.Path() / "dat/link.dat";
    const auto modeOf = [this](const char* name) {
        struct stat found {};
        stat((folder.Path() / name).c_str(), &found);
        return found.st_mode & 07777;
    };
    folder.Write("map/far.dat", "one");
    chmod((folder.Path() / "map/far.dat").c_str(), 0620);
    std::filesystem::create_symlink("../map/far.dat", link);
    ReplaceFile("\\dat\\link.dat", "two");
    EXPECT_EQ(std::filesystem::read_symlink(link), "../map/far.dat");
    EXPECT_EQ(folder.Read("map/far.dat"), "two");
    EXPECT_EQ(modeOf("map/far.dat"), 0620U);
    folder.Remove("map/far.dat");
    EXPECT_EQ(ErrorOf([] { ReplaceFile("\\dat\\link.dat", "three"); }),
              "Run-time error 5: File can't be written: dat/link.dat: No such file or directory");
    EXPECT_TRUE(std::filesystem::is_symlink(link));
}

}  // namespace
