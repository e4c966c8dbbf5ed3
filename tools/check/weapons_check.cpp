#include "tools/check/weapons_check.h"

#include <algorithm>
#include <iterator>
#include <map>

#include "campaign_rules.h"
#include "data/mode_words.h"
#include "data/tables.h"
#include "data/weapon_keys.h"
#include "nearest.h"
#include "platform/quoted.h"
#include "tools/check/weapon_row.h"
#include "tools/check/weapons_scale.h"

namespace fs = std::filesystem;

namespace {

constexpr std::size_t MaxKey = 10;  // a key's field in the binary files
constexpr int MaxNumber = 32767;
constexpr std::size_t ModeCount = ModesOfRow.size();
const std::vector<std::string> Kinds = {"m", "w", "a", "i", "s"};
// Feeds whose things are weapons themselves and have a row under another key.
const std::vector<std::string> OwnFeeds = {"knife", "gren"};

bool Contains(const std::vector<std::string>& list, const std::string& text) {
    return std::find(list.begin(), list.end(), text) != list.end();
}

std::vector<std::string> KindNames() {
    std::vector<std::string> names;
    names.reserve(static_cast<std::size_t>(std::distance(itemKinds.begin(), itemKinds.end())));
    for (const ItemKind& kind : itemKinds)
        names.push_back(kind.name);
    return names;
}

std::vector<int> SizesOf(const std::string& key) {
    std::vector<int> sizes;
    for (const i16 size : ItemKindByName(key).sizes)
        if (size != 0) sizes.push_back(size);
    return sizes;
}

// The pictures under pic/inv that the game may ask for when it shows a thing of the row.
std::vector<std::string> PicturesOf(const WeaponRow& row) {
    const std::string& kind = row.Cell(KindColumn).text;
    const std::string feed = row.Text(ClassColumn);
    std::vector<std::string> names;
    if (kind == "m") names.push_back(row.Key() + "0.gif");
    for (const int size : SizesOf(feed)) {
        const std::string digits = std::to_string(size);
        if (kind == "m" || (kind == "a" && row.Key() != "40gren"))
            names.push_back(row.Key() + digits + ".gif");
        if (kind == "a") names.push_back(digits + feed + ".gif");  // as the pointer carries it
        if (feed == "pack") names.push_back("infoP" + row.Key().substr(1) + digits + ".bmp");
    }
    if (row.Key() == "40gren") names.push_back("40grenhe.gif");
    if (kind != "m" && kind != "a") names.push_back(row.Key() + ".gif");
    return names;
}

// One pass over the file.
class WeaponsCheck {
  public:
    WeaponsCheck(CheckedText& checked, const WeaponSurroundings& around) : text(checked), outside(around) {}

    std::string Run() {
        for (std::size_t i = 0; i < text.lines.size(); ++i) {
            const std::string& line = text.lines[i];
            if (line.empty() || line.front() == '#') continue;
            CheckRow(line, static_cast<int>(i) + 1);
        }
        CheckNamedKeys();
        for (const WeaponRow& row : rows)
            CheckAmmunition(row);
        if (!keys.contains("hand")) readable += StandIn("hand");
        return readable;
    }

  private:
    void Add(const SourceWord& cell, const std::string& wrong, const std::string& expected,
             const std::string& meant = "") {
        text.faults.Add({cell.place, wrong, expected, meant});
    }

    // A row that says nothing but its key.
    static std::string StandIn(const std::string& key) {
        std::string row = std::string("unread\t") + UnreadRow + "\t" + key;
        for (std::size_t column = KeyColumn + 1; column < WeaponColumns; ++column)
            row += "\t_";
        return row + "\n";
    }

    void CheckRow(const std::string& line, int number) {
        SourceFaults structure;
        const WeaponRow row = SplitWeaponRow(line, number, structure);
        for (const SourceError& fault : structure.Sorted())
            text.faults.Add(fault);
        const bool whole = row.cells.size() == WeaponColumns;
        if (row.cells.size() > KeyColumn) CheckKey(row);
        if (whole && CheckCells(row) && structure.Empty())
            readable += line + "\n";
        else if (row.cells.size() > KeyColumn)
            readable += StandIn(row.Key());
    }

    // Whether the game reads the row, and what else names it can rely on what it reads.
    bool CheckCells(const WeaponRow& row) {
        const bool meaningful = CheckMeaning(row);
        const bool numbers = CheckNumbers(row);
        if (Contains(Kinds, row.Cell(KindColumn).text)) {
            CheckFigures(row);
            CheckFiles(row);
        }
        if (meaningful) rows.push_back(row);
        return meaningful && numbers;
    }

