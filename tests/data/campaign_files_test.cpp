// The campaign's binary files: field by field against bytes laid out by hand, round trips of the built
// content.
#include "data/campaign_files.h"

#include "data/campaign_layout.h"
#include "data/tables.h"
#include "tests/support/game_test.h"

namespace {

class CampaignFilesTest : public GameTest {
  protected:
    CampaignFilesTest() { InitTables(); }

    static void Place(std::string& bytes, std::size_t at, const std::string& what) {
        bytes.replace(at, what.size(), what);
    }
};

TEST_F(CampaignFilesTest, ASoldiersFieldsLieWhereTheFormatSays) {
    std::string file(882 * 3, '\0');
    file[2] = 1;  // the last soldier's place
    const std::size_t second = 882 * 2;
    Place(file, second, std::string("\x34\x12\x07", 3));
    Place(file, second + 3, "Zo\xEB Brandt                     ");
    Place(file, second + 33, "F f b");
    Place(file, second + 38, "\x0Cj");
    for (std::size_t i = 0; i < 14; ++i)
        file[second + 40 + i] = static_cast<char>(100 + i);
    Place(file, second + 54, std::string("\x05\x06\x07\x03\xFF\xFF\x50\x00\x2C\x01\x01\x00", 12));
    const std::size_t slot21 = second + 66 + 21 * 37;
    Place(file, slot21, std::string("7ak       \x00\x09\x00", 13));
    Place(file, slot21 + 13,
          std::string("7ak       \x1F\x1D"
                      "40gren    \x03\x02",
                      24));
    folder.Write("dat/save.dat", file);
    LoadRoster();
    EXPECT_EQ(teamLast[RosterTeam], 1);
    const Unit& soldier = UnitTable[61];
    EXPECT_EQ(soldier.serialNo, 0x1234);
    EXPECT_EQ(soldier.rank, 7);
    EXPECT_EQ(soldier.name, "Zoë Brandt");
    EXPECT_EQ(soldier.country + soldier.facePrefix + soldier.faceGroup + soldier.faceType, "F f bj")
        << "blanks are kept in the country and the face";
    const InvItem& item = soldier.items[21];
    EXPECT_EQ(item.name + item.ammoMain + item.ammoSecond, "7ak7ak40gren");
    const int fields[] = {
        soldier.faceNo,       soldier.vitality, soldier.strength,     soldier.agility,     soldier.perception,
        soldier.intelligence, soldier.mood,     soldier.marksmanship, soldier.stealth,     soldier.melee,
        soldier.sidearms,     soldier.smgs,     soldier.rifles,       soldier.machineguns, soldier.explosives,
        soldier.cellX,        soldier.cellY,    soldier.facing,       soldier.stance,      soldier.time,
        soldier.health,       soldier.energy,   soldier.aimChance,    item.count,          item.durab,
        item.capMain,         item.roundsMain,  item.capSecond,       item.roundsSecond};
    // The condition is that of every thing in a roster.
    const int expected[] = {12, 100, 101, 102, 103, 104, 105, 106, 107, 108, 109, 110, 111, 112, 113,
                            5,  6,   7,   3,   -1,  80,  300, 1,   0,   270, 31,  29,  3,   2};
    for (std::size_t i = 0; i < std::size(fields); ++i)
        EXPECT_EQ(fields[i], expected[i]) << i;
    EXPECT_EQ(UnitTable[62].name, "") << "records beyond the end stay empty";
}

TEST_F(CampaignFilesTest, ValuesThatNoSoldierHasAreNamedWithRecordAndByte) {
    struct Case {
        std::size_t offset;
        int value;
        const char* error;
    };
    constexpr Case Cases[] = {
        {2, 20, "record 1, byte 2: expected the last soldier's place, 0 to 19, found 20"},
        {2, 19, "record 3: expected soldier 2 of 20, found the end of the file"},
        {882 + 2, 23, ""},  // the highest rank, facing and stance
        {882 + 56, 7, ""},
        {882 + 57, 3, ""},
        {882 + 2, 24, "record 2, byte 2: expected a number up to 23, found 24"},
        {882 + 56, 8, "record 2, byte 56: expected a number up to 7, found 8"},
        {882 + 57, 4, "record 2, byte 57: expected a number up to 3, found 4"},
        {882 + 66, 'x', "record 2, byte 66: expected the key of a thing, found \"x\""},
        {882 + 66 + 21 * 37 + 25, 'y', "record 2, byte 843: expected the key of a thing, found \"y\""},
    };
    for (const Case& c : Cases) {
        std::string file(882 * 2, '\0');
        file[c.offset] = static_cast<char>(c.value);
        folder.Write("dat/save.dat", file);
        const std::string place = *c.error == '\0' ? "" : "Run-time error 4: Bad data: dat/save.dat: ";
        EXPECT_EQ(ErrorOf(LoadRoster), place + c.error);
    }
}

TEST_F(CampaignFilesTest, AStoreSavedAndLoadedIsTheSame) {
    LoadStore();
    const std::string original = folder.Read("dat/apc.dat");
    teamLast[PileList] = 6;
    SaveStore();
    const std::string saved = folder.Read("dat/apc.dat");
    EXPECT_EQ(saved.substr(0, 1112), std::string("\0\0apc       \x07", 13) + std::string(1112 - 13, '\0'))
        << "seven piles lie on the field, and all else means nothing";
    EXPECT_EQ(saved.substr(1112), original.substr(1112)) << "the things are the same, byte for byte";
    InvItem item;
    item.name = item.ammoMain = "7ak";
    item.durab = -5;
    item.capMain = 62;
    item.roundsMain = 61;
    storeItems[29] = item;
    SaveStore();
    storeItems[29] = InvItem();
    LoadStore();
    EXPECT_EQ(storeItems[29], item);
}

TEST_F(CampaignFilesTest, GroundThingsLieOnTheCellsThatTheFileNames) {
    std::string file(1112 * 3, '\0');
    Place(file, 2, "items     \x02");
    file[1112] = 75;
    file[1113] = 45;
    Place(file, 1112 + 2 + 37, "med       ");
    file[2224] = 3;
    file[2225] = 4;
    folder.Write("map/tg.map", file);
    const std::vector<Spot> cells = LoadGroundItems("t");
    EXPECT_EQ(groundItems[45][75][1].name, "med");
    ASSERT_EQ(cells.size(), 2U);
    EXPECT_EQ(cells[1].x, 3);
    EXPECT_EQ(cells[1].y, 4);
    const auto errorOf = [&](char count, char column) {
        file[12] = count;
        file[1112] = column;
        folder.Write("map/tg.map", file);
        return ErrorOf([] { LoadGroundItems("t"); });
    };
    EXPECT_EQ(errorOf(2, 76),
              "Run-time error 2: Subscript out of range: map/tg.map: record 2, byte 0: expected a cell of "
              "the field, found 76, 45");
    EXPECT_EQ(errorOf(103, 75),
              "Run-time error 4: Bad data: map/tg.map: record 4: expected place 3 of 103, found the end of "
              "the file");
    EXPECT_EQ(errorOf(104, 75),
              "Run-time error 2: Subscript out of range: map/tg.map: record 1, byte 12: expected up to 103 "
              "places with things, found 104");
}

TEST_F(CampaignFilesTest, EachFacingHasItsTextAmongValuesThatMayBeQuotedAndRunOverLines) {
    folder.Write("dat/ori.dat", "0,1,2,\"north, east\",4\r\n1,1,1, one ,1\n2\r\n\r\n2\r\ntwo\r\n2");
    for (const auto& [facing, text] : {std::pair{0, "north, east"}, {1, "one"}, {2, "two"}})
        EXPECT_EQ(FacingText(facing), text);
    EXPECT_EQ(ErrorOf([] { FacingText(3); }),
              "Run-time error 4: Bad data: dat/ori.dat:7:2: expected five values for each of the eight "
              "facings, found the end of the file");
}

TEST_F(CampaignFilesTest, FieldsArePaddedWithinTwoCharactersOfTheirLength) {
    EXPECT_EQ(PadField("apc", "1234567890"), "apc         ");
    EXPECT_EQ(PadField("123456789012", "1234567890"), "123456789012");
    EXPECT_THROW(PadField("1234567890123", "1234567890"), RunTimeError);
    EXPECT_EQ(TrimBlanks("  a b  "), "  a b");
}

}  // namespace
