#include "capture/KeyCode.h"
#include "capture/KeyNaming.h"
#include "capture/KeyboardLayoutTranslator.h"
#include "platform/linux/XkbKeyboardLayoutSource.h"

#include <QTest>

#include <xkbcommon/xkbcommon.h>

#include <map>
#include <memory>

namespace {

// What a label column means when a key must not be shown.
const QString notShown = QStringLiteral("<not shown>");

constexpr quint64 withShift = ModifierFlag::Shift;
constexpr quint64 withCapsLock = ModifierFlag::CapsLock;
constexpr quint64 withControl = ModifierFlag::Control;
constexpr quint64 withOption = ModifierFlag::Option;
constexpr quint64 withCommand = ModifierFlag::Command;

// A real xkeyboard-config layout, as the translator sees it and as the capture side would compute
// an event's own characters (xkbcommon text under the full state, Num Lock included).
class RealLayout final {
public:
    explicit RealLayout(const QString &names)
        : m_source(XkbKeyboardLayoutSource::fromNames(names)), m_translator(m_source),
          m_naming(m_translator)
    {
        xkb_context *context = xkb_context_new(XKB_CONTEXT_NO_ENVIRONMENT_NAMES);
        const QByteArray layout = names.toUtf8();
        const xkb_rule_names rules{"evdev", "pc105", layout.constData(), nullptr, nullptr};
        m_keymap = xkb_keymap_new_from_names(context, &rules, XKB_KEYMAP_COMPILE_NO_FLAGS);
        xkb_context_unref(context);
        m_state = m_keymap ? xkb_state_new(m_keymap) : nullptr;
    }
    ~RealLayout()
    {
        xkb_state_unref(m_state);
        xkb_keymap_unref(m_keymap);
    }
    RealLayout(const RealLayout &) = delete;
    RealLayout &operator=(const RealLayout &) = delete;

    bool isValid() const { return m_source && m_state; }
    XkbKeyboardLayoutSource &source() { return *m_source; }
    KeyboardLayoutTranslator &translator() { return m_translator; }

    // The label, or `notShown`; counts how often the event's characters were asked for.
    QString label(int keyCode, quint64 flags, bool numLock, int evdevCode, int group = 0)
    {
        const std::optional<QString> name = m_naming.name(
            keyCode, flags, [&] { return eventCharacters(evdevCode, flags, numLock, group); });
        return name.value_or(notShown);
    }
    int eventCharacterCalls() const { return m_eventCharacterCalls; }

private:
    QString eventCharacters(int evdevCode, quint64 flags, bool numLock, int group)
    {
        ++m_eventCharacterCalls;
        const auto mod = [this](const char *name) {
            return xkb_mod_mask_t(1) << xkb_keymap_mod_get_index(m_keymap, name);
        };
        xkb_mod_mask_t depressed = 0;
        xkb_mod_mask_t locked = 0;
        if (flags & withShift)
            depressed |= mod(XKB_MOD_NAME_SHIFT);
        if (flags & withControl)
            depressed |= mod(XKB_MOD_NAME_CTRL);
        if (flags & withOption)
            depressed |= mod("Mod5"); // AltGr, the withOption key that changes characters
        if (flags & withCommand)
            depressed |= mod(XKB_MOD_NAME_LOGO);
        if (flags & withCapsLock)
            locked |= mod(XKB_MOD_NAME_CAPS);
        if (numLock)
            locked |= mod(XKB_MOD_NAME_NUM);
        xkb_state_update_mask(m_state, depressed, 0, locked, 0, 0, xkb_layout_index_t(group));
        char text[64];
        xkb_state_key_get_utf8(m_state, xkb_keycode_t(evdevCode + 8), text, sizeof text);
        return QString::fromUtf8(text);
    }

