// Every picture of the game: its kind and size as its file's header says, that something asks for it, that
// sprites and masks fit, that no two look alike that must be told apart, and that the ground joins.
#include <algorithm>
#include <cctype>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <vector>

#include "data/tables.h"
#include "platform/files.h"
#include "platform/picture_file.h"
#include "state/state.h"
#include "tests/support/game_test.h"
#include "view/embedded_files.h"
#include "view/stored_pictures.h"

namespace fs = std::filesystem;

namespace {

constexpr int CellSize = 20;
constexpr Colour Black = Rgb(0, 0, 0);
constexpr Colour White = Rgb(255, 255, 255);

int Number(std::string_view bytes, std::size_t at, int count) {
    int number = 0;
    for (int i = count - 1; i >= 0; --i)
        number = number << 8 | static_cast<unsigned char>(bytes.at(at + static_cast<std::size_t>(i)));
    return number;
}

// "bmp24 60x19" or "gif89a 18x12", from the header alone; a GIF needs its palette and its transparent colour.
std::string KindOf(std::string_view bytes) {
    const auto size = [&](std::size_t at, int count, std::size_t next) {
        return " " + std::to_string(Number(bytes, at, count)) + "x" +
               std::to_string(Number(bytes, at + next, count));
    };
    if (bytes.starts_with("BM")) return "bmp" + std::to_string(Number(bytes, 28, 2)) + size(18, 4, 4);
    if (!bytes.starts_with("GIF89a")) return "unknown";
    const int flags = Number(bytes, 10, 1);
    const std::size_t palette = flags & 0x80 ? std::size_t{3} << ((flags & 7) + 1) : 0;
    const std::string_view control = bytes.substr(13 + palette, 8);
    const bool clear = control.starts_with("\x21\xF9\x04") && Number(control, 3, 1) % 2 == 1;
    return (palette > 0 && clear ? "gif" : "gif without its transparency") + size(6, 2, 2);
}

struct Kind {
    const char* names;  // a pattern of whole names
    const char* kind;
};

// clang-format off
constexpr Kind Kinds[] = {
    {"frmInfo.bmp", "bmp24 760x640"}, {"Picture2.bmp", "bmp24 145x158"}, {"picScript.bmp", "bmp24 450x16"},
    {"picSprites.bmp", "bmp24 640x320"}, {"picPeople.bmp", "bmp24 640x320"}, {"picMap.bmp", "bmp24 640x640"},
    {"picForest.bmp", "bmp24 440x40"}, {"imgBut([0-9]|1[0-5]).bmp", "bmp24 60x19"},
    {"picSlateD.bmp", "bmp8 801x200"}, {"picSlateU.bmp", "bmp24 801x10"},
    {"picSlateStripes.bmp", "bmp24 801x12"}, {"picSlate[LR].bmp", "bmp24 20x470"},
    {"picBarDigits.bmp", "bmp24 50x24"}, {"picBarWeapon.bmp", "bmp24 117x42"}, {"imgBars.gif", "gif 210x31"},
    {"imgMarkH.gif", "gif 20x10"}, {"imgMarkV.gif", "gif 10x20"}, {"img(Man)?Flag.gif", "gif 18x12"},
    {"imgProgress.gif", "gif 529x67"}, {"img(Del|UpDn[123]).gif", "gif 14x12"},
    {"imgAwardBorder.gif", "gif 102x34"}, {"stance[0-4](on|off).gif", "gif 32x25"},
    {"imgBar[0-3].bmp", "bmp24 135x3"}, {"imgBarWcover.bmp", "bmp24 3x40"}, {"imgBarWunder.bmp", "bmp24 5x42"},
    {"flags/.*", "gif 18x12"}, {"chevrons/.*", "gif 32x32"},
    {"awards/([01]\\d|2[0-4])(0[1-9]|1\\d|20).bmp", "bmp24 105x41"},
    {"counter/(0[1-9]|1\\d|20).bmp", "bmp24 25x19"},
    {"forest/([01]\\d|2[01]).gif|target/0[1-5].gif", "gif 20x20"}, {"blowup/0[1-5].gif", "gif 60x60"},
    {"faces/[a-z]{3}\\d\\d.bmp", "bmp24 140x140"}, {"inv/.*bmp", "bmp24 142x192"},
    {"inv/.*gif", "gif (117|42)x42"}, {"wea_(0|25|50|75).gif", "gif 3x40"}, {"weapon.gif", "gif 117x42"},
};
// clang-format on

// The pattern of kinds that the table gives a name; what the table lacks nothing asks for.
std::regex KindFor(const std::string& name) {
    for (const Kind& row : Kinds)
        if (std::regex_match(name, std::regex(row.names))) return std::regex(row.kind);
    return std::regex("no such picture");
}

struct Cell {
    const Picture& sheet;
    int x, y, size = CellSize;

