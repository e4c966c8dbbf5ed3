#include "nearest.h"

#include <algorithm>

std::size_t EditDistance(std::string_view one, std::string_view other) {
    std::vector<std::size_t> before, last, row(other.size() + 1);
    for (std::size_t j = 0; j <= other.size(); ++j)
        row[j] = j;
    for (std::size_t i = 1; i <= one.size(); ++i) {
        before = last;
        last = row;
        row[0] = i;
        for (std::size_t j = 1; j <= other.size(); ++j) {
            const std::size_t exchange = one[i - 1] == other[j - 1] ? 0 : 1;
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + exchange});
            if (i > 1 && j > 1 && one[i - 1] == other[j - 2] && one[i - 2] == other[j - 1])
                row[j] = std::min(row[j], before[j - 2] + 1);
        }
    }
    return row.back();
}

std::string Nearest(std::string_view word, const std::vector<std::string>& words) {
    std::size_t least = std::max<std::size_t>(word.size() / 3, 1) + 1;
    std::string nearest;
    for (const std::string& candidate : words) {
        const std::size_t longer = std::max(word.size(), candidate.size());
        if (longer - std::min(word.size(), candidate.size()) >= least) continue;  // so many edits at least
        const std::size_t distance = EditDistance(word, candidate);
        if (distance >= least || distance == 0) continue;
        least = distance;
        nearest = candidate;
    }
    return nearest;
}
