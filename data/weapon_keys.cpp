#include "data/weapon_keys.h"

#include <algorithm>
#include <iterator>

namespace {

using Feed = NeededFeed;

// The kind of its row says what feeds a new one has.
constexpr std::nullopt_t ByKind = std::nullopt;

// clang-format off
constexpr WeaponKey Keys[] = {
    //             family of action        a new one's feeds     its row
    // key         else      "Secondary"   main rounds second    needs         why
    {"hand",      "",        "",           ByKind,               Feed::Main,   "is held by who holds nothing"},
    {"ak",        "",        "",           ByKind,               Feed::Main,   "is what the computer's soldiers carry"},
    {"med",       "cure",    "cure",       ByKind,               Feed::Main,   "heals"},
    {"c4",        "charge",  "charge",     ByKind,               Feed::None,   "is set as a charge"},
    {"m67",       "gren",    "gren",       ByKind,               Feed::Main,   "explodes where it stops"},
    {"m67a2",     "gren",    "gren",       ByKind,               Feed::Main,   "explodes where it stops"},
    {"m367",      "gren",    "gren",       ByKind,               Feed::Main,   "explodes where it stops"},
    {"etool",     "dig",     "dig",        ByKind,               Feed::None,   "digs and folds"},
    {"etoolfold", "dig",     "dig",        ByKind,               Feed::None,   "unfolds"},
    {"bsl",       "dig",     "dig",        ByKind,               Feed::None,   "digs"},
    {"mpl",       "dig",     "dig",        ByKind,               Feed::None,   "digs"},
    {"m203",      "bloop",   "bloop",      NewFeeds{  0, 0,  1}, Feed::Second, "launches grenades"},
    {"mm1",       "bloop",   "bloop",      NewFeeds{  0, 0, 12}, Feed::Second, "launches grenades"},
    {"m4m203",    "fire",    "bloop",      NewFeeds{  0, 0,  1}, Feed::Second, "launches grenades as its second mode"},
    {"steyrm203", "fire",    "bloop",      NewFeeds{  0, 0,  1}, Feed::Second, "launches grenades as its second mode"},
    {"xm8xm320",  "fire",    "bloop",      NewFeeds{  0, 0,  1}, Feed::Second, "launches grenades as its second mode"},
    {"famasm203", "fire",    "bloop",      NewFeeds{  0, 0,  1}, Feed::Second, "launches grenades as its second mode"},
    {"xm8lss",    "fire",    "shot",       NewFeeds{  0, 0,  6}, Feed::Second, "fires pellets as its second mode"},
    {"mkey",      "fire",    "shot",       NewFeeds{  0, 0,  5}, Feed::Second, "fires pellets as its second mode"},
    {"nova",      "shot",    "shot",       NewFeeds{  0, 0,  6}, Feed::Second, "fires pellets"},
    {"spas",      "shot",    "shot",       NewFeeds{  0, 0,  6}, Feed::Second, "fires pellets"},
    {"super90",   "shot",    "shot",       NewFeeds{  0, 0,  7}, Feed::Second, "fires pellets"},
    {"jackham",   "shot",    "shot",       NewFeeds{  0, 0, 10}, Feed::Second, "fires pellets"},
    {"rem870s",   "shot",    "shot",       NewFeeds{  0, 0,  5}, Feed::Second, "fires pellets"},
    {"rem870m",   "shot",    "shot",       NewFeeds{  0, 0,  7}, Feed::Second, "fires pellets"},
    {"rem870l",   "shot",    "shot",       NewFeeds{  0, 0,  8}, Feed::Second, "fires pellets"},
    {"rem870gs",  "shot",    "shot",       NewFeeds{  0, 0,  8}, Feed::Second, "fires pellets"},
    {"crossbow",  "dart",    "dart",       NewFeeds{  0, 0,  1}, Feed::Second, "shoots from its second feed"},
    {"airpipe",   "dart",    "dart",       NewFeeds{  0, 0,  1}, Feed::Second, "shoots from its second feed"},
    {"anschutz",  "varmint", "varmint",    NewFeeds{ 25, 0,  0}, Feed::Main,   "has a feed of its own size"},
    {"american",  "varmint", "varmint",    NewFeeds{220, 0,  0}, Feed::Main,   "has a feed of its own size"},
    {"anslgw",    "",        "",           NewFeeds{  1, 0,  0}, Feed::Main,   "has a feed of its own size"},
    {"anslgg",    "",        "",           NewFeeds{  1, 0,  0}, Feed::Main,   "has a feed of its own size"},
    {"anslgs",    "",        "",           NewFeeds{  1, 0,  0}, Feed::Main,   "has a feed of its own size"},
    {"luger",     "",        "",           NewFeeds{  8, 0,  0}, Feed::Main,   "has a feed of its own size"},
    {"lahti",     "",        "",           NewFeeds{  8, 0,  0}, Feed::Main,   "has a feed of its own size"},
    {"smle",      "",        "",           NewFeeds{ 10, 0,  0}, Feed::Main,   "has a feed of its own size"},
    {"smlet",     "",        "",           NewFeeds{ 10, 0,  0}, Feed::Main,   "has a feed of its own size"},
    {"thronives", "",        "",           NewFeeds{  3, 3,  0}, Feed::Main,   "comes in a set"},
    {"shuriken",  "",        "",           NewFeeds{  4, 4,  0}, Feed::Main,   "comes in a set"},
    {"shaken",    "",        "",           NewFeeds{  4, 4,  0}, Feed::Main,   "comes in a set"},
};
// clang-format on
static_assert(std::size(Keys) == 41);

}  // namespace

std::span<const WeaponKey> WeaponKeys() {
    return Keys;
}

const WeaponKey* WeaponKeyOf(std::string_view key) {
    const auto* const row = std::find_if(std::begin(Keys), std::end(Keys),
                                         [key](const WeaponKey& known) { return known.key == key; });
    return row == std::end(Keys) ? nullptr : row;
}
