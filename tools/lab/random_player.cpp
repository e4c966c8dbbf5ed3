#include "tools/lab/random_player.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string>
#include <vector>

#include "personal/info_form.h"
#include "platform/keys.h"
#include "state/state.h"
#include "view/field_form.h"

namespace {

// Those that mean something to the game, and some that don't: Shift, number pad 5, W.
constexpr std::array<int, 25> Keys = {
    EnterKey,        EscapeKey, SpaceKey, PageUpKey, PageDownKey, EndKey,  HomeKey,
    LeftKey,         UpKey,     RightKey, DownKey,   'M',         Pad1Key, Pad2Key,
    Pad3Key,         Pad4Key,   Pad6Key,  Pad7Key,   Pad8Key,     Pad9Key, OpenBracketKey,
    CloseBracketKey, ShiftKey,  Pad5Key,  'W'};
constexpr std::array<int, 4> CatalogueKeys = {UpKey, DownKey, Pad2Key, Pad8Key};

// What a soldier does more with than with a rifle.
constexpr std::array<const char*, 12> Favourites = {"c4",        "m67",     "m67a2",  "m367",
                                                    "knife",     "bayonet", "etool",  "med",
                                                    "famasm203", "xm8lss",  "m4m203", "shuriken"};

InputEvent Click(const char* control, int index = -1) {
    return {EventKind::Click, control, index, LeftButton};
}

InputEvent Key(int code, int shift = 0) {
    return {EventKind::KeyDown, frmInfo.Visible ? "frmInfo" : "frmField", -1, code, shift};
}

const Unit& Current() {
    return UnitTable[std::clamp<int>(curUnit, 0, FirstOf(2) - 1)];
}

bool Carries() {
    return dragSlot != NoSlot;
}

bool IsFavourite(const std::string& name) {
    return std::find(Favourites.begin(), Favourites.end(), name) != Favourites.end();
}

// Each control that takes events, and which.
struct Place {
    EventKind kind;
    const char* control;
    int places;  // of a control array, 0 for a control on its own
};

constexpr Place FieldPlaces[] = {
    {EventKind::KeyDown, "frmField", 0},
    {EventKind::MouseDown, "frmField.area", 0},
    {EventKind::Click, "frmField.cmdNextTurn", 0},
    {EventKind::Click, "frmField.imgStance", 4},
    {EventKind::Click, "frmField.imgEnemyCount", 0},
    {EventKind::Choose, "frmField.comboMode", 0},
    {EventKind::Click, "frmField.picBarWeapon", 0},
    {EventKind::MouseDown, "frmField.picAreaMapCover", 0},
};

constexpr Place FilePlaces[] = {
    {EventKind::KeyDown, "frmInfo", 0},          {EventKind::KeyUp, "frmInfo", 0},
    {EventKind::MouseDown, "frmInfo", 0},        {EventKind::MouseMove, "frmInfo", 0},
    {EventKind::Click, "frmInfo.cmdNext", 0},    {EventKind::Click, "frmInfo.cmdGndPage", 3},
    {EventKind::MouseDown, "frmInfo.picB1", 0},  {EventKind::MouseUp, "frmInfo.picB1", 0},
    {EventKind::Click, "frmInfo.imgDel", 0},     {EventKind::MouseDown, "frmInfo.imgUpDn", 4},
    {EventKind::Timer, "frmInfo.timerArrow", 0}, {EventKind::MouseMove, "frmInfo.imgAward", 25},
};

}  // namespace

InputEvent RandomPlayer::Next() {
    if (!planned.empty()) {
        InputEvent next = planned.front();
        planned.pop_front();
        return next;
    }
    const int mood = Draw(100);
    if (frmInfo.Visible && mood < 85) return InFile();
    if (mood < 45) return Sensible();
    if (mood < 80) return Hasty();
    return mood < 88 ? OfOtherWindow() : Nonsense();
}

InputEvent RandomPlayer::OnField(int button, int cellX, int cellY) {
    const int x = cellX * CellSize + Draw(CellSize);
    const int y = cellY * CellSize + Draw(CellSize);
    return {EventKind::MouseDown,  "frmField.area",      -1, button, 0,
            static_cast<float>(x), static_cast<float>(y)};
}

InputEvent RandomPlayer::AtEnemy(int button) {
    const Unit& enemy = UnitTable[FirstOf(EnemyTeam) + Draw(std::max(teamLast[EnemyTeam] + 1, 1))];
    return OnField(button, enemy.cellX, enemy.cellY);
}

InputEvent RandomPlayer::AtComrade(int button) {
    const Unit& comrade = UnitTable[Draw(std::max(teamLast[SquadTeam] + 1, 1))];
    return OnField(button, comrade.cellX, comrade.cellY);
}

