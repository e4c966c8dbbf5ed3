// The fields of the game's records by name, for whoever shows, compares or sums them up. Each list names the
// record's fields in their order; one too few or too many doesn't compile.
#pragma once

#include <string_view>
#include <tuple>

#include "state/state.h"

// clang-format off
#define NAME_FIELDS(Record, ...)                                               \
    inline auto FieldsOf(const Record& record) {                               \
        const auto& [__VA_ARGS__] = record;                                    \
        return std::tie(__VA_ARGS__);                                          \
    }                                                                          \
    constexpr std::string_view NamesOf(const Record& /*record*/) { return #__VA_ARGS__; }

NAME_FIELDS(InvItem, name, count, durab, ammoMain, capMain, roundsMain, ammoSecond, capSecond, roundsSecond)
NAME_FIELDS(WeaponInfo, name, range, sound, power, accur, time, durab, param9, kind, modes, weaponClass,
            ammoSecond, param13, param14, unitCount, param16, title, fullName, country)
NAME_FIELDS(ItemKind, name, title, sizes)
NAME_FIELDS(Award, name, title, repeatable, chained)
NAME_FIELDS(Unit, serialNo, rank, name, country, facePrefix, faceGroup, faceNo, faceType, vitality, strength,
            agility, perception, intelligence, mood, marksmanship, stealth, melee, sidearms, smgs, rifles,
            machineguns, explosives, cellX, cellY, team, enemyTeam, pixelX, pixelY, facing, stance, fireMode,
            time, health, energy, aimChance, status, wasWounded, load, hand, handCap, handRounds, items,
            awards, spare, aiWary, aiReserve, seen, itemCount)
NAME_FIELDS(Cell, occupant, tileX, tileY, durab, extra, spare, block)
NAME_FIELDS(Spot, x, y)
NAME_FIELDS(ModeChoice, offered, chosen, weapon)
// clang-format on

#undef NAME_FIELDS

// The flight's fields have names of the whole game, which no binding may take.
inline auto FieldsOf(const FlightValues& values) {
    const auto& [a, b, c, d, e, f, g] = values;
    return std::tie(a, b, c, d, e, f, g);
}
#define NAME_FIELD(name) #name ", "
constexpr std::string_view NamesOf(const FlightValues& /*values*/) {
    return FLIGHT_FIELDS(NAME_FIELD);
}
#undef NAME_FIELD
