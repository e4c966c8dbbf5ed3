#include "tools/temporary_folder.h"

#include <unistd.h>

#include <cstdlib>
#include <stdexcept>
#include <string>

namespace fs = std::filesystem;

namespace {

fs::path MakeTemporaryFolder() {
    std::string pattern = (fs::temp_directory_path() / "sarnoth-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("can't make the folder " + pattern);
    return pattern;
}

}  // namespace

TemporaryFolder::TemporaryFolder() : path(MakeTemporaryFolder()) {}

TemporaryFolder::~TemporaryFolder() {
    RemoveAll();
}

void TemporaryFolder::RemoveAll() const {
    std::error_code ignored;
    fs::remove_all(path, ignored);
}
