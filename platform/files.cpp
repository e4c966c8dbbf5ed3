#include "platform/files.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <system_error>

#include "platform/code_page.h"

namespace {

std::filesystem::path programFolder = ".";
std::filesystem::path playersFolder;  // empty: the program's

std::string RelativeName(std::string_view name) {
    std::string relative(name);
    std::replace(relative.begin(), relative.end(), '\\', '/');
    relative.erase(0, relative.find_first_not_of('/'));
    return relative;
}

}  // namespace

std::filesystem::path PlayersPath(std::string_view name) {
    return (playersFolder.empty() ? programFolder : playersFolder) / RelativeName(name);
}

namespace {

bool IsFile(const std::filesystem::path& path) {
    std::error_code ignored;
    return std::filesystem::is_regular_file(path, ignored);
}

[[noreturn]] void ThrowBadData(const std::string& place, const std::string& problem) {
    throw RunTimeError(Fault::BadData, place + ": " + problem);
}

[[noreturn]] void ThrowNotWritten(std::string_view name) {
    const int reason = errno;
    throw RunTimeError(Fault::FileWrite,
                       (playersFolder.empty() ? RelativeName(name) : PlayersPath(name).string()) + ": " +
                           std::strerror(reason));
}

// A file descriptor that closes itself. Opening one never waits for the other end of a pipe.
class OpenFile {
  public:
    // `mode` is for a file that is made by it.
    OpenFile(const std::filesystem::path& path, int flags, mode_t mode = 0)
        : descriptor(::open(path.c_str(), flags | O_NONBLOCK | O_CLOEXEC, mode)) {}
    ~OpenFile() { Close(); }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    bool Good() const { return descriptor >= 0; }
    // Stops once there are more than `most` bytes.
    bool Read(std::string& content, std::size_t most) const {
        constexpr std::size_t Chunk = 1 << 14;
        while (content.size() <= most) {
            const std::size_t before = content.size();
            content.resize(before + Chunk);
            const ssize_t count = ::read(descriptor, content.data() + before, Chunk);
            content.resize(before + static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
            if (count < 0 && errno == EINTR) continue;
            if (count <= 0) return count == 0;
        }
        return true;
    }
    bool Write(std::string_view content) const {
        while (!content.empty()) {
            const ssize_t written = ::write(descriptor, content.data(), content.size());
            if (written < 0 && errno == EINTR) continue;
            if (written < 0) return false;
            content.remove_prefix(static_cast<std::size_t>(written));
        }
        return true;
    }
    // Makes it as open to others as `old`, and theirs whose it was, as far as this process may.
    bool TakeOver(const struct stat& old) const {
        const bool given = ::fchown(descriptor, old.st_uid, old.st_gid) == 0 ||
                           ::fchown(descriptor, static_cast<uid_t>(-1), old.st_gid) == 0;
        const mode_t kept = given ? old.st_mode & 07777 : old.st_mode & 0707;
        return ::fchmod(descriptor, kept) == 0;
    }
    // Waits until no other process has it locked; where there are no locks it goes on without.
    void Lock() const { static_cast<void>(::flock(descriptor, LOCK_EX)); }
    bool Flush() const { return ::fsync(descriptor) == 0; }
    bool Close() {
        const int closing = descriptor;
        descriptor = -1;
        return closing < 0 || ::close(closing) == 0;
    }

  private:
    int descriptor;
};

std::filesystem::path NeighbourOf(const std::filesystem::path& path) {
    return path.native() + ".new";
}

// Makes of `path` the place that its links lead to, so that they stay. False, with errno, where that is none.
bool FollowLinks(std::filesystem::path& path) {
    std::error_code failure;
    if (!std::filesystem::is_symlink(path, failure)) return true;
    path = std::filesystem::canonical(path, failure);
    errno = failure.value();
    return !failure;
}

// Writes what will take the place of `path` beside it. A file that may not be written to is not replaced
// either.
bool WriteAside(const std::filesystem::path& path, std::string_view content) {
    struct stat old {};
    const bool replaces = ::stat(path.c_str(), &old) == 0;
    if (replaces && ::access(path.c_str(), W_OK) != 0) return false;
    const std::filesystem::path aside = NeighbourOf(path);
    ::unlink(aside.c_str());  // what a killed process left there, or what is no file
    OpenFile file(aside, O_WRONLY | O_CREAT | O_TRUNC, replaces ? S_IRUSR | S_IWUSR : 0644);
    return file.Good() && (!replaces || file.TakeOver(old)) && file.Write(content) && file.Flush() &&
           file.Close();
}

// Throws FileWrite unless WriteAside could replace the file at `path`, as far as can be seen.
void CheckReplaceable(const std::filesystem::path& path, const std::string& shown) {
    const auto refuse = [&shown](const std::string& problem) {
        throw RunTimeError(Fault::FileWrite, shown + problem);
    };
    const auto reason = [] { return ", found: " + std::string(std::strerror(errno)); };
    if (::access(path.parent_path().c_str(), W_OK | X_OK) != 0)
        refuse(": expected a folder that can be written to" + reason());
    if (IsFile(path) && ::access(path.c_str(), W_OK) != 0)
        refuse(": expected a file that can be written to" + reason());
    std::error_code ignored;
    if (std::filesystem::is_directory(NeighbourOf(path), ignored))
        refuse(".new: expected a name for a new file, found a folder");
}

// What stands where a file should be; empty where there is nothing.
std::string Obstacle(const std::filesystem::path& path) {
    std::error_code error;
    const std::filesystem::file_status found = std::filesystem::status(path, error);
    if (std::filesystem::exists(found)) return ": expected a file, found a folder or a device";
    return found.type() == std::filesystem::file_type::not_found ? "" : ": " + error.message();
}

}  // namespace

void SetProgramFolder(const std::filesystem::path& folder, const std::filesystem::path& players) {
    programFolder = folder;
    playersFolder = players;
}

std::filesystem::path ProgramPath(std::string_view name) {
    const std::filesystem::path own = PlayersPath(name);
    return playersFolder.empty() || IsFile(own) ? own : programFolder / RelativeName(name);
}

std::string ShownName(std::string_view name) {
    const bool ownFile = !playersFolder.empty() && IsFile(PlayersPath(name));
    return ownFile ? PlayersPath(name).string() : RelativeName(name);
}

void KeepForPlayer(std::string_view name) {
    std::filesystem::path own = PlayersPath(name);
    const bool apart = !playersFolder.empty();
    if (!apart && !IsFile(own)) return;  // whoever reads it says what is missing
    std::error_code ignored;
    if (apart) std::filesystem::create_directories(own.parent_path(), ignored);
    const bool linked = std::filesystem::is_symlink(own, ignored);
    if (!FollowLinks(own)) ThrowNotWritten(name);
    CheckReplaceable(own, apart || linked ? own.string() : RelativeName(name));
    if (!IsFile(own)) ReplaceFile(name, ReadWholeFile(name));
}

bool FileExists(std::string_view name) {
    return IsFile(ProgramPath(name));
}

std::string ReadWholeFile(std::string_view name, std::size_t most) {
    const std::filesystem::path path = ProgramPath(name);
    if (!FileExists(name)) throw RunTimeError(Fault::FileMissing, ShownName(name) + Obstacle(path));
    std::string content;
    const OpenFile file(path, O_RDONLY);
    if (!file.Good() || !file.Read(content, most))
        throw RunTimeError(Fault::FileMissing,
                           ShownName(name) + ": it can't be read: " + std::strerror(errno));
    if (content.size() > most)
        ThrowBadData(ShownName(name), "expected up to " + std::to_string(most) + " bytes, found more");
    return content;
}

void ReplaceFile(std::string_view name, std::string_view content) {
    std::filesystem::path path = PlayersPath(name);
    if (!FollowLinks(path)) ThrowNotWritten(name);
    const OpenFile folder(path.parent_path(), O_RDONLY | O_DIRECTORY);
    if (folder.Good()) folder.Lock();  // two games that end together would use the same neighbour
    const std::filesystem::path aside = NeighbourOf(path);
    if (!WriteAside(path, content) || ::rename(aside.c_str(), path.c_str()) != 0) {
        const int reason = errno;
        ::unlink(aside.c_str());
        errno = reason;
        ThrowNotWritten(name);
    }
    // The new name itself reaches the disk with its folder; where a folder can't be flushed the file is whole
    // anyway.
    if (folder.Good()) folder.Flush();
}

void FlushFolder(std::string_view name) {
    const OpenFile folder(PlayersPath(name).parent_path(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder.Good()) folder.Flush();
}

TextReader::TextReader(std::string_view fileName)
    : name(ShownName(fileName)), content(ReadWholeFile(fileName, MaxDataFile)) {}

void TextReader::RefuseEnd(std::string_view expected) const {
    Refuse("expected " + std::string(expected) + ", found the end of the " + (AtEnd() ? "file" : "line"));
}

void TextReader::ReadLineEnd(std::string_view expected) {
    if (AtEnd() || !AtLineEnd())
        Refuse("expected " + std::string(expected) + (AtEnd() ? ", found the end of the file" : ""));
    position += content[position] == '\r' ? 2 : 1;
    ++line;
    column = 1;
}

std::string TextReader::ReadLine() {
    const std::size_t start = position;
    while (!AtLineEnd()) {
        ++position;
        ++column;
    }
    std::string text = content.substr(start, position - start);
    if (!AtEnd())
        ReadLineEnd("the end of the line");
    else if (text.ends_with('\r'))  // half an end
        text.pop_back();
    return text;
}

void TextReader::Refuse(const std::string& problem) const {
    RefuseAt(line, column, problem);
}

void TextReader::RefuseAt(int atLine, int atColumn, const std::string& problem, Fault fault) const {
    throw RunTimeError(fault,
                       name + ":" + std::to_string(atLine) + ":" + std::to_string(atColumn) + ": " + problem);
}

int Record::ReadInt16(std::size_t offset) const {
    return static_cast<std::int16_t>(static_cast<std::uint16_t>(At(offset) | At(offset + 1) << 8));
}

std::string Record::ReadText(std::size_t offset, std::size_t length) const {
    std::size_t end = offset;
    for (; end < offset + length && At(end) != 0; ++end)
        if (At(end) < ' ') Refuse(end, "expected a text, found the code " + std::to_string(At(end)));
    const auto start = bytes.begin() + static_cast<std::ptrdiff_t>(offset);
    return FromCodePage(std::string(start, start + static_cast<std::ptrdiff_t>(end - offset)));
}

void Record::WriteInt16(std::size_t offset, int value) {
    WriteByte(offset, value & 0xFF);
    WriteByte(offset + 1, value >> 8 & 0xFF);
}

void Record::WriteText(std::size_t offset, std::size_t length, std::string_view text) {
    std::string field = ToCodePage(text);
    field.resize(length, ' ');
    std::copy(field.begin(), field.end(), bytes.begin() + static_cast<std::ptrdiff_t>(offset));
}

void Record::Refuse(std::size_t offset, const std::string& problem, Fault fault) const {
    throw RunTimeError(fault, place + ", byte " + std::to_string(offset) + ": " + problem);
}

RecordReader::RecordReader(std::string_view fileName, std::size_t recordLength)
    : name(ShownName(fileName)), content(ReadWholeFile(fileName, MaxDataFile)), length(recordLength) {}

Record RecordReader::Read(int number) const {
    const std::string place = name + ": record " + std::to_string(number);
    Record record(length, place);
    const std::size_t start = static_cast<std::size_t>(number - 1) * length;
    if (start >= content.size()) return record;
    if (content.size() - start < length)
        ThrowBadData(place, "expected " + std::to_string(length) + " bytes, found " +
                                std::to_string(content.size() - start));
    std::copy_n(content.begin() + static_cast<std::ptrdiff_t>(start), length, record.Bytes().begin());
    return record;
}

Record RecordReader::ReadCounted(int number, const std::string& why) const {
    if (static_cast<std::size_t>(number) * length > content.size() + length - 1)
        ThrowBadData(name + ": record " + std::to_string(number),
                     "expected " + why + ", found the end of the file");
    return Read(number);
}

std::string CommaReader::ReadValue(std::string_view expected) {
    if (text.AtEnd()) text.Refuse("expected " + std::string(expected) + ", found the end of the file");
    std::string value;
    bool quoted = false;
    bool ended = false;
    while (!ended && !text.AtLineEnd()) {
        const char next = static_cast<char>(text.ReadCharacter(expected));
        ended = next == ',' && !quoted;
        if (next == '"')
            quoted = !quoted;
        else if (!ended)
            value.push_back(next);
    }
    if (!ended && !text.AtEnd()) text.ReadLineEnd("the end of the line");
    value.erase(value.find_last_not_of(' ') + 1);
    value.erase(0, value.find_first_not_of(' '));
    return value;
}
