// Whole-program tests: the real vantrel binary on a private two-monitor X server, keys pressed
// with xdotool, and what a user would see read back from the screen.
#include "X11Session.h"
#include "settings/AppSettings.h"
#include "settings/SettingsStore.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

namespace {

const QRgb desktopColor = X11Session::desktopColor;
const QRect leftBand = X11Session::bottomBand(VirtualDisplay::leftMonitor());
const QRect rightBand = X11Session::bottomBand(VirtualDisplay::rightMonitor());
using CapFinder::differs;

} // namespace

class tst_e2e_Overlay final : public QObject {
    Q_OBJECT

    std::unique_ptr<X11Session> m_session;

    // Runs vantrel once so that it records the connected displays, then enables all of them.
    void enableAllDisplays()
    {
        QVERIFY(m_session->startVantrel());
        m_session->stopVantrel();
        SettingsStore settings(m_session->settingsPath());
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
        m_session = std::make_unique<X11Session>();
        QString error;
        QVERIFY2(m_session->start({}, &error), qPrintable(error));
    }

    void cleanup()
    {
        m_session->stopVantrel();
        m_session.reset();
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
        env.insert(QStringLiteral("XDG_CONFIG_HOME"), m_session->configPath());
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
        QVERIFY(m_session->startVantrel());
        m_session->stopVantrel();
        SettingsStore settings(m_session->settingsPath());
        QJsonArray displays =
            QJsonDocument::fromJson(settings.value(AppSettings::displayConfigurations)).array();
        QVERIFY(!displays.isEmpty());
        displays.append(displays.first());
        settings.setValue(AppSettings::displayConfigurations,
                          QJsonDocument(displays).toJson(QJsonDocument::Compact));
        const QString id = QString::number(displays.first()[QStringLiteral("id")].toInteger());

        // Qt warns without a runtime folder.
        m_session->environment().insert(QStringLiteral("XDG_RUNTIME_DIR"), m_session->configPath());
        const auto [exitCode, text] = m_session->runVantrel({});
        QCOMPARE(exitCode, 1);
        // One line says it all (a session without D-Bus adds a note of its own before it).
        const QStringList lines = text.split(u'\n', Qt::SkipEmptyParts)
                                      .filter(QStringLiteral("\"displayConfigurations\""));
        QVERIFY2(lines.size() == 1, qPrintable(text));
        for (const QString &part : {m_session->settingsPath(), id})
            QVERIFY2(lines.first().contains(part), qPrintable(text));
    }

    // Without a compositor: two 64-point caps, the row centred 20 points above the primary
    // monitor's bottom edge, the desktop visible around and between them, nothing elsewhere.
    void shortcutShowsTwoCapsBottomCentreOfPrimaryOnly()
    {
        QVERIFY(m_session->startVantrel());
        const QImage screen = m_session->pressAndGrab(QStringLiteral("ctrl+k"));
        const QList<QRect> caps = X11Session::findCaps(screen, leftBand);
        QCOMPARE(caps.size(), 2);
        const int rowCentre = (caps.first().left() + caps.last().right()) / 2;
        QVERIFY2(qAbs(rowCentre - 960) <= 3, qPrintable(QString::number(rowCentre)));
        for (const QRect &cap : caps) {
            QVERIFY2(qAbs(cap.height() - 64) <= 4, qPrintable(QString::number(cap.height())));
            QVERIFY(qAbs(cap.bottom() - (1080 - 20)) <= 4);
        }
        QCOMPARE(X11Session::changedPixels(screen, VirtualDisplay::rightMonitor()), 0);
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
        m_session->writeSettings({{QStringLiteral("showAllKeys"), showAllKeys}});
        QVERIFY(m_session->startVantrel());
        const QImage screen = m_session->pressAndGrab(QStringLiteral("k"));
        QCOMPARE(X11Session::findCaps(screen, leftBand).size(), expectedCaps);
    }

    void capsLeaveAfterTheirDuration()
    {
        m_session->writeSettings({{QStringLiteral("keyDisplayDuration"), 0.6}});
        QVERIFY(m_session->startVantrel());
        QImage screen = m_session->pressAndGrab(QStringLiteral("ctrl+k"), 300);
        QCOMPARE(X11Session::findCaps(screen, leftBand).size(), 2);
        // Gone after the duration, the sweep and the removal animation.
        QTest::qWait(600 + 100 + 400);
        screen = m_session->display().grab();
        QCOMPARE(X11Session::changedPixels(screen, QRect(0, 0, 3840, 1080)), 0);
    }

