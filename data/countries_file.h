// The countries file: pairs of lines, a code, which is letters alone (A to Z, a to z), and the country's
// name.
#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Reads "\dat\countries.dat" into countryList. The last line may lack its end. Throws RunTimeError with line
/// and column of a code that isn't letters or has no name, and for a file without a country.
void LoadCountries();

/// All codes, in the file's order.
std::vector<std::string> CountryCodes();

/// The name of the country with this code; empty when there is none. Upper and lower case differ.
std::string CountryName(std::string_view code);
