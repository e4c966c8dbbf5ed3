#include "shell/watched_file.h"

#include <fstream>
#include <iterator>
#include <system_error>

#include "platform/files.h"

namespace fs = std::filesystem;

namespace {

constexpr const char* BorrowedFolder = "\\journal\\watched";
constexpr const char* Store = "\\dat\\apc.dat";

}  // namespace

Journal RecordingToWatch(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    const std::string text(std::istreambuf_iterator<char>(stream), {});
    if (!stream) throw RunTimeError(Fault::FileMissing, file.string());
    Journal journal = ReadJournal(text, file.string());
    const std::string difference = DifferenceOfGames(journal.head, HeadOfGame(journal.head.seed));
    if (!difference.empty())
        throw RunTimeError(Fault::BadData, file.string() + " can't be watched: it " + difference);
    if (journal.store.empty() || journal.events.empty())
        throw RunTimeError(Fault::BadData, file.string() + ": expected a vehicle store and events");
    return journal;
}

fs::path BorrowStore(const Journal& journal, const fs::path& program) {
    fs::path folder = PlayersPath(BorrowedFolder);
    ReturnStore(folder);
    fs::create_directories(folder / "dat");
    SetProgramFolder(program, folder);
    std::ofstream(PlayersPath(Store), std::ios::binary) << journal.store;
    return folder;
}

void ReturnStore(const fs::path& folder) {
    std::error_code ignored;
    if (!folder.empty()) fs::remove_all(folder, ignored);
}
