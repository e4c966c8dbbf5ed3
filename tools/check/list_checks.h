// Checks the two small lists of dat/: the countries and the facings of the dossier.
#pragma once

#include <string>
#include <vector>

#include "tools/check/findings.h"

/// Codes and names in turn, as the game's own list. A line that is missing costs its own pair alone.
std::vector<std::string> CheckCountries(CheckedText& text);

/// Eight rows of five values, of which the dossier shows the fourth.
void CheckFacings(CheckedText& text);
