// The campaign's binary files: field by field against bytes laid out by hand, round trips of the built
// content.
#include "data/campaign_files.h"

#include "data/campaign_layout.h"
#include "data/tables.h"
#include "state/state.h"
#include "tests/support/game_test.h"
#include "view/field_form.h"

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
    Place(file, second + 33,
          "FR"
          "f "
          "b\x0Cj");
    for (int i = 0; i < 14; ++i)
        file[second + 40 + static_cast<std::size_t>(i)] = static_cast<char>(100 + i);
    Place(file, second + 54, std::string("\x05\x06\x07\x03\xFF\xFF\x50\x00\x2C\x01\x01\x00", 12));
    const std::size_t slot21 = second + 66 + 21 * 37;
    Place(file, slot21,
          std::string("7ak       \x00\x09\x00"
                      "7ak       \x1F\x1D"
                      "          \x00\x00",
                      37));
    folder.Write("dat/save.dat", file);
    LoadRoster();
    EXPECT_EQ(teamLast[RosterTeam], 1);
    const Unit& soldier = UnitTable[61];
    EXPECT_EQ(soldier.serialNo, 0x1234);
    EXPECT_EQ(soldier.rank, 7);
    EXPECT_EQ(soldier.name, "Zoë Brandt");
    EXPECT_EQ(soldier.country, "FR");
    EXPECT_EQ(soldier.facePrefix, "f ") << "blanks are kept here";
    EXPECT_EQ(soldier.faceGroup, "b");
    EXPECT_EQ(soldier.faceNo, 12);
    EXPECT_EQ(soldier.faceType, "j");
    const u8 Unit::*const attributes[] = {
        &Unit::vitality, &Unit::strength,     &Unit::agility,     &Unit::perception, &Unit::intelligence,
        &Unit::mood,     &Unit::marksmanship, &Unit::stealth,     &Unit::melee,      &Unit::sidearms,
        &Unit::smgs,     &Unit::rifles,       &Unit::machineguns, &Unit::explosives};
    int expected = 100;
    for (const auto attribute : attributes)
        EXPECT_EQ(soldier.*attribute, expected++);
    EXPECT_EQ(soldier.cellX, 5);
    EXPECT_EQ(soldier.cellY, 6);
    EXPECT_EQ(soldier.facing, 7);
    EXPECT_EQ(soldier.stance, 3);
    EXPECT_EQ(soldier.time, -1);
    EXPECT_EQ(soldier.health, 80);
    EXPECT_EQ(soldier.energy, 300);
    EXPECT_EQ(soldier.aimChance, 1);
    EXPECT_EQ(soldier.items[21].name, "7ak");
    EXPECT_EQ(soldier.items[21].durab, 270) << "whatever the file says";
    EXPECT_EQ(soldier.items[21].capMain, 31);
    EXPECT_EQ(soldier.items[21].roundsMain, 29);
    EXPECT_EQ(soldier.items[21].ammoSecond, "");
    EXPECT_EQ(UnitTable[62].name, "") << "records beyond the end stay empty";
}

TEST_F(CampaignFilesTest, TheBuiltRosterComesBackByteForByte) {
    LoadRoster();
    const std::string original = folder.Read("dat/save.dat");
    ASSERT_EQ(original.size(), 882U * 21);
    for (int i = 0; i <= teamLast[RosterTeam]; ++i) {
        Record record(RosterLength, "roster");
        WriteFields(record, 0, UnitTable[60 + i]);
        for (int slot = 0; slot < RosterItems; ++slot) {
            InvItem item = UnitTable[60 + i].items[slot];
            if (item.name.empty()) item.durab = 0;  // the reader gives every slot the same condition
            WriteFields(record, RosterItemsAt + static_cast<std::size_t>(slot) * ItemLength, item);
        }
        const std::string written(record.Bytes().begin(), record.Bytes().end() - 2);
        EXPECT_EQ(written, original.substr(882U * static_cast<unsigned>(i + 1), 880))
            << UnitTable[60 + i].name;
    }
}

