// The whole program in a Wayland session: headless sway, keys written as input records into a
// device folder of pipes, caps drawn through XWayland and read back from sway's output.
#include "CapFinder.h"
#include "HeadlessSway.h"
#include "settings/SettingsStore.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <linux/input.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <memory>
#include <utility>

namespace {

// Where a bottom-centre row of caps is drawn on the 1920x1080 output.
const QRect bottomBand(0, 1080 - 300, 1920, 300);

} // namespace

class tst_e2e_Wayland final : public QObject {
    Q_OBJECT

    std::unique_ptr<HeadlessSway> m_sway;
    QTemporaryDir m_config, m_devices;
    std::unique_ptr<QProcess> m_vantrel;
    QProcess m_trayHost;
    int m_keyboard = -1;

    bool press(const QList<std::pair<int, int>> &changes)
    {
        for (const auto &[code, value] : changes) {
            input_event events[2]{};
            events[0].type = EV_KEY;
            events[0].code = quint16(code);
            events[0].value = value;
            events[1].type = EV_SYN;
            events[1].code = SYN_REPORT;
            if (::write(m_keyboard, events, sizeof events) != qint64(sizeof events))
                return false;
        }
        return true;
    }
    bool tap(int code) { return press({{code, 1}, {code, 0}}); }

    QList<QRect> caps() const
    {
        const QImage screen = m_sway->grab();
        if (screen.isNull())
            return {};
        return CapFinder::findCaps(screen, bottomBand, screen.pixel(0, bottomBand.top()));
    }
    // The output's bottom band once exactly `count` caps show there and have come to rest (two
    // grabs alike); null when they never do.
    QImage bandWith(int count) const
    {
        QImage band, previous;
        const bool settled = QTest::qWaitFor(
            [&] {
                const QImage screen = m_sway->grab();
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
        m_sway = std::make_unique<HeadlessSway>();
        QString error;
        QVERIFY2(m_sway->start(&error), qPrintable(error));
        const QString display = m_sway->startXWayland();
        QVERIFY2(!display.isEmpty(), "XWayland did not start");

        const QByteArray fifo = QFile::encodeName(m_devices.filePath(QStringLiteral("keyboard")));
        QVERIFY(mkfifo(fifo.constData(), 0600) == 0);
        m_keyboard = ::open(fifo.constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
        QVERIFY(m_keyboard >= 0);

        SettingsStore settings(m_config.filePath(QStringLiteral("Vantrel/Vantrel.conf")));
        settings.setRawValue(QStringLiteral("showAllKeys"), true);
        settings.setRawValue(QStringLiteral("keyDisplayDuration"), 1.0);

        QProcessEnvironment env = m_sway->environment();
        env.insert(QStringLiteral("DISPLAY"), display);
        // A tray host at the top, as on a desktop: without one the settings window would open.
        m_trayHost.setProcessEnvironment(env);
        m_trayHost.start(QStringLiteral("trayer"),
                         {QStringLiteral("--edge"), QStringLiteral("top")});
        QVERIFY(m_trayHost.waitForStarted());
        // Sway offers the layer shell; these overlays are to stay X11 windows.
        env.insert(QStringLiteral("VANTREL_OVERLAY"), QStringLiteral("x11"));
        env.insert(QStringLiteral("VANTREL_INPUT_DIR"), m_devices.path());
        env.insert(QStringLiteral("XDG_CONFIG_HOME"), m_config.path());
        env.remove(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"));
        m_vantrel = std::make_unique<QProcess>();
        m_vantrel->setProcessEnvironment(env);
        m_vantrel->start(QStringLiteral(VANTREL_BINARY), {});
        QVERIFY(m_vantrel->waitForStarted());
        QElapsedTimer timer;
        timer.start();
        QByteArray output;
        while (!output.contains("is showing pressed keys") && timer.elapsed() < 10000) {
            m_vantrel->waitForReadyRead(100);
            output += m_vantrel->readAllStandardOutput();
        }
        QVERIFY2(output.contains("is showing pressed keys"), m_vantrel->readAllStandardError());
    }
    void cleanupTestCase()
    {
        if (m_vantrel) {
            m_vantrel->terminate();
            m_vantrel->waitForFinished(5000);
        }
        m_trayHost.terminate();
        m_trayHost.waitForFinished(3000);
        if (m_keyboard >= 0)
            ::close(m_keyboard);
        m_vantrel.reset();
        m_sway.reset();
    }

    // Ctrl+Shift+P, then F5: four caps, from the device folder through to sway's output.
    void keysFromTheDeviceFolderShow()
    {
        QVERIFY(press({{KEY_LEFTCTRL, 1}, {KEY_LEFTSHIFT, 1}}));
        QVERIFY(tap(KEY_P));
        QVERIFY(press({{KEY_LEFTSHIFT, 0}, {KEY_LEFTCTRL, 0}}));
        QVERIFY(tap(KEY_F5));
        QVERIFY(!bandWith(4).isNull());
        QTRY_COMPARE_WITH_TIMEOUT(caps().size(), 0, 5000);
    }

    // Keys are named by the compositor's keymap: under "de" the US Y key is "Z".
    void keysFollowTheCompositorsLayout()
    {
        QVERIFY(tap(KEY_Z));
        const QImage usZ = bandWith(1);
        QVERIFY(!usZ.isNull());
        QTRY_COMPARE_WITH_TIMEOUT(caps().size(), 0, 5000);
        QVERIFY(m_sway->swaymsg({QStringLiteral("input"), QStringLiteral("type:keyboard"),
                                 QStringLiteral("xkb_layout"), QStringLiteral("de")}));
        // The new keymap reaches Vantrel's own connection soon after sway takes it.
        bool named = false;
        for (int attempt = 0; attempt < 10 && !named; ++attempt) {
            QVERIFY(tap(KEY_Y));
            named = bandWith(1) == usZ;
            QTRY_COMPARE_WITH_TIMEOUT(caps().size(), 0, 5000);
        }
        QVERIFY(named);
        QVERIFY(tap(KEY_Z)); // "Y" under "de": a different cap
        const QImage deY = bandWith(1);
        QVERIFY(!deY.isNull() && deY != usZ);
    }
};

QTEST_GUILESS_MAIN(tst_e2e_Wayland)
#include "tst_e2e_Wayland.moc"
