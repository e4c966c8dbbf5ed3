#include "tools/check/checker.h"

#include <fstream>
#include <optional>
#include <set>

#include "data/countries_file.h"
#include "data/tables.h"
#include "joints.h"
#include "map_checks.h"
#include "map_files.h"
#include "place_source.h"
#include "platform/files.h"
#include "roster_source.h"
#include "state/state.h"
#include "tools/check/list_checks.h"
#include "tools/check/record_checks.h"
#include "tools/check/soldier_pictures.h"
#include "tools/check/weapons_check.h"
#include "tools/temporary_folder.h"

namespace fs = std::filesystem;

namespace {

constexpr const char* GameMap = "49";  // the one map that the game asks for

// Fills the game's tables through its own reader, from a weapons file that it takes.
void FillTables(const std::string& weapons) {
    const TemporaryFolder folder;
    fs::create_directory(folder.Path() / "dat");
    std::ofstream(folder.Path() / "dat/weapons.dat", std::ios::binary) << weapons;
    SetProgramFolder(folder.Path());
    InitTables();
}

// The text files of dat/, which all else leans on. Whether there are weapons to know things by.
bool CheckTables(const fs::path& dat, const fs::path& gameFolder, Findings& findings) {
    constexpr const char* NoWeapons = "-\ts\thand\t_\t_\t_\t_\t_\t_\t_\t_\t_\t_\t_\t_\t_\t_\t_\t_\t_\n";
    FillTables(NoWeapons);  // the built-in kinds
    CheckedText countries = OpenText(dat / "countries.dat", findings);
    countryList = CheckCountries(countries);
    const bool hasWeapons = fs::exists(dat / "weapons.dat");
    CheckedText weapons = OpenText(dat / "weapons.dat", findings);
    if (hasWeapons) FillTables(CheckWeapons(weapons, {CountryCodes(), gameFolder}));
    CheckedText facings = OpenText(dat / "ori.dat", findings);
    CheckFacings(facings);
    for (const CheckedText* text : {&weapons, &countries, &facings})
        TakeFaults(*text, findings);
    return hasWeapons;
}

// The names that the files of a folder have before `ending`.
std::set<std::string> NamesBefore(const fs::path& folder, const std::string& ending) {
    std::set<std::string> names;
    if (!fs::is_directory(folder)) return names;
    for (const auto& entry : fs::directory_iterator(folder)) {
        const std::string file = entry.path().filename().string();
        if (file.ends_with(ending)) names.insert(file.substr(0, file.size() - ending.size()));
    }
    return names;
}

std::optional<TileGrid> CheckLayers(const fs::path& stem, Findings& findings) {
    CheckedText columns = OpenText(stem.string() + "1.map", findings);
    CheckedText classes = OpenText(stem.string() + "2.map", findings);
    CheckedText strengths = OpenText(stem.string() + "3.map", findings);
    const TileGrid grid = ReadLayers(columns.content, classes.content, columns.faults, classes.faults);
    CheckStrengths(strengths.content, strengths.faults);
    const bool read = columns.faults.Empty() && classes.faults.Empty();
    if (read) CheckMap(grid, 1, classes.faults);
    for (const CheckedText* text : {&columns, &classes, &strengths})
        TakeFaults(*text, findings);
    return read ? std::optional(grid) : std::nullopt;
}

std::optional<TileGrid> CheckMapSource(const fs::path& path, Findings& findings) {
    CheckedText text = OpenText(path, findings);
    const MapSource map = ReadMapSource(text.lines, text.faults);
    std::optional<TileGrid> grid;
    if (text.faults.Empty()) {
        grid = PlaceTiles(map, text.faults);
        CheckMap(*grid, map.firstLine, text.faults);
    }
    TakeFaults(text, findings);
    return grid;
}

void CheckGroundSource(const fs::path& path, const TileGrid* grid, Findings& findings) {
    CheckedText text = OpenText(path, findings);
    for (const ThingPlace& place : ReadGround(text.lines, text.faults)) {
        if (grid != nullptr && place.x != Nowhere && StopsStep(TileAt(*grid, place.x, place.y)))
            text.faults.Add({place.place, "things lie where nobody can stand", "a free cell"});
    }
    TakeFaults(text, findings);
}

void CheckRosterSource(const fs::path& path, const fs::path& gameFolder, Findings& findings) {
    CheckedText text = OpenText(path, findings);
    for (const RosterEntry& entry : ReadRoster(text.lines, text.faults)) {
        if (entry.soldier.faceType.empty()) continue;  // its line has a fault of its own
        for (const Flaw& flaw : SoldierPictureFlaws(entry.soldier, gameFolder))
            text.faults.Add(
                {flaw.field == "country" ? entry.country : entry.face, flaw.wrong, flaw.expected});
    }
    TakeFaults(text, findings);
}

void CheckStoreSource(const fs::path& path, Findings& findings) {
    CheckedText text = OpenText(path, findings);
    ReadStore(text.lines, text.faults);
    TakeFaults(text, findings);
}

}  // namespace

Findings CheckGame(const fs::path& gameFolder) {
    Findings findings;
    const bool things = CheckTables(gameFolder / "dat", gameFolder, findings);
    if (things) CheckRosterFile(gameFolder / "dat/save.dat", gameFolder, findings);
    if (things) CheckStoreFile(gameFolder / "dat/apc.dat", findings);
    std::set<std::string> maps = NamesBefore(gameFolder / "map", "1.map");
    maps.insert(GameMap);
    for (const std::string& map : maps) {
        const fs::path stem = gameFolder / "map" / map;
        const std::optional<TileGrid> grid = CheckLayers(stem, findings);
        if (things) CheckGroundFile(stem.string() + "g.map", grid ? &*grid : nullptr, findings);
    }
    return findings;
}

Findings CheckSources(const fs::path& sources, const fs::path& gameFolder) {
    Findings findings;
    const bool things = CheckTables(sources / "dat", gameFolder, findings);
    if (things) CheckRosterSource(sources / "campaign/roster.txt", gameFolder, findings);
    if (things) CheckStoreSource(sources / "campaign/store.txt", findings);
    std::set<std::string> maps = {GameMap};
    for (const std::string& name : NamesBefore(sources / "map", ".txt"))
        if (!name.ends_with('g') && name != "CMakeLists") maps.insert(name);
    for (const std::string& map : maps) {
        const fs::path stem = sources / "map" / map;
        const std::optional<TileGrid> grid = CheckMapSource(stem.string() + ".txt", findings);
        if (things) CheckGroundSource(stem.string() + "g.txt", grid ? &*grid : nullptr, findings);
    }
    return findings;
}
