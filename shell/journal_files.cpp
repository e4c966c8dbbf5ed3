#include "shell/journal_files.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

#include "platform/files.h"

namespace fs = std::filesystem;

namespace {

constexpr int KeptFinished = 5;

std::string NameOf(const std::string& kind, int number) {
    return "\\journal\\" + kind + "-" + std::to_string(number) + ".txt";
}

bool Lies(const std::string& name) {
    std::error_code ignored;
    return fs::exists(fs::symlink_status(PlayersPath(name), ignored));
}

bool Rename(const std::string& from, const std::string& to) {
    std::error_code failure;
    fs::rename(PlayersPath(from), PlayersPath(to), failure);
    if (!failure) FlushFolder(to);
    errno = failure.value();
    return !failure;
}

}  // namespace

void RemoveJournal() {
    std::error_code ignored;
    fs::remove(PlayersPath(CurrentJournal), ignored);
    FlushFolder(CurrentJournal);
}

// From the back, and only up to the first gap: a rename puts the new file in the old one's place in one step.
bool ShelveFinished() {
    int free = 1;
    while (free < KeptFinished && Lies(NameOf("finished", free)))
        ++free;
    for (; free > 1; --free)
        if (!Rename(NameOf("finished", free - 1), NameOf("finished", free))) return false;
    return Rename(CurrentJournal, NameOf("finished", 1));
}

std::string ShelveOther() {
    int number = 1;
    while (Lies(NameOf("other", number)))
        ++number;
    const std::string name = NameOf("other", number);
    return Rename(CurrentJournal, name) ? ShownName(name) : "";
}
