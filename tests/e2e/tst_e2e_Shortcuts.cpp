// Whole-program tests of the global shortcuts: the real vantrel binary on a private X server
// with a window manager, keys pressed with xdotool while another program's window has focus.
#include "X11Session.h"

#include <QTest>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

namespace {

const QByteArray stopped = "stopped showing pressed keys";
const QByteArray showing = "is showing pressed keys";

} // namespace

class tst_e2e_Shortcuts final : public QObject {
    Q_OBJECT

    std::unique_ptr<X11Session> m_session;

    // Whether some client holds Ctrl+Alt+K on the root: a grab of it by another client fails.
    bool ctrlAltKIsGrabbed() const
    {
        xcb_connection_t *c = xcb_connect(qPrintable(m_session->display().displayName()), nullptr);
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
        m_session = std::make_unique<X11Session>();
        QString error;
        QVERIFY2(m_session->start({.windowManager = true}, &error), qPrintable(error));
        QVERIFY(m_session->startProgram(QStringLiteral("trayer"), {}));
        QVERIFY(m_session->startProgram(QStringLiteral("xmessage"),
                                        {QStringLiteral("another program")}));
        // The window manager may not manage windows yet on a busy machine: activation is tried
        // until it takes.
        QTRY_VERIFY_WITH_TIMEOUT(
            m_session->xdotool(u"search --sync --name ^xmessage$ windowactivate --sync"_qs), 15000);
    }
    void cleanup()
    {
        m_session->stopVantrel();
        m_session.reset();
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
            m_session->writeSettings({{u"KeyboardShortcuts_toggleVantrel"_qs, recorded}});
        QVERIFY(m_session->startVantrel());
        // The shortcuts are registered last at start-up: wait until the grab is in place.
        if (!recorded.isEmpty())
            QTRY_VERIFY_WITH_TIMEOUT(ctrlAltKIsGrabbed(), 5000);
        else
            QTest::qWait(500);
        if (capsLock)
            QVERIFY(m_session->xdotool(u"key Caps_Lock"_qs));

        QVERIFY(m_session->xdotool(u"key ctrl+alt+k"_qs));
        QCOMPARE(m_session->vantrelSays(stopped, recorded.isEmpty() ? 1500 : 5000),
                 !recorded.isEmpty());
        if (!recorded.isEmpty()) {
            QVERIFY(m_session->xdotool(u"key ctrl+alt+k"_qs));
            QVERIFY(m_session->vantrelSays(showing, 5000));
        }
        // The other program kept the focus throughout.
        QVERIFY(m_session->display().run(
            u"sh"_qs,
            {u"-c"_qs, u"test \"$(xdotool getwindowfocus getwindowname)\" = xmessage"_qs}));
    }

    // A stored shortcut that another program holds when Vantrel starts is named once on stderr.
    void shortcutTakenAtStartIsReported()
    {
        xcb_connection_t *other =
            xcb_connect(qPrintable(m_session->display().displayName()), nullptr);
        const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(other)).data->root;
        // Keycode 95 is F11 on the server's US keyboard; Vantrel also grabs the lock variants,
        // so one taken variant is enough to refuse the whole combination.
        xcb_grab_key(other, 0, root, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_SHIFT, 95,
                     XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
        xcb_flush(other);
        m_session->writeSettings(
            {{u"KeyboardShortcuts_toggleMouseClicks"_qs, u"Ctrl+Shift+F11"_qs}});
        QVERIFY(m_session->startVantrel());
        QVERIFY2(m_session->vantrelSays("the shortcut Ctrl+Shift+F11 of \"Toggle Mouse Clicks\" is "
                                        "already used by another program",
                                        5000, QProcess::StandardError),
                 m_session->vantrelErrors().constData());
        xcb_disconnect(other);
    }
};

QTEST_GUILESS_MAIN(tst_e2e_Shortcuts)
#include "tst_e2e_Shortcuts.moc"
