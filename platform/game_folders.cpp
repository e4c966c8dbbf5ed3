#include "platform/game_folders.h"

#include <unistd.h>

#include <cstdlib>

#include "platform/run_time_error.h"

namespace fs = std::filesystem;

namespace {

constexpr const char* GameName = "sarnoth";
constexpr const char* DataFolder = "dat";  // what tells a game folder from others

bool HoldsData(const fs::path& folder) {
    std::error_code ignored;
    return fs::is_directory(folder / DataFolder, ignored);
}

// As the desktops agree: XDG_DATA_HOME, which counts only as a whole path, or ~/.local/share.
fs::path HomeFolder() {
    const char* const data = std::getenv("XDG_DATA_HOME");
    if (data != nullptr && fs::path(data).is_absolute()) return fs::path(data) / GameName;
    const char* const home = std::getenv("HOME");
    if (home != nullptr && fs::path(home).is_absolute()) return fs::path(home) / ".local/share" / GameName;
    throw RunTimeError(Fault::FileWrite,
                       "~/.local/share/sarnoth: expected a home for the player's files, found neither "
                       "HOME nor XDG_DATA_HOME");
}

}  // namespace

GameFolders FoldersOf(const fs::path& own) {
    const fs::path installed = own.parent_path() / "share" / GameName;
    if (!HoldsData(own) && HoldsData(installed)) return {installed, HomeFolder()};
    const bool closed = HoldsData(own) && ::access((own / DataFolder).c_str(), W_OK | X_OK) != 0;
    return {own, closed ? HomeFolder() : fs::path()};
}

fs::path OwnFolder() {
    return fs::read_symlink(OwnProgram()).parent_path();
}

fs::path OwnProgram() {
    return "/proc/self/exe";
}
