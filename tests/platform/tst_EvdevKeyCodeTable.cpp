#include "capture/KeyCode.h"
#include "platform/linux/EvdevKeyCodeTable.h"

#include <QTest>

#include <linux/input-event-codes.h>

#include <algorithm>

// Each expectation is written with the kernel's own name, so a wrong number in the table fails.
#define R(evdev, canonical) {#evdev, evdev, KeyCode::canonical},
#define X(evdev) {#evdev, evdev, -1},

namespace {

struct Expected {
    const char *name;
    int evdevCode;
    int keyCode; // -1: any extended code
};

// clang-format off
const Expected expectedKeys[] = {
    R(KEY_A, A) R(KEY_B, B) R(KEY_C, C) R(KEY_D, D) R(KEY_E, E) R(KEY_F, F) R(KEY_G, G) R(KEY_H, H)
    R(KEY_I, I) R(KEY_J, J) R(KEY_K, K) R(KEY_L, L) R(KEY_M, M) R(KEY_N, N) R(KEY_O, O) R(KEY_P, P)
    R(KEY_Q, Q) R(KEY_R, R) R(KEY_S, S) R(KEY_T, T) R(KEY_U, U) R(KEY_V, V) R(KEY_W, W) R(KEY_X, X)
    R(KEY_Y, Y) R(KEY_Z, Z) R(KEY_1, Digit1) R(KEY_2, Digit2) R(KEY_3, Digit3) R(KEY_4, Digit4)
    R(KEY_5, Digit5) R(KEY_6, Digit6) R(KEY_7, Digit7) R(KEY_8, Digit8) R(KEY_9, Digit9)
    R(KEY_0, Digit0) R(KEY_MINUS, Minus) R(KEY_EQUAL, Equal) R(KEY_LEFTBRACE, LeftBracket)
    R(KEY_RIGHTBRACE, RightBracket) R(KEY_SEMICOLON, Semicolon) R(KEY_APOSTROPHE, Quote)
    R(KEY_GRAVE, Grave) R(KEY_BACKSLASH, Backslash) R(KEY_COMMA, Comma) R(KEY_DOT, Period)
    R(KEY_SLASH, Slash) R(KEY_102ND, IsoSection) R(KEY_YEN, JisYen) R(KEY_RO, JisUnderscore)
    R(KEY_HANJA, JisEisu) R(KEY_HANGEUL, JisKana) R(KEY_ESC, Escape) R(KEY_TAB, Tab)
    R(KEY_ENTER, Return) R(KEY_SPACE, Space) R(KEY_BACKSPACE, Delete) R(KEY_DELETE, ForwardDelete)
    R(KEY_LEFTSHIFT, Shift) R(KEY_RIGHTSHIFT, RightShift) R(KEY_LEFTCTRL, Control)
    R(KEY_RIGHTCTRL, RightControl) R(KEY_LEFTALT, Option) R(KEY_RIGHTALT, RightOption)
    R(KEY_LEFTMETA, Command) R(KEY_RIGHTMETA, RightCommand) R(KEY_CAPSLOCK, CapsLock)
    R(KEY_FN, Function) R(KEY_COMPOSE, ContextualMenu) R(KEY_F1, F1) R(KEY_F2, F2) R(KEY_F3, F3)
    R(KEY_F4, F4) R(KEY_F5, F5) R(KEY_F6, F6) R(KEY_F7, F7) R(KEY_F8, F8) R(KEY_F9, F9)
    R(KEY_F10, F10) R(KEY_F11, F11) R(KEY_F12, F12) R(KEY_F13, F13) R(KEY_F14, F14) R(KEY_F15, F15)
    R(KEY_F16, F16) R(KEY_F17, F17) R(KEY_F18, F18) R(KEY_F19, F19) R(KEY_F20, F20)
    R(KEY_INSERT, Help) R(KEY_HOME, Home) R(KEY_END, End) R(KEY_PAGEUP, PageUp)
    R(KEY_PAGEDOWN, PageDown) R(KEY_LEFT, LeftArrow) R(KEY_RIGHT, RightArrow) R(KEY_DOWN, DownArrow)
    R(KEY_UP, UpArrow) R(KEY_KP0, Keypad0) R(KEY_KP1, Keypad1) R(KEY_KP2, Keypad2)
    R(KEY_KP3, Keypad3) R(KEY_KP4, Keypad4) R(KEY_KP5, Keypad5) R(KEY_KP6, Keypad6)
    R(KEY_KP7, Keypad7) R(KEY_KP8, Keypad8) R(KEY_KP9, Keypad9) R(KEY_KPDOT, KeypadDecimal)
    R(KEY_KPASTERISK, KeypadMultiply) R(KEY_KPPLUS, KeypadPlus) R(KEY_KPMINUS, KeypadMinus)
    R(KEY_KPSLASH, KeypadDivide) R(KEY_KPENTER, KeypadEnter) R(KEY_KPEQUAL, KeypadEquals)
    R(KEY_NUMLOCK, KeypadClear) R(KEY_KPCOMMA, JisKeypadComma) R(KEY_MUTE, Mute)
    R(KEY_VOLUMEDOWN, VolumeDown) R(KEY_VOLUMEUP, VolumeUp) X(KEY_SYSRQ) X(KEY_SCROLLLOCK)
    X(KEY_PAUSE) X(KEY_MUHENKAN) X(KEY_HENKAN) X(KEY_KATAKANAHIRAGANA) X(KEY_KATAKANA)
    X(KEY_HIRAGANA) X(KEY_ZENKAKUHANKAKU) X(KEY_KPJPCOMMA) X(KEY_KPPLUSMINUS) X(KEY_KPLEFTPAREN)
    X(KEY_KPRIGHTPAREN) X(KEY_F21) X(KEY_F22) X(KEY_F23) X(KEY_F24) X(KEY_HELP) X(KEY_MENU)
    X(KEY_POWER) X(KEY_SLEEP) X(KEY_WAKEUP) X(KEY_PLAYPAUSE) X(KEY_NEXTSONG) X(KEY_PREVIOUSSONG)
    X(KEY_STOPCD) X(KEY_EJECTCD) X(KEY_RECORD) X(KEY_REWIND) X(KEY_FASTFORWARD) X(KEY_PLAYCD)
    X(KEY_PAUSECD) X(KEY_MICMUTE) X(KEY_BRIGHTNESSDOWN) X(KEY_BRIGHTNESSUP) X(KEY_MEDIA) X(KEY_CALC)
    X(KEY_MAIL) X(KEY_WWW) X(KEY_HOMEPAGE) X(KEY_BACK) X(KEY_FORWARD) X(KEY_SEARCH) X(KEY_REFRESH)
    X(KEY_BOOKMARKS) X(KEY_COMPUTER) X(KEY_CONFIG) X(KEY_STOP) X(KEY_AGAIN) X(KEY_PROPS) X(KEY_UNDO)
    X(KEY_REDO) X(KEY_FRONT) X(KEY_COPY) X(KEY_OPEN) X(KEY_PASTE) X(KEY_FIND) X(KEY_CUT)
    X(KEY_PRINT) X(KEY_CANCEL) X(KEY_LINEFEED) X(KEY_SCALE) X(KEY_PROG1) X(KEY_PROG2) X(KEY_DOLLAR)
    X(KEY_EURO)
};
// clang-format on

} // namespace

