// Whole-program tests of the tray application: the real vantrel binary on a private X server
// with a tray host (trayer) and a private session bus, driven with xdotool as a user would.
#include "VirtualDisplay.h"

#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {

const QRgb desktopColor = qRgb(0x20, 0x40, 0x60);

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

    std::unique_ptr<VirtualDisplay> m_display;
    std::unique_ptr<QTemporaryDir> m_config;
    std::unique_ptr<QProcess> m_trayHost;
    std::unique_ptr<QProcess> m_vantrel;
    QString m_busAddress;

    QProcessEnvironment environment() const
    {
        QProcessEnvironment env = m_display->environment();
        env.insert(QStringLiteral("XDG_CONFIG_HOME"), m_config->path());
        env.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), m_busAddress);
        return env;
    }

    // Runs vantrel to its end (a remote call or a second instance): exit code and both outputs.
    std::pair<int, QString> runVantrel(const QStringList &arguments)
    {
        QProcess process;
        process.setProcessEnvironment(environment());
        process.start(QStringLiteral(VANTREL_BINARY), arguments);
        if (!process.waitForFinished(10000))
            return {-1, QStringLiteral("did not finish")};
        return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput() +
                                                      process.readAllStandardError())};
    }

    // Waits until the running vantrel says `text` on its standard output.
    bool vantrelSays(const QByteArray &text)
    {
        return QTest::qWaitFor(
            [&] {
                m_vantrel->waitForReadyRead(50);
                return m_vantrel->readAllStandardOutput().contains(text);
            },
            10000);
    }

    // The tray icon: vantrel's only small window, embedded in the tray host.
    QRect trayIcon() const
    {
        QProcess xdotool;
        xdotool.setProcessEnvironment(m_display->environment());
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
        const QImage before = m_display->grab();
        m_display->xdotool({QStringLiteral("mousemove"), QString::number(icon.center().x()),
                            QString::number(icon.center().y()), QStringLiteral("click"),
                            QStringLiteral("1")});
        QTest::qWait(600);
        const QImage after = m_display->grab();
        QRect menu = changedArea(before, after);
        return {menu, after.copy(menu)};
    }

    int capsShown()
    {
        m_display->xdotool({QStringLiteral("key"), QStringLiteral("ctrl+k")});
        QTest::qWait(400);
        const QImage screen = m_display->grab();
        int changed = 0;
        for (int y = 1080 - 140; y < 1080; y += 2)
            for (int x = 0; x < 1920; x += 2)
                changed += screen.pixel(x, y) != desktopColor ? 1 : 0;
        QTest::qWait(2000); // the caps leave again
        return changed;
    }

    bool isVantrelEnabled() const
    {
        return QSettings(m_config->filePath(QStringLiteral("Vantrel/Vantrel.conf")),
                         QSettings::IniFormat)
            .value(QStringLiteral("isVantrelEnabled"), true)
            .toBool();
    }

