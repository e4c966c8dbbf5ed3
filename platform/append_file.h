// A file of the player's that grows while the game runs. What was appended survives the process; what was
// appended to the disk survives a power cut too. One process at a time has it open.
#pragma once

#include <cstddef>
#include <string_view>

class AppendFile {
  public:
    AppendFile() = default;
    ~AppendFile() { Close(); }
    AppendFile(const AppendFile&) = delete;
    AppendFile& operator=(const AppendFile&) = delete;

    /// Opens the file that lies there, named as platform/files has it. False when there is none, it can't be
    /// written to, or another process has it open.
    bool Open(std::string_view name);

    /// Makes a new file, and its folder. False, with errno, also where something lies already.
    bool Create(std::string_view name);

    bool IsOpen() const { return descriptor >= 0; }

    /// False, with errno, when not all of it could be written.
    bool Append(std::string_view text, bool toDisk);

    /// Leaves the first `length` bytes.
    bool Cut(std::size_t length);

    void Close();

  private:
    bool Take(int opened);

    int descriptor = -1;
};
