// Whole-program tests of secrecy: with every key shown, nothing typed while a fake screen locker
// says the session is locked, nor into a GTK password field (on a real accessibility bus), ever
// reaches the screen; typing elsewhere does.
#include "CapFinder.h"
#include "VirtualDisplay.h"
#include "settings/SettingsStore.h"

#include <QDBusConnection>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {

const QRgb desktopColor = qRgb(0x20, 0x40, 0x60);
// Where the caps of the primary monitor are drawn ("Bottom Center" by default).
const QRect capBand{0, 1080 - 140, 1920, 140};

} // namespace

// A screen locker on the session bus.
class FakeLocker final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.ScreenSaver")

public slots:
    bool GetActive() const { return false; }

signals:
    void ActiveChanged(bool active);
};

class tst_e2e_Privacy final : public QObject {
    Q_OBJECT

    std::unique_ptr<VirtualDisplay> m_display;
    std::unique_ptr<QTemporaryDir> m_config;
    QString m_busAddress;
    std::unique_ptr<QProcess> m_vantrel;

    QProcessEnvironment environment() const
    {
        QProcessEnvironment env = m_display->environment();
        env.insert(QStringLiteral("XDG_CONFIG_HOME"), m_config->path());
        env.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), m_busAddress);
        // No login manager here: that protection is off, the others must still work.
        env.insert(QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS"),
                   QStringLiteral("unix:path=") + m_config->filePath(QStringLiteral("no-bus")));
        env.remove(QStringLiteral("AT_SPI_BUS_ADDRESS"));
        env.remove(QStringLiteral("NO_AT_BRIDGE"));
        return env;
    }

    bool startVantrel()
    {
        SettingsStore settings(m_config->filePath(QStringLiteral("Vantrel/Vantrel.conf")));
        settings.setRawValue(QStringLiteral("showAllKeys"), true);
        settings.setRawValue(QStringLiteral("keyDisplayDuration"), 10.0);
        m_vantrel = std::make_unique<QProcess>();
        m_vantrel->setProcessEnvironment(environment());
        m_vantrel->start(QStringLiteral(VANTREL_BINARY), {});
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < 10000 && m_vantrel->state() != QProcess::NotRunning) {
            m_vantrel->waitForReadyRead(100);
            if (m_vantrel->readAllStandardOutput().contains("showing pressed keys")) {
                QTest::qWait(500);
                return true;
            }
        }
        return false;
    }

    int capsShown() const
    {
        return int(CapFinder::findCaps(m_display->grab(), capBand, desktopColor).size());
    }

    void type(const QString &text) const
    {
        m_display->xdotool(
            {QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("40"), text});
    }

private slots:
    void init()
    {
        m_display = std::make_unique<VirtualDisplay>();
        QString error;
        QVERIFY2(m_display->start(&error), qPrintable(error));
        m_display->run(QStringLiteral("xsetroot"),
                       {QStringLiteral("-solid"), QStringLiteral("#204060")});
        QVERIFY(m_display->startWindowManager());
        m_busAddress = m_display->startSessionBus();
        QVERIFY2(!m_busAddress.isEmpty(), "dbus-daemon did not start");
        m_config = std::make_unique<QTemporaryDir>();
    }

    void cleanup()
    {
        if (m_vantrel) {
            m_vantrel->terminate();
            QVERIFY(m_vantrel->waitForFinished(5000));
            QCOMPARE(m_vantrel->exitCode(), 0);
            m_vantrel.reset();
        }
        m_display.reset();
    }

    // ActiveChanged(true) takes the caps away at once (no removal is played) and hides all
    // typing until ActiveChanged(false); then the next keys show, and only they.
    void lockedSessionShowsNothing()
    {
        QDBusConnection bus = QDBusConnection::connectToBus(m_busAddress, "locker");
        FakeLocker locker;
        QVERIFY(bus.registerObject(QStringLiteral("/org/freedesktop/ScreenSaver"), &locker,
                                   QDBusConnection::ExportAllSlots |
                                       QDBusConnection::ExportAllSignals));
        QVERIFY(bus.registerService(QStringLiteral("org.freedesktop.ScreenSaver")));
        QVERIFY(startVantrel());

        type(QStringLiteral("abc"));
        QTRY_COMPARE(capsShown(), 3);

        emit locker.ActiveChanged(true);
        // A removal would still show the caps now (it lasts 0.2 s or more, easing in).
        QTest::qWait(100);
        QCOMPARE(capsShown(), 0);
        type(QStringLiteral("pass"));
        m_display->xdotool({QStringLiteral("key"), QStringLiteral("ctrl+Return")});
        QTest::qWait(400);
        QCOMPARE(capsShown(), 0);

        emit locker.ActiveChanged(false);
        QTest::qWait(300);
        QCOMPARE(capsShown(), 0);
        type(QStringLiteral("xy"));
        QTRY_COMPARE(capsShown(), 2);
        QTest::qWait(300);
        QCOMPARE(capsShown(), 2);
        QDBusConnection::disconnectFromBus(QStringLiteral("locker"));
    }

    // Typing into a GTK password entry shows nothing; the next entry shows every key; keys show
    // again once the application with the focused password entry is gone.
    void passwordFieldShowsNothing()
    {
        QVERIFY(startVantrel());
        QProcess window;
        window.setProcessEnvironment(environment());
        // Debian's own Python, which has python3-gi (another python3 may come first on PATH).
        window.start(QStringLiteral("/usr/bin/python3"), {QStringLiteral(VANTREL_PASSWORD_WINDOW)});
        QVERIFY(window.waitForReadyRead(10000));
        QTest::qWait(1000); // mapped, focused and known to the accessibility bus

        // The password entry is the upper one, the ordinary one below it.
        m_display->xdotool({QStringLiteral("mousemove"), QStringLiteral("200"),
                            QStringLiteral("25"), QStringLiteral("click"), QStringLiteral("1")});
        QTest::qWait(300);
        type(QStringLiteral("secret"));
        QTest::qWait(400);
        QCOMPARE(capsShown(), 0);

        m_display->xdotool({QStringLiteral("mousemove"), QStringLiteral("200"),
                            QStringLiteral("75"), QStringLiteral("click"), QStringLiteral("1")});
        QTest::qWait(300);
        type(QStringLiteral("abcd"));
        QTRY_COMPARE(capsShown(), 4);

        // And back: the caps go at once, and nothing more is added.
        m_display->xdotool({QStringLiteral("mousemove"), QStringLiteral("200"),
                            QStringLiteral("25"), QStringLiteral("click"), QStringLiteral("1")});
        QTRY_COMPARE(capsShown(), 0);
        type(QStringLiteral("word"));
        QTest::qWait(400);
        QCOMPARE(capsShown(), 0);

        // The application crashes with its password field focused: it can no longer have the
        // focus, so keys show again.
        window.kill();
        QVERIFY(window.waitForFinished(5000));
        QTest::qWait(500);
        type(QStringLiteral("xy"));
        QTRY_COMPARE(capsShown(), 2);
    }
};

QTEST_GUILESS_MAIN(tst_e2e_Privacy)
#include "tst_e2e_Privacy.moc"
