// Whole-program tests of secrecy: with every key shown, nothing typed while a fake screen locker
// says the session is locked, nor into a GTK password field (on a real accessibility bus), ever
// reaches the screen; typing elsewhere does.
#include "FakeLocker.h"
#include "X11Session.h"

#include <QDBusConnection>
#include <QTest>

#include <memory>

class tst_e2e_Privacy final : public QObject {
    Q_OBJECT

    std::unique_ptr<X11Session> m_session;

    // With every key shown, long enough for the checks.
    bool startVantrel()
    {
        m_session->writeSettings(
            {{QStringLiteral("showAllKeys"), true}, {QStringLiteral("keyDisplayDuration"), 10.0}});
        return m_session->startVantrel(500);
    }

    int capsShown() const
    {
        return int(X11Session::findCaps(m_session->display().grab(),
                                        X11Session::bottomBand(VirtualDisplay::leftMonitor()))
                       .size());
    }

    void type(const QString &text) const { m_session->xdotool(u"type --delay 40 " + text); }
    // Clicks the window's entry at height `y` and lets it take the focus.
    void click(int y) const
    {
        m_session->xdotool(QStringLiteral("mousemove 200 %1 click 1").arg(y));
        QTest::qWait(300);
    }

private slots:
    void init()
    {
        m_session = std::make_unique<X11Session>();
        QString error;
        QVERIFY2(m_session->start({.windowManager = true, .sessionBus = true}, &error),
                 qPrintable(error));
        QProcessEnvironment &env = m_session->environment();
        // No login manager here: that protection is off, the others must still work.
        env.insert(QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS"),
                   u"unix:path=" + m_session->configPath() + u"/no-bus");
        env.remove(QStringLiteral("NO_AT_BRIDGE"));
    }

    void cleanup()
    {
        m_session->stopVantrel();
        m_session.reset();
    }

    // ActiveChanged(true) takes the caps away at once (no removal is played) and hides all
    // typing until ActiveChanged(false); then the next keys show, and only they.
    void lockedSessionShowsNothing()
    {
        QDBusConnection bus = QDBusConnection::connectToBus(m_session->sessionBus(), "locker");
        FakeLocker locker(false);
        QVERIFY(locker.serve(bus));
        QVERIFY(startVantrel());

        type(QStringLiteral("abc"));
        QTRY_COMPARE(capsShown(), 3);

        emit locker.ActiveChanged(true);
        // A removal would still show the caps now (it lasts 0.2 s or more, easing in).
        QTest::qWait(100);
        QCOMPARE(capsShown(), 0);
        type(QStringLiteral("pass"));
        m_session->xdotool(QStringLiteral("key ctrl+Return"));
        QTest::qWait(400);
        QCOMPARE(capsShown(), 0);

        emit locker.ActiveChanged(false);
        QTest::qWait(300);
        QCOMPARE(capsShown(), 0);
        type(QStringLiteral("xy"));
        QTRY_COMPARE(capsShown(), 2);
        QTest::qWait(300);
        QCOMPARE(capsShown(), 2);
        QDBusConnection::disconnectFromBus(QStringLiteral("locker"));
    }

    // Typing into a GTK password entry shows nothing; the next entry shows every key; keys show
    // again once the application with the focused password entry is gone.
    void passwordFieldShowsNothing()
    {
        QVERIFY(startVantrel());
        QProcess window;
        window.setProcessEnvironment(m_session->environment());
        // Debian's own Python, which has python3-gi (another python3 may come first on PATH).
        window.start(QStringLiteral("/usr/bin/python3"), {QStringLiteral(VANTREL_PASSWORD_WINDOW)});
        QVERIFY(window.waitForReadyRead(10000));
        QTest::qWait(1000); // mapped, focused and known to the accessibility bus

        // The password entry is the upper one, the ordinary one below it.
        click(25);
        type(QStringLiteral("secret"));
        QTest::qWait(400);
        QCOMPARE(capsShown(), 0);

        click(75);
        type(QStringLiteral("abcd"));
        QTRY_COMPARE(capsShown(), 4);

        // And back: the caps go at once, and nothing more is added.
        m_session->xdotool(QStringLiteral("mousemove 200 25 click 1"));
        QTRY_COMPARE(capsShown(), 0);
        type(QStringLiteral("word"));
        QTest::qWait(400);
        QCOMPARE(capsShown(), 0);

        // The application crashes with its password field focused: it can no longer have the
        // focus, so keys show again.
        window.kill();
        QVERIFY(window.waitForFinished(5000));
        QTest::qWait(500);
        type(QStringLiteral("xy"));
        QTRY_COMPARE(capsShown(), 2);
    }
};

QTEST_GUILESS_MAIN(tst_e2e_Privacy)
#include "tst_e2e_Privacy.moc"
