// Whole-program tests: the real vantrel binary on a private two-monitor X server, keys pressed
// with xdotool, and what a user would see read back from the screen.
#include "CapFinder.h"
#include "VirtualDisplay.h"
#include "settings/AppSettings.h"
#include "settings/SettingsStore.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

namespace {

const QRgb desktopColor = qRgb(0x20, 0x40, 0x60);

using CapFinder::differs;

QList<QRect> findCaps(const QImage &screen, const QRect &area, QRgb background = desktopColor)
{
    return CapFinder::findCaps(screen, area, background);
}

int changedPixels(const QImage &screen, const QRect &area)
{
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            count += differs(screen.pixel(x, y), desktopColor) ? 1 : 0;
    return count;
}

} // namespace

class tst_e2e_Overlay final : public QObject {
    Q_OBJECT

    std::unique_ptr<VirtualDisplay> m_display;
    std::unique_ptr<QTemporaryDir> m_config;
    std::unique_ptr<QProcess> m_vantrel;

    QString settingsPath() const
    {
        return m_config->filePath(QStringLiteral("Vantrel/Vantrel.conf"));
    }

    void writeSettings(const QVariantMap &values)
    {
        SettingsStore settings(settingsPath());
        for (auto it = values.cbegin(); it != values.cend(); ++it)
            settings.setRawValue(it.key(), it.value());
    }

