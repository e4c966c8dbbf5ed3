#include "tools/lab/journal_recording.h"

#include <fstream>
#include <iterator>
#include <string>

#include "platform/run_time_error.h"
#include "shell/journal.h"
#include "tools/lab/remake.h"
#include "tools/whole_file.h"

namespace fs = std::filesystem;

bool IsJournal(const fs::path& file) {
    std::ifstream text(file);
    std::string line;
    return std::getline(text, line) && line.starts_with("sarnoth journal");
}

Recording RecordingOfJournal(const fs::path& file, const fs::path& game) {
    std::ifstream stream(file, std::ios::binary);
    const Journal journal =
        ReadJournal(std::string(std::istreambuf_iterator<char>(stream), {}), file.string());
    if (journal.head.data != HeadOfGame(journal.head.seed).data)
        throw RunTimeError(Fault::BadData, file.string() + ": it was played with other data");
    const fs::path store = game / "dat" / "apc.dat";
    if (!journal.store.empty()) WriteWholeFile(store, journal.store);
    Recording recording{.seed = journal.head.seed, .build = {}, .events = journal.events, .lines = {}};
    recording.lines = RemakeLines(recording);
    // The mission's end has written the store.
    if (!journal.store.empty()) WriteWholeFile(store, journal.store);
    return recording;
}
