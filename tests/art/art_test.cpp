// The pictures where the eye misses a fault: sprites against their masks, and the flags of 185 countries.
#include <map>

#include "tests/support/game_test.h"
#include "view/stored_pictures.h"

namespace {

using ArtTest = GameTest;

TEST_F(ArtTest, MasksAreBlackOrWhiteOverBlackSprites) {
    struct Sheet {
        const char* name;
        int spriteTop, maskTop, height;
    };
    constexpr Sheet Sheets[] = {{"picPeople.bmp", 0, 160, 160},
                                {"picSprites.bmp", 0, 160, 160},
                                {"picForest.bmp", 0, 20, 20},
                                {"picScript.bmp", 8, 0, 8}};
    constexpr Colour Black = Rgb(0, 0, 0);
    for (const Sheet& row : Sheets) {
        const Picture& sheet = StoredPicture(row.name);
        for (int y = 0; y < row.height; ++y)
            for (int x = 0; x < sheet.Width(); ++x) {
                const Colour mask = sheet.Pixel(x, row.maskTop + y);
                const bool clear = mask == Rgb(255, 255, 255) && sheet.Pixel(x, row.spriteTop + y) == Black;
                ASSERT_TRUE(mask == Black || clear) << row.name << " " << x << " " << y;
            }
    }
}

TEST_F(ArtTest, EveryCountryHasAFlagOfItsOwn) {
    StartGame();
    std::map<std::string, std::string> owners;
    for (std::size_t i = 0; i < countryList.size(); i += 2) {
        const std::string& code = countryList[i];
        const std::string content = folder.Read("pic/flags/" + code + ".gif");
        ASSERT_FALSE(content.empty()) << code;
        const auto [place, fresh] = owners.emplace(content, code);
        EXPECT_TRUE(fresh) << code << " looks like " << place->second;
    }
    EXPECT_EQ(owners.size(), 185U);
}

}  // namespace