private slots:
    void init()
    {
        m_display = std::make_unique<VirtualDisplay>();
        QString error;
        QVERIFY2(m_display->start(&error), qPrintable(error));
        m_display->run(QStringLiteral("xsetroot"),
                       {QStringLiteral("-solid"), QStringLiteral("#204060")});
        m_config = std::make_unique<QTemporaryDir>();

        m_busAddress = m_display->startSessionBus();
        QVERIFY(!m_busAddress.isEmpty());

        m_trayHost = std::make_unique<QProcess>();
        m_trayHost->setProcessEnvironment(m_display->environment());
        m_trayHost->start(QStringLiteral("trayer"),
                          {QStringLiteral("--edge"), QStringLiteral("top"),
                           QStringLiteral("--align"), QStringLiteral("left"),
                           QStringLiteral("--widthtype"), QStringLiteral("request"),
                           QStringLiteral("--height"), QStringLiteral("24"),
                           QStringLiteral("--transparent"), QStringLiteral("false")});
        QVERIFY(m_trayHost->waitForStarted(5000));
        QTest::qWait(500);
    }

    void cleanup()
    {
        if (m_vantrel && m_vantrel->state() == QProcess::Running) {
            m_vantrel->terminate();
            m_vantrel->waitForFinished(5000);
        }
        m_vantrel.reset();
        m_trayHost->terminate();
        m_trayHost->waitForFinished(5000);
        m_display.reset();
    }

    void userControlsVantrelFromTrayAndCommandLine()
    {
        // Remote calls need a running Vantrel, and never start one.
        QCOMPARE(runVantrel({QStringLiteral("--toggle")}),
                 std::make_pair(1, QStringLiteral("Vantrel is not running\n")));

        m_vantrel = std::make_unique<QProcess>();
        m_vantrel->setProcessEnvironment(environment());
        m_vantrel->start(QStringLiteral(VANTREL_BINARY), {});
        QVERIFY(vantrelSays("showing pressed keys"));

        // The icon sits in the tray, drawn.
        QRect icon;
        QVERIFY(QTest::qWaitFor([&] { return !(icon = trayIcon()).isEmpty(); }, 5000));
        QTest::qWait(300);
        const QImage iconImage = m_display->grab().copy(icon);
        QVERIFY(iconImage.pixel(0, 0) != iconImage.pixel(icon.width() / 2, icon.height() / 2) ||
                iconImage.pixel(icon.width() / 2, 3) != iconImage.pixel(0, 0));

        // A click opens the menu of eighteen rows, tall enough for them.
        const auto [menu, running] = openMenu(icon);
        QVERIFY2(menu.height() > 14 * 16 && menu.width() > 150,
                 qPrintable(QStringLiteral("%1x%2").arg(menu.width()).arg(menu.height())));
        const int firstRowBottom = menu.height() / 11;

        // "Stop Vantrel": no more caps, the setting off, and the first row changed alone.
        QVERIFY(capsShown() > 0);
        m_display->xdotool(
            {QStringLiteral("key"), QStringLiteral("Down"), QStringLiteral("Return")});
        QVERIFY(vantrelSays("stopped showing pressed keys"));
        QVERIFY(!isVantrelEnabled());
        QCOMPARE(capsShown(), 0);
        const auto [menuAgain, stopped] = openMenu(icon);
        QCOMPARE(menuAgain, menu);
        QVERIFY(stopped.copy(0, 0, menu.width(), firstRowBottom) !=
                running.copy(0, 0, menu.width(), firstRowBottom));
        QCOMPARE(stopped.copy(0, firstRowBottom, menu.width(), menu.height()),
                 running.copy(0, firstRowBottom, menu.width(), menu.height()));
        m_display->xdotool({QStringLiteral("key"), QStringLiteral("Escape")});

        // `vantrel --toggle` starts it again; the menu says "Stop Vantrel" again.
        QCOMPARE(runVantrel({QStringLiteral("--toggle")}).first, 0);
        QVERIFY(vantrelSays("showing pressed keys"));
        QVERIFY(capsShown() > 0);
        QCOMPARE(openMenu(icon).second, running);
        m_display->xdotool({QStringLiteral("key"), QStringLiteral("Escape")});

        // A second vantrel hands over to the first and leaves; the first opens its settings.
        QCOMPARE(runVantrel({}).first, 0);
        QCOMPARE(m_vantrel->state(), QProcess::Running);
        QTest::qWait(1000); // the window maps and takes the focus before the menu opens

        // "Quit Vantrel" (Ctrl+Q in the open menu) ends it cleanly.
        openMenu(icon);
        m_display->xdotool({QStringLiteral("key"), QStringLiteral("ctrl+q")});
        QVERIFY(m_vantrel->waitForFinished(5000));
        QCOMPARE(m_vantrel->exitCode(), 0);
        QVERIFY(isVantrelEnabled());
    }
};

QTEST_GUILESS_MAIN(tst_e2e_Tray)
#include "tst_e2e_Tray.moc"
