// Sheets for looking: contact sheets of every family, and both windows as they would look in play.
#pragma once

#include <vector>

#include "catalogue/entry.h"

namespace art {

std::vector<Entry> SheetsOf(const std::vector<Entry>& pictures);

}  // namespace art
