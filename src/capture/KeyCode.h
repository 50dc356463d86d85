#pragma once

// Canonical key codes: the codes every part of Vantrel above the platform layer works with.
// Each capture backend maps its native codes to these through one table. Keys with no code of
// their own here get codes above 126 (see `KeyCode::firstExtended`).
namespace KeyCode {
// clang-format off
enum : int {
    A = 0, S = 1, D = 2, F = 3, H = 4, G = 5, Z = 6, X = 7, C = 8, V = 9,
    IsoSection = 10,
    B = 11, Q = 12, W = 13, E = 14, R = 15, Y = 16, T = 17,
    Digit1 = 18, Digit2 = 19, Digit3 = 20, Digit4 = 21, Digit6 = 22, Digit5 = 23,
    Equal = 24, Digit9 = 25, Digit7 = 26, Minus = 27, Digit8 = 28, Digit0 = 29,
    RightBracket = 30, O = 31, U = 32, LeftBracket = 33, I = 34, P = 35,
    Return = 36,
    L = 37, J = 38, Quote = 39, K = 40, Semicolon = 41, Backslash = 42, Comma = 43,
    Slash = 44, N = 45, M = 46, Period = 47,
    Tab = 48, Space = 49, Grave = 50, Delete = 51, Escape = 53,
    RightCommand = 54, Command = 55, Shift = 56, CapsLock = 57, Option = 58, Control = 59,
    RightShift = 60, RightOption = 61, RightControl = 62, Function = 63,
    F17 = 64, KeypadDecimal = 65, KeypadMultiply = 67, KeypadPlus = 69, KeypadClear = 71,
    VolumeUp = 72, VolumeDown = 73, Mute = 74,
    KeypadDivide = 75, KeypadEnter = 76, KeypadMinus = 78, F18 = 79, F19 = 80, KeypadEquals = 81,
    Keypad0 = 82, Keypad1 = 83, Keypad2 = 84, Keypad3 = 85, Keypad4 = 86, Keypad5 = 87,
    Keypad6 = 88, Keypad7 = 89, F20 = 90, Keypad8 = 91, Keypad9 = 92,
    JisYen = 93, JisUnderscore = 94, JisKeypadComma = 95,
    F5 = 96, F6 = 97, F7 = 98, F3 = 99, F8 = 100, F9 = 101, JisEisu = 102, F11 = 103,
    JisKana = 104, F13 = 105, F16 = 106, F14 = 107, F10 = 109, ContextualMenu = 110, F12 = 111,
    F15 = 113, Help = 114, Home = 115, PageUp = 116, ForwardDelete = 117, F4 = 118, End = 119,
    F2 = 120, PageDown = 121, F1 = 122,
    LeftArrow = 123, RightArrow = 124, DownArrow = 125, UpArrow = 126,

    // Keys of PC keyboards that have no code above; each backend table assigns them from here.
    firstExtended = 127,
};
// clang-format on
} // namespace KeyCode

// Canonical modifier flags, carried with every captured event.
namespace ModifierFlag {
enum : unsigned long long {
    CapsLock = 0x10000,
    Shift = 0x20000,
    Control = 0x40000,
    Option = 0x80000,   // Alt and AltGr
    Command = 0x100000, // Super / Meta
};
} // namespace ModifierFlag
