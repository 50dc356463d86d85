#include "capture/KeyCode.h"
#include "capture/KeyboardLayoutTranslator.h"
#include "platform/linux/XkbKeyboardLayoutSource.h"
#include "platform/x11/X11KeyboardLayoutMonitor.h"

#include <QProcess>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

#include <xcb/xcb.h>
// xcb-xkb names a struct member "explicit", a C++ keyword.
#define explicit explicit_
#include <xcb/xkb.h>
#undef explicit
#include <xkbcommon/xkbcommon-x11.h>

#include <cstdlib>
#include <unistd.h>

// Follows the layout of a real X server (a private Xvfb) as `setxkbmap` changes it.
class tst_X11KeyboardLayoutMonitor final : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (QStandardPaths::findExecutable(QStringLiteral("Xvfb")).isEmpty() ||
            QStandardPaths::findExecutable(QStringLiteral("setxkbmap")).isEmpty())
            QFAIL("Xvfb and setxkbmap are needed");
        int fds[2];
        QVERIFY(pipe(fds) == 0);
        m_xvfb.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_xvfb.start(QStringLiteral("Xvfb"), {QStringLiteral("-displayfd"), QString::number(fds[1]),
                                              QStringLiteral("-nolisten"), QStringLiteral("tcp"),
                                              QStringLiteral("-noreset"), QStringLiteral("-screen"),
                                              QStringLiteral("0"), QStringLiteral("640x480x24")});
        ::close(fds[1]);
        QVERIFY(m_xvfb.waitForStarted());
        // Xvfb writes its display number once it accepts connections.
        QByteArray number;
        char c;
        while (::read(fds[0], &c, 1) == 1 && c != '\n')
            number += c;
        ::close(fds[0]);
        QVERIFY2(!number.isEmpty(), "Xvfb did not start");
        m_display = ':' + number;
    }

    void cleanupTestCase()
    {
        if (m_xvfb.state() != QProcess::NotRunning) {
            m_xvfb.terminate();
            m_xvfb.waitForFinished(5000);
        }
    }

    void followsLayoutChanges()
    {
        QVERIFY(setLayout("us"));
        std::unique_ptr<X11KeyboardLayoutMonitor> monitor =
            X11KeyboardLayoutMonitor::create(m_display);
        QVERIFY(monitor);
        KeyboardLayoutTranslator translator(monitor->source());
        QCOMPARE(label(translator, KeyCode::Y), u"y");

        QSignalSpy changed(monitor.get(), &X11KeyboardLayoutMonitor::layoutChanged);
        QVERIFY(setLayout("de"));
        QTRY_COMPARE_WITH_TIMEOUT(label(translator, KeyCode::Y), u"z", 10000);
        QVERIFY(changed.count() >= 1);
        QCOMPARE(label(translator, KeyCode::Semicolon), u"ö");
    }

    void followsGroupChanges()
    {
        QVERIFY(setLayout("us,ru"));
        std::unique_ptr<X11KeyboardLayoutMonitor> monitor =
            X11KeyboardLayoutMonitor::create(m_display);
        QVERIFY(monitor);
        KeyboardLayoutTranslator translator(monitor->source());
        QCOMPARE(label(translator, KeyCode::Y), u"y");
        QVERIFY(lockGroup(1));
        QTRY_COMPARE_WITH_TIMEOUT(label(translator, KeyCode::Y), u"н", 10000);
        QVERIFY(lockGroup(0));
        QTRY_COMPARE_WITH_TIMEOUT(label(translator, KeyCode::Y), u"y", 10000);
    }

    void unreachableDisplayGivesNoMonitor()
    {
        QVERIFY(!X11KeyboardLayoutMonitor::create(":99999"));
    }

private:
    bool setLayout(const char *layout, const char *options = nullptr)
    {
        QStringList arguments{QStringLiteral("-display"), QString::fromLatin1(m_display),
                              QString::fromLatin1(layout)};
        if (options)
            arguments << QStringLiteral("-option") << QString::fromLatin1(options);
        return QProcess::execute(QStringLiteral("setxkbmap"), arguments) == 0;
    }
    // Locks the keyboard group as a layout switcher does, from a client of the test's own.
    bool lockGroup(quint8 group)
    {
        xcb_connection_t *connection = xcb_connect(m_display.constData(), nullptr);
        bool locked =
            xcb_connection_has_error(connection) == 0 &&
            xkb_x11_setup_xkb_extension(connection, 1, 0, XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS,
                                        nullptr, nullptr, nullptr, nullptr);
        if (locked) {
            xcb_generic_error_t *error = xcb_request_check(
                connection, xcb_xkb_latch_lock_state_checked(connection, XCB_XKB_ID_USE_CORE_KBD, 0,
                                                             0, 1, group, 0, 0, 0));
            locked = !error;
            std::free(error);
        }
        xcb_disconnect(connection);
        return locked;
    }
    static QString label(KeyboardLayoutTranslator &translator, int keyCode)
    {
        return translator.string(keyCode, 0).value_or(QString());
    }

    QProcess m_xvfb;
    QByteArray m_display;
};

QTEST_GUILESS_MAIN(tst_X11KeyboardLayoutMonitor)
#include "tst_X11KeyboardLayoutMonitor.moc"
