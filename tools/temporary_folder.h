// A folder of one's own that goes away.
#pragma once

#include <filesystem>

class TemporaryFolder {
  public:
    /// Throws std::runtime_error when it can't be made.
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& Path() const { return path; }

    /// Removes the folder already now.
    void RemoveAll() const;

  private:
    std::filesystem::path path;
};
