#include "tools/game_copy.h"

#include <unistd.h>

#include <cstdlib>
#include <stdexcept>
#include <string>

namespace fs = std::filesystem;

namespace {

constexpr const char* CopiedFolders[] = {"dat", "map"};
constexpr const char* LinkedFolders[] = {"pic", "wav"};

fs::path MakeTemporaryFolder() {
    std::string pattern = (fs::temp_directory_path() / "sarnoth-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("can't make the folder " + pattern);
    return pattern;
}

}  // namespace

GameCopy::GameCopy(const fs::path& game) : path(MakeTemporaryFolder()) {
    try {
        Fill(fs::absolute(game));
    } catch (...) {
        RemoveAll();
        throw;
    }
}

GameCopy::~GameCopy() {
    RemoveAll();
}

void GameCopy::RemoveAll() const {
    std::error_code ignored;
    fs::remove_all(path, ignored);
}

// The folders are made anew instead of copied, so that they can be written where the game's can't.
void GameCopy::Fill(const fs::path& game) const {
    for (const char* copied : CopiedFolders) {
        fs::create_directory(path / copied);
        fs::copy(game / copied, path / copied);
    }
    for (const char* linked : LinkedFolders)
        fs::create_directory_symlink(game / linked, path / linked);
}
