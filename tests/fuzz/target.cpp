// What the fuzzer calls: over and over the reader that the program is named after, as "fuzz_roster".
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>

#include "tests/fuzz/readers.h"

namespace {

std::string reader;

}  // namespace

extern "C" int LLVMFuzzerInitialize(const int* /*count*/, char*** arguments) {
    const std::string program = std::filesystem::path((*arguments)[0]).filename().string();
    reader = program.substr(program.find('_') + 1);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    RunReader(reader, {reinterpret_cast<const char*>(data), size});
    return 0;
}
