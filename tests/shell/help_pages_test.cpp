// What the help says of keys, the field manual says too.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <regex>
#include <string>

#include "shell/help_pages.h"

namespace {

TEST(HelpPagesTest, EveryKeyOfTheHelpIsInTheFieldManual) {
    std::ifstream file(FIELD_MANUAL);
    const std::string manual{std::istreambuf_iterator<char>(file), {}};
    const std::string help = KeysPage();
    const std::regex key(
        R"(((Ctrl|Alt|Shift)\+)+(up|down|plus|minus|[A-Z0-9])|\bF[0-9]+|\b(Insert|Delete|Home|End|Page Up|Page Down|Tab|Space|Enter|Esc)\b)");
    int keys = 0;
    for (auto found = std::sregex_iterator(help.begin(), help.end(), key); found != std::sregex_iterator();
         ++found) {
        EXPECT_NE(manual.find(found->str()), std::string::npos) << found->str();
        ++keys;
    }
    EXPECT_GT(keys, 40);
}

}  // namespace
