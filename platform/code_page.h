// The 8-bit code of the binary files, Windows-1252, and the UTF-8 that the game holds in memory.
#pragma once

#include <string>
#include <string_view>

/// One byte a character to UTF-8. The five codes without a character keep their number.
std::string FromCodePage(std::string_view bytes);

/// UTF-8 to one byte a character; what the code page lacks, and broken UTF-8, becomes "?".
std::string ToCodePage(std::string_view text);
