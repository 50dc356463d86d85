// Whole-program tests of the tray application: the real vantrel binary on a private X server
// with a tray host (trayer) and a private session bus, driven with xdotool as a user would.
#include "X11Session.h"

#include <QRegularExpression>
#include <QSettings>
#include <QTest>

#include <memory>

namespace {

// The bounding box of the pixels that differ between two screens.
QRect changedArea(const QImage &before, const QImage &after)
{
    QRect area;
    for (int y = 0; y < before.height(); y += 2)
        for (int x = 0; x < before.width(); x += 2)
            if (before.pixel(x, y) != after.pixel(x, y))
                area |= QRect(x, y, 2, 2);
    return area;
}

} // namespace

class tst_e2e_Tray final : public QObject {
    Q_OBJECT

    std::unique_ptr<X11Session> m_session;

    // The tray icon: vantrel's only small window, embedded in the tray host.
    QRect trayIcon() const
    {
        QProcess xdotool;
        xdotool.setProcessEnvironment(m_session->display().environment());
        xdotool.start(
            QStringLiteral("xdotool"),
            QStringLiteral("search --classname vantrel getwindowgeometry %@").split(u' '));
        xdotool.waitForFinished(5000);
        static const QRegularExpression window(
            QStringLiteral(R"(Position: (\d+),(\d+).*\n\s*Geometry: (\d+)x(\d+))"));
        for (auto it = window.globalMatch(QString::fromUtf8(xdotool.readAllStandardOutput()));
             it.hasNext();) {
            const QRegularExpressionMatch m = it.next();
            const QRect rect(m.captured(1).toInt(), m.captured(2).toInt(), m.captured(3).toInt(),
                             m.captured(4).toInt());
            if (rect.width() >= 16 && rect.width() <= 64)
                return rect;
        }
        return {};
    }

    // Clicks the tray icon; the menu's area on screen, and the menu as the user sees it.
    std::pair<QRect, QImage> openMenu(const QRect &icon)
    {
        const QImage before = m_session->display().grab();
        m_session->xdotool(QStringLiteral("mousemove %1 %2 click 1")
                               .arg(icon.center().x())
                               .arg(icon.center().y()));
        QTest::qWait(600);
        const QImage after = m_session->display().grab();
        QRect menu = changedArea(before, after);
        return {menu, after.copy(menu)};
    }

    int capsShown()
    {
        const QImage screen = m_session->pressAndGrab(QStringLiteral("ctrl+k"), 400);
        int changed = 0;
        for (int y = 1080 - 140; y < 1080; y += 2)
            for (int x = 0; x < 1920; x += 2)
                changed += screen.pixel(x, y) != X11Session::desktopColor ? 1 : 0;
        QTest::qWait(2000); // the caps leave again
        return changed;
    }

    bool isVantrelEnabled() const
    {
        return QSettings(m_session->settingsPath(), QSettings::IniFormat)
            .value(QStringLiteral("isVantrelEnabled"), true)
            .toBool();
    }

private slots:
    void init()
    {
        m_session = std::make_unique<X11Session>();
        QString error;
        QVERIFY2(m_session->start({.sessionBus = true}, &error), qPrintable(error));
        QVERIFY(m_session->startProgram(
            QStringLiteral("trayer"),
            QStringLiteral("--edge top --align left --widthtype request --height 24 "
                           "--transparent false")
                .split(u' ')));
        QTest::qWait(500);
    }

    void cleanup()
    {
        m_session->stopVantrel();
        m_session.reset();
    }

    void userControlsVantrelFromTrayAndCommandLine()
    {
        // Remote calls need a running Vantrel, and never start one.
        QCOMPARE(m_session->runVantrel({QStringLiteral("--toggle")}),
                 std::make_pair(1, QStringLiteral("Vantrel is not running\n")));

        QVERIFY(m_session->startVantrel());

        // The icon sits in the tray, drawn.
        QRect icon;
        QVERIFY(QTest::qWaitFor([&] { return !(icon = trayIcon()).isEmpty(); }, 5000));
        QTest::qWait(300);
        const QImage iconImage = m_session->display().grab().copy(icon);
        QVERIFY(iconImage.pixel(0, 0) != iconImage.pixel(icon.width() / 2, icon.height() / 2) ||
                iconImage.pixel(icon.width() / 2, 3) != iconImage.pixel(0, 0));

        // A click opens the menu of eighteen rows, tall enough for them.
        const auto [menu, running] = openMenu(icon);
        QVERIFY2(menu.height() > 14 * 16 && menu.width() > 150,
                 qPrintable(QStringLiteral("%1x%2").arg(menu.width()).arg(menu.height())));
        const int firstRowBottom = menu.height() / 11;

        // "Stop Vantrel": no more caps, the setting off, and the first row changed alone.
        QVERIFY(capsShown() > 0);
        m_session->xdotool(QStringLiteral("key Down Return"));
        QVERIFY(m_session->vantrelSays("stopped showing pressed keys"));
        QVERIFY(!isVantrelEnabled());
        QCOMPARE(capsShown(), 0);
        const auto [menuAgain, stopped] = openMenu(icon);
        QCOMPARE(menuAgain, menu);
        QVERIFY(stopped.copy(0, 0, menu.width(), firstRowBottom) !=
                running.copy(0, 0, menu.width(), firstRowBottom));
        QCOMPARE(stopped.copy(0, firstRowBottom, menu.width(), menu.height()),
                 running.copy(0, firstRowBottom, menu.width(), menu.height()));
        m_session->xdotool(QStringLiteral("key Escape"));

        // `vantrel --toggle` starts it again; the menu says "Stop Vantrel" again.
        QCOMPARE(m_session->runVantrel({QStringLiteral("--toggle")}).first, 0);
        QVERIFY(m_session->vantrelSays("showing pressed keys"));
        QVERIFY(capsShown() > 0);
        QCOMPARE(openMenu(icon).second, running);
        m_session->xdotool(QStringLiteral("key Escape"));

        // A second vantrel hands over to the first and leaves; the first opens its settings.
        QCOMPARE(m_session->runVantrel({}).first, 0);
        QCOMPARE(m_session->vantrel().state(), QProcess::Running);
        QTest::qWait(1000); // the window maps and takes the focus before the menu opens

        // "Quit Vantrel" (Ctrl+Q in the open menu) ends it cleanly.
        openMenu(icon);
        m_session->xdotool(QStringLiteral("key ctrl+q"));
        QVERIFY(m_session->vantrel().waitForFinished(5000));
        m_session->stopVantrel(); // ended cleanly
        QVERIFY(isVantrelEnabled());
    }
};

QTEST_GUILESS_MAIN(tst_e2e_Tray)
#include "tst_e2e_Tray.moc"
