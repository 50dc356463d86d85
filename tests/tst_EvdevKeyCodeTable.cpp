#include "capture/KeyCode.h"
#include "platform/linux/EvdevKeyCodeTable.h"

#include <QSet>
#include <QTest>

#include <linux/input-event-codes.h>
#include <xkbcommon/xkbcommon.h>

#include <memory>

// Each expectation is written with the kernel's own name, so a wrong number in the table fails.
#define KEY_ROW(evdev, canonical) {#evdev, evdev, KeyCode::canonical},
#define EXTENDED_ROW(evdev) {#evdev, evdev, -1},

namespace {

struct Expected {
    const char *name;
    int evdevCode;
    int keyCode; // -1: any extended code
};

// clang-format off
const Expected canonicalKeys[] = {
    KEY_ROW(KEY_A, A) KEY_ROW(KEY_B, B) KEY_ROW(KEY_C, C) KEY_ROW(KEY_D, D)
    KEY_ROW(KEY_E, E) KEY_ROW(KEY_F, F) KEY_ROW(KEY_G, G) KEY_ROW(KEY_H, H)
    KEY_ROW(KEY_I, I) KEY_ROW(KEY_J, J) KEY_ROW(KEY_K, K) KEY_ROW(KEY_L, L)
    KEY_ROW(KEY_M, M) KEY_ROW(KEY_N, N) KEY_ROW(KEY_O, O) KEY_ROW(KEY_P, P)
    KEY_ROW(KEY_Q, Q) KEY_ROW(KEY_R, R) KEY_ROW(KEY_S, S) KEY_ROW(KEY_T, T)
    KEY_ROW(KEY_U, U) KEY_ROW(KEY_V, V) KEY_ROW(KEY_W, W) KEY_ROW(KEY_X, X)
    KEY_ROW(KEY_Y, Y) KEY_ROW(KEY_Z, Z)
    KEY_ROW(KEY_1, Digit1) KEY_ROW(KEY_2, Digit2) KEY_ROW(KEY_3, Digit3)
    KEY_ROW(KEY_4, Digit4) KEY_ROW(KEY_5, Digit5) KEY_ROW(KEY_6, Digit6)
    KEY_ROW(KEY_7, Digit7) KEY_ROW(KEY_8, Digit8) KEY_ROW(KEY_9, Digit9)
    KEY_ROW(KEY_0, Digit0)
    KEY_ROW(KEY_MINUS, Minus) KEY_ROW(KEY_EQUAL, Equal) KEY_ROW(KEY_LEFTBRACE, LeftBracket)
    KEY_ROW(KEY_RIGHTBRACE, RightBracket) KEY_ROW(KEY_SEMICOLON, Semicolon)
    KEY_ROW(KEY_APOSTROPHE, Quote) KEY_ROW(KEY_GRAVE, Grave) KEY_ROW(KEY_BACKSLASH, Backslash)
    KEY_ROW(KEY_COMMA, Comma) KEY_ROW(KEY_DOT, Period) KEY_ROW(KEY_SLASH, Slash)
    KEY_ROW(KEY_102ND, IsoSection) KEY_ROW(KEY_YEN, JisYen) KEY_ROW(KEY_RO, JisUnderscore)
    KEY_ROW(KEY_HANJA, JisEisu) KEY_ROW(KEY_HANGEUL, JisKana)
    KEY_ROW(KEY_ESC, Escape) KEY_ROW(KEY_TAB, Tab) KEY_ROW(KEY_ENTER, Return)
    KEY_ROW(KEY_SPACE, Space) KEY_ROW(KEY_BACKSPACE, Delete) KEY_ROW(KEY_DELETE, ForwardDelete)
    KEY_ROW(KEY_LEFTSHIFT, Shift) KEY_ROW(KEY_RIGHTSHIFT, RightShift)
    KEY_ROW(KEY_LEFTCTRL, Control) KEY_ROW(KEY_RIGHTCTRL, RightControl)
    KEY_ROW(KEY_LEFTALT, Option) KEY_ROW(KEY_RIGHTALT, RightOption)
    KEY_ROW(KEY_LEFTMETA, Command) KEY_ROW(KEY_RIGHTMETA, RightCommand)
    KEY_ROW(KEY_CAPSLOCK, CapsLock) KEY_ROW(KEY_FN, Function)
    KEY_ROW(KEY_COMPOSE, ContextualMenu)
    KEY_ROW(KEY_F1, F1) KEY_ROW(KEY_F2, F2) KEY_ROW(KEY_F3, F3) KEY_ROW(KEY_F4, F4)
    KEY_ROW(KEY_F5, F5) KEY_ROW(KEY_F6, F6) KEY_ROW(KEY_F7, F7) KEY_ROW(KEY_F8, F8)
    KEY_ROW(KEY_F9, F9) KEY_ROW(KEY_F10, F10) KEY_ROW(KEY_F11, F11) KEY_ROW(KEY_F12, F12)
    KEY_ROW(KEY_F13, F13) KEY_ROW(KEY_F14, F14) KEY_ROW(KEY_F15, F15) KEY_ROW(KEY_F16, F16)
    KEY_ROW(KEY_F17, F17) KEY_ROW(KEY_F18, F18) KEY_ROW(KEY_F19, F19) KEY_ROW(KEY_F20, F20)
    KEY_ROW(KEY_INSERT, Help) KEY_ROW(KEY_HOME, Home) KEY_ROW(KEY_END, End)
    KEY_ROW(KEY_PAGEUP, PageUp) KEY_ROW(KEY_PAGEDOWN, PageDown)
    KEY_ROW(KEY_LEFT, LeftArrow) KEY_ROW(KEY_RIGHT, RightArrow)
    KEY_ROW(KEY_DOWN, DownArrow) KEY_ROW(KEY_UP, UpArrow)
    KEY_ROW(KEY_KP0, Keypad0) KEY_ROW(KEY_KP1, Keypad1) KEY_ROW(KEY_KP2, Keypad2)
    KEY_ROW(KEY_KP3, Keypad3) KEY_ROW(KEY_KP4, Keypad4) KEY_ROW(KEY_KP5, Keypad5)
    KEY_ROW(KEY_KP6, Keypad6) KEY_ROW(KEY_KP7, Keypad7) KEY_ROW(KEY_KP8, Keypad8)
    KEY_ROW(KEY_KP9, Keypad9) KEY_ROW(KEY_KPDOT, KeypadDecimal)
    KEY_ROW(KEY_KPASTERISK, KeypadMultiply) KEY_ROW(KEY_KPPLUS, KeypadPlus)
    KEY_ROW(KEY_KPMINUS, KeypadMinus) KEY_ROW(KEY_KPSLASH, KeypadDivide)
    KEY_ROW(KEY_KPENTER, KeypadEnter) KEY_ROW(KEY_KPEQUAL, KeypadEquals)
    KEY_ROW(KEY_NUMLOCK, KeypadClear) KEY_ROW(KEY_KPCOMMA, JisKeypadComma)
    KEY_ROW(KEY_MUTE, Mute) KEY_ROW(KEY_VOLUMEDOWN, VolumeDown) KEY_ROW(KEY_VOLUMEUP, VolumeUp)
};

const Expected extendedKeys[] = {
    EXTENDED_ROW(KEY_SYSRQ) EXTENDED_ROW(KEY_SCROLLLOCK) EXTENDED_ROW(KEY_PAUSE)
    EXTENDED_ROW(KEY_MUHENKAN) EXTENDED_ROW(KEY_HENKAN) EXTENDED_ROW(KEY_KATAKANAHIRAGANA)
    EXTENDED_ROW(KEY_KATAKANA) EXTENDED_ROW(KEY_HIRAGANA) EXTENDED_ROW(KEY_ZENKAKUHANKAKU)
    EXTENDED_ROW(KEY_KPJPCOMMA) EXTENDED_ROW(KEY_KPPLUSMINUS) EXTENDED_ROW(KEY_KPLEFTPAREN)
    EXTENDED_ROW(KEY_KPRIGHTPAREN) EXTENDED_ROW(KEY_F21) EXTENDED_ROW(KEY_F22)
    EXTENDED_ROW(KEY_F23) EXTENDED_ROW(KEY_F24) EXTENDED_ROW(KEY_HELP) EXTENDED_ROW(KEY_MENU)
    EXTENDED_ROW(KEY_POWER) EXTENDED_ROW(KEY_SLEEP) EXTENDED_ROW(KEY_WAKEUP)
    EXTENDED_ROW(KEY_PLAYPAUSE) EXTENDED_ROW(KEY_NEXTSONG) EXTENDED_ROW(KEY_PREVIOUSSONG)
    EXTENDED_ROW(KEY_STOPCD) EXTENDED_ROW(KEY_EJECTCD) EXTENDED_ROW(KEY_RECORD)
    EXTENDED_ROW(KEY_REWIND) EXTENDED_ROW(KEY_FASTFORWARD) EXTENDED_ROW(KEY_PLAYCD)
    EXTENDED_ROW(KEY_PAUSECD) EXTENDED_ROW(KEY_MICMUTE) EXTENDED_ROW(KEY_BRIGHTNESSDOWN)
    EXTENDED_ROW(KEY_BRIGHTNESSUP) EXTENDED_ROW(KEY_MEDIA) EXTENDED_ROW(KEY_CALC)
    EXTENDED_ROW(KEY_MAIL) EXTENDED_ROW(KEY_WWW) EXTENDED_ROW(KEY_HOMEPAGE)
    EXTENDED_ROW(KEY_BACK) EXTENDED_ROW(KEY_FORWARD) EXTENDED_ROW(KEY_SEARCH)
    EXTENDED_ROW(KEY_REFRESH) EXTENDED_ROW(KEY_BOOKMARKS) EXTENDED_ROW(KEY_COMPUTER)
    EXTENDED_ROW(KEY_CONFIG) EXTENDED_ROW(KEY_STOP) EXTENDED_ROW(KEY_AGAIN)
    EXTENDED_ROW(KEY_PROPS) EXTENDED_ROW(KEY_UNDO) EXTENDED_ROW(KEY_REDO) EXTENDED_ROW(KEY_FRONT)
    EXTENDED_ROW(KEY_COPY) EXTENDED_ROW(KEY_OPEN) EXTENDED_ROW(KEY_PASTE) EXTENDED_ROW(KEY_FIND)
    EXTENDED_ROW(KEY_CUT) EXTENDED_ROW(KEY_PRINT) EXTENDED_ROW(KEY_CANCEL)
    EXTENDED_ROW(KEY_LINEFEED) EXTENDED_ROW(KEY_SCALE) EXTENDED_ROW(KEY_PROG1)
    EXTENDED_ROW(KEY_PROG2)
    EXTENDED_ROW(KEY_DOLLAR) EXTENDED_ROW(KEY_EURO)
    // clang-format on
};

} // namespace

