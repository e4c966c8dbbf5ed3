#include "tests/fuzz/readers.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>

#include "data/campaign_files.h"
#include "data/countries_file.h"
#include "data/map.h"
#include "data/tables.h"
#include "data/weapons_file.h"
#include "desktop/sound_file.h"
#include "map_files.h"
#include "platform/files.h"
#include "platform/picture_file.h"
#include "record_files.h"
#include "shell/journal.h"
#include "state/state.h"
#include "tools/lab/recording.h"
#include "tools/temporary_folder.h"
#include "tools/tiled/game_map.h"
#include "tools/tiled/tmx_reader.h"
#include "tools/tiled/tmx_writer.h"
#include "view/field_form.h"

namespace fs = std::filesystem;

namespace {

constexpr const char* InputName = "input";  // of what is read from memory
constexpr char FileEnd = '\f';              // between the files of an input that stands for several
constexpr std::size_t FindingsShown = 20;   // of the thousands in a map of noise: the others look alike

struct Reader {
    const char* name;
    std::vector<const char*> files;  // what the input is written to before, in the game's folder
    void (*read)(const std::string& input);
};

[[noreturn]] void Fail(const std::string& fault) {
    throw std::logic_error(fault);
}

void ReadMap(const std::string& /*input*/) {
    teamLast[LandingSpotList] = -1;
    ReadMapLayers("x");
}

void ReadGround(const std::string& /*input*/) {
    LoadGroundItems("x");
}

// What the game has read it must also be able to write when the mission ends.
void ReadStore(const std::string& /*input*/) {
    LoadStore();
    const auto read = storeItems;
    SaveStore();
    LoadStore();
    if (!(storeItems == read)) Fail("the store is another one after it was written");
}

void ReadPicture(const std::string& input) {
    DecodePicture(input, InputName);
}

void ReadSound(const std::string& input) {
    SoundRequest sound;
    sound.fileName = InputName;
    sound.volume = sound.pan = -50;
    sound.frequency = 45000;
    DecodeSound(input, sound);
}

void ReadRecordedGame(const std::string& input) {
    std::istringstream text(input);
    ReadRecording(text, InputName);
}

// What is kept of a cut journal is one.
void ReadJournalOfGame(const std::string& input) {
    Journal journal = ReadJournal(input, InputName);
    DropLastOrder(journal);
    const Journal kept = ReadJournal(std::string_view(input).substr(0, journal.length), InputName);
    if (kept.events != journal.events) Fail("a journal is another one after its last order was dropped");
}

// What has no fault becomes files of the game, and the same drawing again.
void ReadTiledMap(const std::string& input) {
    SourceFaults faults;
    const GameMap map = ReadTmx(input, faults);
    if (!faults.Empty()) return;
    const std::string ground = GroundBytes(map.places);
    const GameMap again = ReadTmx(TmxText(map), faults);
    if (!faults.Empty())
        Fail("a map of Tiled that was written is refused: " + std::string(faults.Sorted()[0].what()));
    if (LayersOf(again.grid).columns != LayersOf(map.grid).columns || GroundBytes(again.places) != ground)
        Fail("a map of Tiled is another one after it was written");
}

void ReadMapOfTheGame(const std::string& /*input*/) {
    Findings findings;
    const GameMap map = ReadGameMap(ProgramPath("map/x"), findings);
    if (findings.empty()) TmxText(map);
    findings.resize(std::min(findings.size(), FindingsShown));
    FindingsText(findings);
}

const std::vector<Reader>& Readers() {
    static const std::vector<Reader> readers = {
        {"map", {"map/x1.map", "map/x2.map", "map/x3.map"}, ReadMap},
        {"ground", {"map/xg.map"}, ReadGround},
        {"roster", {"dat/save.dat"}, [](const std::string&) { LoadRoster(); }},
        {"store", {"dat/apc.dat"}, ReadStore},
        {"weapons", {"dat/weapons.dat"}, [](const std::string&) { ReadWeapons(); }},
        {"countries", {"dat/countries.dat"}, [](const std::string&) { LoadCountries(); }},
        {"facings", {"dat/ori.dat"}, [](const std::string&) { FacingText(NorthWest); }},
        {"picture", {}, ReadPicture},
        {"sound", {}, ReadSound},
        {"recording", {}, ReadRecordedGame},
        {"journal", {}, ReadJournalOfGame},
        {"tiled", {}, ReadTiledMap},
        {"game_map", {"map/x1.map", "map/x2.map", "map/xg.map"}, ReadMapOfTheGame},
    };
    return readers;
}

const Reader& ReaderByName(std::string_view name) {
    for (const Reader& reader : Readers())
        if (reader.name == name) return reader;
    Fail("no reader is named " + std::string(name));
}

// A game folder of one's own, and the tables by which the campaign's files know things.
const fs::path& GameFolder() {
    static const TemporaryFolder folder;
    static const bool filled = [] {
        SetProgramFolder(SOURCES_FOLDER);
        InitTables();
        SetProgramFolder(folder.Path());
        return fs::create_directory(folder.Path() / "dat") && fs::create_directory(folder.Path() / "map");
    }();
    if (!filled) Fail("the game folder can't be made");
    return folder.Path();
}

// The last file takes all that is left.
void WriteFiles(const std::vector<const char*>& files, std::string_view input) {
    const fs::path& folder = GameFolder();
    for (const char* file : files) {
        const std::size_t end =
            file == files.back() ? input.size() : std::min(input.find(FileEnd), input.size());
        std::ofstream(folder / file, std::ios::binary) << input.substr(0, end);
        input.remove_prefix(std::min(end + 1, input.size()));
    }
}

void CheckMessage(const Reader& reader, const std::string& message) {
    bool named = reader.files.empty() && message.starts_with(std::string(InputName) + ":");
    for (const char* file : reader.files)
        named = named || message.starts_with(std::string(file) + ":");
    if (!named || message.find("expected") == std::string::npos) Fail("an unclear message: " + message);
}

}  // namespace

std::vector<std::string_view> ReaderNames() {
    std::vector<std::string_view> names;
    for (const Reader& reader : Readers())
        names.emplace_back(reader.name);
    return names;
}

void RunReader(std::string_view name, std::string_view input) {
    const Reader& reader = ReaderByName(name);
    WriteFiles(reader.files, input);
    try {
        reader.read(std::string(input));
    } catch (const RunTimeError& error) {
        CheckMessage(reader, error.About());
    }
}
