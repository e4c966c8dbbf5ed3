// What the writer and the reader of Tiled maps share. A map "49" is a .tmx with the tile layer "terrain" over
// the tile sheet, an object layer "things" with an object for each thing on the ground, and an object layer
// "landing" with an object on each landing spot of the computer's team.
#pragma once

#include <span>
#include <string>
#include <variant>

#include "state/state.h"

constexpr const char* TerrainLayer = "terrain";
constexpr const char* ThingsLayer = "things";
constexpr const char* LandingLayer = "landing";
constexpr const char* PlaceProperty = "place";  // which of the thirty places of its cell a thing has
constexpr const char* SheetFile = "picMap.bmp";
constexpr int SheetSize = 640;  // pixels, both ways
constexpr int FirstGid = 1;     // the number of the sheet's first tile, row by row

/// A field of a thing that a property of the same name holds; the thing's name is the object's.
struct ThingProperty {
    const char* name;
    std::variant<u8 InvItem::*, i16 InvItem::*, std::string InvItem::*> member;
};

inline const ThingProperty ThingProperties[] = {
    {"count", &InvItem::count},           {"durab", &InvItem::durab},
    {"ammoMain", &InvItem::ammoMain},     {"capMain", &InvItem::capMain},
    {"roundsMain", &InvItem::roundsMain}, {"ammoSecond", &InvItem::ammoSecond},
    {"capSecond", &InvItem::capSecond},   {"roundsSecond", &InvItem::roundsSecond},
};
