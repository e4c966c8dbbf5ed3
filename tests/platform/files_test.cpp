// Readers that know where they are, safe replacement of a file, the code page, events as text.
#include "platform/files.h"

#include <sys/stat.h>

#include "platform/code_page.h"
#include "platform/input_event.h"
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
    EXPECT_EQ(ErrorOf(next),
              "Run-time error 4: Bad data: dat/t.txt:2:2: expected a letter, found the end of the file");
}

TEST_F(FilesTest, CommaValuesMayBeQuotedAndRunOverLines) {
    folder.Write("dat/t.txt", "1, two ,\"a, b\"\r\n\nlast");
    CommaReader reader("\\dat\\t.txt");
    for (const char* expected : {"1", "two", "a, b", "", "last"})
        EXPECT_EQ(reader.ReadValue("a value"), expected);
    EXPECT_EQ(ErrorOf([&] { reader.ReadValue("a value"); }),
              "Run-time error 4: Bad data: dat/t.txt:3:5: expected a value, found the end of the file");
}

TEST_F(FilesTest, RecordsAreCountedFromOneAndEmptyBeyondTheEnd) {
    folder.Write("dat/t.dat", std::string("\x01\x80zwei\x02\xFF    \x03", 13));
    const RecordReader reader("\\dat\\t.dat", 6);
    EXPECT_EQ(reader.Read(1).ReadInt16(0), -32767);  // 0x8001
    EXPECT_EQ(reader.Read(1).ReadText(2, 4), "zwei");
    EXPECT_EQ(reader.Read(2).ReadByte(1), 255);
    EXPECT_EQ(reader.Read(4).ReadText(0, 6), "");
    EXPECT_EQ(ErrorOf([&] { reader.Read(3); }),
              "Run-time error 4: Bad data: dat/t.dat: record 3: expected 6 bytes, found 1");
    EXPECT_EQ(
        ErrorOf([&] { reader.ReadCounted(4, "a soldier"); }),
        "Run-time error 4: Bad data: dat/t.dat: record 4: expected a soldier, found the end of the file");
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

TEST(CodePage, EveryByteSurvivesTheWayThereAndBack) {
    for (int code = 1; code < 256; ++code) {
        const std::string byte(1, static_cast<char>(code));
        EXPECT_EQ(ToCodePage(FromCodePage(byte)), byte) << code;
    }
    EXPECT_EQ(ToCodePage("x\u0445y\xC3"), "x?y?") << "a letter that the page lacks, and broken text";
}

TEST_F(FilesTest, AFileThatCanNotBeReplacedStaysAsItWas) {
    folder.Write("dat/t.dat", "old");
    ReplaceFile("\\dat\\t.dat", "new");
    EXPECT_EQ(folder.Read("dat/t.dat"), "new");
    EXPECT_FALSE(FileExists("\\dat\\t.dat.new"));

    std::filesystem::create_directories(folder.Path() / "dat/folder/inside");
    EXPECT_NE(ErrorOf([] { ReplaceFile("\\dat\\folder", "new"); }), "");
    EXPECT_TRUE(std::filesystem::is_directory(folder.Path() / "dat/folder/inside"));
    EXPECT_FALSE(FileExists("\\dat\\folder.new")) << "what was written aside is taken away";
}

TEST_F(FilesTest, WhatStandsWhereANewFileIsWrittenAsideIsReplacedOrNamed) {
    const std::filesystem::path aside = folder.Path() / "dat/t.dat.new";
    mkfifo(aside.c_str(), 0666);  // nobody reads from it
    ReplaceFile("\\dat\\t.dat", "two");
    EXPECT_EQ(folder.Read("dat/t.dat"), "two");
    std::filesystem::create_directory(aside);
    EXPECT_EQ(ErrorOf([] { ReplaceFile("\\dat\\t.dat", "three"); }),
              "Run-time error 5: File can't be written: dat/t.dat: Is a directory");
    EXPECT_EQ(folder.Read("dat/t.dat"), "two");
}

TEST(InputEvents, TextAndBackGiveTheSameEvent) {
    const InputEvent event{EventKind::MouseDown, "frmField.area", 5, 2, 3, 150.53125F, 0.1F};
    EXPECT_EQ(EventFromText(EventText(event)), event);
    for (const char* broken : {"", "Click", "Smile frmField -1 0 0 0 0", "Click frmField -1 0 0 0 0 9"})
        EXPECT_THROW(EventFromText(broken), RunTimeError) << broken;
}

}  // namespace
