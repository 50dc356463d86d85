#include "HeadlessSway.h"

#include "capture/KeyCode.h"
#include "capture/KeyboardLayoutTranslator.h"
#include "platform/linux/XkbKeyboardLayoutSource.h"
#include "platform/wayland/WaylandKeyboardLayoutMonitor.h"

#include <QSignalSpy>
#include <QTest>

#include <xkbcommon/xkbcommon.h>

#include <atomic>

namespace {
// Caps Lock's evdev code; xkb key codes are evdev codes shifted by 8.
constexpr xkb_keycode_t capsLockKey = 58 + 8;
constexpr int changeTimeoutMs = 10000;
} // namespace

// Follows the keymap of a real compositor (a private headless sway) as `swaymsg` changes its
// keyboard's layouts, options and active layout.
class tst_WaylandKeyboardLayoutMonitor final : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QString error;
        QVERIFY2(m_sway.start(&error), qPrintable(error));
        qputenv("WAYLAND_DISPLAY", m_sway.waylandDisplay().toLocal8Bit());
        qputenv("SWAYSOCK", m_sway.swaySocket().toLocal8Bit());
        m_monitor = WaylandKeyboardLayoutMonitor::create();
        QVERIFY2(m_monitor, "no keymap from sway's seat");
        m_translator = std::make_unique<KeyboardLayoutTranslator>(m_monitor->source());
        m_monitor->source()->addChangeObserver([this] { ++m_changes; });
    }
    void cleanupTestCase()
    {
        m_translator.reset();
        m_monitor.reset();
        m_sway.stop();
    }

    void namesKeysInTheCompositorsLayout_data()
    {
        QTest::addColumn<QStringList>("commands");
        QTest::addColumn<int>("keyCode");
        QTest::addColumn<QString>("label");
        QTest::newRow("us") << QStringList{u"xkb_layout us"_qs} << int(KeyCode::Y) << u"y"_qs;
        QTest::newRow("de") << QStringList{u"xkb_layout de"_qs} << int(KeyCode::Y) << u"z"_qs;
        QTest::newRow("de, another key") << QStringList() << int(KeyCode::Semicolon) << u"ö"_qs;
        QTest::newRow("us,ru before the switch")
            << QStringList{u"xkb_layout \"us,ru\""_qs, u"xkb_options grp:alt_shift_toggle"_qs}
            << int(KeyCode::Y) << u"y"_qs;
        QTest::newRow("us,ru after the switch")
            << QStringList{u"xkb_switch_layout next"_qs} << int(KeyCode::Y) << u"н"_qs;
        QTest::newRow("back to us")
            << QStringList{u"xkb_layout us"_qs} << int(KeyCode::Y) << u"y"_qs;
    }
    void namesKeysInTheCompositorsLayout()
    {
        QFETCH(QStringList, commands);
        QFETCH(int, keyCode);
        QFETCH(QString, label);
        for (const QString &command : commands)
            QVERIFY2(setKeyboard(command), qPrintable(command));
        QTRY_COMPARE_WITH_TIMEOUT(labelOf(keyCode), label, changeTimeoutMs);
    }

    // The keymap offered to other code carries remaps: with ctrl:nocaps Caps Lock is a Control.
    // Each new keymap is announced to the source's observers.
    void keymapCarriesOptions()
    {
        QVERIFY(capsLockModifier(XKB_MOD_NAME_CAPS));
        const int changesBefore = m_changes;
        QVERIFY(setKeyboard(u"xkb_options ctrl:nocaps"_qs));
        QTRY_VERIFY_WITH_TIMEOUT(m_changes > changesBefore, changeTimeoutMs);
        QTRY_VERIFY_WITH_TIMEOUT(capsLockModifier(XKB_MOD_NAME_CTRL), changeTimeoutMs);
        QVERIFY(!capsLockModifier(XKB_MOD_NAME_CAPS));
        QCOMPARE(labelOf(KeyCode::Y), u"y");
    }

    void noCompositorGivesNoMonitor()
    {
        QVERIFY(!WaylandKeyboardLayoutMonitor::create("/nonexistent/wayland-0"));
    }

private:
    bool setKeyboard(const QString &command)
    {
        return m_sway.swaymsg(QStringList{u"input"_qs, u"type:keyboard"_qs} + command.split(u' '));
    }
    QString labelOf(int keyCode) const
    {
        return m_translator->string(keyCode, 0).value_or(QString());
    }
    // Whether pressing Caps Lock, in an xkb_state of the keymap offered by the monitor, turns on
    // the modifier `name`.
    bool capsLockModifier(const char *name) const
    {
        xkb_context *context = xkb_context_new(XKB_CONTEXT_NO_FLAGS);
        xkb_keymap *keymap =
            xkb_keymap_new_from_string(context, m_monitor->keymapText().constData(),
                                       XKB_KEYMAP_FORMAT_TEXT_V1, XKB_KEYMAP_COMPILE_NO_FLAGS);
        bool active = false;
        if (xkb_state *state = keymap ? xkb_state_new(keymap) : nullptr) {
            xkb_state_update_key(state, capsLockKey, XKB_KEY_DOWN);
            active = xkb_state_mod_name_is_active(state, name, XKB_STATE_MODS_EFFECTIVE) > 0;
            xkb_state_unref(state);
        }
        xkb_keymap_unref(keymap);
        xkb_context_unref(context);
        return active;
    }

    HeadlessSway m_sway;
    std::unique_ptr<WaylandKeyboardLayoutMonitor> m_monitor;
    std::unique_ptr<KeyboardLayoutTranslator> m_translator;
    std::atomic<int> m_changes{0};
};

QTEST_GUILESS_MAIN(tst_WaylandKeyboardLayoutMonitor)
#include "tst_WaylandKeyboardLayoutMonitor.moc"
