#include "tools/game_copy.h"

namespace fs = std::filesystem;

namespace {

constexpr const char* CopiedFolders[] = {"dat", "map"};
constexpr const char* LinkedFolders[] = {"pic", "wav"};

}  // namespace

GameCopy::GameCopy(const fs::path& game) {
    Fill(fs::absolute(game));
}

// The folders are made anew instead of copied, so that they can be written where the game's can't.
void GameCopy::Fill(const fs::path& game) const {
    for (const char* copied : CopiedFolders) {
        fs::create_directory(Path() / copied);
        fs::copy(game / copied, Path() / copied);
    }
    for (const char* linked : LinkedFolders)
        fs::create_directory_symlink(game / linked, Path() / linked);
}
