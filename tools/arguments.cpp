#include "tools/arguments.h"

#include <algorithm>
#include <charconv>

namespace {

std::uint32_t ReadNumber(const std::string& text, std::uint32_t least, std::uint32_t most) {
    std::uint32_t number = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (text.empty() || stop != end || error != std::errc() || number < least || number > most)
        throw UsageError("\"" + text + "\" is no whole number from " + std::to_string(least) + " to " +
                         std::to_string(most));
    return number;
}

std::uint32_t ReadSeed(const std::string& text) {
    return ReadNumber(text, 0, std::numeric_limits<std::uint32_t>::max());
}

}  // namespace

Arguments::Arguments(const std::vector<std::string>& words, std::initializer_list<std::string_view> options,
                     std::initializer_list<std::string_view> flags, std::size_t plainWords) {
    const auto among = [](std::initializer_list<std::string_view> list, const std::string& word) {
        return std::find(list.begin(), list.end(), word) != list.end();
    };
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string& word = words[i];
        if (among(flags, word)) {
            values[word] = "";
        } else if (among(options, word)) {
            if (++i == words.size()) throw UsageError(word + " needs a value");
            values[word] = words[i];
        } else if (word.starts_with("-") || plain.size() == plainWords) {
            throw UsageError("what is \"" + word + "\"?");
        } else {
            plain.push_back(word);
        }
    }
    if (plain.size() < plainWords) throw UsageError("a file is missing");
}

std::string Arguments::Text(const std::string& name, const std::string& otherwise) const {
    const auto found = values.find(name);
    return found == values.end() ? otherwise : found->second;
}

std::uint32_t Arguments::Number(const std::string& name, std::uint32_t otherwise, std::uint32_t least,
                                std::uint32_t most) const {
    return Has(name) ? ReadNumber(values.at(name), least, most) : otherwise;
}

SeedRange Arguments::Seeds(const std::string& name, SeedRange otherwise) const {
    if (!Has(name)) return otherwise;
    const std::string& text = values.at(name);
    const std::size_t dots = text.find("..");
    if (dots == std::string::npos) throw UsageError(name + " needs A..B, as 1..1000");
    const SeedRange seeds = {ReadSeed(text.substr(0, dots)), ReadSeed(text.substr(dots + 2))};
    if (seeds.first > seeds.last) throw UsageError(name + " counts upward: " + text);
    return seeds;
}

std::filesystem::path Arguments::DataFolder(const std::string& name,
                                            const std::filesystem::path& otherwise) const {
    if (!Has(name)) return otherwise;
    std::filesystem::path folder = values.at(name);
    if (!std::filesystem::is_directory(folder / "dat"))
        throw UsageError("no folder with dat/: " + folder.string());
    return folder;
}
