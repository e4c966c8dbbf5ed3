#include "source_text.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <tuple>

#include "nearest.h"
#include "platform/files.h"
#include "platform/quoted.h"

namespace {

void RefuseControlCharacters(std::string_view text, int line) {
    constexpr unsigned char FirstPrintable = ' ', Delete = 127;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto code = static_cast<unsigned char>(text[i]);
        if (text[i] != '\t' && (code < FirstPrintable || code == Delete)) {
            throw SourceError({line, static_cast<int>(i) + 1}, "a control character", "printable text");
        }
    }
}

}  // namespace

std::string FaultMessage(const std::string& wrong, const std::string& expected, const std::string& meant) {
    return wrong + ", expected " + expected + (meant.empty() ? "" : ", did you mean " + Quoted(meant) + "?");
}

SourceError::SourceError(SourcePlace at, const std::string& what, const std::string& instead,
                         const std::string& suggestion)
    : std::runtime_error(FaultMessage(what, instead, suggestion)),
      place(at),
      wrong(what),
      expected(instead),
      meant(suggestion) {}

std::vector<SourceError> SourceFaults::Sorted() const {
    std::vector<SourceError> sorted = faults;
    std::stable_sort(sorted.begin(), sorted.end(), [](const SourceError& one, const SourceError& other) {
        return std::tie(one.place.line, one.place.column) < std::tie(other.place.line, other.place.column);
    });
    return sorted;
}

std::vector<std::string> ReadSourceLines(const std::string& path) {
    std::error_code error;
    if (std::filesystem::file_size(path, error) > MaxDataFile && !error)
        throw std::runtime_error("expected up to " + std::to_string(MaxDataFile) + " bytes");
    std::ifstream file(path, std::ios::binary);
    if (!file) throw std::runtime_error("can't open " + path);
    std::vector<std::string> lines;
    for (std::string text; std::getline(file, text);) {
        if (!text.empty() && text.back() == '\r') text.pop_back();
        lines.push_back(text);
    }
    return lines;
}

std::vector<SourceWord> SplitWords(std::string_view text, int line) {
    constexpr std::string_view Blanks = " \t";
    std::vector<SourceWord> words;
    RefuseControlCharacters(text, line);
    std::size_t begin = text.find_first_not_of(Blanks);
    while (begin != std::string_view::npos) {
        const std::size_t end = std::min(text.find_first_of(Blanks, begin), text.size());
        const std::string_view word = text.substr(begin, end - begin);
        if (word == "#") break;
        words.push_back({std::string(word), {line, static_cast<int>(begin) + 1}});
        begin = text.find_first_not_of(Blanks, end);
    }
    return words;
}

int NumberOf(const SourceWord& word, int low, int high, const std::string& name) {
    int value = 0;
    const char* const end = word.text.data() + word.text.size();
    const auto [last, error] = std::from_chars(word.text.data(), end, value);
    if (error != std::errc{} || last != end || value < low || value > high) {
        throw SourceError(word.place, Quoted(word.text) + " is no " + name,
                          "a number from " + std::to_string(low) + " to " + std::to_string(high));
    }
    return value;
}

std::string JoinWords(const std::vector<std::string>& list) {
    std::string text;
    for (const std::string& word : list)
        text += (text.empty() ? "" : ", ") + word;
    return text;
}

int IndexOf(const SourceWord& word, const std::vector<std::string>& list, const std::string& name) {
    const auto found = std::find(list.begin(), list.end(), word.text);
    if (found == list.end()) {
        throw SourceError(word.place, Quoted(word.text) + " is no " + name, "one of " + JoinWords(list),
                          Nearest(word.text, list));
    }
    return static_cast<int>(found - list.begin());
}

int RunCompiler(const std::string& source, const std::function<void(SourceFaults&)>& work) {
    SourceFaults faults;
    try {
        faults.Try([&] { work(faults); });
    } catch (const std::exception& error) {
        std::cerr << source << ": " << error.what() << '\n';
        return 1;
    }
    for (const SourceError& fault : faults.Sorted())
        std::cerr << source << ':' << fault.place.line << ':' << fault.place.column << ": " << fault.what()
                  << '\n';
    return faults.Empty() ? 0 : 1;
}
