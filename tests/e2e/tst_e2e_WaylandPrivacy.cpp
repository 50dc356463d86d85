// Password fields in a Wayland session: a GTK window on headless sway shares the session bus,
// and so the accessibility bus, with Vantrel; keys reach Vantrel through the device folder.
#include "VirtualDisplay.h"
#include "WaylandSession.h"
#include "settings/SettingsStore.h"

#include <QTest>

#include <memory>

namespace {

const QRect bottomBand(0, 1080 - 300, 1920, 300);

} // namespace

class tst_e2e_WaylandPrivacy final : public QObject {
    Q_OBJECT

private slots:
    // The password entry has the focus before Vantrel starts: typing shows nothing; in the
    // ordinary entry every key shows; back in the password entry nothing does.
    void passwordFieldShowsNothing()
    {
        VirtualDisplay busOwner; // only its private session bus is used
        const QString bus = busOwner.startSessionBus();
        QVERIFY2(!bus.isEmpty(), "dbus-daemon did not start");
        WaylandSession session(HeadlessSway::XWayland::disabled);
        QString error;
        QVERIFY2(session.sway().start(&error), qPrintable(error));
        // The settings window (no tray host) goes out of sight; the test window floats in the
        // middle, above the caps.
        QVERIFY(session.sway().swaymsg(
            {QStringLiteral("for_window [title=\"Vantrel Settings\"] move scratchpad")}));
        QVERIFY(session.sway().swaymsg(
            {QStringLiteral("for_window [title=\"Vantrel password test\"] floating enable")}));
        QProcessEnvironment env = session.sway().environment();
        env.remove(QStringLiteral("QT_QPA_PLATFORM"));
        env.remove(QStringLiteral("NO_AT_BRIDGE"));
        SettingsStore(session.settingsPath()).setRawValue(QStringLiteral("showAllKeys"), true);
        session.setSessionBus(bus);

        // The window has the focus before Vantrel starts: no focus event will name it.
        QProcess window;
        QProcessEnvironment windowEnv = env;
        windowEnv.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), bus);
        windowEnv.insert(QStringLiteral("GDK_BACKEND"), QStringLiteral("wayland"));
        window.setProcessEnvironment(windowEnv);
        window.start(QStringLiteral("/usr/bin/python3"), {QStringLiteral(VANTREL_PASSWORD_WINDOW)});
        QVERIFY(window.waitForReadyRead(10000));
        QTest::qWait(1500); // mapped, focused and known to the accessibility bus
        QVERIFY2(session.startVantrel(env, &error), qPrintable(error));
        QTest::qWait(500); // the focused password field found

        for (const int key : {KEY_S, KEY_E, KEY_C})
            QVERIFY(session.tap(key));
        QTest::qWait(500);
        QCOMPARE(session.capCount(bottomBand), 0);

        window.write("ordinary\n");
        QTest::qWait(500);
        for (const int key : {KEY_A, KEY_B, KEY_C})
            QVERIFY(session.tap(key));
        QTRY_COMPARE_WITH_TIMEOUT(session.capCount(bottomBand), 3, 5000);

        // Back into the password entry: the caps go at once, and nothing more is added.
        window.write("password\n");
        QTRY_COMPARE_WITH_TIMEOUT(session.capCount(bottomBand), 0, 5000);
        for (const int key : {KEY_X, KEY_Y})
            QVERIFY(session.tap(key));
        QTest::qWait(500);
        QCOMPARE(session.capCount(bottomBand), 0);

        window.terminate();
        window.waitForFinished(5000);
        // What reached the terminal: no Qt notes about what only X11 has (there is no tray here).
        const QByteArray errors = error.toLocal8Bit() + session.vantrelErrors();
        QVERIFY2(!errors.contains("qt."), errors.constData());
    }
};

QTEST_GUILESS_MAIN(tst_e2e_WaylandPrivacy)
#include "tst_e2e_WaylandPrivacy.moc"