    void topRightPlacesTheRowInThatCorner()
    {
        // The former global position seeds the displays' positions on first start.
        m_session->writeSettings({{QStringLiteral("keyPosition"), QStringLiteral("Top Right")}});
        QVERIFY(m_session->startVantrel());
        const QImage screen = m_session->pressAndGrab(QStringLiteral("ctrl+k"));
        QCOMPARE(X11Session::findCaps(screen, leftBand).size(), 0);
        const QList<QRect> caps = X11Session::findCaps(screen, QRect(960, 0, 960, 140));
        QCOMPARE(caps.size(), 2);
        QVERIFY2(qAbs(caps.last().right() - (1920 - 1 - 40)) <= 4,
                 qPrintable(QString::number(caps.last().right())));
        QVERIFY2(qAbs(caps.first().top() - 20) <= 4,
                 qPrintable(QString::number(caps.first().top())));
    }

    void clicksReachTheWindowBelow()
    {
        m_session->writeSettings({{QStringLiteral("showMouseClicks"), true}});
        QVERIFY(m_session->startVantrel());

        // A plain X window under where the caps appear, listening for button presses.
        xcb_connection_t *c =
            xcb_connect(m_session->display().displayName().toLatin1().constData(), nullptr);
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
        m_session->xdotool(QStringLiteral("key ctrl+k"));
        QTest::qWait(100);
        m_session->xdotool(QStringLiteral("mousemove 960 1020 click 1"));
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
        m_session->writeSettings({{QStringLiteral("keyOpacity"), opacity}});
        if (!compositorStartsLater)
            QVERIFY(m_session->display().startCompositor());
        QVERIFY(m_session->startVantrel());
        if (compositorStartsLater) {
            QVERIFY(m_session->display().startCompositor());
            QTest::qWait(300);
        }
        QImage screen = m_session->pressAndGrab(QStringLiteral("ctrl+k"), 800);
        // The compositor paints its own background; the caps stand out from it.
        const QRgb background = screen.pixel(5, 5);
        QList<QRect> caps = X11Session::findCaps(screen, leftBand, background);
        QCOMPARE(caps.size(), 2);
        // A point inside the first cap, above its label: the white fill over the background.
        const QRgb inside = screen.pixel(caps.first().center().x(), caps.first().top() + 8);
        const int expected = qRound(opacity * 255 + (1 - opacity) * qRed(background));
        QVERIFY2(qAbs(qRed(inside) - expected) <= 12,
                 qPrintable(QStringLiteral("red %1, expected %2").arg(qRed(inside)).arg(expected)));
        if (!compositorStartsLater)
            return;

        // Without the compositor again: opaque caps, the desktop visible around them.
        m_session->display().stopCompositor();
        QTest::qWait(2500); // the caps expire
        screen = m_session->pressAndGrab(QStringLiteral("alt+j"));
        caps = X11Session::findCaps(screen, leftBand);
        QCOMPARE(caps.size(), 2);
        QCOMPARE(qRed(screen.pixel(caps.first().center().x(), caps.first().top() + 8)), 255);
        QCOMPARE(screen.pixel(caps.first().left() - 12, caps.first().center().y()), desktopColor);
    }

    // An enabled second display shows caps too, also after it is unplugged and plugged again.
    void monitorRemovedAndAddedAtRunTime()
    {
        enableAllDisplays();
        QVERIFY(m_session->startVantrel());
        QImage screen = m_session->pressAndGrab(QStringLiteral("ctrl+k"));
        QCOMPARE(X11Session::findCaps(screen, leftBand).size(), 2);
        QCOMPARE(X11Session::findCaps(screen, rightBand).size(), 2);
        QTest::qWait(2500); // let the caps expire

        QVERIFY(m_session->display().removeRightMonitor());
        QTest::qWait(500);
        screen = m_session->pressAndGrab(QStringLiteral("alt+j"));
        QCOMPARE(X11Session::findCaps(screen, leftBand).size(), 2);
        QVERIFY(m_session->vantrel().state() == QProcess::Running);
        QTest::qWait(2500);

        QVERIFY(m_session->display().addRightMonitor());
        QTest::qWait(500);
        screen = m_session->pressAndGrab(QStringLiteral("ctrl+k"));
        QVERIFY(m_session->vantrel().state() == QProcess::Running);
        QCOMPARE(X11Session::findCaps(screen, leftBand).size(), 2);
        QCOMPARE(X11Session::findCaps(screen, rightBand).size(), 2);
    }
};

QTEST_GUILESS_MAIN(tst_e2e_Overlay)
#include "tst_e2e_Overlay.moc"
