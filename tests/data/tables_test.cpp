// Built-in tables, the weapons file and the countries file.
#include "data/tables.h"

#include "data/countries_file.h"
#include "data/weapons_file.h"
#include "state/state.h"
#include "tests/support/game_test.h"

namespace {

class TablesTest : public GameTest {
  protected:
    void WriteWeapons(const std::string& rows) { folder.Write("dat/weapons.dat", rows); }

    static constexpr const char* Hand =
        "-\tw\thand\tpunch\t9\t100\t8\t1\t1000\t_\t0000010\tknife\t_\t_\t_\t_\t_\t_\tHands\t_\n";
};

TEST_F(TablesTest, TheBuiltInRowsStandAtTheirPlaces) {
    InitTables();
    EXPECT_EQ(itemKinds[9].name, "7ak");
    EXPECT_EQ(itemKinds[9].sizes[1], 62);
    EXPECT_EQ(itemKinds[9].sizes[2], 0);
    EXPECT_EQ(ItemKindByName("12gauge").sizes[0], 12) << "the larger size stands first";
    EXPECT_EQ(ItemKindByName("vest").sizes[4], 230);
    EXPECT_EQ(ItemKindByName("5ak").title, "5.45\u044539mm Kalashnikov");
    EXPECT_EQ(ItemKindByName("no such").name, "");
    EXPECT_EQ(rankNames[0], "PVT");
    EXPECT_EQ(rankNames[23], "GEN");
    EXPECT_EQ(rankNames[24], "Private");
    EXPECT_EQ(rankNames[33], "Warrant Officer 1");
    EXPECT_EQ(rankNames[47], "General");
    EXPECT_EQ(awardTable[8].name, "PH");
    EXPECT_EQ(awardTable[5].repeatable, 0);
    EXPECT_EQ(awardTable[5].chained, -1);
    EXPECT_EQ(awardTable[24].title, "Drill Instructor Service Ribbon");
    EXPECT_EQ(awardTable[25].name, "");
}

TEST_F(TablesTest, AWeaponRowFillsItsColumns) {
    WriteWeapons(
        "# a comment\n\n" + std::string(Hand) +
        "\tm\tak\t\t\tak47\t30\t60\t12\t40\t500\t7\t1002100\t7ak\t40gren\t1\t2\t1\t3\tRU\tAK_m\tRifle\n");
    ReadWeapons();
    ASSERT_EQ(weaponTable.size(), 2U);
    const WeaponInfo& ak = WeaponInfoByName("ak");
    EXPECT_EQ(ak.kind, "m");
    EXPECT_EQ(ak.sound, "ak47");
    EXPECT_EQ(ak.power, 30);
    EXPECT_EQ(ak.accur, 60);
    EXPECT_EQ(ak.time, 12);
    EXPECT_EQ(ak.range, 40);
    EXPECT_EQ(ak.durab, 500);
    EXPECT_EQ(ak.param9, 7);
    const int modes[] = {1, 0, 0, 2, 1, 0, 0};
    for (int i = 0; i < 7; ++i)
        EXPECT_EQ(ak.modes[i], modes[i]) << i;
    EXPECT_EQ(ak.weaponClass, "7ak");
    EXPECT_EQ(ak.ammoSecond, "40gren");
    EXPECT_EQ(ak.param13, 1);
    EXPECT_EQ(ak.param14, 2);
    EXPECT_EQ(ak.unitCount, 1);
    EXPECT_EQ(ak.param16, 3);
    EXPECT_EQ(ak.country, "RU");
    EXPECT_EQ(ak.title, "AK0m") << "an underscore reads as a zero everywhere";
    EXPECT_EQ(ak.fullName, "Rifle");
    EXPECT_EQ(WeaponInfoByName("hand").country, "void");
    EXPECT_EQ(WeaponInfoByName("hand").fullName, "Hands");
    EXPECT_EQ(WeaponIndex("ak"), 1);
    EXPECT_EQ(WeaponInfoByName("AK").name, "") << "keys are exact";
}

TEST_F(TablesTest, AThingThatIsNoWeaponKeepsItsFightingFieldsEmpty) {
    WriteWeapons(std::string(Hand) +
                 "\ti\thelmet\tnoise\t9\tx\t9\t9\t9\t9\tx\thelmet\t_\t_\t_\t_\t_\t_\tHelmet\t_\n");
    ReadWeapons();
    EXPECT_EQ(weaponTable[1].sound, "");
    EXPECT_EQ(weaponTable[1].power, 0);
    EXPECT_EQ(weaponTable[1].weaponClass, "helmet");
}

TEST_F(TablesTest, UpTo64TabsPartTwoColumns) {
    std::string row = Hand;
    row.insert(row.find('\t'), std::string(63, '\t'));
    WriteWeapons(row);
    EXPECT_EQ(ErrorOf(ReadWeapons), "");
    EXPECT_EQ(weaponTable[0].kind, "w");
    row.insert(row.find('\t'), "\t");
    WriteWeapons(row);
    EXPECT_NE(ErrorOf(ReadWeapons), "") << "a 65th tab opens an empty column";
}

TEST_F(TablesTest, AFaultyWeaponRowIsNamedWithLineAndColumn) {
    struct Case {
        const char* from;
        const char* to;
        const char* error;
    };
    constexpr Case Cases[] = {
        {"\t9\t", "\t\t\tnine\t", ":2:18: expected a whole number in the column \"power\", found \"nine\""},
        {"\t9\t", "\t40000\t", ":2:16: expected a whole number in the column \"power\", found \"40000\""},
        {"\t9\t", "\t9.5\t", ":2:16: expected a whole number in the column \"power\", found \"9.5\""},
        {"0000010", "000001", ":2:33: expected seven digits in the column \"modes\", found \"000001\""},
        {"0000010", "00000x0", ":2:33: expected seven digits in the column \"modes\", found \"00000x0\""},
        {"\tHands", "", ":2:60: expected 20 columns, found 19"},
    };
    for (const Case& c : Cases) {
        std::string row = Hand;
        row.replace(row.find(c.from), std::string(c.from).size(), c.to);
        WriteWeapons("#\n" + row);
        EXPECT_EQ(ErrorOf(ReadWeapons), std::string("Run-time error 4: Bad data: dat/weapons.dat") + c.error);
    }
    WriteWeapons("# nothing\n");
    EXPECT_EQ(ErrorOf(ReadWeapons),
              "Run-time error 4: Bad data: dat/weapons.dat:2:1: expected a row named \"hand\", found none");
}

TEST_F(TablesTest, CountriesArePairsOfLines) {
    folder.Write("dat/countries.dat", "GB\r\nUnited Kingdom\r\nCI\r\nC\xC3\xB4te d'Ivoire\r\n");
    LoadCountries();
    EXPECT_EQ(CountryName("GB"), "United Kingdom");
    EXPECT_EQ(CountryName("CI"), "Côte d'Ivoire");
    EXPECT_EQ(CountryName("gb"), "");
    EXPECT_EQ(CountryName("United Kingdom"), "") << "names are no codes";
}

}  // namespace
