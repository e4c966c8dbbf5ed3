// Line charts as SVG: readable on light and dark pages, and by the colour-blind, since lines
// differ in colour, dashes and marks.
#pragma once

#include <string>
#include <vector>

struct ChartPoint {
    double x;
    double y;
};

struct ChartLine {
    std::string name;
    std::vector<ChartPoint> points;
};

/// An axis from 0 to `last`, with a gridline every `step`.
struct ChartAxis {
    std::string title;  // with its unit
    double last;
    double step;
};

struct LineChart {
    std::string title;
    ChartAxis across;
    ChartAxis up;
    std::vector<ChartLine> lines;  // up to eight
};

/// The whole file. Throws std::out_of_range for a ninth line.
std::string ChartSvg(const LineChart& chart);
