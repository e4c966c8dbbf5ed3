#include "desktop/key_codes.h"

#include <cstddef>
#include <string_view>

namespace {

struct KeyRow {
    int key;
    int code;
};

constexpr KeyRow NamedKeys[] = {
    // clang-format off
    // key               code
    {Qt::Key_Backspace,     8},
    {Qt::Key_Tab,           9},
    {Qt::Key_Backtab,       9},
    {Qt::Key_Clear,        12},
    {Qt::Key_Return,       13},
    {Qt::Key_Enter,        13},
    {Qt::Key_Shift,        16},
    {Qt::Key_Control,      17},
    {Qt::Key_Alt,          18},
    {Qt::Key_Pause,        19},
    {Qt::Key_CapsLock,     20},
    {Qt::Key_Escape,       27},
    {Qt::Key_Space,        32},
    {Qt::Key_PageUp,       33},
    {Qt::Key_PageDown,     34},
    {Qt::Key_End,          35},
    {Qt::Key_Home,         36},
    {Qt::Key_Left,         37},
    {Qt::Key_Up,           38},
    {Qt::Key_Right,        39},
    {Qt::Key_Down,         40},
    {Qt::Key_Insert,       45},
    {Qt::Key_Delete,       46},
    {Qt::Key_NumLock,     144},
    {Qt::Key_ScrollLock,  145},
    {Qt::Key_Semicolon,   186},
    {Qt::Key_Equal,       187},
    {Qt::Key_Comma,       188},
    {Qt::Key_Minus,       189},
    {Qt::Key_Period,      190},
    {Qt::Key_Slash,       191},
    {Qt::Key_QuoteLeft,   192},
    {Qt::Key_BracketLeft, 219},
    {Qt::Key_Backslash,   220},
    {Qt::Key_BracketRight,221},
    {Qt::Key_Apostrophe,  222},
    // clang-format on
};

constexpr KeyRow KeypadSigns[] = {
    // clang-format off
    {Qt::Key_Asterisk, 106},
    {Qt::Key_Plus,     107},
    {Qt::Key_Minus,    109},
    {Qt::Key_Period,   110},
    {Qt::Key_Comma,    110},
    {Qt::Key_Slash,    111},
    // clang-format on
};

constexpr int KeypadZero = 96;
constexpr int FirstFunctionKey = 112;

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
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24) return FirstFunctionKey + key - Qt::Key_F1;
    return Find(NamedKeys, key);
}

int CodeOnKeypad(int key) {
    if (key >= Qt::Key_0 && key <= Qt::Key_9) return KeypadZero + key - Qt::Key_0;
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
    if (modifiers & Qt::ShiftModifier) state += 1;
    if (modifiers & Qt::ControlModifier) state += 2;
    if (modifiers & Qt::AltModifier) state += 4;
    return state;
}
