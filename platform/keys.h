// The keys, mouse buttons and modifiers by the codes that input events carry.
#pragma once

/// Virtual key codes; letters and digits have those of their capitals in ASCII, as 'M'.
enum VirtualKey {
    BackspaceKey = 8,
    TabKey = 9,
    ClearKey = 12,
    EnterKey = 13,
    ShiftKey = 16,
    ControlKey = 17,
    AltKey = 18,
    PauseKey = 19,
    CapsLockKey = 20,
    EscapeKey = 27,
    SpaceKey = 32,
    PageUpKey = 33,
    PageDownKey = 34,
    EndKey = 35,
    HomeKey = 36,
    LeftKey = 37,
    UpKey = 38,
    RightKey = 39,
    DownKey = 40,
    InsertKey = 45,
    DeleteKey = 46,
    Pad0Key = 96,  // the number pad
    Pad1Key,
    Pad2Key,
    Pad3Key,
    Pad4Key,
    Pad5Key,
    Pad6Key,
    Pad7Key,
    Pad8Key,
    Pad9Key,
    PadMultiplyKey = 106,
    PadAddKey = 107,
    PadSubtractKey = 109,
    PadDecimalKey = 110,
    PadDivideKey = 111,
    F1Key = 112,  // the first of 24
    NumLockKey = 144,
    ScrollLockKey = 145,
    SemicolonKey = 186,
    EqualKey = 187,
    CommaKey = 188,
    MinusKey = 189,
    PeriodKey = 190,
    SlashKey = 191,
    BackquoteKey = 192,
    OpenBracketKey = 219,
    BackslashKey = 220,
    CloseBracketKey = 221,
    ApostropheKey = 222,
};

/// Added up where several are held.
enum MouseButton { LeftButton = 1, RightButton = 2, MiddleButton = 4 };
enum Modifier { ShiftHeld = 1, ControlHeld = 2, AltHeld = 4 };
