// The whole program in a Wayland session without XWayland: keys written as input records into a
// device folder of a pipe, caps drawn on a layer surface and read back from sway's output.
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

class tst_e2e_WaylandLayerShell final : public QObject {
    Q_OBJECT

    std::unique_ptr<HeadlessSway> m_sway;
    QTemporaryDir m_config, m_devices;
    std::unique_ptr<QProcess> m_vantrel;
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
    int caps() const
    {
        const QImage screen = m_sway->grab();
        if (screen.isNull())
            return -1;
        return int(
            CapFinder::findCaps(screen, bottomBand, screen.pixel(0, bottomBand.top())).size());
    }

private slots:
    void initTestCase()
    {
        m_sway = std::make_unique<HeadlessSway>(HeadlessSway::XWayland::disabled);
        QString error;
        QVERIFY2(m_sway->start(&error), qPrintable(error));
        // No tray host: the settings window opens after a while; it goes out of sight so that
        // only the overlay shows on the output.
        QVERIFY(m_sway->swaymsg({QStringLiteral("for_window [title=\".*\"] move scratchpad")}));

        const QByteArray fifo = QFile::encodeName(m_devices.filePath(QStringLiteral("keyboard")));
        QVERIFY(mkfifo(fifo.constData(), 0600) == 0);
        m_keyboard = ::open(fifo.constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
        QVERIFY(m_keyboard >= 0);

        SettingsStore settings(m_config.filePath(QStringLiteral("Vantrel/Vantrel.conf")));
        settings.setRawValue(QStringLiteral("keyDisplayDuration"), 1.0);

        QProcessEnvironment env = m_sway->environment(); // no DISPLAY
        env.remove(QStringLiteral("QT_QPA_PLATFORM"));
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
        while (!output.contains("is showing pressed keys") && timer.elapsed() < 10000 &&
               m_vantrel->state() == QProcess::Running) {
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
        if (m_keyboard >= 0)
            ::close(m_keyboard);
        m_vantrel.reset();
        m_sway.reset();
    }

    // Ctrl+K: two caps on the overlay layer, gone again after the display duration.
    void keysShowOnALayerSurface()
    {
        QVERIFY(press({{KEY_LEFTCTRL, 1}, {KEY_K, 1}, {KEY_K, 0}, {KEY_LEFTCTRL, 0}}));
        QTRY_COMPARE_WITH_TIMEOUT(caps(), 2, 5000);
        QTRY_COMPARE_WITH_TIMEOUT(caps(), 0, 5000);
    }
};

QTEST_GUILESS_MAIN(tst_e2e_WaylandLayerShell)
#include "tst_e2e_WaylandLayerShell.moc"
