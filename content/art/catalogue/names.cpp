#include "catalogue/names.h"

#include <fnmatch.h>

#include "map/nearest.h"

namespace art {

bool Matches(const std::string& path, const std::string& name) {
    return fnmatch(name.c_str(), path.c_str(), 0) == 0 || fnmatch(name.c_str(), Stem(path).c_str(), 0) == 0;
}

std::string Meant(std::string_view word, const std::vector<std::string>& words) {
    const std::string nearest = Nearest(word, words);
    return nearest.empty() ? "" : "; did you mean " + nearest + "?";
}

std::vector<const Entry*> Named(const std::vector<Entry>& entries, const std::string& name) {
    std::vector<const Entry*> found;
    std::vector<std::string> stems;
    for (const Entry& entry : entries) {
        if (Matches(entry.path, name)) found.push_back(&entry);
        stems.push_back(Stem(entry.path));
    }
    if (!found.empty()) return found;
    const std::string meant = Meant(Stem(name), stems);
    throw UsageFault("no picture is called \"" + name + '"' +
                     (meant.empty() ? "; --list names them all" : meant));
}

}  // namespace art