    std::shared_ptr<XkbKeyboardLayoutSource> m_source;
    KeyboardLayoutTranslator m_translator;
    KeyNaming m_naming;
    xkb_keymap *m_keymap = nullptr;
    xkb_state *m_state = nullptr;
    int m_eventCharacterCalls = 0;
};

// Evdev codes of the keys used below, for the event's own characters.
const std::map<int, int> evdevOf = {
    {KeyCode::A, 30},
    {KeyCode::S, 31},
    {KeyCode::D, 32},
    {KeyCode::E, 18},
    {KeyCode::K, 37},
    {KeyCode::Q, 16},
    {KeyCode::W, 17},
    {KeyCode::Y, 21},
    {KeyCode::Z, 44},
    {KeyCode::Digit1, 2},
    {KeyCode::Digit2, 3},
    {KeyCode::Digit3, 4},
    {KeyCode::Digit7, 8},
    {KeyCode::Digit0, 11},
    {KeyCode::Minus, 12},
    {KeyCode::LeftBracket, 26},
    {KeyCode::Semicolon, 39},
    {KeyCode::Quote, 40},
    {KeyCode::Grave, 41},
    {KeyCode::Backslash, 43},
    {KeyCode::Period, 52},
    {KeyCode::Slash, 53},
    {KeyCode::IsoSection, 86},
    {KeyCode::Equal, 13},
    {KeyCode::Space, 57},
    {KeyCode::Return, 28},
    {KeyCode::Escape, 1},
    {KeyCode::Tab, 15},
    {KeyCode::Delete, 14},
    {KeyCode::ForwardDelete, 111},
    {KeyCode::Help, 110},
    {KeyCode::F1, 59},
    {KeyCode::F5, 63},
    {KeyCode::F12, 88},
    {KeyCode::F13, 183},
    {KeyCode::LeftArrow, 105},
    {KeyCode::UpArrow, 103},
    {KeyCode::Home, 102},
    {KeyCode::End, 107},
    {KeyCode::PageUp, 104},
    {KeyCode::PageDown, 109},
    {KeyCode::Keypad1, 79},
    {KeyCode::Keypad5, 76},
    {KeyCode::KeypadPlus, 78},
    {KeyCode::KeypadEnter, 96},
    {KeyCode::KeypadDecimal, 83},
    {KeyCode::KeypadDivide, 98},
    {KeyCode::KeypadClear, 69},
    {KeyCode::firstExtended, 99} /* Print Screen */,
};

} // namespace

