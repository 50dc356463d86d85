#include "platform/linux/EvdevKeyCodeTable.h"

#include "capture/KeyCode.h"

#include <algorithm>
#include <array>

namespace {

using namespace KeyCode;
using Row = EvdevKeyCodeTable::Row;

// Evdev codes are written as numbers so that the table needs no kernel header; the unit test
// checks every row against the kernel's names.
// clang-format off
constexpr Row canonicalRows[] = {
    // Main block: letters, digits, punctuation.
    {30, A}, {48, B}, {46, C}, {32, D}, {18, E}, {33, F}, {34, G}, {35, H}, {23, I}, {36, J},
    {37, K}, {38, L}, {50, M}, {49, N}, {24, O}, {25, P}, {16, Q}, {19, R}, {31, S}, {20, T},
    {22, U}, {47, V}, {17, W}, {45, X}, {21, Y}, {44, Z}, {2, Digit1}, {3, Digit2},
    {4, Digit3}, {5, Digit4}, {6, Digit5}, {7, Digit6}, {8, Digit7}, {9, Digit8}, {10, Digit9},
    {11, Digit0}, {12, Minus}, {13, Equal}, {26, LeftBracket}, {27, RightBracket},
    {39, Semicolon}, {40, Quote}, {41, Grave}, {43, Backslash}, {51, Comma}, {52, Period},
    {53, Slash},
    {86, IsoSection}, // KEY_102ND, the extra key beside the left Shift on ISO keyboards
    {124, JisYen}, {89, JisUnderscore}, {123, JisEisu}, {122, JisKana},
    // Whitespace, editing and escape.
    {1, Escape}, {15, Tab}, {28, Return}, {57, Space}, {14, Delete}, {111, ForwardDelete},
    // Modifiers.
    {42, Shift}, {54, RightShift}, {29, Control}, {97, RightControl}, {56, Option},
    {100, RightOption}, {125, Command}, {126, RightCommand}, {58, CapsLock}, {464, Function},
    {127, ContextualMenu},
    // Function keys.
    {59, F1}, {60, F2}, {61, F3}, {62, F4}, {63, F5}, {64, F6}, {65, F7}, {66, F8}, {67, F9},
    {68, F10}, {87, F11}, {88, F12}, {183, F13}, {184, F14}, {185, F15}, {186, F16},
    {187, F17}, {188, F18}, {189, F19}, {190, F20},
    // Navigation; Insert sits where the Help key is on the canonical keyboard.
    {110, Help}, {102, Home}, {107, End}, {104, PageUp}, {109, PageDown}, {105, LeftArrow},
    {106, RightArrow}, {108, DownArrow}, {103, UpArrow},
    // Keypad; Num Lock sits where Clear is.
    {82, Keypad0}, {79, Keypad1}, {80, Keypad2}, {81, Keypad3}, {75, Keypad4}, {76, Keypad5},
    {77, Keypad6}, {71, Keypad7}, {72, Keypad8}, {73, Keypad9}, {83, KeypadDecimal},
    {55, KeypadMultiply}, {78, KeypadPlus}, {74, KeypadMinus}, {98, KeypadDivide},
    {96, KeypadEnter}, {117, KeypadEquals}, {69, KeypadClear}, {121, JisKeypadComma},
    // Volume.
    {113, Mute}, {114, VolumeDown}, {115, VolumeUp},
};
// clang-format on

// Keys without a canonical code, numbered from `firstExtended` in this order. Append only: the
// numbers are canonical codes that other parts may keep.
constexpr int extendedEvdevCodes[] = {
    99,  // KEY_SYSRQ (Print Screen)
    70,  // KEY_SCROLLLOCK
    119, // KEY_PAUSE
    94,  // KEY_MUHENKAN
    92,  // KEY_HENKAN
    93,  // KEY_KATAKANAHIRAGANA
    90,  // KEY_KATAKANA
    91,  // KEY_HIRAGANA
    85,  // KEY_ZENKAKUHANKAKU
    95,  // KEY_KPJPCOMMA
    118, // KEY_KPPLUSMINUS
    179, // KEY_KPLEFTPAREN
    180, // KEY_KPRIGHTPAREN
    191, // KEY_F21
    192, // KEY_F22
    193, // KEY_F23
    194, // KEY_F24
    138, // KEY_HELP
    139, // KEY_MENU
    116, // KEY_POWER
    142, // KEY_SLEEP
    143, // KEY_WAKEUP
    164, // KEY_PLAYPAUSE
    163, // KEY_NEXTSONG
    165, // KEY_PREVIOUSSONG
    166, // KEY_STOPCD
    161, // KEY_EJECTCD
    167, // KEY_RECORD
    168, // KEY_REWIND
    208, // KEY_FASTFORWARD
    200, // KEY_PLAYCD
    201, // KEY_PAUSECD
    248, // KEY_MICMUTE
    224, // KEY_BRIGHTNESSDOWN
    225, // KEY_BRIGHTNESSUP
    226, // KEY_MEDIA
    140, // KEY_CALC
    155, // KEY_MAIL
    150, // KEY_WWW
    172, // KEY_HOMEPAGE
    158, // KEY_BACK
    159, // KEY_FORWARD
    217, // KEY_SEARCH
    173, // KEY_REFRESH
    156, // KEY_BOOKMARKS
    157, // KEY_COMPUTER
    171, // KEY_CONFIG
    128, // KEY_STOP
    129, // KEY_AGAIN
    130, // KEY_PROPS
    131, // KEY_UNDO
    182, // KEY_REDO
    132, // KEY_FRONT
    133, // KEY_COPY
    134, // KEY_OPEN
    135, // KEY_PASTE
    136, // KEY_FIND
    137, // KEY_CUT
    210, // KEY_PRINT
    223, // KEY_CANCEL
    101, // KEY_LINEFEED
    120, // KEY_SCALE
    148, // KEY_PROG1
    149, // KEY_PROG2
    434, // KEY_DOLLAR
    435, // KEY_EURO
};

constexpr int canonicalCount = int(std::size(canonicalRows));
constexpr int extendedCount = int(std::size(extendedEvdevCodes));
constexpr int rowCount = canonicalCount + extendedCount;
constexpr int evdevLimit = 0x300; // KEY_MAX + 1
constexpr int keyCodeLimit = firstExtended + extendedCount;

constexpr std::array<Row, rowCount> makeRows()
{
    std::array<Row, rowCount> all{};
    for (int i = 0; i < canonicalCount; ++i)
        all[i] = canonicalRows[i];
    for (int i = 0; i < extendedCount; ++i)
        all[canonicalCount + i] = {extendedEvdevCodes[i], firstExtended + i};
    return all;
}

constexpr std::array<Row, rowCount> allRows = makeRows();

template <int Size> struct Lookup {
    std::array<short, Size> codes{};
};

constexpr Lookup<evdevLimit> makeForward()
{
    Lookup<evdevLimit> forward;
    std::fill(forward.codes.begin(), forward.codes.end(), short(-1));
    for (const Row &row : allRows)
        forward.codes[row.evdevCode] = short(row.keyCode);
    return forward;
}

constexpr Lookup<keyCodeLimit> makeReverse()
{
    Lookup<keyCodeLimit> reverse;
    std::fill(reverse.codes.begin(), reverse.codes.end(), short(-1));
    for (const Row &row : allRows)
        reverse.codes[row.keyCode] = short(row.evdevCode);
    return reverse;
}

constexpr Lookup<evdevLimit> forwardTable = makeForward();
constexpr Lookup<keyCodeLimit> reverseTable = makeReverse();

} // namespace

std::optional<int> EvdevKeyCodeTable::keyCode(int evdevCode)
{
    if (evdevCode < 0 || evdevCode >= evdevLimit || forwardTable.codes[evdevCode] < 0)
        return std::nullopt;
    return forwardTable.codes[evdevCode];
}

std::optional<int> EvdevKeyCodeTable::evdevCode(int keyCode)
{
    if (keyCode < 0 || keyCode >= keyCodeLimit || reverseTable.codes[keyCode] < 0)
        return std::nullopt;
    return reverseTable.codes[keyCode];
}

std::span<const EvdevKeyCodeTable::Row> EvdevKeyCodeTable::rows()
{
    return allRows;
}
