#include "data/weapons_file.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <string>
#include <vector>

#include "data/weapon_columns.h"
#include "platform/files.h"
#include "platform/quoted.h"

namespace {

constexpr int TabPasses = 6;  // so up to 64 tabs in a row part two columns

struct NumberColumn {
    std::size_t column;
    i16 WeaponInfo::*field;
    const char* name;
};

// Read only for what can be used as a weapon, kinds "m" and "w".
constexpr NumberColumn WeaponNumbers[] = {
    {PowerColumn, &WeaponInfo::power, "power"}, {AccurColumn, &WeaponInfo::accur, "accur"},
    {TimeColumn, &WeaponInfo::time, "time"},    {RangeColumn, &WeaponInfo::range, "range"},
    {DurabColumn, &WeaponInfo::durab, "durab"}, {Param9Column, &WeaponInfo::param9, "9"},
};

constexpr NumberColumn AllNumbers[] = {
    {Param13Column, &WeaponInfo::param13, "13"},
    {Param14Column, &WeaponInfo::param14, "14"},
    {LongColumn, &WeaponInfo::unitCount, "long"},
    {Param16Column, &WeaponInfo::param16, "16"},
};

// A character and the column of the file's line that it came from, 1 for the first.
struct Placed {
    char character;
    int column;
};

using PlacedText = std::vector<Placed>;

// One tab for every pair of tabs.
PlacedText HalveTabs(const PlacedText& line) {
    PlacedText halved;
    for (std::size_t i = 0; i < line.size(); ++i) {
        halved.push_back(line[i]);
        if (line[i].character == '\t' && i + 1 < line.size() && line[i + 1].character == '\t') ++i;
    }
    return halved;
}

// One line of the file, split into its columns.
class Row {
  public:
    Row(const TextReader& reader, int atLine, const std::string& text) : file(reader), line(atLine) {
        PlacedText placed;
        for (const char character : text)
            placed.push_back({character == '_' ? '0' : character, static_cast<int>(placed.size()) + 1});
        for (int pass = 0; pass < TabPasses; ++pass)
            placed = HalveTabs(placed);
        Split(placed);
        // A column is never empty but where the file was cut within its last row.
        if (!reader.LineEnded() && columns.back().text.empty()) columns.pop_back();
        if (columns.size() < WeaponColumns)
            file.RefuseAt(line, static_cast<int>(text.size()) + 1,
                          "expected 20 columns, found " + std::to_string(columns.size()));
    }

    const std::string& Text(std::size_t column) const { return columns[column].text; }

    // A text column in which "0" is the mark for nothing.
    std::string TextOr(std::size_t column, const std::string& nothing) const {
        return Text(column) == "0" ? nothing : Text(column);
    }

    i16 Number(std::size_t column, const char* name) const {
        const std::string& text = Text(column);
        int value = 0;
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
        const bool whole = error == std::errc() && end == text.data() + text.size();
        if (!whole || value < -32768 || value > 32767)
            Refuse(column, "expected a whole number in the column \"" + std::string(name) + "\"");
        return value;
    }

    void ReadModes(Array<i16, 0, 6>& modes) const {
        const std::string& text = Text(ModesColumn);
        const bool digits =
            std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
        if (!digits || text.size() != 7) Refuse(ModesColumn, "expected seven digits in the column \"modes\"");
        for (int i = 0; i < 7; ++i)
            modes[i] = text[static_cast<std::size_t>(i)] - '0';
    }

  private:
    struct ColumnText {
        std::string text;
        int start;
    };

    void Split(const PlacedText& placed) {
        columns.push_back({"", 1});
        for (const Placed& next : placed) {
            if (next.character == '\t')
                columns.push_back({"", next.column + 1});
            else
                StartOrAppend(columns.back(), next);
        }
    }

    static void StartOrAppend(ColumnText& column, const Placed& next) {
        if (column.text.empty()) column.start = next.column;
        column.text.push_back(next.character);
    }

    [[noreturn]] void Refuse(std::size_t column, const std::string& expected) const {
        file.RefuseAt(line, columns[column].start, expected + ", found " + Quoted(Text(column)));
    }

    const TextReader& file;
    int line;
    std::vector<ColumnText> columns;
};

WeaponInfo ReadRow(const Row& row) {
    WeaponInfo weapon;
    weapon.kind = row.Text(KindColumn);
    weapon.name = row.Text(KeyColumn);
    if (weapon.kind == "m" || weapon.kind == "w") {
        weapon.sound = row.TextOr(SoundColumn, "");
        for (const NumberColumn& number : WeaponNumbers)
            weapon.*number.field = row.Number(number.column, number.name);
        row.ReadModes(weapon.modes);
    }
    weapon.weaponClass = row.TextOr(ClassColumn, "");
    weapon.ammoSecond = row.TextOr(SecondColumn, "");
    for (const NumberColumn& number : AllNumbers)
        weapon.*number.field = row.Number(number.column, number.name);
    weapon.country = row.TextOr(CountryColumn, "void");
    weapon.title = row.TextOr(TitleColumn, "");
    weapon.fullName = row.TextOr(FullNameColumn, "");
    if (weapon.fullName.empty()) weapon.fullName = weapon.title;
    return weapon;
}

}  // namespace

void ReadWeapons() {
    TextReader file("\\dat\\weapons.dat");
    weaponTable.clear();
    while (!file.AtEnd()) {
        const int line = file.Line();
        const std::string text = file.ReadLine();
        if (!text.empty() && text[0] != '#') weaponTable.push_back(ReadRow(Row(file, line, text)));
    }
    if (WeaponIndex("hand") < 0) file.Refuse("expected a row named \"hand\", found none");
}

WeaponInfo WeaponInfoByName(std::string_view key) {
    const int index = WeaponIndex(key);
    return index < 0 ? WeaponInfo() : weaponTable[static_cast<std::size_t>(index)];
}

std::string_view ItemClass(std::string_view key) {
    const int index = WeaponIndex(key);
    if (index < 0) return "";
    const std::string& kind = weaponTable[static_cast<std::size_t>(index)].kind;
    return kind == "m" || kind == "w" ? "Weapon" : "Thing";
}

int WeaponIndex(std::string_view key) {
    for (std::size_t i = 0; i < weaponTable.size(); ++i)
        if (weaponTable[i].name == key) return static_cast<int>(i);
    return -1;
}
