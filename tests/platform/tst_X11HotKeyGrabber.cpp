#include "VirtualDisplay.h"

#include "platform/x11/X11HotKeyGrabber.h"
#include "settings/SettingsStore.h"
#include "shortcuts/KeyboardShortcuts.h"

#include <QTemporaryDir>
#include <QTest>

#include <xcb/xcb.h>

#include <cstdlib>

namespace {

const QString name = QStringLiteral("toggleVantrel");
const QKeyCombination ctrlAltK(Qt::CTRL | Qt::ALT, Qt::Key_K);
// Z moves to another key under the German layout.
const QKeyCombination ctrlAltZ(Qt::CTRL | Qt::ALT, Qt::Key_Z);

// The server's modifier and lock state, as a pointer query reports it.
quint16 modifierState(const QString &display)
{
    xcb_connection_t *connection = xcb_connect(qPrintable(display), nullptr);
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    xcb_query_pointer_reply_t *reply =
        xcb_query_pointer_reply(connection, xcb_query_pointer(connection, root), nullptr);
    const quint16 state = reply ? reply->mask : 0;
    std::free(reply);
    xcb_disconnect(connection);
    return state;
}

} // namespace

// Key grabs against a private Xvfb, keys pressed with xdotool (XTest).
class tst_X11HotKeyGrabber final : public QObject {
    Q_OBJECT

    VirtualDisplay m_xvfb;
    std::unique_ptr<X11HotKeyGrabber> m_grabber;
    int m_presses = 0;
    int m_releases = 0;

private slots:
    void initTestCase()
    {
        QString error;
        QVERIFY2(m_xvfb.start(&error), qPrintable(error));
    }
    void init()
    {
        m_grabber = X11HotKeyGrabber::create(m_xvfb.displayName().toLocal8Bit());
        QVERIFY(m_grabber);
        m_presses = m_releases = 0;
        connect(m_grabber.get(), &HotKeyGrabber::pressed, this, [this] { ++m_presses; });
        connect(m_grabber.get(), &HotKeyGrabber::released, this, [this] { ++m_releases; });
    }
    void cleanup()
    {
        m_xvfb.run(QStringLiteral("xset"), {QStringLiteral("r"), QStringLiteral("on")});
        m_grabber.reset();
        m_xvfb.run(QStringLiteral("setxkbmap"), {QStringLiteral("us")});
    }

    void lockVariants()
    {
        const quint16 c = XCB_MOD_MASK_CONTROL, l = XCB_MOD_MASK_LOCK, n = XCB_MOD_MASK_2,
                      m = XCB_MOD_MASK_5;
        const QList<quint16> variants = X11HotKeyGrabber::lockVariants(c);
        QCOMPARE(QSet<quint16>(variants.cbegin(), variants.cend()),
                 (QSet<quint16>{c, c | l, c | n, c | m, c | l | n, c | l | m, c | n | m,
                                c | l | n | m}));
    }

