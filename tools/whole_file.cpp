#include "tools/whole_file.h"

#include <fstream>
#include <stdexcept>

void WriteWholeFile(const std::filesystem::path& path, std::string_view content) {
    std::ofstream file(path, std::ios::binary);
    file << content;
    file.close();
    if (!file) throw std::runtime_error("can't write " + path.string());
}
