// Whole-program test of the settings window: the real vantrel on a private two-monitor X server
// with a window manager, its window opened from the command line and driven with xdotool, the
// overlays read back.
#include "X11Session.h"
#include "settings/AppSettings.h"
#include "settings/SettingsStore.h"

#include <QTest>

#include <memory>

class tst_e2e_SettingsWindow final : public QObject {
    Q_OBJECT

    std::unique_ptr<X11Session> m_session;

    // Presses Ctrl+K and counts, while its caps show, what differs from the desktop where the
    // keys of each display show by default (the settings window stays above them).
    std::pair<int, int> pressCtrlK(const QString &name) const
    {
        const QImage screen = m_session->pressAndGrab(QStringLiteral("ctrl+k"), 500, name);
        return {X11Session::changedPixels(screen,
                                          X11Session::bottomBand(VirtualDisplay::leftMonitor())),
                X11Session::changedPixels(screen,
                                          X11Session::bottomBand(VirtualDisplay::rightMonitor()))};
    }

private slots:
    void init()
    {
        // A window manager, so that the settings window takes the keyboard; Vantrel is reached
        // over a session bus of the test's own.
        m_session = std::make_unique<X11Session>();
        QString error;
        QVERIFY2(m_session->start({.windowManager = true, .sessionBus = true}, &error),
                 qPrintable(error));
    }

    void cleanup()
    {
        m_session->stopVantrel();
        m_session.reset();
    }

    void switchingOnTheSecondDisplayShowsKeysThere()
    {
        QVERIFY(m_session->startVantrel());

        // At first only the main display shows keys.
        const auto [left, right] = pressCtrlK(QStringLiteral("before"));
        QVERIFY(left > 500);
        QCOMPARE(right, 0);

        QVERIFY(m_session->openSettingsWindow());
        // General, Appearance, then Displays.
        QVERIFY(m_session->xdotool(QStringLiteral("key ctrl+Tab ctrl+Tab")));
        QTest::qWait(400);
        // The second row's check box ("RIGHT" sorts after "LEFT"), from the window's corner.
        QVERIFY(m_session->display().xdotool(
            {QStringLiteral("search"), QStringLiteral("--onlyvisible"), QStringLiteral("--name"),
             QStringLiteral("Vantrel Settings"), QStringLiteral("mousemove"),
             QStringLiteral("--window"), QStringLiteral("%1"), QStringLiteral("31"),
             QStringLiteral("124"), QStringLiteral("click"), QStringLiteral("1")}));
        QTest::qWait(400);
        m_session->display().grab(QStringLiteral("displays-tab"));
        QVERIFY(SettingsStore(m_session->settingsPath())
                    .value(AppSettings::displayConfigurations)
                    .contains(R"("name":"RIGHT","isEnabled":true)"));

        // Let the keys of the tab switch leave, then both displays show the next ones.
        QTest::qWait(2200);
        const auto [leftAfter, rightAfter] = pressCtrlK(QStringLiteral("after"));
        QVERIFY(leftAfter > 500);
        QVERIFY(rightAfter > 500);
    }
};

QTEST_GUILESS_MAIN(tst_e2e_SettingsWindow)
#include "tst_e2e_SettingsWindow.moc"