    // Before the press: xdotool key names of locks to turn on, or a layout to switch to.
    void firesOnceOnRelease_data()
    {
        QTest::addColumn<QStringList>("locks");
        QTest::addColumn<QString>("layout");
        QTest::addColumn<int>("lockState");
        // The keymap is loaded again while the shortcut is held (xdotool may do that as it types).
        QTest::addColumn<bool>("keymapChangeWhileHeld");
        QTest::newRow("plain") << QStringList() << QString() << 0 << false;
        QTest::newRow("Caps Lock on") << QStringList{QStringLiteral("Caps_Lock")} << QString()
                                      << int(XCB_MOD_MASK_LOCK) << false;
        QTest::newRow("Num Lock on")
            << QStringList{QStringLiteral("Num_Lock")} << QString() << int(XCB_MOD_MASK_2) << false;
        QTest::newRow("after a layout change")
            << QStringList() << QStringLiteral("de") << 0 << false;
        QTest::newRow("keymap loaded again while held") << QStringList() << QString() << 0 << true;
    }
    void firesOnceOnRelease()
    {
        QFETCH(QStringList, locks);
        QFETCH(QString, layout);
        QFETCH(int, lockState);
        QFETCH(bool, keymapChangeWhileHeld);
        // Without repeated presses, which would mark the key as held again.
        if (keymapChangeWhileHeld)
            QVERIFY(
                m_xvfb.run(QStringLiteral("xset"), {QStringLiteral("r"), QStringLiteral("off")}));
        QCOMPARE(m_grabber->grab(name, ctrlAltZ), HotKeyGrabber::GrabResult::grabbed);
        if (!layout.isEmpty()) {
            QVERIFY(m_xvfb.run(QStringLiteral("setxkbmap"), {layout}));
            QTest::qWait(300);
        }
        for (const QString &lock : locks)
            QVERIFY(m_xvfb.xdotool({QStringLiteral("key"), lock}));
        QCOMPARE(modifierState(m_xvfb.displayName()) & (XCB_MOD_MASK_LOCK | XCB_MOD_MASK_2),
                 lockState);
        QVERIFY(m_xvfb.xdotool({QStringLiteral("keydown"), QStringLiteral("ctrl+alt+z")}));
        // Held past the server's repeat delay: presses may repeat, but nothing is released.
        QTest::qWait(700);
        QCOMPARE(m_releases, 0);
        QVERIFY(m_presses >= 1);
        if (keymapChangeWhileHeld) {
            m_presses = 0;
            QVERIFY(m_xvfb.run(QStringLiteral("setxkbmap"), {QStringLiteral("us")}));
            QTest::qWait(300);
            QCOMPARE(m_presses, 0);
        }
        QVERIFY(m_xvfb.xdotool({QStringLiteral("keyup"), QStringLiteral("ctrl+alt+z")}));
        QTRY_COMPARE(m_releases, 1);
        for (const QString &lock : locks)
            QVERIFY(m_xvfb.xdotool({QStringLiteral("key"), lock}));
        QTest::qWait(200);
        QCOMPARE(m_releases, 1);
    }

    // Grabs Ctrl+Alt+K on the root for `connection`; false if another client holds it.
    static bool grabCtrlAltK(xcb_connection_t *connection)
    {
        const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
        // Keycode 45 is K on the server's US keyboard; no lock held.
        xcb_generic_error_t *error = xcb_request_check(
            connection,
            xcb_grab_key_checked(connection, 0, root, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1, 45,
                                 XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
        const bool grabbed = !error;
        std::free(error);
        return grabbed;
    }

    // Through the library, as the recorder sees it: refused, and the old shortcut stays.
    void takenByAnotherClient()
    {
        xcb_connection_t *other = xcb_connect(qPrintable(m_xvfb.displayName()), nullptr);
        QVERIFY(!xcb_connection_has_error(other));
        QVERIFY(grabCtrlAltK(other));
        QTemporaryDir dir;
        SettingsStore store(dir.filePath(QStringLiteral("Vantrel.conf")));
        KeyboardShortcuts shortcuts(store, std::move(m_grabber));
        shortcuts.onKeyUp(name, [] {});
        QCOMPARE(shortcuts.setShortcut(name, QKeySequence(Qt::Key_F5)),
                 KeyboardShortcuts::SetResult::set);
        QCOMPARE(shortcuts.setShortcut(name, QKeySequence(ctrlAltK)),
                 KeyboardShortcuts::SetResult::takenByAnotherProgram);
        QCOMPARE(shortcuts.shortcut(name), QKeySequence(Qt::Key_F5));
        xcb_disconnect(other);
        // Free again once the other program has gone.
        QTRY_COMPARE(shortcuts.setShortcut(name, QKeySequence(ctrlAltK)),
                     KeyboardShortcuts::SetResult::set);

        // Cleared, the combination is free for other programs again.
        shortcuts.reset(name);
        xcb_connection_t *third = xcb_connect(qPrintable(m_xvfb.displayName()), nullptr);
        QVERIFY(grabCtrlAltK(third));
        xcb_disconnect(third);
    }
};

QTEST_MAIN(tst_X11HotKeyGrabber)
#include "tst_X11HotKeyGrabber.moc"
