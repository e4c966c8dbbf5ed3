#include "tools/check/list_checks.h"

#include <algorithm>
#include <array>
#include <cctype>

#include "platform/quoted.h"

namespace {

constexpr std::size_t FacingValues = 5;
constexpr std::size_t ShownValue = 3;
constexpr std::array<const char*, 8> FacingLetters = {"E", "W", "N", "S", "NE", "SE", "SW", "NW"};

bool IsCode(const std::string& text) {
    return text.size() == 2 &&
           std::all_of(text.begin(), text.end(), [](char c) { return c >= 'A' && c <= 'Z'; });
}

std::string UpperCase(std::string text) {
    for (char& c : text)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return text;
}

std::vector<SourceWord> SplitAtCommas(const std::string& line, int number) {
    std::vector<SourceWord> values;
    std::size_t begin = 0;
    while (begin <= line.size()) {
        const std::size_t end = std::min(line.find(',', begin), line.size());
        values.push_back({line.substr(begin, end - begin), {number, static_cast<int>(begin) + 1}});
        begin = end + 1;
    }
    return values;
}

void CheckFacing(const std::vector<SourceWord>& values, std::size_t facing, SourceFaults& faults) {
    faults.Try(
        [&] { NumberOf(values.front(), static_cast<int>(facing), static_cast<int>(facing), "facing"); });
    for (const std::size_t number : {std::size_t{1}, std::size_t{2}})
        faults.Try([&] { NumberOf(values[number], -1, 1, "step"); });
    const SourceWord& shown = values[ShownValue];
    if (shown.text != FacingLetters[facing])
        faults.Add({shown.place, Quoted(shown.text) + " for facing " + std::to_string(facing),
                    Quoted(FacingLetters[facing])});
    faults.Try([&] { NumberOf(values.back(), 0, 359, "number of degrees"); });
}

}  // namespace

std::vector<std::string> CheckCountries(CheckedText& text) {
    const std::vector<std::string>& lines = text.lines;
    std::vector<std::string> list;
    std::size_t i = 0;
    while (i < lines.size()) {
        const SourcePlace place{static_cast<int>(i) + 1, 1};
        const bool codeFollows = i + 1 < lines.size() && IsCode(lines[i + 1]);
        if (!IsCode(lines[i])) {
            const std::string meant = IsCode(UpperCase(lines[i])) ? UpperCase(lines[i]) : "";
            text.faults.Add(
                {place, Quoted(lines[i]) + " is no country's code", "two upper-case letters", meant});
            i += codeFollows ? 1 : 2;
            continue;
        }
        const std::string& code = lines[i];
        for (std::size_t other = 0; other < list.size(); other += 2)
            if (list[other] == code)
                text.faults.Add({place, "the country " + Quoted(code) + " comes twice", "each code once"});
        if (codeFollows || i + 1 == lines.size() || lines[i + 1].empty()) {
            text.faults.Add(
                {{place.line + 1, 1}, "the country " + Quoted(code) + " has no name", "its name"});
            i += codeFollows ? 1 : 2;
            continue;
        }
        list.push_back(code);
        list.push_back(lines[i + 1]);
        i += 2;
    }
    if (list.empty()) text.faults.Add({{1, 1}, "there are no countries", "codes and names in turn"});
    return list;
}

void CheckFacings(CheckedText& text) {
    for (std::size_t i = 0; i < text.lines.size() && i < FacingLetters.size(); ++i) {
        const int number = static_cast<int>(i) + 1;
        const std::vector<SourceWord> values = SplitAtCommas(text.lines[i], number);
        if (values.size() == FacingValues)
            CheckFacing(values, i, text.faults);
        else
            text.faults.Add({{number, static_cast<int>(text.lines[i].size()) + 1},
                             std::to_string(values.size()) + " values",
                             std::to_string(FacingValues) + " values"});
    }
    if (text.lines.size() < FacingLetters.size())
        text.faults.Add({{static_cast<int>(text.lines.size()) + 1, 1},
                         std::to_string(text.lines.size()) + " rows",
                         std::to_string(FacingLetters.size()) + " rows, one for each facing"});
}
