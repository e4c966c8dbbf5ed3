#include "platform/code_page.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace {

// The characters of the codes 128 to 159; all others stand for the character of their own number.
constexpr std::array<std::uint16_t, 32> Special = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr std::uint32_t Broken = 0xFFFFFFFF;

std::uint32_t CharacterOf(std::uint8_t code) {
    return code >= 128 && code < 160 ? Special[code - 128U] : code;
}

char CodeOf(std::uint32_t character) {
    for (std::size_t i = 0; i < Special.size(); ++i)
        if (Special[i] == character) return static_cast<char>(128 + i);
    const bool direct = character < 128 || (character >= 160 && character < 256);
    return direct ? static_cast<char>(character) : '?';
}

void AppendUtf8(std::string& text, std::uint32_t character) {
    const auto put = [&text](std::uint32_t byte) { text.push_back(static_cast<char>(byte)); };
    if (character < 0x80) {
        put(character);
    } else if (character < 0x800) {
        put(0xC0 | character >> 6);
        put(0x80 | (character & 0x3F));
    } else {
        put(0xE0 | character >> 12);
        put(0x80 | (character >> 6 & 0x3F));
        put(0x80 | (character & 0x3F));
    }
}

// The character that starts at `position`, which moves past it.
std::uint32_t NextCharacter(std::string_view text, std::size_t& position) {
    const auto lead = static_cast<std::uint8_t>(text[position++]);
    if (lead < 0x80) return lead;
    const int more = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC0 ? 1 : 0;
    if (more == 0) return Broken;
    std::uint32_t character = lead & (0x3FU >> more);
    for (int i = 0; i < more; ++i) {
        if (position == text.size()) return Broken;
        const auto next = static_cast<std::uint8_t>(text[position]);
        if ((next & 0xC0) != 0x80) return Broken;
        character = character << 6 | (next & 0x3FU);
        ++position;
    }
    return character;
}

}  // namespace

std::string FromCodePage(std::string_view bytes) {
    // Nearly every text of the data is ASCII alone, and stays as it is.
    constexpr auto isAscii = [](char byte) { return static_cast<std::uint8_t>(byte) < 0x80; };
    if (std::all_of(bytes.begin(), bytes.end(), isAscii)) return std::string(bytes);
    std::string text;
    for (const char byte : bytes)
        AppendUtf8(text, CharacterOf(static_cast<std::uint8_t>(byte)));
    return text;
}

std::string ToCodePage(std::string_view text) {
    std::string bytes;
    for (std::size_t position = 0; position < text.size();)
        bytes.push_back(CodeOf(NextCharacter(text, position)));
    return bytes;
}