    Colour At(int column, int row) const { return sheet.Pixel(x + column, y + row); }
    template <typename Test>
    int Count(Test test) const {
        int count = 0;
        for (int i = 0; i < size * size; ++i)
            count += test(i % size, i / size) ? 1 : 0;
        return count;
    }
    bool operator==(const Cell& other) const {
        return Count([&](int column, int row) { return At(column, row) != other.At(column, row); }) == 0;
    }
};

int Step(Colour a, Colour b) {
    const auto apart = [&](int shift) {
        return std::abs(static_cast<int>(a >> shift & 0xFF) - static_cast<int>(b >> shift & 0xFF));
    };
    return apart(0) + apart(8) + apart(16);
}

class ArtTest : public GameTest {
  protected:
    ArtTest() { StartGame(); }

    // Names under pic/ with "/", and their contents.
    std::map<std::string, std::string> LoosePictures() const {
        std::map<std::string, std::string> found;
        const fs::path root = folder.Path() / "pic";
        const auto options = fs::directory_options::follow_directory_symlink;
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(root, options)) {
            if (entry.is_directory()) continue;
            const std::string name = entry.path().lexically_relative(root).generic_string();
            found[name] = folder.Read("pic/" + name);
        }
        return found;
    }

    std::vector<std::string> CountryCodes() const {
        std::ifstream lines(folder.Path() / "dat/countries.dat");
        std::vector<std::string> codes;
        for (std::string code, name; std::getline(lines, code) && std::getline(lines, name);)
            codes.push_back(code.substr(0, 2));
        return codes;
    }
};

TEST_F(ArtTest, PicturesAreOfTheirKindAndSize) {
    std::map<std::string, std::string> all = LoosePictures();
    for (const EmbeddedFile& file : EmbeddedFiles())
        all.emplace(file.name, file.content);
    for (const auto& [name, content] : all) {
        EXPECT_TRUE(std::regex_match(KindOf(content), KindFor(name))) << name << " is " << KindOf(content);
        EXPECT_EQ(ErrorOf([&, &bytes = content, &of = name] { DecodePicture(bytes, of); }), "");
    }
}

TEST_F(ArtTest, EveryPictureCanBeAskedFor) {
    std::map<std::string, std::set<std::string>> asked;
    std::set<std::string>& things = asked["inv"];
    for (const int pockets : {3, 6, 9, 12})
        things.insert("infoPack" + std::to_string(pockets) + ".bmp");
    for (const WeaponInfo& row : weaponTable) {
        things.insert(row.name + (row.name == "40gren" ? "he" : row.kind == "m" ? "0" : "") + ".gif");
        if (row.kind != "m" && row.kind != "a") continue;
        for (const i16 size : ItemKindByName(row.weaponClass).sizes)
            if (size != 0)
                things.insert({row.name + std::to_string(size) + ".gif",
                               std::to_string(size) + row.weaponClass + ".gif"});
    }
    for (const std::string& code : CountryCodes())
        asked["flags"].insert(code + ".gif");
    asked["flags"].insert("void.gif");
    for (int rank = 0; rank < 24; ++rank) {
        std::string name = rankNames[rank];
        std::ranges::transform(name, name.begin(), [](char c) { return static_cast<char>(std::tolower(c)); });
        asked["chevrons"].insert(name + ".gif");
    }
    for (const auto& [name, content] : LoosePictures()) {
        const fs::path path(name);
        const auto names = asked.find(path.parent_path().string());
        EXPECT_TRUE(names == asked.end() || names->second.contains(path.filename().string())) << name;
    }
}

TEST_F(ArtTest, EveryCountryHasAFlagOfItsOwn) {
    std::map<std::string, std::string> owners;
    for (const std::string& code : CountryCodes()) {
        const std::string content = folder.Read("pic/flags/" + code + ".gif");
        ASSERT_FALSE(content.empty()) << code;
        const auto [place, fresh] = owners.emplace(content, code);
        EXPECT_TRUE(fresh) << code << " looks like " << place->second;
    }
    EXPECT_EQ(owners.size(), 185U);
}

