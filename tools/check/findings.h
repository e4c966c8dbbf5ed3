// What sarnoth-check has found, and how it tells it to people and to programs.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

#include "platform/files.h"
#include "source_text.h"

struct Finding {
    std::string file;
    int line = 0;  // from 1; 0 in a binary file and for a file as a whole
    int column = 0;
    int record = 0;  // of a binary file, from 1
    std::string field;
    std::size_t byte = 0;  // from the file's start
    std::string wrong, expected, meant;
    std::string text;    // the line, or what is shown of a long one
    int textColumn = 1;  // where in the line it begins
};

using Findings = std::vector<Finding>;

/// A text under check: its lines without their ends, and the faults found so far.
struct CheckedText {
    std::filesystem::path path;
    std::string content;
    std::vector<std::string> lines;
    SourceFaults faults;
};

/// A file's bytes. A file that isn't there, or has more than `most` bytes, is a finding, and the content
/// empty.
std::string ReadChecked(const std::filesystem::path& path, Findings& findings,
                        std::size_t most = MaxDataFile);

/// The same as lines. The last one may lack its end.
CheckedText OpenText(const std::filesystem::path& path, Findings& findings);

/// Moves the faults of a text to the findings, of a long line what lies around its fault.
void TakeFaults(const CheckedText& text, Findings& findings);

/// For each finding "file:line:column: what", the line and a caret under the column; of a binary file record,
/// field and byte.
std::string FindingsText(const Findings& findings);

/// A list of objects with the fields of Finding that a finding has.
std::string FindingsJson(const Findings& findings);
