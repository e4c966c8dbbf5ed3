// Texts as JSON writes them.
#pragma once

#include <string>
#include <string_view>

/// In quotes, with what JSON can't hold escaped. The text is UTF-8.
std::string JsonQuoted(std::string_view text);
