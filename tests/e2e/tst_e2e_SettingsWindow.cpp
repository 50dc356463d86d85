// Whole-program test of the settings window: the real vantrel on a private two-monitor X server
// with a window manager, its window opened from the command line and driven with xdotool, the
// overlays read back.
#include "VirtualDisplay.h"
#include "settings/AppSettings.h"
#include "settings/SettingsStore.h"

#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {

const QRgb desktopColor = qRgb(0x20, 0x40, 0x60);

// Pixels of `area` that are not the desktop.
int changedPixels(const QImage &screen, const QRect &area)
{
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x) {
            const QRgb p = screen.pixel(x, y);
            count += qAbs(qRed(p) - qRed(desktopColor)) + qAbs(qGreen(p) - qGreen(desktopColor)) +
                                 qAbs(qBlue(p) - qBlue(desktopColor)) >
                             60
                         ? 1
                         : 0;
        }
    return count;
}

// Where the keys of a display show by default (the settings window stays above it).
QRect bottomBand(const QRect &monitor)
{
    return {monitor.left(), monitor.bottom() - 140, monitor.width(), 140};
}

} // namespace

class tst_e2e_SettingsWindow final : public QObject {
    Q_OBJECT

    std::unique_ptr<VirtualDisplay> m_display;
    QTemporaryDir m_config;
    std::unique_ptr<QProcess> m_vantrel;
    QProcessEnvironment m_env;

    bool xdotool(const QString &arguments) const
    {
        return m_display->xdotool(arguments.split(u' '));
    }

    QImage grab(const QString &name) const { return m_display->grab(name); }

    QByteArray storedDisplays() const
    {
        return SettingsStore(m_config.filePath(QStringLiteral("Vantrel/Vantrel.conf")))
            .value(AppSettings::displayConfigurations);
    }

    // Presses Ctrl+K and reads the screen while its caps show.
    QImage pressCtrlK(const QString &name)
    {
        xdotool(QStringLiteral("key ctrl+k"));
        QTest::qWait(500);
        return grab(name);
    }

private slots:
    void init()
    {
        m_display = std::make_unique<VirtualDisplay>();
        QString error;
        QVERIFY2(m_display->start(&error), qPrintable(error));
        m_display->run(QStringLiteral("xsetroot"),
                       {QStringLiteral("-solid"), QStringLiteral("#204060")});
        // A window manager, so that the settings window takes the keyboard.
        QVERIFY(m_display->startWindowManager());
        // Vantrel is reached over a session bus of the test's own.
        const QString bus = m_display->startSessionBus();
        QVERIFY(!bus.isEmpty());
        m_env = m_display->environment();
        m_env.insert(QStringLiteral("XDG_CONFIG_HOME"), m_config.path());
        m_env.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), bus);
        QTest::qWait(500);
    }

    void cleanup()
    {
        if (m_vantrel) {
            m_vantrel->terminate();
            QVERIFY(m_vantrel->waitForFinished(5000));
            const QByteArray output = m_vantrel->readAll() + m_vantrel->readAllStandardError();
            // Key labels never reach the terminal.
            QVERIFY2(!output.contains("⌃") && !output.contains("K\n"), output.constData());
            m_vantrel.reset();
        }
        m_display.reset();
    }

    void switchingOnTheSecondDisplayShowsKeysThere()
    {
        m_vantrel = std::make_unique<QProcess>();
        m_vantrel->setProcessEnvironment(m_env);
        m_vantrel->start(QStringLiteral(VANTREL_BINARY), {});
        QByteArray said;
        QTRY_VERIFY2_WITH_TIMEOUT((said += m_vantrel->readAll()).contains("showing pressed keys"),
                                  said.constData(), 10000);
        QTest::qWait(300);

        // At first only the main display shows keys.
        const QImage before = pressCtrlK(QStringLiteral("before"));
        QVERIFY(changedPixels(before, bottomBand(VirtualDisplay::leftMonitor())) > 500);
        QCOMPARE(changedPixels(before, bottomBand(VirtualDisplay::rightMonitor())), 0);

        QProcess call;
        call.setProcessEnvironment(m_env);
        call.start(QStringLiteral(VANTREL_BINARY), {QStringLiteral("--settings")});
        QVERIFY(call.waitForFinished(10000) && call.exitCode() == 0);
        // Tried until the window manager, busy on a loaded machine, activates it.
        QTRY_VERIFY_WITH_TIMEOUT(
            m_display->run(QStringLiteral("xdotool"),
                           {QStringLiteral("search"), QStringLiteral("--sync"),
                            QStringLiteral("--onlyvisible"), QStringLiteral("--name"),
                            QStringLiteral("Vantrel Settings"), QStringLiteral("windowactivate"),
                            QStringLiteral("--sync")}),
            15000);
        QTest::qWait(300);
        // General, Appearance, then Displays.
        QVERIFY(xdotool(QStringLiteral("key ctrl+Tab ctrl+Tab")));
        QTest::qWait(400);
        // The second row's check box ("RIGHT" sorts after "LEFT"), from the window's corner.
        QVERIFY(m_display->run(QStringLiteral("xdotool"),
                               {QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                                QStringLiteral("--name"), QStringLiteral("Vantrel Settings"),
                                QStringLiteral("mousemove"), QStringLiteral("--window"),
                                QStringLiteral("%1"), QStringLiteral("31"), QStringLiteral("124"),
                                QStringLiteral("click"), QStringLiteral("1")}));
        QTest::qWait(400);
        grab(QStringLiteral("displays-tab"));
        QVERIFY(storedDisplays().contains(R"("name":"RIGHT","isEnabled":true)"));

        // Let the keys of the tab switch leave, then both displays show the next ones.
        QTest::qWait(2200);
        const QImage after = pressCtrlK(QStringLiteral("after"));
        QVERIFY(changedPixels(after, bottomBand(VirtualDisplay::leftMonitor())) > 500);
        QVERIFY(changedPixels(after, bottomBand(VirtualDisplay::rightMonitor())) > 500);
    }
};

QTEST_GUILESS_MAIN(tst_e2e_SettingsWindow)
#include "tst_e2e_SettingsWindow.moc"
