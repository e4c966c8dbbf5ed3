#include "tools/lab/arguments.h"

#include <algorithm>
#include <charconv>

#include "tools/usage_error.h"

namespace lab {

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

std::uint32_t Arguments::Number(const std::string& name, std::uint32_t otherwise) const {
    return Has(name) ? ReadNumber(values.at(name)) : otherwise;
}

std::uint32_t ReadNumber(const std::string& text) {
    std::uint32_t number = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (text.empty() || stop != end || error != std::errc())
        throw UsageError("\"" + text + "\" is no whole number from 0 to 4294967295");
    return number;
}

}  // namespace lab