InputEvent RandomPlayer::NearBy(int button) {
    constexpr int Reach = 7;
    const int x = std::clamp(Current().cellX + Draw(2 * Reach + 1) - Reach, 0, FieldWidth - 1);
    const int y = std::clamp(Current().cellY + Draw(2 * Reach + 1) - Reach, 0, FieldHeight - 1);
    return OnField(button, x, y);
}

// A pointer that was dragged out of the field, or what a broken mouse might report.
InputEvent RandomPlayer::PastTheEdge() {
    static constexpr std::array<float, 8> Places = {-1, -20, 1520, 1539, 919, 920, 1e30F, -1e30F};
    const auto kind = Draw(2) == 0 ? EventKind::MouseMove : EventKind::MouseDown;
    const float x = Places[static_cast<std::size_t>(Draw(static_cast<int>(Places.size())))];
    const float y = Places[static_cast<std::size_t>(Draw(static_cast<int>(Places.size())))];
    return {kind, frmInfo.Visible ? "frmInfo" : "frmField.area", -1, LeftButton, 0, x, y};
}

// Orders as a player gives them: to the current soldier, toward enemies and places near by.
InputEvent RandomPlayer::Sensible() {
    switch (Draw(12)) {
        case 0:
            return Click("frmField.cmdNextTurn");
        case 1:
            return Key(SpaceKey);
        case 2:
            return Click("frmField.imgStance", Draw(4));
        case 3:
            return {EventKind::Choose, "frmField.comboMode", -1, Draw(6)};
        case 4:
            return Key(EnterKey);
        case 5:
        case 6:
        case 7:
            return AtEnemy(RightButton);
        default:
            return NearBy(LeftButton);
    }
}

InputEvent RandomPlayer::Hasty() {
    switch (Draw(11)) {
        case 0:
            return Key(Keys[static_cast<std::size_t>(Draw(static_cast<int>(Keys.size())))]);
        case 1:
            return Click("frmField.imgEnemyCount");
        case 2:
            return Click("frmField.imgStop");
        case 3: {
            const int x = Draw(152);
            const int y = Draw(92);
            return {EventKind::MouseDown,  "frmField.picAreaMap", -1, LeftButton, 0,
                    static_cast<float>(x), static_cast<float>(y)};
        }
        case 4: {
            const char* bar = Draw(2) == 0 ? "frmField.HScrollArea" : "frmField.VScrollArea";
            return {Draw(3) == 0 ? EventKind::Scroll : EventKind::Change, bar, -1, Draw(480)};
        }
        case 5: {
            InputEvent move = NearBy(Draw(5));
            move.kind = EventKind::MouseMove;
            return move;
        }
        case 6:
            return PastTheEdge();
        case 7:
            return AtComrade(RightButton);
        case 8:
            return NearBy(MiddleButton);
        default: {
            const int button = 1 + Draw(2);
            const int x = Draw(FieldWidth);
            const int y = Draw(FieldHeight);
            return OnField(button, x, y);
        }
    }
}

InputEvent RandomPlayer::Lasting() {
    const int modes = static_cast<int>(fireModes.offered.size());
    switch (Draw(6)) {
        case 0:
            return Click("frmField.cmdNextTurn");
        case 1: {
            InputEvent walk = NearBy(LeftButton);
            planned.push_back(walk);
            return walk;
        }
        case 2:
            planned.push_back(NearBy(RightButton));
            break;
        case 3:
            planned.push_back(AtComrade(RightButton));
            break;
        default:
            planned.push_back(AtEnemy(RightButton));
            break;
    }
    return {EventKind::Choose, "frmField.comboMode", -1, Draw(std::max(modes, 1))};
}

InputEvent RandomPlayer::Meanwhile() {
    switch (Draw(14)) {
        case 0:
        case 1:
            return Key(SpaceKey);
        case 2:
        case 3:
            return AtComrade(LeftButton);
        case 4:
        case 5:
            return AtEnemy(RightButton);
        case 6:
            return NearBy(RightButton);
        case 7:
            return Key(Keys[static_cast<std::size_t>(Draw(static_cast<int>(Keys.size())))]);
        case 8:
            return {EventKind::Choose, "frmField.comboMode", -1, Draw(6)};
        case 9:
            return Click("frmField.picBarWeapon");
        case 10:
            return Click("frmField.imgStance", Draw(4));
        case 11:
            return Draw(3) == 0 ? Click("frmField.cmdNextTurn") : NearBy(MiddleButton);
        case 12:
            return NearBy(LeftButton);
        default:
            return Next();
    }
}

