// Every reader of files, one after the other let loose on bytes that anybody could have written. The fuzzer
// makes such bytes up; the ordinary tests replay those that are kept in corpus/.
#pragma once

#include <string_view>
#include <vector>

/// The readers by name; each has its folder in corpus/.
std::vector<std::string_view> ReaderNames();

/// Gives `input` to a reader. It comes to its end, or to an error of its own that names the file and says
/// what was expected there. Whatever else happens is a fault: foreign errors pass through, and an error
/// without a clear message is a std::logic_error, as is an unknown name.
void RunReader(std::string_view name, std::string_view input);
