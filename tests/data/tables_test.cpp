// Built-in tables, the weapons file and the countries file.
#include "data/tables.h"

#include <cstdint>

#include "data/countries_file.h"
#include "data/weapons_file.h"
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
    const WeaponInfo ak = WeaponInfoByName("ak");
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

TEST_F(TablesTest, AnUnderscoreIsNothingAndNumbersFitSixteenBits) {
    WriteWeapons(
        Hand + std::string("-\tm\tgun\t_\t32767\t-32768\t_\t_\t_\t_\t0000000\t_\t_\t_\t_\t_\t_\t_\t_\t_\n") +
        "-\ta\tfeed\t_\t_\t_\t_\t_\t_\t_\t_\t_\t_\t_\t_\t_\t_\t_\tFeed\t_\n");
    ReadWeapons();
    const WeaponInfo gun = WeaponInfoByName("gun");
    EXPECT_EQ(gun.sound + gun.weaponClass + gun.ammoSecond + gun.title + gun.fullName, "");
    EXPECT_EQ(gun.power, 32767);
    EXPECT_EQ(gun.accur, -32768);
    EXPECT_EQ(gun.time, 0);
    for (const auto& [key, itemClass] :
         {std::pair{"hand", "Weapon"}, {"gun", "Weapon"}, {"feed", "Thing"}, {"x", ""}})
        EXPECT_EQ(ItemClass(key), itemClass);
}

TEST_F(TablesTest, AFaultyWeaponRowIsNamedWithLineAndColumn) {
    struct Case {
        const char* from;
        const char* to;
        const char* error;
    };
    constexpr Case Cases[] = {
        {"\t9\t", "\t\t\tnine\t", "18: expected a whole number in the column \"power\", found \"nine\""},
        {"\t9\t", "\t32768\t", "16: expected a whole number in the column \"power\", found \"32768\""},
        {"\t9\t", "\t-32769\t", "16: expected a whole number in the column \"power\", found \"-32769\""},
        {"0000010", "00000x0", "33: expected seven digits in the column \"modes\", found \"00000x0\""},
        {"0000010", "00000100", "33: expected seven digits in the column \"modes\", found \"00000100\""},
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

// Nothing may stand in a file's last row that a cut could have left of it; a comment is whole anywhere.
TEST_F(TablesTest, ALastRowWithoutAnEndIsTakenWhenItsLastColumnHoldsSomething) {
    struct Case {
        const char* end;
        const char* name;  // of the hand, empty where the row is refused
    };
    constexpr Case Cases[] = {{"_\r\n", "Hands"}, {"_", "Hands"},        {"Bare", "Bare"}, {"\n", "Hands"},
                              {"", ""},           {"_\n# end", "Hands"}, {"\t\t", ""}};
    const std::string row(Hand, std::string(Hand).size() - 2);  // with the tab before its last column
    for (const Case& c : Cases) {
        WriteWeapons(row + c.end);
        const std::string error = ErrorOf(ReadWeapons);
        if (*c.name == '\0')
            EXPECT_TRUE(error.ends_with("expected 20 columns, found 19")) << c.end << error;
        else
            EXPECT_EQ(error + WeaponInfoByName("hand").fullName, c.name) << c.end;
    }
}

TEST_F(TablesTest, OneCalibreIsWrittenWithACyrillicLetter) {
    InitTables();
    EXPECT_EQ(ItemKindByName("5ak").title, "5.45\u044539mm Kalashnikov");
}

std::uint32_t SumOf(const std::string& text) {
    std::uint32_t sum = 2166136261U;
    for (const char c : text)
        sum = (sum ^ static_cast<unsigned char>(c)) * 16777619U;
    return sum;
}

// Every cell counts. The sums were taken from the written tables, not from the program.
TEST_F(TablesTest, KindsRanksAndAwardsAreTheWrittenOnes) {
    InitTables();
    std::string kinds, ranks, awards;
    for (const ItemKind& kind : itemKinds) {
        kinds += kind.name + "|" + kind.title + "|";
        for (int i = 0; i < 6 && kind.sizes[i] != 0; ++i)
            kinds += std::to_string(kind.sizes[i]) + ",";
        kinds += "\n";
    }
    for (int rank = 0; rank < 24; ++rank)
        ranks += rankNames[rank] + "|" + rankNames[rank + 24] + "\n";
    for (int row = 0; row < 25; ++row)
        awards += awardTable[row].name + "|" + awardTable[row].title + "|" +
                  std::to_string(awardTable[row].repeatable) + "|" + std::to_string(awardTable[row].chained) +
                  "\n";
    EXPECT_EQ(SumOf(kinds), 0x684b908dU) << kinds;
    EXPECT_EQ(SumOf(ranks), 0xbac0b178U) << ranks;
    EXPECT_EQ(SumOf(awards), 0xe35b75cdU) << awards;
    EXPECT_EQ(awardTable[25].name, "") << "an empty row comes last";
    EXPECT_EQ(ItemKindByName("5AK").title, "") << "keys are exact";
}

TEST_F(TablesTest, CountriesArePairsOfACodeAndAName) {
    struct Case {
        const char* content;
        const char* read;  // codes and names, or the place of the error and what stands there
    };
    constexpr Case Cases[] = {
        {"GB\r\nUnited Kingdom\r\nci\nC\xC3\xB4te\n", "GB=United Kingdom;ci=C\xC3\xB4te;"},
        {"AZ\nA\naz\nB", "AZ=A;az=B;"},  // the last line lacks its end
        {"A\nOne letter\nvoid\nFour\n", "A=One letter;void=Four;"},
        {"GB\nUnited Kingdom\nC1\nX\n", "3:1: expected a country's code, letters alone, found \"C1\""},
        {"A B\nX\n", "1:1: expected a country's code, letters alone, found \"A B\""},
        {"@\nX\n", "1:1: expected a country's code, letters alone, found \"@\""},  // beside A, Z, a, z
        {"[\nX\n", "1:1: expected a country's code, letters alone, found \"[\""},
        {"`\nX\n", "1:1: expected a country's code, letters alone, found \"`\""},
        {"{\nX\n", "1:1: expected a country's code, letters alone, found \"{\""},
        {"GB\nX\n\n", "3:1: expected a country's code, letters alone, found \"\""},
        {"GB\n\nUS\nX\n", "2:1: expected the name of the country \"GB\", found none"},
        {"GB\nX\nUS", "4:1: expected the name of the country \"US\", found none"},
        {"", "1:1: expected a country's code, letters alone, found the end of the file"},
    };
    for (const Case& c : Cases) {
        folder.Write("dat/countries.dat", c.content);
        std::string read = ErrorOf(LoadCountries);
        const std::string place = "Run-time error 4: Bad data: dat/countries.dat:";
        if (read.starts_with(place)) {
            read = read.substr(place.size());
        } else {
            for (const std::string& code : CountryCodes())
                read += code + "=" + CountryName(code) + ";";
        }
        EXPECT_EQ(read, c.read);
    }
    countryList = {"GB", "FR", "DE", "Germany"};
    EXPECT_EQ(CountryName("FR") + CountryName("gb"), "") << "a name is no code, and cases differ";
}

}  // namespace
