// Hand files: they win over the drawn pictures, whatever order an editor gives to their colours, and each
// fault in one is named with its place.
#include <fstream>
#include <functional>

#include <QImage>

#include "kit/palette.h"
#include "tests/pictures/art_run.h"

namespace {

using art::Colour;
using art::Ink;
namespace fs = std::filesystem;

class HandFileTest : public ArtRun {
  protected:
    // An indexed picture of one colour; the others of its palette wait at `Other` and `Clear`.
    static constexpr uint Other = 1, Clear = 2;
    static QImage Plain(int width, int height, QRgb other = Colour(Ink::Gold).rgb()) {
        QImage picture(width, height, QImage::Format_Indexed8);
        picture.setColorTable({Colour(Ink::Moss).rgb(), other, 0x00ff00ffu});
        picture.fill(0);
        return picture;
    }

    // The same picture with its used colours alone, in an order of their own, as some editors save it.
    static QImage Shortened(const QImage& picture) {
        QImage shortened(picture.size(), QImage::Format_Indexed8);
        QList<QRgb> table;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (!table.contains(picture.pixel(x, y))) table.push_back(picture.pixel(x, y));
                shortened.setColorTable(table);
                shortened.setPixel(x, y, static_cast<uint>(table.indexOf(picture.pixel(x, y))));
            }
        }
        return shortened;
    }

    void Put(const std::string& name, const QImage& picture) const {
        const fs::path path = hand / (name + ".png");
        fs::create_directories(path.parent_path());
        ASSERT_TRUE(picture.save(QString::fromStdString(path.string())));
    }

    QImage Made(const std::string& path) const {
        return QImage(QString::fromStdString((out / path).string())).convertToFormat(QImage::Format_ARGB32);
    }
};

TEST_F(HandFileTest, WinsOverTheDrawnPicture) {
    QImage knife = Plain(42, 42);
    knife.setPixel(7, 5, Other);
    knife.setPixel(8, 5, Clear);
    Put("pic/inv/knife", knife);
    ASSERT_EQ(Run({"--only", "pic/inv/knife.gif", out.string()}), 0) << printed;
    const QImage made = Made("pic/inv/knife.gif");
    EXPECT_EQ(made.pixel(7, 5), Colour(Ink::Gold).rgb());
    EXPECT_EQ(qAlpha(made.pixel(8, 5)), 0);
    EXPECT_EQ(made.pixel(9, 5), Colour(Ink::Moss).rgb());
}

TEST_F(HandFileTest, MasksAreMadeOfItsClearPixels) {
    QImage forest = Plain(440, 20);
    forest.setPixel(21, 3, Clear);
    Put("stored/picForest", forest);
    for (const char* name : {"stored/picForest", "pic/forest/01"})
        ASSERT_EQ(Run({"--only", name, out.string()}), 0) << printed;
    const QImage made = Made("stored/picForest.bmp");
    EXPECT_EQ(made.height(), 40);
    EXPECT_EQ(made.pixel(21, 3), 0xff000000);
    EXPECT_EQ(made.pixel(21, 23), 0xffffffff);
    EXPECT_EQ(made.pixel(22, 23), 0xff000000);
    EXPECT_EQ(qAlpha(Made("pic/forest/01.gif").pixel(1, 3)), 0);
}

// What an export writes is read again as the same picture, with all of the palette or with the used colours
// alone.
TEST_F(HandFileTest, AnExportedPictureIsTheDrawnOneWithAnyPalette) {
    const std::string flag = "stored/imgFlag";
    ASSERT_EQ(Run({"--only", flag, out.string()}), 0) << printed;
    const QImage drawn = Made(flag + ".gif");
    ASSERT_EQ(Run({"--export", flag}), 0) << printed;
    const QImage exported(QString::fromStdString((hand / (flag + ".png")).string()));
    EXPECT_EQ(exported.colorCount(), static_cast<int>(art::InkCount) + 1);
    for (const QImage& saved : {exported, Shortened(exported)}) {
        Put(flag, saved);
        ASSERT_EQ(Run({"--only", flag, out.string()}), 0) << printed;
        EXPECT_EQ(Made(flag + ".gif"), drawn);
    }
    EXPECT_EQ(Run({"--export", flag}), 2) << "a hand file was overwritten";
}

