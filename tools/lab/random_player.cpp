#include "tools/lab/random_player.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "personal/info_form.h"
#include "state/state.h"
#include "view/field_form.h"

namespace {

constexpr int Left = 1;
constexpr int Right = 2;
constexpr std::array<int, 22> Keys = {13, 27, 32, 33, 34,  35,  36,  37,  38,  39,  40,
                                      77, 97, 98, 99, 100, 102, 103, 104, 105, 219, 221};

InputEvent Click(const char* control, int index = -1) {
    return {EventKind::Click, control, index, Left};
}

InputEvent Key(int code) {
    return {EventKind::KeyDown, frmInfo.Visible ? "frmInfo" : "frmField", -1, code};
}

}  // namespace

InputEvent RandomPlayer::Next() {
    const int mood = Draw(100);
    if (frmInfo.Visible && mood < 85) return InFile();
    if (mood < 45) return Sensible();
    return mood < 85 ? Hasty() : Nonsense();
}

InputEvent RandomPlayer::OnField(int button, int cellX, int cellY) {
    return {EventKind::MouseDown,
            "frmField.area",
            -1,
            button,
            0,
            static_cast<float>(cellX * CellSize + Draw(CellSize)),
            static_cast<float>(cellY * CellSize + Draw(CellSize))};
}

// Orders as a player gives them: to the current soldier, toward enemies and places near by.
InputEvent RandomPlayer::Sensible() {
    const Unit& unit = UnitTable[std::clamp<int>(curUnit, 0, FirstOf(2) - 1)];
    const Unit& enemy = UnitTable[FirstOf(EnemyTeam) + Draw(std::max(teamLast[EnemyTeam] + 1, 1))];
    switch (Draw(12)) {
        case 0:
            return Click("frmField.cmdNextTurn");
        case 1:
            return Key(32);
        case 2:
            return Click("frmField.imgStance", Draw(4));
        case 3:
            return {EventKind::Choose, "frmField.comboMode", -1, Draw(6)};
        case 4:
            return Key(13);
        case 5:
        case 6:
        case 7:
            return OnField(Right, enemy.cellX, enemy.cellY);
        default:
            return OnField(Left, std::clamp(unit.cellX + Draw(15) - 7, 0, FieldWidth - 1),
                           std::clamp(unit.cellY + Draw(15) - 7, 0, FieldHeight - 1));
    }
}

InputEvent RandomPlayer::Hasty() {
    switch (Draw(7)) {
        case 0:
            return Key(Keys[static_cast<std::size_t>(Draw(static_cast<int>(Keys.size())))]);
        case 1:
            return Click("frmField.imgEnemyCount");
        case 2:
            return Click("frmField.imgStop");
        case 3:
            return {EventKind::MouseDown,          "frmField.picAreaMap",       -1, Left, 0,
                    static_cast<float>(Draw(152)), static_cast<float>(Draw(92))};
        case 4:
            return {EventKind::Change, Draw(2) == 0 ? "frmField.HScrollArea" : "frmField.VScrollArea", -1,
                    20 * Draw(24)};
        default:
            return OnField(1 + Draw(2), Draw(FieldWidth), Draw(FieldHeight));
    }
}

// In a soldier's file: things are taken up and laid down, magazines come out, pages turn.
InputEvent RandomPlayer::InFile() {
    const auto press = [this](int button) -> InputEvent {
        return {EventKind::MouseDown,         "frmInfo", -1, button, 0, static_cast<float>(Draw(760)),
                static_cast<float>(Draw(640))};
    };
    const auto pressSlot = [this](int button) -> InputEvent {
        const ImageControl& slot = frmInfo.imgInv[Draw(LastBoardSlot + 1)];
        return {EventKind::MouseDown,
                "frmInfo",
                -1,
                button,
                0,
                static_cast<float>(slot.Left + 3),
                static_cast<float>(slot.Top + 3)};
    };
    switch (Draw(14)) {
        case 0:
            return Key(13);
        case 1:
            return press(Left);
        case 2:
            return pressSlot(Right);
        case 3:
            return Click(Draw(2) == 0 ? "frmInfo.cmdNext" : "frmInfo.cmdPrev");
        case 4:
            return Click("frmInfo.cmdGndPage", Draw(3));
        case 5:
            return {EventKind::CloseRequest, "frmInfo"};
        default:
            return pressSlot(Left);
    }
}

InputEvent RandomPlayer::Nonsense() {
    static const std::vector<std::string> controls = [] {
        std::vector<std::string> names = {"frmField", "frmInfo", "frmProgress", "frmNowhere",
                                          "frmField.nothing"};
        for (const Form* form : {static_cast<const Form*>(&frmField), static_cast<const Form*>(&frmInfo)})
            for (const Control* control : form->controls)
                if (control->name != "mnuExit") names.push_back(form->name + "." + control->name);
        return names;
    }();
    InputEvent event;
    event.kind = static_cast<EventKind>(Draw(static_cast<int>(EventKind::Timer) + 1));
    event.control = controls[static_cast<std::size_t>(Draw(static_cast<int>(controls.size())))];
    event.index = Draw(45) - 1;
    event.code = Draw(260) - 2;
    event.shift = Draw(8);
    event.x = static_cast<float>(Draw(1520)) / 1.5F;
    event.y = static_cast<float>(Draw(920)) / 1.5F;
    return event;
}
