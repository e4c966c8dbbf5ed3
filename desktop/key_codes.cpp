#include "desktop/key_codes.h"

#include <cstddef>
#include <string_view>

#include "platform/keys.h"

namespace {

struct KeyRow {
    int key;
    int code;
};

constexpr KeyRow NamedKeys[] = {
    // clang-format off
    // the toolkit's          ours
    {Qt::Key_Backspace,     BackspaceKey},
    {Qt::Key_Tab,           TabKey},
    {Qt::Key_Backtab,       TabKey},
    {Qt::Key_Clear,         ClearKey},
    {Qt::Key_Return,        EnterKey},
    {Qt::Key_Enter,         EnterKey},
    {Qt::Key_Shift,         ShiftKey},
    {Qt::Key_Control,       ControlKey},
    {Qt::Key_Alt,           AltKey},
    {Qt::Key_Pause,         PauseKey},
    {Qt::Key_CapsLock,      CapsLockKey},
    {Qt::Key_Escape,        EscapeKey},
    {Qt::Key_Space,         SpaceKey},
    {Qt::Key_PageUp,        PageUpKey},
    {Qt::Key_PageDown,      PageDownKey},
    {Qt::Key_End,           EndKey},
    {Qt::Key_Home,          HomeKey},
    {Qt::Key_Left,          LeftKey},
    {Qt::Key_Up,            UpKey},
    {Qt::Key_Right,         RightKey},
    {Qt::Key_Down,          DownKey},
    {Qt::Key_Insert,        InsertKey},
    {Qt::Key_Delete,        DeleteKey},
    {Qt::Key_NumLock,       NumLockKey},
    {Qt::Key_ScrollLock,    ScrollLockKey},
    {Qt::Key_Semicolon,     SemicolonKey},
    {Qt::Key_Equal,         EqualKey},
    {Qt::Key_Comma,         CommaKey},
    {Qt::Key_Minus,         MinusKey},
    {Qt::Key_Period,        PeriodKey},
    {Qt::Key_Slash,         SlashKey},
    {Qt::Key_QuoteLeft,     BackquoteKey},
    {Qt::Key_BracketLeft,   OpenBracketKey},
    {Qt::Key_Backslash,     BackslashKey},
    {Qt::Key_BracketRight,  CloseBracketKey},
    {Qt::Key_Apostrophe,    ApostropheKey},
    // clang-format on
};

constexpr KeyRow KeypadSigns[] = {
    // clang-format off
    {Qt::Key_Asterisk,      PadMultiplyKey},
    {Qt::Key_Plus,          PadAddKey},
    {Qt::Key_Minus,         PadSubtractKey},
    {Qt::Key_Period,        PadDecimalKey},
    {Qt::Key_Comma,         PadDecimalKey},
    {Qt::Key_Slash,         PadDivideKey},
    // clang-format on
};

// What stands on the keys of a keyboard, row by row, from the scan code of the row's first key.
struct KeyboardRow {
    unsigned scanCode;
    std::string_view keys;
};

constexpr KeyboardRow Keyboard[] = {
    {10, "1234567890-="},
    {24, "QWERTYUIOP[]"},
    {38, "ASDFGHJKL;'`"},
    {51, "\\ZXCVBNM,./"},
};

template <std::size_t Rows>
int Find(const KeyRow (&table)[Rows], int key) {
    for (const KeyRow& row : table)
        if (row.key == key) return row.code;
    return 0;
}

int CodeOfKey(int key) {
    if (key >= Qt::Key_A && key <= Qt::Key_Z) return key;
    if (key >= Qt::Key_0 && key <= Qt::Key_9) return key;
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24) return F1Key + key - Qt::Key_F1;
    return Find(NamedKeys, key);
}

int CodeOnKeypad(int key) {
    if (key >= Qt::Key_0 && key <= Qt::Key_9) return Pad0Key + key - Qt::Key_0;
    return Find(KeypadSigns, key);
}

// By its place: what a key means that another alphabet, or Shift, gives another sign. The signs are their own
// keys.
int CodeOfPlace(unsigned scanCode) {
    for (const KeyboardRow& row : Keyboard)
        if (scanCode >= row.scanCode && scanCode - row.scanCode < row.keys.size())
            return CodeOfKey(row.keys[scanCode - row.scanCode]);
    return 0;
}

}  // namespace

int KeyCode(const QKeyEvent& event) {
    int code = 0;
    if (event.modifiers() & Qt::KeypadModifier) code = CodeOnKeypad(event.key());
    if (code == 0) code = CodeOfKey(event.key());
    if (code == 0) code = CodeOfPlace(event.nativeScanCode());
    return code;
}

int ShiftState(Qt::KeyboardModifiers modifiers) {
    int state = 0;
    if (modifiers & Qt::ShiftModifier) state += ShiftHeld;
    if (modifiers & Qt::ControlModifier) state += ControlHeld;
    if (modifiers & Qt::AltModifier) state += AltHeld;
    return state;
}

KeyInput KeyOf(const QKeyEvent& event) {
    constexpr int FirstSign = Qt::Key_Space;
    constexpr int LastSign = Qt::Key_AsciiTilde;
    KeyInput key;
    key.code = KeyCode(event);
    if (event.key() >= FirstSign && event.key() <= LastSign) key.sign = static_cast<char>(event.key());
    key.shift = ShiftState(event.modifiers());
    if (event.key() == Qt::Key_Backtab) key.shift |= ShiftHeld;
    key.isMetaHeld = (event.modifiers() & Qt::MetaModifier) != 0;
    key.isRepeat = event.isAutoRepeat();
    key.time = event.timestamp();
    return key;
}