class tst_EvdevKeyCodeTable final : public QObject {
    Q_OBJECT

private slots:
    void canonicalKey_data()
    {
        QTest::addColumn<int>("evdevCode");
        QTest::addColumn<int>("keyCode");
        for (const Expected &key : canonicalKeys)
            QTest::newRow(key.name) << key.evdevCode << key.keyCode;
    }
    void canonicalKey()
    {
        QFETCH(int, evdevCode);
        QFETCH(int, keyCode);
        QCOMPARE(EvdevKeyCodeTable::keyCode(evdevCode), std::optional<int>(keyCode));
        QCOMPARE(EvdevKeyCodeTable::evdevCode(keyCode), std::optional<int>(evdevCode));
        QVERIFY(keyCode < KeyCode::firstExtended);
    }

    void extendedKey_data()
    {
        QTest::addColumn<int>("evdevCode");
        for (const Expected &key : extendedKeys)
            QTest::newRow(key.name) << key.evdevCode;
    }
    void extendedKey()
    {
        QFETCH(int, evdevCode);
        const std::optional<int> keyCode = EvdevKeyCodeTable::keyCode(evdevCode);
        QVERIFY(keyCode.has_value());
        QVERIFY2(*keyCode >= KeyCode::firstExtended, "would collide with a canonical key");
        QCOMPARE(EvdevKeyCodeTable::evdevCode(*keyCode), std::optional<int>(evdevCode));
    }