InputEvent RandomPlayer::OnSlot(int button, int slot) {
    const ImageControl& image = frmInfo.imgInv[slot];
    return {EventKind::MouseDown,
            "frmInfo",
            -1,
            button,
            0,
            static_cast<float>(image.Left + 3),
            static_cast<float>(image.Top + 3)};
}

// A slot that shows something, one of the favourites if he sees any; the hand where there is nothing.
int RandomPlayer::SlotWithThing() {
    std::vector<int> things;
    std::vector<int> favourites;
    for (int slot = 1; slot <= LastBoardSlot; ++slot) {
        const InvItem& item = UnitTable[curUnit].items[slot];
        if (!frmInfo.imgInv[slot].Visible || item.name.empty()) continue;
        things.push_back(slot);
        if (IsFavourite(item.name)) favourites.push_back(slot);
    }
    const std::vector<int>& from = favourites.empty() || Draw(3) == 0 ? things : favourites;
    return from.empty() ? 0 : from[static_cast<std::size_t>(Draw(static_cast<int>(from.size())))];
}

// Things are taken up, laid down, laid on one another and brought into the hand; magazines come out.
InputEvent RandomPlayer::WithThings() {
    if (Carries()) return OnSlot(LeftButton, Draw(3) == 0 ? 0 : Draw(LastBoardSlot + 1));
    const int slot = SlotWithThing();
    switch (Draw(4)) {
        case 0:
            return OnSlot(RightButton, slot);
        case 1:
            return OnSlot(LeftButton, slot);
        case 2:
            planned.push_back(OnSlot(LeftButton, SlotWithThing()));
            return OnSlot(LeftButton, slot);
        default:
            // Into the hand, and what was in it to where that came from.
            planned.push_back(OnSlot(LeftButton, 0));
            planned.push_back(OnSlot(LeftButton, slot));
            return OnSlot(LeftButton, slot);
    }
}

InputEvent RandomPlayer::WithCatalogue() {
    switch (Draw(7)) {
        case 0:
        case 1:
            return {EventKind::MouseDown, "frmInfo.imgUpDn", 1 + Draw(3), LeftButton};
        case 2:
            return {EventKind::MouseUp, "frmInfo.imgUpDn", 1 + Draw(3), LeftButton};
        case 3:
            return {EventKind::Timer, "frmInfo.timerArrow"};
        case 4:
            return {EventKind::KeyUp, "frmInfo", -1, DownKey};
        case 5:
            return Draw(4) == 0 ? Click("frmInfo.imgDel") : OnSlot(LeftButton, 0);
        default: {
            const int key =
                CatalogueKeys[static_cast<std::size_t>(Draw(static_cast<int>(CatalogueKeys.size())))];
            return Key(key, Draw(2));
        }
    }
}

// In a soldier's file.
InputEvent RandomPlayer::InFile() {
    switch (Draw(20)) {
        case 0:
            return Key(EnterKey);
        case 1: {
            const int x = Draw(760);
            const int y = Draw(640);
            return {EventKind::MouseDown, "frmInfo", -1, LeftButton, 0, static_cast<float>(x),
                    static_cast<float>(y)};
        }
        case 2: {
            const int x = Draw(760);
            const int y = Draw(640);
            return {EventKind::MouseMove, "frmInfo", -1, 0, 0, static_cast<float>(x), static_cast<float>(y)};
        }
        case 3:
            return Click(Draw(2) == 0 ? "frmInfo.cmdNext" : "frmInfo.cmdPrev");
        case 4:
            return Click("frmInfo.cmdGndPage", Draw(3));
        case 5:
            return {EventKind::CloseRequest, "frmInfo"};
        case 6:
            planned.push_back({EventKind::MouseUp, "frmInfo.picB1", -1, LeftButton});
            return {EventKind::MouseDown, "frmInfo.picB1", -1, LeftButton};
        case 7:
            return PastTheEdge();
        case 8:
        case 9:
        case 10:
            return WithCatalogue();
        default:
            return WithThings();
    }
}

// A control of the window that is not in front, or of the one that is.
InputEvent RandomPlayer::OfOtherWindow() {
    const bool ofFile = Draw(2) == 0;
    const int place = Draw(static_cast<int>(ofFile ? std::size(FilePlaces) : std::size(FieldPlaces)));
    const Place& chosen = ofFile ? FilePlaces[place] : FieldPlaces[place];
    InputEvent event;
    event.kind = chosen.kind;
    event.control = chosen.control;
    event.index = chosen.places == 0 ? -1 : Draw(chosen.places);
    event.code = LeftButton;
    if (chosen.kind == EventKind::KeyDown) event.code = DownKey;
    event.x = static_cast<float>(Draw(760));
    event.y = static_cast<float>(Draw(640));
    return event;
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