    void CheckKey(const WeaponRow& row) {
        const SourceWord& key = row.Cell(KeyColumn);
        if (row.Text(KeyColumn).empty()) Add(key, "the row has no name", "a key");
        if (key.text.size() > MaxKey)
            Add(key, "the name " + Quoted(key.text) + " is too long",
                std::to_string(MaxKey) + " characters at most");
        const auto [first, isNew] = keys.insert({key.text, key.place});
        if (!isNew)
            Add(key,
                "the name " + Quoted(key.text) + " comes twice, first in line " +
                    std::to_string(first->second.line),
                "each name once");
    }

    // What other data leans on: kind, feeds, whether it is long.
    bool CheckMeaning(const WeaponRow& row) {
        bool good = true;
        const SourceWord& kind = row.Cell(KindColumn);
        if (!Contains(Kinds, kind.text)) {
            Add(kind, Quoted(kind.text) + " is no kind", "one of " + JoinWords(Kinds));
            good = false;
        }
        for (const std::size_t column : {ClassColumn, SecondColumn}) {
            const std::string feed = row.Text(column);
            if (feed.empty() || !ItemKindByName(feed).name.empty()) continue;
            Add(row.Cell(column), "there is no feed " + Quoted(feed), "a kind of ammunition or equipment",
                Nearest(feed, KindNames()));
            good = false;
        }
        const SourceWord& unitCount = row.Cell(LongColumn);
        if (unitCount.text != "1" && !row.Text(LongColumn).empty()) {
            Add(unitCount, Quoted(unitCount.text) + " doesn't say whether it is long", "1 or _");
            good = false;
        }
        const bool needsFeed = kind.text == "m" || kind.text == "a" || kind.text == "i";
        if (needsFeed && row.Text(ClassColumn).empty()) {
            Add(row.Cell(ClassColumn),
                Shortened(row.Key()) + " has no feed, and its kind is " + Quoted(kind.text),
                "a kind of ammunition or equipment");
            good = false;
        }
        if (good && kind.text == "a" && row.Text(ClassColumn) != row.Key())
            Add(row.Cell(ClassColumn), "ammunition of another name than its kind", Quoted(row.Key()));
        return good;
    }

    // Whether the reader takes all numbers.
    bool CheckNumbers(const WeaponRow& row) {
        constexpr std::size_t NumberColumns[] = {PowerColumn,   AccurColumn,   TimeColumn,
                                                 RangeColumn,   DurabColumn,   Param9Column,
                                                 Param13Column, Param14Column, Param16Column};
        SourceFaults faults;
        for (const std::size_t column : NumberColumns) {
            const bool read = row.IsWeapon() || column > ModesColumn;
            const SourceWord& cell = row.Cell(column);
            if (!read || cell.text == "_") continue;
            faults.Try([&] { NumberOf(cell, -MaxNumber - 1, MaxNumber, ColumnNames[column]); });
        }
        // The five figures are judged by the scale of their group.
        for (const SourceError& fault : faults.Sorted())
            if (!ScaleJudges(row, fault.place)) text.faults.Add(fault);
        const std::string& modes = row.Cell(ModesColumn).text;
        const bool sevenDigits =
            modes.size() == ModeCount && modes.find_first_not_of("0123456789") == std::string::npos;
        return faults.Empty() && (!row.IsWeapon() || sevenDigits);
    }

    static bool ScaleJudges(const WeaponRow& row, SourcePlace place) {
        if (ScaleOf(row.Cell(GroupColumn).text) == nullptr) return false;
        for (std::size_t figure = 0; figure < FigureCount; ++figure)
            if (row.Cell(PowerColumn + figure).place.column == place.column) return true;
        return false;
    }

    void CheckFigures(const WeaponRow& row) {
        const SourceWord& group = row.Cell(GroupColumn);
        const GroupScale* const scale = ScaleOf(group.text);
        if (scale == nullptr) {
            std::vector<std::string> groups;
            groups.reserve(GroupScales().size());
            for (const GroupScale& known : GroupScales())
                groups.emplace_back(known.group);
            Add(group, "there is no group " + Quoted(group.text), "a group of the scale",
                Nearest(group.text, groups));
        } else if (std::string_view(scale->kinds).find(row.Cell(KindColumn).text) == std::string_view::npos) {
            Add(row.Cell(KindColumn),
                "kind " + Quoted(row.Cell(KindColumn).text) + " in the group " + group.text,
                std::string("one of ") + scale->kinds);
        }
        if (!row.IsWeapon()) return;
        CheckModes(row);
        for (std::size_t figure = 0; scale != nullptr && figure < FigureCount; ++figure) {
            const FigureRange range = scale->figures[figure];
            text.faults.Try([&] {
                NumberOf(row.Cell(PowerColumn + figure), range.low, range.high,
                         std::string(FigureNames[figure]) + " of the group " + scale->group);
            });
        }
    }