    // The table holds exactly the keys named above: none is missing, none unchecked.
    void everyRowIsExpected()
    {
        QSet<int> inTable;
        for (const EvdevKeyCodeTable::Row &row : EvdevKeyCodeTable::rows())
            inTable.insert(row.evdevCode);
        QSet<int> expected;
        for (const Expected &key : canonicalKeys)
            expected.insert(key.evdevCode);
        for (const Expected &key : extendedKeys)
            expected.insert(key.evdevCode);
        QCOMPARE(inTable, expected);
    }

    void mappingIsOneToOne()
    {
        QSet<int> evdevCodes;
        QSet<int> keyCodes;
        int extended = KeyCode::firstExtended;
        for (const EvdevKeyCodeTable::Row &row : EvdevKeyCodeTable::rows()) {
            QVERIFY2(!evdevCodes.contains(row.evdevCode), "an evdev code is mapped twice");
            QVERIFY2(!keyCodes.contains(row.keyCode), "two keys share a canonical code");
            evdevCodes.insert(row.evdevCode);
            keyCodes.insert(row.keyCode);
            QVERIFY(row.keyCode >= 0);
            // Extended codes are dense, so the reverse look-up stays a small array.
            if (row.keyCode >= KeyCode::firstExtended)
                QCOMPARE(row.keyCode, extended++);
        }
        QVERIFY(!keyCodes.contains(52)); // no key has this canonical code
    }

