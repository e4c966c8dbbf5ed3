// The form of all campaign sources: blocks that begin with a head line ("soldier", "place 12 8", "store") and
// hold lines of a key and its values. "#" starts a comment, blank lines don't count.
#pragma once

#include <string>
#include <vector>

#include "source_text.h"

struct BlockLine {
    std::vector<SourceWord> words;  // the key first, without its colon
    SourcePlace end;                // where more words could follow
};

struct Block {
    BlockLine head;
    std::vector<BlockLine> lines;
};

/// The blocks of a source whose head lines begin with `headWord`.
std::vector<Block> ReadBlocks(const std::vector<std::string>& lines, const std::string& headWord,
                              SourceFaults& faults);

/// Takes the words of a line one after another; a missing one is a SourceError that says what was expected.
class LineWords {
  public:
    explicit LineWords(const BlockLine& of) : line(of) {}

    bool AtEnd() const { return next == line.words.size(); }
    const SourceWord& Take(const std::string& expected);
    SourcePlace Place() const { return AtEnd() ? line.end : line.words[next].place; }
    /// Refuses words that nobody took.
    void Finish() const;

  private:
    const BlockLine& line;
    std::size_t next = 0;
};
