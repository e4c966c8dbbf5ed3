#include "tools/check/findings.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>

#include "platform/code_page.h"
#include "platform/quoted.h"
#include "tools/json_text.h"

namespace {

bool IsUtf8(const std::string& text) {
    int following = 0;  // bytes that the character still needs
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        const bool follows = (byte & 0xC0) == 0x80;
        if (follows != (following > 0)) return false;
        if (follows)
            --following;
        else
            following = byte < 0x80 ? 0 : byte >= 0xF0 ? 3 : byte >= 0xE0 ? 2 : 1;
    }
    return following == 0;
}

// Messages are UTF-8; what isn't is taken for the 8-bit code of the binary files.
std::string Shown(const std::string& text) {
    std::string shown = IsUtf8(text) ? text : FromCodePage(text);
    for (char& c : shown)
        if (static_cast<unsigned char>(c) < ' ' && c != '\t') c = '?';
    return shown;
}

// What is shown of a line: some 200 bytes, those before the fault among them.
void TakeText(const std::string& line, Finding& finding) {
    constexpr std::size_t Most = 200, Before = 100;
    const auto at = static_cast<std::size_t>(finding.column) - 1;
    const std::size_t start = line.size() > Most && at > Before ? WholeCharacters(line, at - Before) : 0;
    const std::string_view rest = std::string_view(line).substr(start);
    finding.text = rest.substr(0, WholeCharacters(rest, Most));
    finding.textColumn = static_cast<int>(start) + 1;
}

// Blanks up to the column, tabs where the line has them; the bytes after the first of a character take no
// room.
std::string CaretLine(const std::string& text, int column) {
    std::string caret;
    for (std::size_t i = 0; i + 1 < static_cast<std::size_t>(column); ++i) {
        const bool follows = i < text.size() && (static_cast<unsigned char>(text[i]) & 0xC0) == 0x80;
        if (!follows) caret.push_back(i < text.size() && text[i] == '\t' ? '\t' : ' ');
    }
    return caret + "^";
}

std::string Place(const Finding& finding) {
    if (finding.line > 0)
        return finding.file + ":" + std::to_string(finding.line) + ":" + std::to_string(finding.column);
    if (finding.record == 0) return finding.file;
    return finding.file + ": record " + std::to_string(finding.record) + ", " + finding.field + ", byte " +
           std::to_string(finding.byte);
}

}  // namespace

std::string ReadChecked(const std::filesystem::path& path, Findings& findings, std::size_t most) {
    std::error_code error;
    const auto size = std::filesystem::file_size(path, error);
    std::ifstream file;
    if (!error && size <= most) file.open(path, std::ios::binary);
    if (file.is_open()) return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    Finding finding;
    finding.file = path.string();
    const bool large = !error && size > most;
    finding.wrong = large ? std::to_string(size) + " bytes" : "the file can't be opened";
    finding.expected = large ? std::to_string(most) + " bytes at most" : "a file of the game";
    findings.push_back(finding);
    return "";
}

CheckedText OpenText(const std::filesystem::path& path, Findings& findings) {
    CheckedText text;
    text.path = path;
    text.content = ReadChecked(path, findings);
    std::size_t begin = 0;
    while (begin < text.content.size()) {
        const std::size_t end = std::min(text.content.find('\n', begin), text.content.size());
        std::string line = text.content.substr(begin, end - begin);
        if (line.ends_with('\r')) line.pop_back();
        text.lines.push_back(line);
        begin = end + 1;
    }
    return text;
}

void TakeFaults(const CheckedText& text, Findings& findings) {
    for (const SourceError& fault : text.faults.Sorted()) {
        Finding finding;
        finding.file = text.path.string();
        finding.line = fault.place.line;
        finding.column = fault.place.column;
        finding.wrong = Shown(fault.wrong);
        finding.expected = fault.expected;
        finding.meant = fault.meant;
        const auto index = static_cast<std::size_t>(fault.place.line) - 1;
        if (index < text.lines.size()) TakeText(text.lines[index], finding);
        findings.push_back(finding);
    }
}

std::string FindingsText(const Findings& findings) {
    std::string shown;
    for (const Finding& finding : findings) {
        shown += Place(finding) + ": " + FaultMessage(finding.wrong, finding.expected, finding.meant) + "\n";
        if (!finding.text.empty())
            shown += "    " + Shown(finding.text) + "\n    " +
                     CaretLine(finding.text, finding.column - finding.textColumn + 1) + "\n";
    }
    return shown;
}

std::string FindingsJson(const Findings& findings) {
    auto list = nlohmann::ordered_json::array();
    for (const Finding& finding : findings) {
        nlohmann::ordered_json json = {{"file", finding.file}};
        if (finding.line > 0) json.update({{"line", finding.line}, {"column", finding.column}});
        if (finding.record > 0)
            json.update({{"record", finding.record}, {"field", finding.field}, {"byte", finding.byte}});
        json.update({{"wrong", finding.wrong}, {"expected", finding.expected}});
        if (!finding.meant.empty()) json["meant"] = finding.meant;
        list.push_back(json);
    }
    return JsonText(list);
}
