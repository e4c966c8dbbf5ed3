// The odds as charts over distance.
#pragma once

#include <string>
#include <vector>

#include "tools/lab/odds_tables.h"

struct ChartFile {
    std::string name;  // as "weapons.svg"
    std::string svg;
};

std::vector<ChartFile> OddsCharts(const OddsPlan& plan, OddsStudy& study);
