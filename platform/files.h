// Files under the program's folder, and the player's own ones where those have a folder of their own. They
// are named as the game names them, with either slash, as "\dat\weapons.dat". Every reader reports trouble as
// RunTimeError with the file, the place in it and what was expected there.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/run_time_error.h"

/// The folder that "\dat\", "\map\", "\pic\" and "\wav\" lie in; the working folder until it is set. With
/// `players`, what is written goes there, and a file that lies there is read instead of the program's;
/// without it the program's folder is the player's too.
void SetProgramFolder(const std::filesystem::path& folder, const std::filesystem::path& players = {});

/// Where a file is read.
std::filesystem::path ProgramPath(std::string_view name);

/// Where a file is written.
std::filesystem::path PlayersPath(std::string_view name);

/// Sees to it, before a game begins, that the player has a file of his own that can be replaced: one that is
/// there stays as it is, else he gets a copy of the program's. Where the program's folder is his, a file that
/// is missing is left to who reads it. Throws FileMissing, or FileWrite with the place that can't be written
/// to.
void KeepForPlayer(std::string_view name);

/// A file's name as messages show it: relative, with forward slashes, as "dat/weapons.dat"; the whole path of
/// a file in a player's folder.
std::string ShownName(std::string_view name);

bool FileExists(std::string_view name);

// The most bytes that a file may have, far above those of the game's own: a file of gigabytes isn't read.
constexpr std::size_t MaxDataFile = std::size_t{1} << 20;      // texts, records; the largest has 22,240
constexpr std::size_t MaxPictureFile = std::size_t{20} << 20;  // 2048 by 2048 pixels of 32 bits have 16 MiB
constexpr std::size_t MaxFile = std::size_t{64} << 20;         // sounds, and all else

/// The whole content. Throws FileMissing, and BadData for more than `most` bytes, of which no more are read.
std::string ReadWholeFile(std::string_view name, std::size_t most = MaxFile);

/// Puts `content` in the place of the file's old content so that at any moment, a full disk, a power cut or a
/// kill included, the file is either the old one or the new one, whole. The new one has the old one's
/// permissions and, as far as may be, its owner; links to it stay links. Throws FileWrite, also for a file
/// that may not be written to, and leaves the old one.
void ReplaceFile(std::string_view name, std::string_view content);

/// What was made, renamed or removed in the folder of that file of the player's reaches the disk, where a
/// folder can be flushed.
void FlushFolder(std::string_view name);

/// Reads a text character by character and knows where it is. CR LF and LF both end a line.
class TextReader {
  public:
    explicit TextReader(std::string_view fileName);

    bool AtEnd() const noexcept { return position == content.size(); }
    bool AtLineEnd() const noexcept {
        return AtEnd() || content[position] == '\n' ||
               (content[position] == '\r' && position + 1 < content.size() && content[position + 1] == '\n');
    }

    /// The next character's code, 0 to 255. Throws BadData at a line's end or the file's, saying that
    /// `expected` should stand there.
    int ReadCharacter(std::string_view expected) {
        if (AtLineEnd()) RefuseEnd(expected);
        ++column;
        return static_cast<unsigned char>(content[position++]);
    }

    /// Goes past the line's end that must stand here. Throws BadData where there is none, saying that
    /// `expected` should stand there.
    void ReadLineEnd(std::string_view expected);

    /// The rest of the line, without its end, which is passed. The file's last line may lack one.
    std::string ReadLine();

    /// Whether the line that was read last had an end.
    bool LineEnded() const { return column == 1; }

    /// 1 for the first line.
    int Line() const { return line; }

    /// A BadData error at this place.
    [[noreturn]] void Refuse(const std::string& problem) const;
    /// The same at `column`, 1 for the first character, of `atLine`.
    [[noreturn]] void RefuseAt(int atLine, int column, const std::string& problem,
                               Fault fault = Fault::BadData) const;

  private:
    [[noreturn]] void RefuseEnd(std::string_view expected) const;

    std::string name;
    std::string content;
    std::size_t position = 0;
    int line = 1;
    int column = 1;
};

/// One record of a file of fixed-length records: bytes with fields at offsets, little-endian, no padding.
class Record {
  public:
    /// A record of `length` zeros; `shownPlace` names it in messages, as "dat/save.dat: record 3".
    Record(std::size_t length, std::string shownPlace) : bytes(length, 0), place(std::move(shownPlace)) {}

    int ReadByte(std::size_t offset) const { return At(offset); }
    int ReadInt16(std::size_t offset) const;
    /// `length` characters of 8-bit text as UTF-8, trailing blanks kept. Throws BadData on a control
    /// character, but zeros, which an empty record holds, end the text.
    std::string ReadText(std::size_t offset, std::size_t length) const;

    void WriteByte(std::size_t offset, int value) { At(offset) = static_cast<std::uint8_t>(value); }
    void WriteInt16(std::size_t offset, int value);
    /// `text` in the 8-bit code, cut to `length` characters or filled with blanks.
    void WriteText(std::size_t offset, std::size_t length, std::string_view text);

    std::span<std::uint8_t> Bytes() { return bytes; }
    std::span<const std::uint8_t> Bytes() const { return bytes; }

    /// An error about the field at `offset`.
    [[noreturn]] void Refuse(std::size_t offset, const std::string& problem,
                             Fault fault = Fault::BadData) const;

  private:
    std::uint8_t& At(std::size_t offset) { return bytes.at(offset); }
    std::uint8_t At(std::size_t offset) const { return bytes.at(offset); }

    std::vector<std::uint8_t> bytes;
    std::string place;
};

/// Reads records by number, counted from 1.
class RecordReader {
  public:
    RecordReader(std::string_view fileName, std::size_t recordLength);

    /// A record that lies wholly beyond the end of the file comes back empty, all zeros. Throws BadData when
    /// the file ends within it.
    Record Read(int number) const;

    /// Like Read, but a record beyond the end is BadData too: `why` says who counts on it.
    Record ReadCounted(int number, const std::string& why) const;

  private:
    std::string name;
    std::string content;
    std::size_t length;
};

/// Reads values that are separated by commas or line ends. A value may stand in double quotes.
class CommaReader {
  public:
    explicit CommaReader(std::string_view fileName) : text(fileName) {}

    /// The next value without the blanks around it. Throws BadData at the end of the file, saying that
    /// `expected` should stand there.
    std::string ReadValue(std::string_view expected);

  private:
    TextReader text;
};
