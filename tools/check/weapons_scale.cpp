#include "tools/check/weapons_scale.h"

namespace {

constexpr FigureRange None = {0, 0};

// clang-format off
constexpr GroupScale Scales[] = {
    // group     kinds  power       accur      time      range     durab
    {"hand",     "w", {{{  1,  20}, {80, 100}, { 4, 12}, { 1,  1}, {1000, 1000}}}},
    {"blade",    "w", {{{ 15,  70}, {40, 100}, { 6, 20}, { 4, 14}, { 100, 1000}}}},
    {"tool",     "w", {{{  8,  50}, {40,  80}, {12, 30}, { 1,  1}, { 400, 1000}}}},
    {"grenade",  "w", {{{ 80, 250}, {60, 100}, {20, 45}, {10, 25}, {1000, 1000}}}},
    {"charge",   "w", {{{250, 600}, {80, 100}, {25, 60}, { 1,  6}, {1000, 1000}}}},
    {"launcher", "w", {{{120, 220}, {65,  95}, {44, 110}, {25, 45}, { 300,  900}}}},
    {"shotgun",  "w", {{{180, 360}, {50,  90}, {26,  70}, { 8, 20}, { 300,  900}}}},
    {"bow",      "w", {{{ 15,  90}, {75, 100}, {15, 45}, { 8, 30}, { 300,  800}}}},
    {"air",      "w", {{{  5,  20}, {85, 100}, {26,  62}, {10, 20}, { 400,  900}}}},
    {"rimfire",  "w", {{{ 20,  45}, {45, 100}, {11,  55}, {15, 35}, { 300,  900}}}},
    {"pistol",   "mw", {{{30,  55}, {50,  85}, {13,  44}, {12, 26}, { 300, 1000}}}},
    {"smg",      "m", {{{ 30,  55}, {45,  85}, {13,  31}, {14, 32}, { 300, 1000}}}},
    {"rifle",    "m", {{{ 45, 100}, {55,  95}, {22,  44}, {24, 55}, { 400, 1000}}}},
    {"auto",     "m",  {{{ 60, 200}, {55,  98}, { 3,  20}, {24, 45}, { 400, 1000}}}},
    {"combo",    "m", {{{ 60, 120}, {60,  92}, {26,  48}, {24, 50}, { 400, 1000}}}},
    {"sniper",   "mw", {{{60, 170}, {80, 100}, {31,  70}, {36, 80}, { 400, 1000}}}},
    {"mg",       "m", {{{ 45, 110}, {55,  92}, {15,  40}, {36, 65}, { 400, 1000}}}},
    {"ammo",     "a", {{None, None, None, None, None}}},
    {"equip",    "i", {{None, None, None, None, None}}},
    {"thing",    "s", {{None, None, None, None, None}}},
};
// clang-format on

}  // namespace

std::span<const GroupScale> GroupScales() {
    return Scales;
}

const GroupScale* ScaleOf(std::string_view group) {
    for (const GroupScale& scale : Scales)
        if (group == scale.group) return &scale;
    return nullptr;
}
