// The squad as a page for people: who each soldier is, by what the data say of him.
#pragma once

#include <string>

/// Markdown, of the roster that was loaded last. `faces` is the folder of the portraits, as the page links to
/// it.
std::string RosterMarkdown(const std::string& faces);
