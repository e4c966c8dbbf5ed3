#include "blocks.h"

#include "nearest.h"
#include "platform/quoted.h"

namespace {

BlockLine SplitLine(const std::string& text, int number) {
    BlockLine line{SplitWords(text, number), {number, static_cast<int>(text.size()) + 1}};
    if (!line.words.empty() && line.words.front().text.front() == '#') line.words.clear();
    return line;
}

}  // namespace

std::vector<Block> ReadBlocks(const std::vector<std::string>& lines, const std::string& headWord,
                              SourceFaults& faults) {
    std::vector<Block> blocks;
    int number = 0;
    for (const std::string& text : lines) {
        BlockLine line;
        ++number;
        if (!faults.Try([&] { line = SplitLine(text, number); }) || line.words.empty()) continue;
        const SourceWord& first = line.words.front();
        if (first.text == headWord) {
            blocks.push_back({line, {}});
        } else if (blocks.empty()) {
            faults.Add({first.place, Quoted(first.text) + " stands outside a block",
                        Quoted(headWord) + " first", Nearest(first.text, {headWord})});
        } else {
            blocks.back().lines.push_back(line);
        }
    }
    if (blocks.empty())
        faults.Add({{number, 1}, "the source has no block", "at least one " + Quoted(headWord)});
    return blocks;
}

const SourceWord& LineWords::Take(const std::string& expected) {
    if (AtEnd()) throw SourceError(line.end, "the line ends too early", expected);
    return line.words[next++];
}

void LineWords::Finish() const {
    if (!AtEnd())
        throw SourceError(Place(), Quoted(line.words[next].text) + " is too much", "the end of the line");
}
