// A private game folder to run the game in, so that the player's own files are never written.
#pragma once

#include "tools/temporary_folder.h"

/// A temporary copy of a game folder's data and maps, with its pictures and sounds linked in; removed with
/// the object.
class GameCopy : public TemporaryFolder {
  public:
    /// Throws std::runtime_error when `game` is no game folder or the copy can't be made.
    explicit GameCopy(const std::filesystem::path& game);

  private:
    void Fill(const std::filesystem::path& game) const;
};
