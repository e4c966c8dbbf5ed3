// The countries file: pairs of lines, a code and the country's name.
#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Reads "\dat\countries.dat" into countryList. Throws RunTimeError with the line of an empty code or name.
void LoadCountries();

/// All codes, in the file's order.
std::vector<std::string> CountryCodes();

/// The name of the country with this code; empty when there is none. Upper and lower case differ.
std::string CountryName(std::string_view code);
