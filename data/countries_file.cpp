#include "data/countries_file.h"

#include <cstddef>

#include "platform/files.h"
#include "platform/quoted.h"
#include "state/state.h"

namespace {

// A code is also a picture's file name.
bool IsCode(const std::string& text) {
    for (const char c : text)
        if (!((c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'))) return false;
    return !text.empty();
}

}  // namespace

void LoadCountries() {
    TextReader file("\\dat\\countries.dat");
    countryList.clear();
    while (!file.AtEnd()) {
        const int line = file.Line();
        const std::string code = file.ReadLine();
        if (!IsCode(code))
            file.RefuseAt(line, 1, "expected a country's code, letters alone, found " + Quoted(code));
        const std::string name = file.AtEnd() ? "" : file.ReadLine();
        if (name.empty())
            file.RefuseAt(line + 1, 1, "expected the name of the country " + Quoted(code) + ", found none");
        countryList.push_back(code);
        countryList.push_back(name);
    }
    if (countryList.empty())
        file.Refuse("expected a country's code, letters alone, found the end of the file");
}

std::vector<std::string> CountryCodes() {
    std::vector<std::string> codes;
    codes.reserve(countryList.size() / 2);
    for (std::size_t i = 0; i < countryList.size(); i += 2)
        codes.push_back(countryList[i]);
    return codes;
}

std::string CountryName(std::string_view code) {
    for (std::size_t i = 0; i + 1 < countryList.size(); i += 2)
        if (countryList[i] == code) return countryList[i + 1];
    return "";
}
