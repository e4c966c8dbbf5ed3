// The bytes of a file one after another, for who looks at a picture before it is decoded.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/files.h"
#include "platform/run_time_error.h"

/// Every step past the end is a RunTimeError (BadData): the file was cut.
class ByteWalk {
  public:
    /// `file` and `fileKind`, as "GIF", stand for the content in messages.
    ByteWalk(std::string_view read, std::string_view file, const char* fileKind)
        : content(read), name(file), kind(fileKind) {}

    std::size_t At() const { return at; }
    std::size_t Left() const { return content.size() - at; }

    void GoTo(std::size_t place) {
        at = 0;
        Skip(place);
    }
    void Skip(std::size_t count) {
        if (count > Left()) {
            at = content.size();
            Refuse(std::string("a whole ") + kind, "the end of the file");
        }
        at += count;
    }
    std::size_t Take() {
        Skip(1);
        return static_cast<unsigned char>(content[at - 1]);
    }
    std::size_t TakeBigEndian16() {
        const std::size_t high = Take();
        return high << 8 | Take();
    }
    std::size_t TakeLittleEndian(int bytes) {
        std::size_t value = 0;
        for (int i = 0; i < bytes; ++i)
            value |= Take() << 8 * i;
        return value;
    }

    /// An error about what comes before this place.
    [[noreturn]] void Refuse(const std::string& expected, const std::string& found) const {
        throw RunTimeError(Fault::BadData, ShownName(name) + ": byte " + std::to_string(at) + ": expected " +
                                               expected + ", found " + found);
    }

  private:
    std::string_view content;
    std::string_view name;
    const char* kind;
    std::size_t at = 0;
};
