// Countries' flags for soldiers' files and weapons' makers.
#pragma once

#include <string>
#include <vector>

#include <QImage>

namespace art {

// The names of all flag pictures: two capitals, and "void" for no country.
std::vector<std::string> FlagNames();

// 18 by 12.
QImage Flag(const std::string& name);

// The flag that the panel shows before any weapon was looked up: the squad's own.
QImage OwnFlag();

}  // namespace art
