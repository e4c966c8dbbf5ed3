// The layout of every window, control by control, as designed (controls.txt): what the live records and the
// real widgets are held against.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/controls.h"

struct ControlRow {
    std::string form;
    std::string name;
    int index;
    std::string kind;
    std::string parent;
    std::optional<int> left, top;  // where the design fixes them
    int width, height;
    bool visible;
    std::optional<Colour> back, fore;
    std::string tag;
    std::string text;  // or caption
    std::string tip;
};

/// Throws std::runtime_error for a line that isn't a row.
std::vector<ControlRow> ControlTable();

/// A kind as the table writes it.
std::string KindName(ControlKind kind);