TEST_F(ArtTest, MasksFitTheirSprites) {
    struct Sheet {
        const char* name;
        int columns, rows, toMask, pitch, size;
    };
    for (const Sheet& row :
         {Sheet{"picPeople.bmp", 32, 8, 160, 20, 20}, Sheet{"picSprites.bmp", 32, 8, 160, 20, 20},
          Sheet{"picForest.bmp", 22, 1, 20, 20, 20}, Sheet{"picScript.bmp", 50, 1, -8, 9, 8}}) {
        const Picture& sheet = StoredPicture(row.name);
        for (int i = 0; i < row.columns * row.rows; ++i) {
            const int x = i % row.columns * row.pitch;
            const int y = i / row.columns * row.pitch + (row.toMask < 0 ? row.size : 0);
            const Cell sprite{sheet, x, y, row.size};
            const Cell mask{sheet, x, y + row.toMask, row.size};
            EXPECT_EQ(sprite.Count([&](int column, int line) {
                const Colour cover = mask.At(column, line);
                return cover == White ? sprite.At(column, line) != Black : cover != Black;
            }),
                      0)
                << row.name << " " << i << ": the mask is neither white over black nor black";
        }
    }
}

TEST_F(ArtTest, TeamsStancesAndFacingsDiffer) {
    const Picture& sheet = StoredPicture("picPeople.bmp");
    std::vector<Cell> men;
    for (int column = 0; column < 12; ++column)
        for (int facing = 0; facing < 8; ++facing)
            men.push_back({sheet, column * CellSize, facing * CellSize});
    for (std::size_t i = 0; i < men.size(); ++i) {
        const Cell mask{sheet, men[i].x, men[i].y + 160};
        EXPECT_GT(mask.Count([&](int x, int y) { return mask.At(x, y) == Black; }), 60) << "nobody in " << i;
        for (std::size_t j = 0; j < i; ++j)
            EXPECT_FALSE(men[i] == men[j]) << i << " and " << j;
    }
}

// Tiles of a sheet's row that lie side by side (along) and one above the other (down).
struct Ground {
    const char* what;
    int row;
    std::vector<int> tiles;
    bool along, down;
};

const std::vector<Ground> Grounds = {
    {"grass", 0, {0, 1, 2, 3, 4, 5, 6, 7}, true, true},
    {"wheel tracks", 0, {15}, true, false},
    {"open water", 1, {0, 13}, true, true},
    {"north banks", 1, {1}, true, false},
    {"west banks", 1, {3}, false, true},
    {"stream", 1, {15}, true, false},
    {"dirt roads", 6, {0, 6, 7, 10}, true, false},
    {"dirt roads down", 6, {1, 8, 9, 10}, false, true},
    {"cobbles", 6, {17}, true, true},
    {"highway", 11, {0, 6, 7, 10}, true, false},
    {"highway down", 11, {1, 8, 9, 10}, false, true},
    {"asphalt", 11, {19}, true, true},
};

// Mean colour step over a tile's line of pixels `at` to the next line, which may be another tile's first.
double StepTo(const Cell& tile, int at, const Cell& next, int nextAt, bool along) {
    int sum = 0;
    for (int i = 0; i < CellSize; ++i)
        sum += along ? Step(tile.At(at, i), next.At(nextAt, i)) : Step(tile.At(i, at), next.At(i, nextAt));
    return sum / static_cast<double>(CellSize);
}

TEST_F(ArtTest, GroundJoinsWithoutSeams) {
    const Picture& sheet = StoredPicture("picMap.bmp");
    for (const Ground& ground : Grounds) {
        for (const bool along : {true, false}) {
            if (!(along ? ground.along : ground.down)) continue;
            double inside = 0;
            double over = 0;
            const auto count = static_cast<double>(ground.tiles.size());
            for (const int first : ground.tiles) {
                const Cell tile{sheet, first * CellSize, ground.row * CellSize};
                for (int at = 0; at + 1 < CellSize; ++at)
                    inside += StepTo(tile, at, tile, at + 1, along) / (CellSize - 1) / count;
                for (const int second : ground.tiles)
                    over += StepTo(tile, CellSize - 1, {sheet, second * CellSize, ground.row * CellSize}, 0,
                                   along) /
                            (count * count);
            }
            EXPECT_LE(over, inside * 1.1) << ground.what << (along ? " along" : " down");
        }
    }
}

}  // namespace
