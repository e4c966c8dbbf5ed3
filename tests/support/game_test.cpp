#include "tests/support/game_test.h"

#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "platform/files.h"
#include "state/setup.h"
#include "state/state.h"
#include "view/events.h"
#include "view/field_form.h"

namespace fs = std::filesystem;

ProgramFolder::ProgramFolder() {
    std::string pattern = (fs::temp_directory_path() / "sarnoth-test-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary folder");
    path = pattern;
    const fs::path built = GAME_FOLDER;
    for (const char* copied : {"dat", "map"})
        fs::copy(built / copied, path / copied);
    for (const char* linked : {"pic", "wav"})
        fs::create_directory_symlink(built / linked, path / linked);
    fs::copy_file(STOCK_STORE, path / "dat/apc.dat",
                  fs::copy_options::overwrite_existing);  // not the player's
}

ProgramFolder::~ProgramFolder() {
    std::error_code ignored;
    fs::remove_all(path, ignored);
}

std::string ProgramFolder::Read(const std::string& name) const {
    std::ifstream file(path / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void ProgramFolder::Write(const std::string& name, const std::string& content) const {
    std::ofstream(path / name, std::ios::binary) << content;
}

void ProgramFolder::Remove(const std::string& name) const {
    fs::remove(path / name);
}

GameTest::GameTest() : host(Dispatch) {
    SetProgramFolder(folder.Path());
    ResetState();
    ResetForms();
}

void GameTest::StartGame(unsigned seed) {
    Main(seed);
}

std::string GameTest::Log(std::size_t first) const {
    std::string lines;
    for (std::size_t i = first; i < frmField.cmbLog.List.size(); ++i)
        lines += frmField.cmbLog.List[i] + "\n";
    return lines;
}
