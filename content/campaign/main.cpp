// sarnoth_campaign_compiler roster|store|ground SOURCE OUTFILE: turns a readable source into one of the
// binary files that a campaign starts from. Things and countries are checked against the tables in the folder
// "dat" beside the source's.

#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>

#include "data/countries_file.h"
#include "data/tables.h"
#include "platform/files.h"
#include "record_files.h"
#include "roster_source.h"

namespace {

using Lines = std::vector<std::string>;

struct FileKind {
    const char* word;
    std::string (*compile)(const Lines&, SourceFaults&);
};

constexpr FileKind FileKinds[] = {
    {"roster", [](const Lines& lines,
                  SourceFaults& faults) { return RosterBytes(Soldiers(ReadRoster(lines, faults))); }},
    {"store", [](const Lines& lines, SourceFaults& faults) { return StoreBytes(ReadStore(lines, faults)); }},
    {"ground",
     [](const Lines& lines, SourceFaults& faults) { return GroundBytes(ReadGround(lines, faults)); }},
};

void Compile(const FileKind& kind, const std::filesystem::path& source, const std::filesystem::path& target,
             SourceFaults& faults) {
    SetProgramFolder(std::filesystem::absolute(source).parent_path().parent_path());
    InitTables();
    LoadCountries();
    const std::string bytes = kind.compile(ReadSourceLines(source.string()), faults);
    if (!faults.Empty()) return;
    if (target.has_parent_path()) std::filesystem::create_directories(target.parent_path());
    std::ofstream file(target, std::ios::binary);
    file << bytes;
    file.close();
    if (!file) throw std::runtime_error("can't write " + target.string());
}

const FileKind* KindOf(const std::string& word) {
    for (const FileKind& kind : FileKinds) {
        if (word == kind.word) return &kind;
    }
    return nullptr;
}

}  // namespace

int main(int argc, char** argv) {
    const FileKind* const kind = argc == 4 ? KindOf(argv[1]) : nullptr;
    if (kind == nullptr) {
        std::cerr << "usage: sarnoth_campaign_compiler roster|store|ground SOURCE OUTFILE\n";
        return 1;
    }
    return RunCompiler(argv[2], [&](SourceFaults& faults) { Compile(*kind, argv[2], argv[3], faults); });
}