    void CheckModes(const WeaponRow& row) {
        const SourceWord& modes = row.Cell(ModesColumn);
        if (modes.text.size() != ModeCount) {
            Add(modes, Quoted(modes.text) + " has " + std::to_string(modes.text.size()) + " modes",
                "seven digits");
            return;
        }
        for (std::size_t place = 0; place < ModeCount; ++place) {
            const char digit = modes.text[place];
            const bool burst = place == BurstPlace && digit >= '2' && digit <= '9';
            if (digit == '0' || (place != BurstPlace && digit == '1') || burst) continue;
            Add({"", {modes.place.line, modes.place.column + static_cast<int>(place)}},
                "mode " + std::to_string(place) + " is \"" + digit + "\"",
                place == BurstPlace ? "0, or the rounds of a burst, 2 to 9" : "0 or 1");
        }
        if (modes.text == "0000000") Add(modes, Shortened(row.Key()) + " offers no mode", "at least one");
        if (modes.text[SecondaryPlace] == '1' && row.Text(SecondColumn).empty())
            Add(row.Cell(SecondColumn), "the mode " + Quoted(SecondaryMode) + " without a second feed",
                "a kind of ammunition");
    }

    void CheckFiles(const WeaponRow& row) {
        const std::string country = row.Text(CountryColumn);
        if (!country.empty() && !Contains(outside.countries, country))
            Add(row.Cell(CountryColumn), "there is no country " + Quoted(country), "a code of countries.dat",
                Nearest(country, outside.countries));
        else
            CheckFile(row.Cell(CountryColumn), "pic/flags", (country.empty() ? "void" : country) + ".gif");
        if (row.Text(TitleColumn).empty())
            Add(row.Cell(TitleColumn), Shortened(row.Key()) + " has no title", "its name in the catalogue");
        if (row.IsWeapon()) CheckSound(row);
        for (const std::string& picture : PicturesOf(row))
            if (!CheckFile(row.Cell(KeyColumn), "pic/inv", picture)) strangers.push_back(row.Key());
    }

    void CheckSound(const WeaponRow& row) {
        const std::string sound = row.Text(SoundColumn);
        const fs::path folder = outside.game / "wav/weapons";
        if (sound.empty() || !fs::is_directory(folder) || fs::exists(folder / (sound + ".wav"))) return;
        std::vector<std::string> sounds;
        for (const auto& entry : fs::directory_iterator(folder))
            sounds.push_back(entry.path().stem().string());
        std::sort(sounds.begin(), sounds.end());
        Add(row.Cell(SoundColumn), "there is no sound " + Quoted(sound), "a file of wav/weapons",
            Nearest(sound, sounds));
    }

    bool CheckFile(const SourceWord& cell, const std::string& folder, const std::string& file) {
        if (!fs::is_directory(outside.game / folder) || fs::exists(outside.game / folder / file)) return true;
        Add(cell, "there is no picture " + folder + "/" + Shortened(file),
            "a picture for each look of the thing");
        return false;
    }

    void CheckNamedKeys() {
        for (const WeaponKey& named : WeaponKeys()) {
            const auto found = std::find_if(rows.begin(), rows.end(),
                                            [&](const WeaponRow& row) { return row.Key() == named.key; });
            if (found != rows.end())
                CheckNeed(*found, named);
            else if (!keys.contains(named.key))
                ReportMissing(named);
        }
    }

    void CheckNeed(const WeaponRow& row, const WeaponKey& named) {
        const std::size_t column = named.needed == NeededFeed::Second ? SecondColumn : ClassColumn;
        if (named.needed != NeededFeed::None && row.Text(column).empty())
            Add(row.Cell(column),
                Shortened(row.Key()) + " has no feed here, and the game says that it " + named.why,
                "a kind of ammunition");
    }

    // Told at the row that was meant, if one has a like name and no picture under it.
    void ReportMissing(const WeaponKey& named) {
        const std::string meant = Nearest(named.key, strangers);
        const SourcePlace end{static_cast<int>(text.lines.size()) + 1, 1};
        text.faults.Add({meant.empty() ? end : keys.at(meant), "no row is named " + Quoted(named.key),
                         std::string("the thing that ") + named.why, meant});
    }

    // A magazine taken out of a weapon becomes a thing named after its kind.
    void CheckAmmunition(const WeaponRow& row) {
        if (!row.IsWeapon()) return;
        for (const std::size_t column : {ClassColumn, SecondColumn}) {
            const std::string feed = row.Text(column);
            if (!feed.empty() && !Contains(OwnFeeds, feed) && !keys.contains(feed))
                Add(row.Cell(column), "no row is named " + Quoted(feed), "its ammunition");
        }
    }

    CheckedText& text;
    const WeaponSurroundings& outside;
    std::map<std::string, SourcePlace> keys;
    std::vector<WeaponRow> rows;
    std::vector<std::string> strangers;  // keys under which a picture is missing
    std::string readable;
};

}  // namespace

std::string CheckWeapons(CheckedText& text, const WeaponSurroundings& surroundings) {
    return WeaponsCheck(text, surroundings).Run();
}
