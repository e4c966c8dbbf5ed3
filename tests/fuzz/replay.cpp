// Gives every file of a reader's corpus to the reader, in an ordinary build.
// Usage: fuzz_replay CORPUS READER
#include <algorithm>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

#include "tests/fuzz/readers.h"

namespace fs = std::filesystem;

namespace {

// A reader whose folder is missing would never be fuzzed.
bool EveryReaderHasAFolder(const fs::path& corpus) {
    const auto names = ReaderNames();
    return std::all_of(names.begin(), names.end(), [&](std::string_view name) {
        const bool there = fs::is_directory(corpus / name);
        if (!there) std::cerr << "the corpus has no folder " << name << "\n";
        return there;
    });
}

bool Replay(const std::string& reader, const fs::path& input) {
    std::ifstream file(input, std::ios::binary);
    const std::string content{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    try {
        RunReader(reader, content);
        return true;
    } catch (const std::exception& error) {
        std::cerr << input.string() << ": " << error.what() << "\n";
        return false;
    }
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 3) return 2;
    const fs::path corpus = arguments[1];
    const std::string reader = arguments[2];
    bool good = EveryReaderHasAFolder(corpus);
    int inputs = 0;
    for (const auto& input : fs::directory_iterator(corpus / reader)) {
        good = Replay(reader, input.path()) && good;
        ++inputs;
    }
    std::cout << reader << ": " << inputs << " inputs\n";
    return good && inputs > 0 ? 0 : 1;
}
