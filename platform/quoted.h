// Text of a file as messages show it: cut, so that a line of megabytes stays readable.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// How many of the first `most` bytes of a UTF-8 text stay when it is cut there and no character is split.
inline std::size_t WholeCharacters(std::string_view text, std::size_t most) {
    if (text.size() <= most) return text.size();
    while (most > 0 && (static_cast<unsigned char>(text[most]) & 0xC0) == 0x80)
        --most;
    return most;
}

/// `text`, with "..." in the place of what is beyond its first 60 bytes.
inline std::string Shortened(std::string_view text) {
    constexpr std::size_t Most = 60;
    const std::size_t shown = WholeCharacters(text, Most);
    return std::string(text.substr(0, shown)) + (shown < text.size() ? "..." : "");
}

/// The same in double quotes.
inline std::string Quoted(std::string_view text) {
    std::string quoted = "\"";
    quoted += Shortened(text);
    return quoted += '"';
}
