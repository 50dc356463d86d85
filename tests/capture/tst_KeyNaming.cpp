#include "capture/KeyCode.h"
#include "capture/KeyNaming.h"
#include "capture/KeyboardLayoutTranslator.h"
#include "platform/linux/EvdevKeyCodeTable.h"
#include "platform/linux/XkbKeyboardLayoutSource.h"

#include <QTest>

#include <xkbcommon/xkbcommon.h>

#include <memory>

namespace {

// What a label column means when a key must not be shown.
const QString notShown = QStringLiteral("<not shown>");

constexpr quint64 shift = ModifierFlag::Shift, ctrl = ModifierFlag::Control;
// Not a modifier flag: the row's event characters are computed with Num Lock on.
constexpr quint64 numLock = 1ULL << 40;

// A real xkeyboard-config layout, as the translator sees it and as capture computes an event's own
// characters (xkbcommon text). Of the modifiers only Num Lock is applied to that text: the layout
// answers first for every key the others change.
class RealLayout final {
public:
    explicit RealLayout(const QString &names)
        : source(XkbKeyboardLayoutSource::fromNames(names)), translator(source), naming(translator)
    {
        const std::unique_ptr<xkb_context, decltype(&xkb_context_unref)> context(
            xkb_context_new(XKB_CONTEXT_NO_ENVIRONMENT_NAMES), &xkb_context_unref);
        const QByteArray layout = names.toUtf8();
        const xkb_rule_names rules{"evdev", "pc105", layout.constData(), nullptr, nullptr};
        m_keymap.reset(xkb_keymap_new_from_names(context.get(), &rules, {}));
        if (m_keymap)
            m_state.reset(xkb_state_new(m_keymap.get()));
    }
    bool isValid() const { return source && m_state; }

    // The label, or `notShown`.
    QString label(int keyCode, quint64 flags, quint32 group = 0)
    {
        const auto eventCharacters = [&] {
            const xkb_mod_index_t num = xkb_keymap_mod_get_index(m_keymap.get(), XKB_MOD_NAME_NUM);
            xkb_state_update_mask(m_state.get(), 0, 0, flags & numLock ? 1u << num : 0, 0, 0,
                                  group);
            char text[64];
            xkb_state_key_get_utf8(m_state.get(), *EvdevKeyCodeTable::evdevCode(keyCode) + 8, text,
                                   sizeof text);
            return QString::fromUtf8(text);
        };
        return naming.name(keyCode, flags & ~numLock, eventCharacters).value_or(notShown);
    }