    bool startVantrel()
    {
        m_vantrel = std::make_unique<QProcess>();
        QProcessEnvironment env = m_display->environment();
        env.insert(QStringLiteral("XDG_CONFIG_HOME"), m_config->path());
        m_vantrel->setProcessEnvironment(env);
        m_vantrel->setProcessChannelMode(QProcess::SeparateChannels);
        m_vantrel->start(QStringLiteral(VANTREL_BINARY), {});
        if (!m_vantrel->waitForStarted(5000))
            return false;
        // It says when it listens; then give the windows a moment to map.
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < 10000) {
            m_vantrel->waitForReadyRead(100);
            if (m_vantrel->readAllStandardOutput().contains("showing pressed keys")) {
                QTest::qWait(300);
                return true;
            }
            if (m_vantrel->state() != QProcess::Running)
                return false;
        }
        return false;
    }

    // Quits vantrel as a user would (SIGTERM) and checks it exits cleanly.
    void stopVantrel()
    {
        if (!m_vantrel)
            return;
        if (m_vantrel->state() == QProcess::Running) {
            m_vantrel->terminate();
            QVERIFY2(m_vantrel->waitForFinished(5000), "vantrel did not quit on SIGTERM");
            QCOMPARE(m_vantrel->exitStatus(), QProcess::NormalExit);
            QCOMPARE(m_vantrel->exitCode(), 0);
        }
        const QByteArray output =
            m_vantrel->readAllStandardOutput() + m_vantrel->readAllStandardError();
        m_vantrel.reset();
        // Key labels never reach the terminal.
        QVERIFY2(!output.contains("⌃") && !output.contains("K\n"), output.constData());
    }

    QRect bottomBand(const QRect &monitor) const
    {
        return {monitor.left(), monitor.bottom() - 140, monitor.width(), 140};
    }

    QImage pressAndGrab(const QStringList &keys, int waitMs = 500)
    {
        for (const QString &key : keys)
            m_display->xdotool({QStringLiteral("key"), key});
        QTest::qWait(waitMs);
        return m_display->grab();
    }

    // Runs vantrel once so that it records the connected displays, then enables all of them.
    void enableAllDisplays()
    {
        QVERIFY(startVantrel());
        stopVantrel();
        SettingsStore settings(settingsPath());
        QJsonArray displays =
            QJsonDocument::fromJson(settings.value(AppSettings::displayConfigurations)).array();
        QCOMPARE(displays.size(), 2);
        for (auto entry : displays) {
            QJsonObject display = entry.toObject();
            display[QStringLiteral("isEnabled")] = true;
            entry = display;
        }
        settings.setValue(AppSettings::displayConfigurations,
                          QJsonDocument(displays).toJson(QJsonDocument::Compact));
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
    }

    void cleanup()
    {
        stopVantrel();
        m_display.reset();
        m_config.reset();
    }

    void commandLine_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("display");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("output");
        QTest::newRow("help") << QStringList{QStringLiteral("--help")} << QString() << 0
                              << QStringLiteral("Usage: vantrel");
        QTest::newRow("version") << QStringList{QStringLiteral("--version")} << QString() << 0
                                 << QStringLiteral("Vantrel ");
        QTest::newRow("unknown option") << QStringList{QStringLiteral("--bogus")} << QString() << 2
                                        << QStringLiteral("unknown option");
        QTest::newRow("no display")
            << QStringList() << QString() << 1 << QStringLiteral("vantrel: no X11 display");
        QTest::newRow("unreachable display") << QStringList() << QStringLiteral(":987") << 1
                                             << QStringLiteral("cannot open X11 display");
    }
    void commandLine()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, display);
        QFETCH(int, exitCode);
        QFETCH(QString, output);
        QProcess process;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("DISPLAY"), display);
        env.insert(QStringLiteral("XDG_CONFIG_HOME"), m_config->path());
        process.setProcessEnvironment(env);
        process.start(QStringLiteral(VANTREL_BINARY), arguments);
        QVERIFY(process.waitForFinished(10000));
        QCOMPARE(process.exitCode(), exitCode);
        const QString text = QString::fromUtf8(process.readAll() + process.readAllStandardError());
        QVERIFY2(text.contains(output), qPrintable(text));
        if (exitCode == 1)
            QCOMPARE(text.count(u'\n'), 1); // one clear line
    }

    // Two records for one display cannot both be right: Vantrel says how to mend the file and
    // stops, without a core dump.
    void duplicateDisplayRecordsStopWithOneClearLine()
    {
        QVERIFY(startVantrel());
        stopVantrel();
        SettingsStore settings(settingsPath());
        QJsonArray displays =
            QJsonDocument::fromJson(settings.value(AppSettings::displayConfigurations)).array();
        QVERIFY(!displays.isEmpty());
        displays.append(displays.first());
        settings.setValue(AppSettings::displayConfigurations,
                          QJsonDocument(displays).toJson(QJsonDocument::Compact));
        const QString id = QString::number(displays.first()[QStringLiteral("id")].toInteger());

        QProcess process;
        QProcessEnvironment env = m_display->environment();
        env.insert(QStringLiteral("XDG_CONFIG_HOME"), m_config->path());
        env.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_config->path()); // Qt warns without one
        process.setProcessEnvironment(env);
        process.start(QStringLiteral(VANTREL_BINARY), {});
        QVERIFY(process.waitForFinished(10000));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 1);
        // One line says it all (a session without D-Bus adds a note of its own before it).
        const QString text = QString::fromUtf8(process.readAllStandardError());
        const QStringList lines = text.split(u'\n', Qt::SkipEmptyParts)
                                      .filter(QStringLiteral("\"displayConfigurations\""));
        QVERIFY2(lines.size() == 1, qPrintable(text));
        for (const QString &part : {settingsPath(), id})
            QVERIFY2(lines.first().contains(part), qPrintable(text));
    }

    // Without a compositor: two 64-point caps, the row centred 20 points above the primary
    // monitor's bottom edge, the desktop visible around and between them, nothing elsewhere.
    void shortcutShowsTwoCapsBottomCentreOfPrimaryOnly()
    {
        QVERIFY(startVantrel());
        const QImage screen = pressAndGrab({QStringLiteral("ctrl+k")});
        const QList<QRect> caps = findCaps(screen, bottomBand(VirtualDisplay::leftMonitor()));
        QCOMPARE(caps.size(), 2);
        const int rowCentre = (caps.first().left() + caps.last().right()) / 2;
        QVERIFY2(qAbs(rowCentre - 960) <= 3, qPrintable(QString::number(rowCentre)));
        for (const QRect &cap : caps) {
            QVERIFY2(qAbs(cap.height() - 64) <= 4, qPrintable(QString::number(cap.height())));
            QVERIFY(qAbs(cap.bottom() - (1080 - 20)) <= 4);
        }
        QCOMPARE(changedPixels(screen, VirtualDisplay::rightMonitor()), 0);
        const QRect row = caps.first().united(caps.last()).adjusted(-8, -8, 8, 8);
        int outside = 0;
        for (int y = 0; y < 1080; y += 4)
            for (int x = 0; x < 1920; x += 4)
                if (!row.contains(x, y) && differs(screen.pixel(x, y), desktopColor))
                    ++outside;
        QCOMPARE(outside, 0);
        const int gapX = (caps.first().right() + caps.last().left()) / 2;
        QCOMPARE(screen.pixel(gapX, caps.first().center().y()), desktopColor);
    }

    void plainTypingShowsOnlyWithShowAllKeys_data()
    {
        QTest::addColumn<bool>("showAllKeys");
        QTest::addColumn<int>("expectedCaps");
        QTest::newRow("defaults") << false << 0;
        QTest::newRow("showAllKeys") << true << 1;
    }
    void plainTypingShowsOnlyWithShowAllKeys()
    {
        QFETCH(bool, showAllKeys);
        QFETCH(int, expectedCaps);
        writeSettings({{QStringLiteral("showAllKeys"), showAllKeys}});
        QVERIFY(startVantrel());
        const QImage screen = pressAndGrab({QStringLiteral("k")});
        QCOMPARE(findCaps(screen, bottomBand(VirtualDisplay::leftMonitor())).size(), expectedCaps);
    }

    void capsLeaveAfterTheirDuration()
    {
        writeSettings({{QStringLiteral("keyDisplayDuration"), 0.6}});
        QVERIFY(startVantrel());
        QImage screen = pressAndGrab({QStringLiteral("ctrl+k")}, 300);
        QCOMPARE(findCaps(screen, bottomBand(VirtualDisplay::leftMonitor())).size(), 2);
        // Gone after the duration, the sweep and the removal animation.
        QTest::qWait(600 + 100 + 400);
        screen = m_display->grab();
        QCOMPARE(changedPixels(screen, QRect(0, 0, 3840, 1080)), 0);
    }

    void topRightPlacesTheRowInThatCorner()
    {
        // The former global position seeds the displays' positions on first start.
        writeSettings({{QStringLiteral("keyPosition"), QStringLiteral("Top Right")}});
        QVERIFY(startVantrel());
        const QImage screen = pressAndGrab({QStringLiteral("ctrl+k")});
        QCOMPARE(findCaps(screen, bottomBand(VirtualDisplay::leftMonitor())).size(), 0);
        const QList<QRect> caps = findCaps(screen, QRect(960, 0, 960, 140));
        QCOMPARE(caps.size(), 2);
        QVERIFY2(qAbs(caps.last().right() - (1920 - 1 - 40)) <= 4,
                 qPrintable(QString::number(caps.last().right())));
        QVERIFY2(qAbs(caps.first().top() - 20) <= 4,
                 qPrintable(QString::number(caps.first().top())));
    }

    void clicksReachTheWindowBelow()
    {
        writeSettings({{QStringLiteral("showMouseClicks"), true}});
        QVERIFY(startVantrel());

        // A plain X window under where the caps appear, listening for button presses.
        xcb_connection_t *c = xcb_connect(m_display->displayName().toLatin1().constData(), nullptr);
        QVERIFY(!xcb_connection_has_error(c));
        const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(c)).data;
        const xcb_window_t window = xcb_generate_id(c);
        const uint32_t values[] = {XCB_EVENT_MASK_BUTTON_PRESS};
        xcb_create_window(c, XCB_COPY_FROM_PARENT, window, screen->root, 760, 880, 400, 200, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual, XCB_CW_EVENT_MASK,
                          values);
        xcb_map_window(c, window);
        xcb_flush(c);
        QTest::qWait(300);
        // The overlays stay above it.
        m_display->xdotool({QStringLiteral("key"), QStringLiteral("ctrl+k")});
        QTest::qWait(100);
        m_display->xdotool({QStringLiteral("mousemove"), QStringLiteral("960"),
                            QStringLiteral("1020"), QStringLiteral("click"), QStringLiteral("1")});
        QTest::qWait(300);
        int presses = 0;
        while (xcb_generic_event_t *event = xcb_poll_for_event(c)) {
            if ((event->response_type & 0x7f) == XCB_BUTTON_PRESS)
                ++presses;
            std::free(event);
        }
        xcb_disconnect(c);
        QCOMPARE(presses, 1);
    }

    void withCompositorCapOpacityFollowsSetting_data()
    {
        QTest::addColumn<double>("opacity");
        QTest::addColumn<bool>("compositorStartsLater");
        QTest::newRow("0.5") << 0.5 << false;
        QTest::newRow("1.0") << 1.0 << false;
        QTest::newRow("compositor started, then stopped, while running") << 0.5 << true;
    }
    void withCompositorCapOpacityFollowsSetting()
    {
        QFETCH(double, opacity);
        QFETCH(bool, compositorStartsLater);
        writeSettings({{QStringLiteral("keyOpacity"), opacity}});
        if (!compositorStartsLater)
            QVERIFY(m_display->startCompositor());
        QVERIFY(startVantrel());
        if (compositorStartsLater) {
            QVERIFY(m_display->startCompositor());
            QTest::qWait(300);
        }
        QImage screen = pressAndGrab({QStringLiteral("ctrl+k")}, 800);
        // The compositor paints its own background; the caps stand out from it.
        const QRgb background = screen.pixel(5, 5);
        QList<QRect> caps = findCaps(screen, bottomBand(VirtualDisplay::leftMonitor()), background);
        QCOMPARE(caps.size(), 2);
        // A point inside the first cap, above its label: the white fill over the background.
        const QRgb inside = screen.pixel(caps.first().center().x(), caps.first().top() + 8);
        const int expected = qRound(opacity * 255 + (1 - opacity) * qRed(background));
        QVERIFY2(qAbs(qRed(inside) - expected) <= 12,
                 qPrintable(QStringLiteral("red %1, expected %2").arg(qRed(inside)).arg(expected)));
        if (!compositorStartsLater)
            return;

        // Without the compositor again: opaque caps, the desktop visible around them.
        m_display->stopCompositor();
        QTest::qWait(2500); // the caps expire
        screen = pressAndGrab({QStringLiteral("alt+j")});
        caps = findCaps(screen, bottomBand(VirtualDisplay::leftMonitor()));
        QCOMPARE(caps.size(), 2);
        QCOMPARE(qRed(screen.pixel(caps.first().center().x(), caps.first().top() + 8)), 255);
        QCOMPARE(screen.pixel(caps.first().left() - 12, caps.first().center().y()), desktopColor);
    }

    // An enabled second display shows caps too, also after it is unplugged and plugged again.
    void monitorRemovedAndAddedAtRunTime()
    {
        enableAllDisplays();
        QVERIFY(startVantrel());
        QImage screen = pressAndGrab({QStringLiteral("ctrl+k")});
        QCOMPARE(findCaps(screen, bottomBand(VirtualDisplay::leftMonitor())).size(), 2);
        QCOMPARE(findCaps(screen, bottomBand(VirtualDisplay::rightMonitor())).size(), 2);
        QTest::qWait(2500); // let the caps expire

        QVERIFY(m_display->removeRightMonitor());
        QTest::qWait(500);
        screen = pressAndGrab({QStringLiteral("alt+j")});
        QCOMPARE(findCaps(screen, bottomBand(VirtualDisplay::leftMonitor())).size(), 2);
        QVERIFY(m_vantrel->state() == QProcess::Running);
        QTest::qWait(2500);

        QVERIFY(m_display->addRightMonitor());
        QTest::qWait(500);
        screen = pressAndGrab({QStringLiteral("ctrl+k")});
        QVERIFY(m_vantrel->state() == QProcess::Running);
        QCOMPARE(findCaps(screen, bottomBand(VirtualDisplay::leftMonitor())).size(), 2);
        QCOMPARE(findCaps(screen, bottomBand(VirtualDisplay::rightMonitor())).size(), 2);
    }
};

QTEST_GUILESS_MAIN(tst_e2e_Overlay)
#include "tst_e2e_Overlay.moc"