TEST_F(CampaignFilesTest, TheRosterIsASquadWithNamesAndKit) {
    LoadRoster();
    ASSERT_GE(teamLast[RosterTeam], 7);
    for (int i = 60; i <= 60 + teamLast[RosterTeam]; ++i) {
        EXPECT_GT(UnitTable[i].name.size(), 3U);
        EXPECT_GE(UnitTable[i].health, 31) << UnitTable[i].name;
        EXPECT_GE(UnitTable[i].agility, 30) << UnitTable[i].name;
        EXPECT_NE(UnitTable[i].items[0].name, "") << UnitTable[i].name << " holds nothing";
    }
}

TEST_F(CampaignFilesTest, AStoreSavedAndLoadedIsTheSame) {
    LoadStore();
    const std::string original = folder.Read("dat/apc.dat");
    SaveStore();
    const std::string saved = folder.Read("dat/apc.dat");
    ASSERT_EQ(saved.size(), 2U * 1112);
    EXPECT_EQ(saved.substr(1112), original.substr(1112)) << "the things are the same, byte for byte";
    EXPECT_EQ(saved.substr(2, 11), "apc       " + std::string(1, '\0')) << "no pile lies on the field";

    storeItems[29].name = "7ak";
    storeItems[29].count = 0;
    storeItems[29].durab = -5;
    storeItems[29].ammoMain = "7ak";
    storeItems[29].capMain = 62;
    storeItems[29].roundsMain = 61;
    teamLast[PileList] = 6;
    SaveStore();
    EXPECT_EQ(folder.Read("dat/apc.dat")[12], 7);
    storeItems[29] = InvItem();
    LoadStore();
    EXPECT_EQ(storeItems[29].name, "7ak");
    EXPECT_EQ(storeItems[29].durab, -5);
    EXPECT_EQ(storeItems[29].capMain, 62);
    EXPECT_EQ(storeItems[29].roundsMain, 61);
}

TEST_F(CampaignFilesTest, GroundThingsLieOnTheirCellsUnderOneMarkerEach) {
    std::string file(1112 * 3, '\0');
    Place(file, 2, "items     \x02");
    file[1112] = 75;
    file[1113] = 45;
    Place(file, 1112 + 2 + 37, "med       ");
    file[2224] = 3;
    file[2225] = 4;
    folder.Write("map/tg.map", file);
    LoadGroundItems("t");
    EXPECT_EQ(groundItems[45][75][1].name, "med");
    ASSERT_EQ(teamLast[PileList], 1);
    EXPECT_EQ(UnitTable[121].name, "weapon");
    EXPECT_EQ(UnitTable[121].cellX, 3);
    EXPECT_EQ(Log(), "weapon dropped\nweapon dropped\n");

    file[1112] = 76;
    folder.Write("map/tg.map", file);
    EXPECT_EQ(ErrorOf([] { LoadGroundItems("t"); }),
              "Run-time error 2: Subscript out of range: map/tg.map: record 2, byte 0: expected a cell of "
              "the field, "
              "found 76, 45");
}

TEST_F(CampaignFilesTest, AHeaderThatCountsNothingReadsNothing) {
    folder.Write("map/tg.map", std::string(1112, '\0'));
    LoadGroundItems("t");
    EXPECT_EQ(teamLast[PileList], -1);
}

TEST_F(CampaignFilesTest, FieldsArePaddedWithinTwoCharactersOfTheirLength) {
    EXPECT_EQ(PadField("apc", "1234567890"), "apc         ");
    EXPECT_EQ(PadField("123456789012", "1234567890"), "123456789012");
    EXPECT_THROW(PadField("1234567890123", "1234567890"), RunTimeError);
    EXPECT_EQ(TrimBlanks("  a b  "), "  a b");
    EXPECT_EQ(TrimBlanks("    "), "");
}

TEST_F(CampaignFilesTest, EachFacingHasItsText) {
    folder.Write("dat/ori.dat", "0,1,2,zero,4\r\n1,1,1,one,1\r\n2\r\n2\r\n2\r\ntwo\r\n2\r\n");
    EXPECT_EQ(FacingText(0), "zero");
    EXPECT_EQ(FacingText(2), "two");
    EXPECT_NE(ErrorOf([] { FacingText(3); }).find("dat/ori.dat:8:1: expected five values"),
              std::string::npos);
}

}  // namespace