class tst_KeyNaming final : public QObject {
    Q_OBJECT

private slots:
    void realLayouts_data()
    {
        QTest::addColumn<QString>("layout");
        QTest::addColumn<int>("keyCode");
        QTest::addColumn<quint64>("flags");
        QTest::addColumn<bool>("numLock");
        QTest::addColumn<QString>("label");
        const auto row = [](const char *name, const char *layout, int keyCode, quint64 flags,
                            const QString &label, bool numLock = false) {
            QTest::newRow(name) << QString::fromLatin1(layout) << keyCode << flags << numLock
                                << label;
        };
        using namespace KeyCode;
        row("us: a is shown capital", "us", A, 0, "A");
        row("us: Shift+a", "us", A, withShift, "A");
        row("us: Caps Lock a", "us", A, withCapsLock, "A");
        row("us: Shift+1 is 1", "us", Digit1, withShift, "1");
        row("us: Command+Shift+k", "us", K, withCommand | withShift, "K");
        row("us: Control+k, not its control character", "us", K, withControl, "K");
        row("us: Option+s", "us", S, withOption, "S");
        row("us: grave", "us", Grave, 0, "`");
        row("us: backslash", "us", Backslash, 0, "\\");
        row("us: Shift+slash", "us", Slash, withShift, "/");
        row("us: space", "us", Space, 0, "␣");
        row("us: Shift+space", "us", Space, withShift, "␣");
        row("us: return", "us", Return, 0, "↩");
        row("us: escape", "us", Escape, 0, "⎋");
        row("us: tab", "us", Tab, 0, "⇥");
        row("us: backspace", "us", Delete, 0, "⌫");
        row("us: forward delete", "us", ForwardDelete, 0, "⌦");
        row("us: F1", "us", F1, 0, "F1");
        row("us: F5", "us", F5, 0, "F5");
        row("us: Shift+F12", "us", F12, withShift, "F12");
        row("us: left", "us", LeftArrow, 0, "←");
        row("us: up", "us", UpArrow, 0, "↑");
        row("us: home", "us", Home, 0, "↖");
        row("us: end", "us", End, 0, "↘");
        row("us: page up", "us", PageUp, 0, "⇞");
        row("us: page down", "us", PageDown, 0, "⇟");
        row("us: F13", "us", F13, 0, notShown);
        row("us: Shift+F13", "us", F13, withShift, notShown);
        row("us: Insert has no label", "us", Help, 0, notShown);
        row("us: Print Screen", "us", firstExtended, 0, notShown);
        // The keypad is named by the character printed on each key, whatever Num Lock says:
        // the cap names the key that was pressed, as withShift never changes a label either.
        row("us: keypad 1, Num Lock on", "us", Keypad1, 0, "1", true);
        row("us: keypad 1, Num Lock off", "us", Keypad1, 0, "1", false);
        row("us: keypad 5, Num Lock off", "us", Keypad5, 0, "5", false);
        row("us: Shift+keypad 1, Num Lock on", "us", Keypad1, withShift, "1", true);
        row("us: keypad plus", "us", KeypadPlus, 0, "+");
        row("us: keypad divide", "us", KeypadDivide, 0, "/");
        row("us: keypad enter", "us", KeypadEnter, 0, "↩");
        row("us: keypad decimal, Num Lock off", "us", KeypadDecimal, 0, ".", false);
        row("us: Num Lock key", "us", KeypadClear, 0, notShown);

        row("de: US Y position", "de", Y, 0, "Z");
        row("de: US Z position", "de", Z, 0, "Y");
        row("de: o umlaut", "de", Semicolon, 0, "Ö");
        row("de: a umlaut", "de", Quote, withShift, "Ä");
        row("de: u umlaut", "de", LeftBracket, 0, "Ü");
        row("de: sharp s keeps its form", "de", Minus, 0, "ß");
        row("de: Shift+2", "de", Digit2, withShift, "2");
        row("de: AltGr+q is q, not @", "de", Q, withOption, "Q");
        row("de: AltGr+7 is 7, not {", "de", Digit7, withOption, "7");
        row("de: dead circumflex", "de", Grave, 0, "^");
        row("de: dead acute", "de", Equal, 0, "´");
        row("de: ISO section key", "de", IsoSection, 0, "<");
        row("de: keypad decimal is a comma", "de", KeypadDecimal, 0, ",", true);

        row("fr: US Q position", "fr", Q, 0, "A");
        row("fr: US A position", "fr", A, 0, "Q");
        row("fr: US W position", "fr", W, 0, "Z");
        row("fr: US semicolon position", "fr", Semicolon, 0, "M");
        row("fr: digit row 1", "fr", Digit1, 0, "&");
        row("fr: digit row 2, a letter", "fr", Digit2, 0, "É");
        row("fr: digit row 3", "fr", Digit3, 0, "\"");
        row("fr: digit row 7", "fr", Digit7, 0, "È");
        row("fr: digit row 0", "fr", Digit0, 0, "À");
        row("fr: Shift+1 stays the base character", "fr", Digit1, withShift, "&");
        row("fr: dead circumflex", "fr", LeftBracket, 0, "^");

        row("dvorak: US Q position", "us(dvorak)", Q, 0, "'");
        row("dvorak: US W position", "us(dvorak)", W, 0, ",");
        row("dvorak: US E position", "us(dvorak)", E, 0, ".");
        row("dvorak: US S position", "us(dvorak)", S, 0, "O");
        row("dvorak: US Y position", "us(dvorak)", Y, 0, "F");
        row("dvorak: US minus position", "us(dvorak)", Minus, 0, "[");

        row("ru: ef", "ru", A, 0, "Ф");
        row("ru: short i", "ru", Q, 0, "Й");
        row("ru: zhe", "ru", Semicolon, 0, "Ж");
        row("ru: yo", "ru", Grave, 0, "Ё");
        row("ru: yu", "ru", Period, 0, "Ю");
        row("ru: Shift+ef", "ru", A, withShift, "Ф");
        row("ru: slash position is a full stop", "ru", Slash, 0, ".");
        row("ru: F13", "ru", F13, 0, notShown);
    }
    void realLayouts()
    {
        QFETCH(QString, layout);
        QFETCH(int, keyCode);
        QFETCH(quint64, flags);
        QFETCH(bool, numLock);
        QFETCH(QString, label);
        RealLayout &real = layoutFor(layout);
        QVERIFY(real.isValid());
        QCOMPARE(real.label(keyCode, flags, numLock, evdevOf.at(keyCode)), label);
    }

    void layoutAnswersBeforeEventCharacters()
    {
        RealLayout &us = layoutFor(QStringLiteral("us"));
        const int before = us.eventCharacterCalls();
        QCOMPARE(us.label(KeyCode::K, withControl, false, evdevOf.at(KeyCode::K)), u"K");
        QCOMPARE(us.eventCharacterCalls(), before);
        QCOMPARE(us.label(KeyCode::F5, 0, false, evdevOf.at(KeyCode::F5)), u"F5");
        QCOMPARE(us.eventCharacterCalls(), before + 1);
    }