    void unknownCodes_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<bool>("isEvdev");
        QTest::newRow("KEY_RESERVED") << int(KEY_RESERVED) << true;
        QTest::newRow("evdev 84, unassigned") << 84 << true;
        QTest::newRow("BTN_LEFT, a button") << int(BTN_LEFT) << true;
        QTest::newRow("KEY_MAX") << int(KEY_MAX) << true;
        QTest::newRow("past KEY_MAX") << int(KEY_MAX) + 1 << true;
        QTest::newRow("negative evdev") << -1 << true;
        QTest::newRow("huge evdev") << (1 << 30) << true;
        QTest::newRow("canonical 52, unassigned") << 52 << false;
        QTest::newRow("negative canonical") << -1 << false;
        QTest::newRow("past the extended codes") << 1000 << false;
    }
    void unknownCodes()
    {
        QFETCH(int, code);
        QFETCH(bool, isEvdev);
        QCOMPARE(isEvdev ? EvdevKeyCodeTable::keyCode(code) : EvdevKeyCodeTable::evdevCode(code),
                 std::nullopt);
    }

    // Every key that types something in these layouts must have a code, or it could never be
    // shown. The layouts cover ANSI, ISO, JIS and ABNT key sets.
    void everyTypingKeyIsMapped_data()
    {
        QTest::addColumn<QString>("layout");
        for (const char *layout : {"us", "gb", "de", "fr", "jp", "br", "ru", "kr"})
            QTest::newRow(layout) << QString::fromLatin1(layout);
    }
    void everyTypingKeyIsMapped()
    {
        QFETCH(QString, layout);
        const std::unique_ptr<xkb_context, decltype(&xkb_context_unref)> context(
            xkb_context_new(XKB_CONTEXT_NO_ENVIRONMENT_NAMES), &xkb_context_unref);
        const QByteArray name = layout.toLatin1();
        const xkb_rule_names names{"evdev", "pc105", name.constData(), nullptr, nullptr};
        const std::unique_ptr<xkb_keymap, decltype(&xkb_keymap_unref)> keymap(
            xkb_keymap_new_from_names(context.get(), &names, XKB_KEYMAP_COMPILE_NO_FLAGS),
            &xkb_keymap_unref);
        QVERIFY(keymap);
        int typingKeys = 0;
        for (xkb_keycode_t key = xkb_keymap_min_keycode(keymap.get());
             key <= xkb_keymap_max_keycode(keymap.get()); ++key) {
            const xkb_keysym_t *syms = nullptr;
            if (xkb_keymap_key_get_syms_by_level(keymap.get(), key, 0, 0, &syms) < 1)
                continue;
            char text[8];
            if (xkb_keysym_to_utf8(syms[0], text, sizeof text) <= 1)
                continue;
            ++typingKeys;
            QVERIFY2(EvdevKeyCodeTable::keyCode(int(key) - 8).has_value(),
                     xkb_keymap_key_get_name(keymap.get(), key));
        }
        QVERIFY(typingKeys >= 48);
    }
};

QTEST_GUILESS_MAIN(tst_EvdevKeyCodeTable)
#include "tst_EvdevKeyCodeTable.moc"
