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

TEST_F(TablesTest, AWeaponRowFillsItsColumns) {
    WriteWeapons(
        "# a comment\n\n" + std::string(Hand) +
        "\tm\tak\t\t\tak47\t30\t60\t12\t40\t500\t7\t1002100\t7ak\t40gren\t1\t2\t1\t3\tRU\tAK_m\tRifle\n" +
        std::string(64, '\t') +  // so many may part two columns
        "i\thelmet\tnoise\t9\tx\t9\t9\t9\t9\tx\thelmet\t_\t_\t_\t_\t_\t_\tHelmet\t_\n");
    ReadWeapons();
    ASSERT_EQ(weaponTable.size(), 3U);
    const WeaponInfo& ak = WeaponInfoByName("ak");
    EXPECT_EQ(ak.kind + ak.sound + ak.weaponClass + ak.ammoSecond + ak.country, "mak477ak40grenRU");
    EXPECT_EQ(ak.title, "AK0m") << "an underscore reads as a zero everywhere";
    EXPECT_EQ(ak.fullName, "Rifle");
    const i16 numbers[] = {ak.power,  ak.accur,   ak.time,    ak.range,     ak.durab,
                           ak.param9, ak.param13, ak.param14, ak.unitCount, ak.param16};
    const int expected[] = {30, 60, 12, 40, 500, 7, 1, 2, 1, 3};
    for (std::size_t i = 0; i < 10; ++i)
        EXPECT_EQ(numbers[i], expected[i]) << i;
    EXPECT_EQ(ak.modes[3], 2);
    EXPECT_EQ(ak.modes[4], 1);
    EXPECT_EQ(weaponTable[0].country, "void");
    EXPECT_EQ(weaponTable[0].fullName, "Hands");
    EXPECT_EQ(weaponTable[2].name, "helmet");
    EXPECT_EQ(weaponTable[2].sound, "") << "what is no weapon keeps its fighting fields empty";
    EXPECT_EQ(weaponTable[2].power, 0);
    EXPECT_EQ(WeaponInfoByName("AK").name, "") << "keys are exact";
}

TEST_F(TablesTest, AFaultyWeaponRowIsNamedWithLineAndColumn) {
    struct Case {
        const char* from;
        const char* to;
        const char* error;
    };
    constexpr Case Cases[] = {
        {"\t9\t", "\t\t\tnine\t", "18: expected a whole number in the column \"power\", found \"nine\""},
        {"\t9\t", "\t40000\t", "16: expected a whole number in the column \"power\", found \"40000\""},
        {"0000010", "00000x0", "33: expected seven digits in the column \"modes\", found \"00000x0\""},
        {"\tHands", "", "60: expected 20 columns, found 19"},
    };
    const std::string place = "Run-time error 4: Bad data: dat/weapons.dat:2:";
    for (const Case& c : Cases) {
        std::string row = Hand;
        row.replace(row.find(c.from), std::string(c.from).size(), c.to);
        WriteWeapons("#\n" + row);
        EXPECT_EQ(ErrorOf(ReadWeapons), place + c.error);
    }
    WriteWeapons("# nothing\n");
    EXPECT_EQ(ErrorOf(ReadWeapons), place + "1: expected a row named \"hand\", found none");
}

TEST_F(TablesTest, OneCalibreIsWrittenWithACyrillicLetter) {
    InitTables();
    EXPECT_EQ(ItemKindByName("5ak").title, "5.45\u044539mm Kalashnikov");
}

TEST_F(TablesTest, CountriesArePairsOfLines) {
    folder.Write("dat/countries.dat", "GB\r\nUnited Kingdom\r\nCI\r\nC\xC3\xB4te d'Ivoire\r\n");
    LoadCountries();
    EXPECT_EQ(CountryName("CI"), "Côte d'Ivoire");
    EXPECT_EQ(CountryName("United Kingdom"), "") << "names are no codes";
}

}  // namespace