    // The event's own characters come second; the symbol table last.
    void eventCharacters_data()
    {
        QTest::addColumn<int>("keyCode");
        QTest::addColumn<QString>("eventText");
        QTest::addColumn<QString>("label");
        QTest::newRow("multi-character text kept") << int(KeyCode::F13) << "ab"
                                                   << "ab";
        QTest::newRow("single letter upper-cased") << int(KeyCode::F13) << "x"
                                                   << "X";
        QTest::newRow("control character: not shown") << int(KeyCode::F13) << "\x0b" << notShown;
        QTest::newRow("printable text beats the symbol table") << int(KeyCode::F5) << "x"
                                                               << "X";
        QTest::newRow("control text falls to the symbol table") << int(KeyCode::Home) << "\x1b"
                                                                << "↖";
        QTest::newRow("empty text falls to the symbol table") << int(KeyCode::F1) << ""
                                                              << "F1";
        QTest::newRow("layout first: text ignored") << int(KeyCode::A) << "zz"
                                                    << "A";
    }
    void eventCharacters()
    {
        QFETCH(int, keyCode);
        QFETCH(QString, eventText);
        QFETCH(QString, label);
        const KeyNaming naming(layoutFor(QStringLiteral("us")).translator());
        QCOMPARE(naming.name(keyCode, 0, [&] { return eventText; }).value_or(notShown), label);
    }

    void activeGroupSwitchChangesNextLabel()
    {
        RealLayout usDe(QStringLiteral("us,de"));
        QVERIFY(usDe.isValid());
        const int y = evdevOf.at(KeyCode::Y);
        QCOMPARE(usDe.label(KeyCode::Y, 0, false, y), u"Y");
        usDe.source().setActiveGroup(1);
        QCOMPARE(usDe.label(KeyCode::Y, 0, false, y, 1), u"Z");
        QCOMPARE(usDe.label(KeyCode::Semicolon, 0, false, evdevOf.at(KeyCode::Semicolon), 1), u"Ö");
        usDe.source().setActiveGroup(2); // past the last group: wraps round to the first
        QCOMPARE(usDe.label(KeyCode::Y, 0, false, y), u"Y");
    }

    void sanitize_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("label");
        QTest::newRow("empty") << "" << notShown;
        QTest::newRow("space") << " "
                               << "␣";
        QTest::newRow("tab") << "\t"
                             << "⇥";
        QTest::newRow("carriage return") << "\r"
                                         << "↩";
        QTest::newRow("line feed") << "\n"
                                   << "↩";
        QTest::newRow("CR LF is one control character") << "\r\n" << notShown;
        QTest::newRow("escape") << "\x1b" << notShown;
        QTest::newRow("DEL") << "\x7f" << notShown;
        QTest::newRow("C1 control") << QString(QChar(0x85)) << notShown;
        QTest::newRow("zero-width space, a format character") << QString(QChar(0x200b)) << notShown;
        QTest::newRow("lower-case letter") << "k"
                                           << "K";
        QTest::newRow("capital letter") << "K"
                                        << "K";
        QTest::newRow("Cyrillic") << "ж"
                                  << "Ж";
        QTest::newRow("Greek") << "λ"
                               << "Λ";
        QTest::newRow("letter with combining accent") << "e\u0301"
                                                      << "E\u0301";
        QTest::newRow("sharp s keeps one character") << "ß"
                                                     << "ß";
        QTest::newRow("letter without case") << "あ"
                                             << "あ";
        QTest::newRow("digit") << "7"
                               << "7";
        QTest::newRow("punctuation") << "\""
                                     << "\"";
        QTest::newRow("symbol") << "€"
                                << "€";
        QTest::newRow("non-BMP symbol") << "😀"
                                        << "😀";
        QTest::newRow("non-BMP letter") << "𐐨"
                                        << "𐐀";
        QTest::newRow("two letters unchanged") << "ab"
                                               << "ab";
        QTest::newRow("two spaces unchanged") << "  "
                                              << "  ";
    }
    void sanitize()
    {
        QFETCH(QString, text);
        QFETCH(QString, label);
        QCOMPARE(KeyNaming::sanitizeTranslatedCharacters(text).value_or(notShown), label);
    }

private:
    RealLayout &layoutFor(const QString &names)
    {
        std::unique_ptr<RealLayout> &layout = m_layouts[names];
        if (!layout)
            layout = std::make_unique<RealLayout>(names);
        return *layout;
    }

    std::map<QString, std::unique_ptr<RealLayout>> m_layouts;
};

QTEST_GUILESS_MAIN(tst_KeyNaming)
#include "tst_KeyNaming.moc"
