#include "VirtualDisplay.h"

#include "capture/KeyCode.h"
#include "capture/KeyboardLayoutTranslator.h"
#include "platform/linux/XkbKeyboardLayoutSource.h"
#include "platform/x11/X11KeyboardLayoutMonitor.h"

#include <QSignalSpy>
#include <QTest>

#include <xcb/xcb.h>
// xcb-xkb names a struct member "explicit", a C++ keyword.
#define explicit explicit_
#include <xcb/xkb.h>
#undef explicit
#include <xkbcommon/xkbcommon-x11.h>

#include <cstdlib>

// Follows the layout of a real X server (a private Xvfb) as `setxkbmap` and a layout switcher
// change it.
class tst_X11KeyboardLayoutMonitor final : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QString error;
        QVERIFY2(m_xvfb.start(&error), qPrintable(error));
        m_display = m_xvfb.displayName().toLatin1();
    }
    void cleanupTestCase() { m_xvfb.stop(); }

    void followsLayoutChanges()
    {
        QVERIFY(setLayout("us"));
        const std::unique_ptr<X11KeyboardLayoutMonitor> monitor =
            X11KeyboardLayoutMonitor::create(m_display);
        QVERIFY(monitor);
        KeyboardLayoutTranslator translator(monitor->source());
        QCOMPARE(label(translator, KeyCode::Y), u"y");
        QSignalSpy changed(monitor.get(), &X11KeyboardLayoutMonitor::layoutChanged);
        QVERIFY(setLayout("de"));
        QTRY_COMPARE_WITH_TIMEOUT(label(translator, KeyCode::Y), u"z", 10000);
        QVERIFY(changed.count() >= 1);
        QCOMPARE(label(translator, KeyCode::Semicolon), u"ö");

        QVERIFY(setLayout("us,ru"));
        QTRY_COMPARE_WITH_TIMEOUT(label(translator, KeyCode::Y), u"y", 10000);
        lockGroup(1);
        QTRY_COMPARE_WITH_TIMEOUT(label(translator, KeyCode::Y), u"н", 10000);
        lockGroup(0);
        QTRY_COMPARE_WITH_TIMEOUT(label(translator, KeyCode::Y), u"y", 10000);
    }

    void unreachableDisplayGivesNoMonitor()
    {
        QVERIFY(!X11KeyboardLayoutMonitor::create(":99999"));
    }

private:
    bool setLayout(const char *layout)
    {
        return m_xvfb.run(QStringLiteral("setxkbmap"), {QString::fromLatin1(layout)});
    }
    // Locks the keyboard group as a layout switcher does, from a client of the test's own; the
    // caller checks the effect.
    void lockGroup(quint8 group)
    {
        xcb_connection_t *connection = xcb_connect(m_display.constData(), nullptr);
        if (xkb_x11_setup_xkb_extension(connection, 1, 0, XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS,
                                        nullptr, nullptr, nullptr, nullptr))
            std::free(xcb_request_check(
                connection, xcb_xkb_latch_lock_state_checked(connection, XCB_XKB_ID_USE_CORE_KBD, 0,
                                                             0, 1, group, 0, 0, 0)));
        xcb_disconnect(connection);
    }
    static QString label(KeyboardLayoutTranslator &translator, int keyCode)
    {
        return translator.string(keyCode, 0).value_or(QString());
    }

    VirtualDisplay m_xvfb;
    QByteArray m_display;
};

QTEST_GUILESS_MAIN(tst_X11KeyboardLayoutMonitor)
#include "tst_X11KeyboardLayoutMonitor.moc"
