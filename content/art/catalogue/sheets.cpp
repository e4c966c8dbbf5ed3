#include "catalogue/sheets.h"

#include <array>
#include <utility>

#include "badges/medals.h"
#include "catalogue/names.h"
#include "kit/canvas.h"
#include "kit/contact_sheets.h"
#include "panel/mock_file.h"
#include "tiles/mock_field.h"

namespace art {
namespace {

constexpr auto MapSheet = "stored/picMap.bmp";
constexpr auto PeopleSheet = "stored/picPeople.bmp";
constexpr auto SpriteSheet = "stored/picSprites.bmp";

struct Row {
    const char* name;
    const char* title;
    int across, times;
    bool onGrass;
    std::vector<std::string> patterns;
};

const std::vector<Row>& Rows() {
    static const std::vector<Row> rows = {
        // clang-format off
        {"forest",       "FOREST TOPS",    11, 4, true,  {"pic/forest/*"}},
        {"blowup",       "BLOWUP",         5,  4, true,  {"pic/blowup/*"}},
        {"target",       "TARGET",         5,  6, true,  {"pic/target/*"}},
        {"frames",       "FRAMES",         1,  2, false, {"stored/picSlateU", "stored/picSlateStripes", "stored/imgProgress"}},
        {"icons",        "ICONS",          4,  2, false, {"stored/icon*"}},
        {"panel",        "PANEL",          1,  2, false, {"stored/picSlateD"}},
        {"stances",      "STANCES OFF ON", 4,  4, false, {"pic/stance*"}},
        {"counter",      "COUNTER",        10, 4, false, {"pic/counter/*"}},
        {"flags",        "FLAGS",          17, 4, false, {"pic/flags/*", "stored/imgFlag"}},
        {"packs",        "PACKS",          4,  2, false, {"pic/inv/*.bmp"}},
        {"portraits",    "PORTRAITS",      4,  2, false, {"pic/faces/*"}},
        {"chevrons",     "CHEVRONS",       8,  4, false, {"pic/chevrons/*"}},
        {"file_buttons", "FILE BUTTONS",   4,  4, false, {"stored/imgBut*"}},
        {"file_marks",   "FILE MARKS",     3,  4, false, {"stored/imgDel", "stored/imgAwardBorder", "stored/imgUpDn*", "stored/imgManFlag"}},
        {"file_panel",   "FILE PANEL",     1,  2, false, {"stored/Picture2"}},
        {"typewriter",   "TYPEWRITER",     1,  4, false, {"stored/picScript"}},
        // clang-format on
    };
    return rows;
}

// By the rows of the sheet.
constexpr std::array<const char*, 13> ClassNames{"SURFACE", "WATER",    "TREES",    "WOODEN",   "CONCRETE",
                                                 "STONE",   "ROADS",    "TRENCHES", "PRICKLES", "SHIPS",
                                                 "VARIOUS", "HIGHWAYS", "FENCE"};

using Paths = std::vector<std::string>;

Entry LookingAt(const std::string& name, std::string source, Paths of, Draw draw) {
    return {.path = "sheets/" + name + ".png",
            .size = {},
            .kind = Kind::ForLooking,
            .palette = Palette::Whole,
            .source = std::move(source),
            .note = "",
            .of = std::move(of),
            .draw = std::move(draw)};
}

Entry Contacts(const std::string& name, Paths of, Draw draw) {
    return LookingAt(name, "kit/contact_sheets.cpp:ContactSheet", std::move(of), std::move(draw));
}

QImage Grass(const Pictures& pictures) {
    return CellOf(pictures(MapSheet), 0, 0);
}

std::vector<QImage> All(const Pictures& pictures, const Paths& paths) {
    std::vector<QImage> all;
    for (const std::string& path : paths)
        all.push_back(pictures(path));
    return all;
}

Entry FamilySheet(const Row& row, const std::vector<Entry>& entries) {
    Paths paths;
    for (const std::string& pattern : row.patterns) {
        for (const Entry& entry : entries) {
            if (Matches(entry.path, pattern)) paths.push_back(entry.path);
        }
    }
    Paths of = row.patterns;
    if (row.onGrass) of.emplace_back(MapSheet);
    return Contacts(row.name, of, [paths, &row](const Pictures& pictures) {
        return ContactSheet(row.title, All(pictures, paths), row.across, row.times,
                            row.onGrass ? Grass(pictures) : QImage());
    });
}

// The tiles of a class up to its last one that isn't plain grass.
std::vector<QImage> TilesOf(const QImage& map, int row) {
    constexpr int SheetColumns = 32;
    std::vector<QImage> tiles;
    tiles.reserve(SheetColumns);
    for (int column = 0; column < SheetColumns; ++column)
        tiles.push_back(CellOf(map, column, row));
    while (tiles.size() > 1 && tiles.back() == CellOf(map, 0, 0))
        tiles.pop_back();
    return tiles;
}

Entry ClassSheet(int row) {
    const std::string title = TwoDigits(row) + " " + ClassNames[static_cast<std::size_t>(row)];
    return Contacts("map_" + TwoDigits(row), {MapSheet}, [=](const Pictures& pictures) {
        return ContactSheet(title, TilesOf(pictures(MapSheet), row), 13, 4);
    });
}

Entry TeamSheet(int team) {
    constexpr int Stances = 4;
    constexpr int Facings = 8;
    return Contacts("people_" + std::to_string(team), {PeopleSheet, MapSheet}, [=](const Pictures& pictures) {
        const QImage people = pictures(PeopleSheet);
        std::vector<QImage> men;
        men.reserve(std::size_t{Stances} * Facings);
        for (int i = 0; i < Stances * Facings; ++i)
            men.push_back(CellOf(people, team * Stances + i / Facings, i % Facings));
        return ContactSheet("TEAM " + std::to_string(team), men, Facings, 6, Grass(pictures));
    });
}

Entry SpritesSheet() {
    return Contacts("sprites", {SpriteSheet, MapSheet}, [](const Pictures& pictures) {
        const QImage sheet = pictures(SpriteSheet);
        const std::vector<QImage> sprites{CellOf(sheet, 12, 0), CellOf(sheet, 13, 0), CellOf(sheet, 14, 0)};
        return ContactSheet("SPRITES 12-14", sprites, 3, 8, Grass(pictures));
    });
}

Entry ThingsSheet(const char* name, const char* title, int across, bool wide,
                  const std::vector<Entry>& entries) {
    Paths paths;
    for (const Entry& entry : entries) {
        const bool isWide = entry.size.width() > entry.size.height();
        if (isWide == wide && Matches(entry.path, "pic/inv/*.gif")) paths.push_back(entry.path);
    }
    return Contacts(name, {"pic/inv/*.gif"}, [=](const Pictures& pictures) {
        return ContactSheet(title, All(pictures, paths), across, 2);
    });
}

Entry AwardsSheet() {
    Paths paths;
    for (int award = 0; award < AwardKinds; ++award)
        paths.push_back("pic/awards/" + TwoDigits(award) + "01.bmp");
    const Paths often = AwardsOften();
    paths.insert(paths.end(), often.begin(), often.end());
    return Contacts("awards", {"pic/awards/*"}, [paths](const Pictures& pictures) {
        return ContactSheet("AWARDS ONCE AND OFTEN", All(pictures, paths), 5, 2);
    });
}

}  // namespace

std::vector<Entry> SheetsOf(const std::vector<Entry>& pictures) {
    std::vector<Entry> sheets;
    sheets.reserve(ClassNames.size());
    for (int row = 0; row < static_cast<int>(ClassNames.size()); ++row)
        sheets.push_back(ClassSheet(row));
    for (int team = 0; team < 3; ++team)
        sheets.push_back(TeamSheet(team));
    sheets.push_back(SpritesSheet());
    for (const Row& row : Rows())
        sheets.push_back(FamilySheet(row, pictures));
    sheets.push_back(ThingsSheet("inventory_wide", "WIDE THINGS", 10, true, pictures));
    sheets.push_back(ThingsSheet("inventory_small", "SMALL THINGS", 14, false, pictures));
    sheets.push_back(AwardsSheet());
    sheets.push_back(LookingAt("in_place", "tiles/mock_field.cpp:MockWindow",
                               {"stored/pic*", "stored/img*", "pic/stance*", "pic/counter/*", "pic/wea_*"},
                               MockWindow));
    sheets.push_back(LookingAt("file_window", "panel/mock_file.cpp:MockFile",
                               {"stored/frmInfo", "stored/imgBut8", "pic/faces/*", "pic/chevrons/*",
                                "pic/flags/*", "pic/inv/*", "pic/awards/*"},
                               MockFile));
    return sheets;
}

}  // namespace art
