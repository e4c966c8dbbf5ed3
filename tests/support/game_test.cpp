#include "tests/support/game_test.h"

#include <fstream>
#include <iterator>

#include "combat/actions.h"
#include "combat/fire_modes.h"
#include "combat/things.h"
#include "data/new_item.h"
#include "data/weapons_file.h"
#include "mission/setup.h"
#include "platform/files.h"
#include "view/forms.h"
#include "view/start.h"

namespace fs = std::filesystem;

ProgramFolder::ProgramFolder() : GameCopy(GAME_FOLDER) {
    fs::copy_file(STOCK_STORE, Path() / "dat/apc.dat",
                  fs::copy_options::overwrite_existing);  // not the player's
}

std::string ProgramFolder::Read(const std::string& name) const {
    std::ifstream file(Path() / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void ProgramFolder::Write(const std::string& name, const std::string& content) const {
    std::ofstream(Path() / name, std::ios::binary) << content;
}

void ProgramFolder::Remove(const std::string& name) const {
    fs::remove(Path() / name);
}

GameTest::GameTest() : host(Dispatch) {
    SetProgramFolder(folder.Path());
    InstallRules();
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

InputEvent GameTest::PressOn(int cellX, int cellY, int button) {
    const auto x = static_cast<float>(cellX * CellSize + 10);
    const auto y = static_cast<float>(cellY * CellSize + 10);
    return {EventKind::MouseDown, "frmField.area", -1, button, 0, x, y};
}

InputEvent GameTest::Key(int code) {
    return {EventKind::KeyDown, "frmField", -1, code};
}

void GameTest::Hold(const std::string& name, const std::string& mode, int rounds) {
    InvItem& held = UnitTable[curUnit].items[0];
    held = MakeItem(WeaponInfoByName(name));
    held.roundsMain = held.capSecond = held.roundsSecond = rounds;
    RefreshHand();
    const std::vector<std::string>& modes = frmField.comboMode.List;
    for (std::size_t i = 0; i < modes.size(); ++i)
        if (modes[i].starts_with(mode)) return ChooseMode(static_cast<int>(i));
    ADD_FAILURE() << name << " offers no " << mode;
}