    std::shared_ptr<XkbKeyboardLayoutSource> source;
    KeyboardLayoutTranslator translator;
    KeyNaming naming;

private:
    std::unique_ptr<xkb_keymap, decltype(&xkb_keymap_unref)> m_keymap{nullptr, &xkb_keymap_unref};
    std::unique_ptr<xkb_state, decltype(&xkb_state_unref)> m_state{nullptr, &xkb_state_unref};
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
        QTest::addColumn<QString>("label");
        const auto row = [](const char *layout, const char *name, int keyCode, quint64 flags,
                            const QString &label) {
            QTest::addRow("%s: %s", layout, name)
                << QString::fromLatin1(layout) << keyCode << flags << label;
        };
        using namespace KeyCode;
        row("us", "a is shown capital", A, 0, "A");
        row("us", "Shift+1 is 1", Digit1, shift, "1");
        row("us", "Control+k, not its control character", K, ctrl, "K");
        row("us", "space", Space, 0, "␣");
        row("us", "return", Return, 0, "↩");
        row("us", "escape", Escape, 0, "⎋");
        row("us", "F5", F5, 0, "F5");
        row("us", "left", LeftArrow, 0, "←");
        row("us", "home", Home, 0, "↖");
        row("us", "F13", F13, 0, notShown);
        row("us", "Insert", Help, 0, notShown);
        // The keypad is named by the character printed on each key, whatever Num Lock says.
        row("us", "keypad 1, Num Lock on", Keypad1, numLock, "1");
        row("us", "keypad 1, Num Lock off", Keypad1, 0, "1");
        row("us", "Shift+keypad 1, Num Lock on", Keypad1, shift | numLock, "1");
        row("us", "keypad decimal, Num Lock off", KeypadDecimal, 0, ".");
        row("de", "US Y position", Y, 0, "Z");
        row("de", "o umlaut", Semicolon, 0, "Ö");
        row("de", "sharp s as its capitals", Minus, 0, "SS");
        row("de", "AltGr+q is q, not @", Q, ModifierFlag::Option, "Q");
        row("de", "dead circumflex", Grave, 0, "^");
        row("de", "keypad decimal is a comma", KeypadDecimal, numLock, ",");
        row("fr", "US Q position", Q, 0, "A");
        row("fr", "digit row 1", Digit1, 0, "&");
        row("fr", "digit row 2, a letter", Digit2, 0, "É");
        row("fr", "Shift+1 stays the base character", Digit1, shift, "&");
        row("us(dvorak)", "US Q position", Q, 0, "'");
        row("ru", "ef", A, 0, "Ф");
        row("ru", "Shift+short i", Q, shift, "Й");
    }
    void realLayouts()
    {
        QFETCH(QString, layout);
        QFETCH(int, keyCode);
        QFETCH(quint64, flags);
        QFETCH(QString, label);
        RealLayout real(layout);
        QVERIFY(real.isValid());
        QCOMPARE(real.label(keyCode, flags), label);
    }

    // The event's own text comes second, the symbol table last; every text is cleaned up
    // (F13 has neither a layout text nor a symbol, so its rows show the clean-up alone).
    void eventCharacters_data()
    {
        QTest::addColumn<int>("keyCode");
        QTest::addColumn<QString>("eventText");
        QTest::addColumn<QString>("label");
        const auto row = [](const char *name, int keyCode, const QString &text,
                            const QString &label) {
            QTest::newRow(name) << keyCode << text << label;
        };
        using namespace KeyCode;
        row("layout first: text ignored", A, "zz", "A");
        row("printable text beats the symbol table", F5, "x", "X");
        row("control text falls to the symbol table", Home, "\x1b", "↖");
        row("empty text falls to the symbol table", F1, "", "F1");
        row("space", F13, " ", "␣");
        row("carriage return", F13, "\r", "↩");
        row("CR LF is one control character", F13, "\r\n", notShown);
        row("zero-width space, a format character", F13, QChar(0x200b), notShown);
        row("letter with combining accent", F13, "e\u0301", "E\u0301");
        row("non-BMP letter", F13, "𐐨", "𐐀");
        row("two letters unchanged", F13, "ab", "ab");
    }
    void eventCharacters()
    {
        QFETCH(int, keyCode);
        QFETCH(QString, eventText);
        QFETCH(QString, label);
        const RealLayout us(QStringLiteral("us"));
        QCOMPARE(us.naming.name(keyCode, 0, [&] { return eventText; }).value_or(notShown), label);
    }

    void activeGroupSwitchChangesNextLabel()
    {
        RealLayout usDe(QStringLiteral("us,de"));
        QVERIFY(usDe.isValid());
        QCOMPARE(usDe.label(KeyCode::Y, 0), u"Y");
        usDe.source->setActiveGroup(1);
        QCOMPARE(usDe.label(KeyCode::Y, 0, 1), u"Z");
        QCOMPARE(usDe.label(KeyCode::Semicolon, 0, 1), u"Ö");
        usDe.source->setActiveGroup(2); // past the last group: wraps round to the first
        QCOMPARE(usDe.label(KeyCode::Y, 0), u"Y");
    }
};

QTEST_GUILESS_MAIN(tst_KeyNaming)
#include "tst_KeyNaming.moc"
