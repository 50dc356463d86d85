// The accessibility bus appearing after Vantrel started, and going away: a private session bus
// that cannot start services, with Debian's at-spi-bus-launcher started and stopped by the test.
#include "capture/Secrecy.h"
#include "platform/linux/AtSpiFocusWatcher.h"

#include <QDBusConnection>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

class tst_AtSpiFocusWatcher final : public QObject {
    Q_OBJECT

private slots:
    void followsTheLauncher()
    {
        QTemporaryDir dir;
        QFile config(dir.filePath(QStringLiteral("bus.conf")));
        QVERIFY(config.open(QIODevice::WriteOnly));
        // No service directories: nothing is started on demand.
        config.write("<busconfig><type>session</type><listen>unix:tmpdir=/tmp</listen>"
                     "<auth>EXTERNAL</auth><policy context=\"default\">"
                     "<allow send_destination=\"*\" eavesdrop=\"true\"/><allow eavesdrop=\"true\"/>"
                     "<allow own=\"*\"/></policy></busconfig>");
        config.close();
        QProcess bus;
        bus.start(QStringLiteral("dbus-daemon"),
                  {QStringLiteral("--config-file=") + config.fileName(), QStringLiteral("--nofork"),
                   QStringLiteral("--print-address=1")});
        QVERIFY(bus.waitForReadyRead(5000));
        const QString address = QString::fromLatin1(bus.readLine().trimmed());

        Secrecy secrecy;
        const auto passwordFields = [&secrecy] {
            const QList<Secrecy::ProtectionStatus> list = secrecy.protections();
            return list.isEmpty() ? -1 : int(list.first().isOn);
        };
        AtSpiFocusWatcher watcher(QDBusConnection::connectToBus(address, "client"), QString());
        watcher.start(secrecy);
        QTRY_COMPARE(passwordFields(), 0);

        QProcess launcher;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), address);
        env.remove(QStringLiteral("DISPLAY"));
        launcher.setProcessEnvironment(env);
        launcher.start(QStringLiteral("/usr/libexec/at-spi-bus-launcher"), {});
        QVERIFY(launcher.waitForStarted(5000));
        QTRY_COMPARE_WITH_TIMEOUT(passwordFields(), 1, 10000);

        // A focus known at that time is forgotten with the bus.
        secrecy.focusMoved(QStringLiteral(":1.9"), QStringLiteral("/pw"));
        QVERIFY(secrecy.isPasswordFieldFocused());
        launcher.terminate();
        QVERIFY(launcher.waitForFinished(5000));
        QTRY_COMPARE(passwordFields(), 0);
        QVERIFY(!secrecy.isPasswordFieldFocused());
        QDBusConnection::disconnectFromBus(QStringLiteral("client"));
        bus.terminate();
        bus.waitForFinished(5000);
    }
};

QTEST_GUILESS_MAIN(tst_AtSpiFocusWatcher)
#include "tst_AtSpiFocusWatcher.moc"
