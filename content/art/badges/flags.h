// Countries' flags for soldiers' files and weapons' makers.
#pragma once

#include <string_view>
#include <vector>

#include <QImage>

#include "badges/flag_cloth.h"

namespace art {

struct FlagRow {
    const char* name;  // two capitals, or "void" for no country
    std::vector<Cloth> layers;
};

// Every country that a soldier or a maker can come from.
const std::vector<FlagRow>& Flags();

QImage Flag(std::string_view name);

// The flag that the panel shows before any weapon was looked up: the squad's own.
QImage OwnFlag();

}  // namespace art
