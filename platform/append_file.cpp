#include "platform/append_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>

#include "platform/files.h"

namespace {

constexpr int Flags = O_WRONLY | O_APPEND | O_NONBLOCK | O_CLOEXEC;

// A browser's storage knows the one that flushes all.
#ifdef __EMSCRIPTEN__
constexpr auto FlushContent = ::fsync;
#else
constexpr auto FlushContent = ::fdatasync;
#endif

}  // namespace

bool AppendFile::Open(std::string_view name) {
    return Take(::open(PlayersPath(name).c_str(), Flags));
}

bool AppendFile::Create(std::string_view name) {
    const std::filesystem::path path = PlayersPath(name);
    std::error_code ignored;
    std::filesystem::create_directories(path.parent_path(), ignored);
    if (!Take(::open(path.c_str(), Flags | O_CREAT | O_EXCL, 0644))) return false;
    FlushFolder(name);  // the new name
    return true;
}

// Where there are no locks it goes on without.
bool AppendFile::Take(int opened) {
    Close();
    descriptor = opened;
    if (descriptor < 0) return false;
    if (::flock(descriptor, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK) return true;
    Close();
    return false;
}

bool AppendFile::Append(std::string_view text, bool toDisk) {
    while (!text.empty()) {
        const ssize_t written = ::write(descriptor, text.data(), text.size());
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) return false;
        text.remove_prefix(static_cast<std::size_t>(written));
    }
    return !toDisk || FlushContent(descriptor) == 0;
}

bool AppendFile::Cut(std::size_t length) {
    return ::ftruncate(descriptor, static_cast<off_t>(length)) == 0;
}

void AppendFile::Close() {
    if (descriptor >= 0) ::close(descriptor);
    descriptor = -1;
}