TEST_F(HandFileTest, FaultsNameThePixelAndWhatIsExpected) {
    struct Case {
        const char* name;
        QImage picture;
        const char* message;
    };
    const auto with = [](QImage picture, int x, int y, uint index) {
        picture.setPixel(x, y, index);
        return picture;
    };
    const Case cases[] = {
        {"pic/faces/usa03", Plain(140, 139), "usa03.png: is 140x139, expected 140x140"},
        {"stored/picPeople", Plain(640, 320), "is 640x320, expected 640x160: the build makes the masks"},
        {"pic/faces/usa03", with(Plain(140, 140, 0xff617b3a), 7, 9, Other),
         R"(usa03.png, pixel (7, 9): #617b3a is not an ink; the nearest is "grass" #607a39)"},
        {"stored/picPeople", with(Plain(640, 160, Colour(Ink::Midnight).rgb()), 639, 159, Other),
         R"(pixel (639, 159): #0a1326 is an ink that pictures of the field don't use; the nearest is)"},
        {"pic/inv/knife", with(Plain(42, 42, 0x80607a39), 1, 2, Other),
         "pixel (1, 2): half see-through (alpha 128)"},
        {"pic/faces/usa03", with(with(Plain(140, 140), 0, 5, Clear), 9, 9, Clear),
         "pixel (0, 5): see-through; this picture has an ink everywhere; 1 more pixel is wrong"},
        {"pic/faces/usa03", Plain(140, 140).convertToFormat(QImage::Format_RGB32), "expected an indexed PNG"},
        {"pic/faces/usa3", Plain(140, 140),
         "no picture of the game has this name; did you mean pic/faces/usa03.png?"},
    };
    for (const Case& row : cases) {
        fs::remove_all(hand);
        Put(row.name, row.picture);
        EXPECT_EQ(Run({"--only", std::string(row.name) == "pic/faces/usa3" ? "pic/flags/US" : row.name,
                       out.string()}),
                  1);
        EXPECT_NE(printed.find(row.message), std::string::npos) << row.message << "\n" << printed;
    }
}

TEST_F(HandFileTest, BlackIsAllowedOnlyWhereNoTileLies) {
    QImage map = Plain(640, 640, 0xff000000);
    map.setPixel(3, 260, Other);
    Put("stored/picMap", map);
    EXPECT_EQ(Run({"--only", "stored/picMap", out.string()}), 0) << printed;
    map.setPixel(3, 259, Other);
    Put("stored/picMap", map);
    EXPECT_EQ(Run({"--only", "stored/picMap", out.string()}), 1);
    EXPECT_NE(printed.find("pixel (3, 259): #000000"), std::string::npos) << printed;
}

TEST_F(HandFileTest, BrokenAndMissingFilesAreNamed) {
    Put("stored/picMap", Plain(640, 640));
    const fs::path path = hand / "stored/picMap.png";
    fs::resize_file(path, fs::file_size(path) / 2);
    EXPECT_EQ(Run({"--only", "stored/picMap", out.string()}), 1);
    EXPECT_NE(printed.find("picMap.png: broken or cut off"), std::string::npos) << printed;
    std::ofstream(path) << "GIF89a";
    EXPECT_EQ(Run({"--only", "stored/picMap", out.string()}), 1);
    EXPECT_NE(printed.find("picMap.png: expected a PNG file"), std::string::npos) << printed;
    fs::remove(path);
    EXPECT_EQ(Run({"--only", "stored/picMap", out.string()}), 1);
    EXPECT_NE(printed.find("picMap.png: missing"), std::string::npos) << printed;
}

// After an edit the build makes what the edit changes and nothing else.
TEST_F(HandFileTest, AnEditRemakesWhatIsMadeOfIt) {
    fs::copy(ART_SOURCES "/hand", hand, fs::copy_options::recursive);
    const fs::path forest = "stored/picForest.bmp", face = "pic/faces/usa03.bmp";
    for (const char* part : {"stored", "pic/faces"}) {
        fs::create_directories(out / part);
        fs::copy(fs::path(ART_FOLDER) / part, out / part);
    }
    for (const auto& file : fs::recursive_directory_iterator(out))
        fs::last_write_time(file, fs::file_time_type::clock::now() + std::chrono::hours(1));
    const auto faceTime = fs::last_write_time(out / face);
    fs::last_write_time(hand / "stored/picForest.png", faceTime + std::chrono::hours(1));
    ASSERT_EQ(Run({"--edited", out.string()}), 0) << printed;
    EXPECT_NE(fs::last_write_time(out / forest), faceTime);
    EXPECT_EQ(fs::last_write_time(out / face), faceTime);
    EXPECT_TRUE(fs::exists(out / "pic/forest/21.gif"));
    EXPECT_TRUE(fs::exists(out / "sheets/forest.png"));
    EXPECT_FALSE(fs::exists(out / "sheets/portraits.png"));
}

}  // namespace
