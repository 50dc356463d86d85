// The whole program in a Wayland session: headless sway, keys written as input records into a
// device folder of pipes, caps drawn through XWayland and read back from sway's output.
#include "WaylandSession.h"
#include "settings/SettingsStore.h"

#include <QTest>

#include <memory>
#include <utility>

namespace {

// Where a bottom-centre row of caps is drawn on the 1920x1080 output.
const QRect bottomBand(0, 1080 - 300, 1920, 300);

} // namespace

class tst_e2e_Wayland final : public QObject {
    Q_OBJECT

    std::unique_ptr<WaylandSession> m_session;
    QProcess m_trayHost;

    bool tap(int code) { return m_session->tap(code); }
    int caps() const { return m_session->capCount(bottomBand); }
    // The output's bottom band once exactly `count` caps show there and have come to rest (two
    // grabs alike); null when they never do.
    QImage bandWith(int count) const
    {
        QImage band, previous;
        const bool settled = QTest::qWaitFor(
            [&] {
                const QImage screen = m_session->sway().grab();
                if (screen.isNull() ||
                    CapFinder::findCaps(screen, bottomBand, screen.pixel(0, bottomBand.top()))
                            .size() != count)
                    return false;
                previous = std::exchange(band, screen.copy(bottomBand));
                return band == previous;
            },
            5000);
        return settled ? band : QImage();
    }

private slots:
    void initTestCase()
    {
        m_session = std::make_unique<WaylandSession>(HeadlessSway::XWayland::onDemand);
        QString error;
        QVERIFY2(m_session->sway().start(&error), qPrintable(error));
        const QString display = m_session->sway().startXWayland();
        QVERIFY2(!display.isEmpty(), "XWayland did not start");

        SettingsStore settings(m_session->settingsPath());
        settings.setRawValue(QStringLiteral("showAllKeys"), true);
        settings.setRawValue(QStringLiteral("keyDisplayDuration"), 1.0);

        QProcessEnvironment env = m_session->sway().environment();
        env.insert(QStringLiteral("DISPLAY"), display);
        // A tray host at the top, as on a desktop: without one the settings window would open.
        m_trayHost.setProcessEnvironment(env);
        m_trayHost.start(QStringLiteral("trayer"),
                         {QStringLiteral("--edge"), QStringLiteral("top")});
        QVERIFY(m_trayHost.waitForStarted());
        // Sway offers the layer shell; these overlays are to stay X11 windows.
        env.insert(QStringLiteral("VANTREL_OVERLAY"), QStringLiteral("x11"));
        QVERIFY2(m_session->startVantrel(env, &error), qPrintable(error));
    }
    void cleanupTestCase()
    {
        m_trayHost.terminate();
        m_trayHost.waitForFinished(3000);
        m_session.reset();
    }

    // Ctrl+Shift+P, then F5: four caps, from the device folder through to sway's output.
    void keysFromTheDeviceFolderShow()
    {
        QVERIFY(m_session->press({{KEY_LEFTCTRL, 1}, {KEY_LEFTSHIFT, 1}}));
        QVERIFY(tap(KEY_P));
        QVERIFY(m_session->press({{KEY_LEFTSHIFT, 0}, {KEY_LEFTCTRL, 0}}));
        QVERIFY(tap(KEY_F5));
        QVERIFY(!bandWith(4).isNull());
        QTRY_COMPARE_WITH_TIMEOUT(caps(), 0, 5000);
    }

    // Keys are named by the compositor's keymap: under "de" the US Y key is "Z".
    void keysFollowTheCompositorsLayout()
    {
        QVERIFY(tap(KEY_Z));
        const QImage usZ = bandWith(1);
        QVERIFY(!usZ.isNull());
        QTRY_COMPARE_WITH_TIMEOUT(caps(), 0, 5000);
        QVERIFY(m_session->sway().swaymsg({QStringLiteral("input"), QStringLiteral("type:keyboard"),
                                           QStringLiteral("xkb_layout"), QStringLiteral("de")}));
        // The new keymap reaches Vantrel's own connection soon after sway takes it.
        bool named = false;
        for (int attempt = 0; attempt < 10 && !named; ++attempt) {
            QVERIFY(tap(KEY_Y));
            named = bandWith(1) == usZ;
            QTRY_COMPARE_WITH_TIMEOUT(caps(), 0, 5000);
        }
        QVERIFY(named);
        QVERIFY(tap(KEY_Z)); // "Y" under "de": a different cap
        const QImage deY = bandWith(1);
        QVERIFY(!deY.isNull() && deY != usZ);
    }
};

QTEST_GUILESS_MAIN(tst_e2e_Wayland)
#include "tst_e2e_Wayland.moc"
