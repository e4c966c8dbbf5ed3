// What the compilers of text sources share: reading a source by lines and words, and the one way in which
// they refuse it: "file:line:column: what is wrong, expected ...". Lines and columns count from 1.
#pragma once

#include <cstddef>
#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

struct SourcePlace {
    int line = 1;
    int column = 1;
};

class SourceError : public std::runtime_error {
  public:
    /// `meant` is what the writer may have meant; empty when there is nothing to suggest.
    SourceError(SourcePlace at, const std::string& wrong, const std::string& expected,
                const std::string& meant = "");

    SourcePlace place;
    std::string wrong, expected, meant;
};

/// Gathers the faults of a source, so that a reader goes on after one and its user sees all of them, or the
/// first hundred of a file that is something else altogether.
class SourceFaults {
  public:
    void Add(const SourceError& fault) {
        if (!Full()) faults.push_back(fault);
    }

    /// Whether more faults aren't told.
    bool Full() const { return faults.size() == Most; }

    /// Runs `work` and takes the fault that ends it. Whether it came to its end.
    template <typename Work>
    bool Try(Work work) {
        try {
            work();
            return true;
        } catch (const SourceError& fault) {
            Add(fault);
            return false;
        }
    }

    bool Empty() const { return faults.empty(); }
    /// By line and column.
    std::vector<SourceError> Sorted() const;

  private:
    static constexpr std::size_t Most = 100;

    std::vector<SourceError> faults;
};

struct SourceWord {
    std::string text;
    SourcePlace place;
};

/// "wrong, expected X, did you mean "Y"?": the one form of all messages about content.
std::string FaultMessage(const std::string& wrong, const std::string& expected, const std::string& meant);

/// The lines of a text file without their ends (LF or CR LF). Throws std::runtime_error when it can't be
/// read.
std::vector<std::string> ReadSourceLines(const std::string& path);

/// The words of a line, parted by blanks or tabs. Nothing after a word "#" counts.
std::vector<SourceWord> SplitWords(std::string_view text, int line);

/// The text of the word as a plain decimal number from low to high. `name` says what the number is.
int NumberOf(const SourceWord& word, int low, int high, const std::string& name);

/// The place of `key` in a list of words, or a SourceError that lists them all and names the nearest.
int IndexOf(const SourceWord& word, const std::vector<std::string>& list, const std::string& name);

/// The words with ", " between them, for messages.
std::string JoinWords(const std::vector<std::string>& list);

/// Runs a compiler over `source` and returns the exit code of its program: 0, or 1 after a message on
/// standard error for each fault.
int RunCompiler(const std::string& source, const std::function<void(SourceFaults&)>& work);