class tst_EvdevKeyCodeTable final : public QObject {
    Q_OBJECT

private slots:
    void key_data()
    {
        QTest::addColumn<int>("evdevCode");
        QTest::addColumn<int>("keyCode");
        for (const Expected &key : expectedKeys)
            QTest::newRow(key.name) << key.evdevCode << key.keyCode;
    }
    void key()
    {
        QFETCH(int, evdevCode);
        QFETCH(int, keyCode);
        const int code = EvdevKeyCodeTable::keyCode(evdevCode).value_or(-2);
        // Extended codes are dense, so the reverse look-up stays a small array, and never collide
        // with a canonical key.
        const auto extended = std::ranges::count(expectedKeys, -1, &Expected::keyCode);
        if (keyCode >= 0)
            QCOMPARE(code, keyCode);
        else
            QVERIFY(code >= KeyCode::firstExtended && code < KeyCode::firstExtended + extended);
        QCOMPARE(EvdevKeyCodeTable::evdevCode(code), std::optional<int>(evdevCode));
    }

    // With every key above mapped both ways, this leaves no row unchecked.
    void noOtherKeys() { QCOMPARE(EvdevKeyCodeTable::rows().size(), std::size(expectedKeys)); }

    void unknownCodes()
    {
        for (int code : {int(KEY_RESERVED), 84, int(BTN_LEFT), KEY_MAX + 1, -1, 1 << 30})
            QCOMPARE(EvdevKeyCodeTable::keyCode(code), std::nullopt);
        for (int code : {52, -1, 1000})
            QCOMPARE(EvdevKeyCodeTable::evdevCode(code), std::nullopt);
    }
};

QTEST_GUILESS_MAIN(tst_EvdevKeyCodeTable)
#include "tst_EvdevKeyCodeTable.moc"
