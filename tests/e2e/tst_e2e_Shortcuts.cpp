// Whole-program tests of the global shortcuts: the real vantrel binary on a private X server
// with a window manager, keys pressed with xdotool while another program's window has focus.
#include "VirtualDisplay.h"
#include "settings/SettingsStore.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>

#include <xcb/xcb.h>

#include <algorithm>
#include <cstdlib>
#include <memory>

namespace {

const QByteArray stopped = "stopped showing pressed keys";
const QByteArray showing = "is showing pressed keys";

} // namespace

class tst_e2e_Shortcuts final : public QObject {
    Q_OBJECT

    std::unique_ptr<VirtualDisplay> m_display;
    std::unique_ptr<QTemporaryDir> m_config;
    std::vector<std::unique_ptr<QProcess>> m_helpers;
    QByteArray m_output;

    QProcess *startProgram(const QString &program, const QStringList &arguments)
    {
        auto process = std::make_unique<QProcess>();
        QProcessEnvironment env = m_display->environment();
        env.insert(QStringLiteral("XDG_CONFIG_HOME"), m_config->path());
        process->setProcessEnvironment(env);
        process->start(program, arguments);
        if (!process->waitForStarted(5000))
            return nullptr;
        m_helpers.push_back(std::move(process));
        return m_helpers.back().get();
    }

    // Waits until `process` printed `text` since the last call; false after `timeoutMs`.
    bool waitForOutput(QProcess &process, const QByteArray &text, int timeoutMs = 5000)
    {
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < timeoutMs) {
            process.waitForReadyRead(100);
            m_output += process.readAllStandardOutput();
            if (const qsizetype at = m_output.indexOf(text); at >= 0) {
                m_output.remove(0, at + text.size());
                return true;
            }
        }
        return false;
    }

    // Whether some client holds Ctrl+Alt+K on the root: a grab of it by another client fails.
    bool ctrlAltKIsGrabbed() const
    {
        xcb_connection_t *c = xcb_connect(qPrintable(m_display->displayName()), nullptr);
        const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(c)).data->root;
        // Keycode 45 is K on the server's US keyboard.
        xcb_generic_error_t *error = xcb_request_check(
            c, xcb_grab_key_checked(c, 0, root, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1, 45,
                                    XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
        const bool held = error && error->error_code == XCB_ACCESS;
        std::free(error);
        xcb_disconnect(c);
        return held;
    }

private slots:
    void init()
    {
        m_display = std::make_unique<VirtualDisplay>();
        QString error;
        QVERIFY2(m_display->start(&error), qPrintable(error));
        m_config = std::make_unique<QTemporaryDir>();
        QVERIFY(startProgram(QStringLiteral("openbox"), {}));
        QVERIFY(startProgram(QStringLiteral("trayer"), {}));
        QVERIFY(startProgram(QStringLiteral("xmessage"), {QStringLiteral("another program")}));
        // The window manager may not manage windows yet on a busy machine: activation is tried
        // until it takes.
        QTRY_VERIFY_WITH_TIMEOUT(
            m_display->xdotool({QStringLiteral("search"), QStringLiteral("--sync"),
                                QStringLiteral("--name"), QStringLiteral("^xmessage$"),
                                QStringLiteral("windowactivate"), QStringLiteral("--sync")}),
            15000);
    }
    void cleanup()
    {
        // Vantrel (started last) quits first.
        std::reverse(m_helpers.begin(), m_helpers.end());
        for (auto &helper : m_helpers) {
            helper->terminate();
            helper->waitForFinished(3000);
        }
        m_helpers.clear();
        m_output.clear();
        m_display.reset();
        m_config.reset();
    }

    void toggleFromAnotherWindow_data()
    {
        QTest::addColumn<QString>("recorded");
        QTest::addColumn<bool>("capsLock");
        QTest::newRow("recorded") << u"Ctrl+Alt+K"_qs << false;
        QTest::newRow("recorded, Caps Lock on") << u"Ctrl+Alt+K"_qs << true;
        QTest::newRow("nothing recorded") << QString() << false;
    }
    void toggleFromAnotherWindow()
    {
        QFETCH(QString, recorded);
        QFETCH(bool, capsLock);
        if (!recorded.isEmpty())
            SettingsStore(m_config->filePath(u"Vantrel/Vantrel.conf"_qs))
                .setRawValue(u"KeyboardShortcuts_toggleVantrel"_qs, recorded);
        QProcess *vantrel = startProgram(QStringLiteral(VANTREL_BINARY), {});
        QVERIFY(vantrel);
        QVERIFY(waitForOutput(*vantrel, showing, 10000));
        // The shortcuts are registered last at start-up: wait until the grab is in place.
        if (!recorded.isEmpty())
            QTRY_VERIFY_WITH_TIMEOUT(ctrlAltKIsGrabbed(), 5000);
        else
            QTest::qWait(500);
        if (capsLock)
            QVERIFY(m_display->xdotool({u"key"_qs, u"Caps_Lock"_qs}));

        QVERIFY(m_display->xdotool({u"key"_qs, u"ctrl+alt+k"_qs}));
        QCOMPARE(waitForOutput(*vantrel, stopped, recorded.isEmpty() ? 1500 : 5000),
                 !recorded.isEmpty());
        if (!recorded.isEmpty()) {
            QVERIFY(m_display->xdotool({u"key"_qs, u"ctrl+alt+k"_qs}));
            QVERIFY(waitForOutput(*vantrel, showing));
        }
        // The other program kept the focus throughout.
        QVERIFY(m_display->run(
            u"sh"_qs,
            {u"-c"_qs, u"test \"$(xdotool getwindowfocus getwindowname)\" = xmessage"_qs}));
    }

    // A stored shortcut that another program holds when Vantrel starts is named once on stderr.
    void shortcutTakenAtStartIsReported()
    {
        xcb_connection_t *other = xcb_connect(qPrintable(m_display->displayName()), nullptr);
        const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(other)).data->root;
        // Keycode 95 is F11 on the server's US keyboard; Vantrel also grabs the lock variants,
        // so one taken variant is enough to refuse the whole combination.
        xcb_grab_key(other, 0, root, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_SHIFT, 95,
                     XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
        xcb_flush(other);
        SettingsStore(m_config->filePath(u"Vantrel/Vantrel.conf"_qs))
            .setRawValue(u"KeyboardShortcuts_toggleMouseClicks"_qs, u"Ctrl+Shift+F11"_qs);
        QProcess *vantrel = startProgram(QStringLiteral(VANTREL_BINARY), {});
        QVERIFY(vantrel);
        QVERIFY(waitForOutput(*vantrel, showing, 10000));
        QByteArray errors;
        QTRY_VERIFY2_WITH_TIMEOUT((errors += vantrel->readAllStandardError())
                                      .contains("the shortcut Ctrl+Shift+F11 of \"Toggle Mouse "
                                                "Clicks\" is already used by another program"),
                                  errors.constData(), 5000);
        xcb_disconnect(other);
    }
};

QTEST_GUILESS_MAIN(tst_e2e_Shortcuts)
#include "tst_e2e_Shortcuts.moc"
