// The lock watchers against fake services: logind on a private "system" bus, screen lockers on a
// private session bus, and the X server's screen saver on a private Xvfb.
#include "capture/Secrecy.h"
#include "platform/linux/LogindLockWatcher.h"
#include "platform/linux/ScreenSaverLockWatcher.h"
#include "platform/x11/X11ScreenSaverWatcher.h"

#include "FakeLocker.h"
#include "VirtualDisplay.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QTest>

#include <unistd.h>

namespace {

const QString sessionPath = QStringLiteral("/org/freedesktop/login1/session/c1");

// A connection of its own to `address` (names are never reused: each test starts a new bus).
QDBusConnection privateConnection(const QString &address)
{
    static int connections = 0;
    return QDBusConnection::connectToBus(address, QString::number(++connections));
}

} // namespace

// logind's manager as far as Vantrel uses it: one session, "c1", of this process.
class FakeLogindManager final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Manager")

public slots:
    QDBusObjectPath GetSession(const QString &id)
    {
        if (id != QLatin1String("c1"))
            sendErrorReply(QStringLiteral("org.freedesktop.login1.NoSuchSession"), id);
        return QDBusObjectPath(sessionPath);
    }
    QDBusObjectPath GetSessionByPID(uint pid)
    {
        if (pid != uint(::getpid()))
            sendErrorReply(QStringLiteral("org.freedesktop.login1.NoSessionForPID"), {});
        return QDBusObjectPath(sessionPath);
    }
};

class FakeLogindSession final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Session")
    Q_PROPERTY(bool LockedHint MEMBER m_locked)

public:
    bool m_locked = true;

    void setLocked(QDBusConnection &bus, bool locked)
    {
        m_locked = locked;
        QDBusMessage changed = QDBusMessage::createSignal(
            sessionPath, QStringLiteral("org.freedesktop.DBus.Properties"),
            QStringLiteral("PropertiesChanged"));
        changed.setArguments({QStringLiteral("org.freedesktop.login1.Session"),
                              QVariantMap{{QStringLiteral("LockedHint"), locked}}, QStringList()});
        bus.send(changed);
    }
};

class tst_LockWatchers final : public QObject {
    Q_OBJECT

private slots:
    // The session is found by its id, by the process without an id, and a missing login
    // manager leaves the protection off; LockedHint is read at start and followed, repeats
    // included.
    void logind_data()
    {
        QTest::addColumn<QString>("sessionId");
        QTest::addColumn<bool>("logindRuns");
        QTest::newRow("session id") << QStringLiteral("c1") << true;
        QTest::newRow("no session id") << QString() << true;
        QTest::newRow("unknown session id") << QStringLiteral("c9") << true;
        QTest::newRow("no login manager") << QStringLiteral("c1") << false;
    }
    void logind()
    {
        QFETCH(QString, sessionId);
        QFETCH(bool, logindRuns);
        VirtualDisplay busOwner; // only its private bus is used, as the system bus
        const QString address = busOwner.startSessionBus();
        QVERIFY2(!address.isEmpty(), "dbus-daemon did not start");
        QDBusConnection logind = privateConnection(address);
        FakeLogindManager manager;
        FakeLogindSession session;
        if (logindRuns) {
            QVERIFY(logind.registerObject(QStringLiteral("/org/freedesktop/login1"), &manager,
                                          QDBusConnection::ExportAllSlots));
            QVERIFY(
                logind.registerObject(sessionPath, &session, QDBusConnection::ExportAllProperties));
            QVERIFY(logind.registerService(QStringLiteral("org.freedesktop.login1")));
        }

        Secrecy secrecy;
        LogindLockWatcher watcher(privateConnection(address), sessionId);
        watcher.start(secrecy);
        QTRY_COMPARE(secrecy.protections().size(), 1);
        QCOMPARE(secrecy.protections().first().isOn, logindRuns);
        if (!logindRuns)
            return;
        QTRY_VERIFY(secrecy.isLocked());
        session.setLocked(logind, false);
        QTRY_VERIFY(!secrecy.isLocked());
        session.setLocked(logind, true);
        session.setLocked(logind, true);
        QTRY_VERIFY(secrecy.isLocked());
    }

    // Both lockers' state is read at start and followed, from their owners only; a locker that
    // leaves the bus while active no longer locks.
    void screenLockers()
    {
        VirtualDisplay busOwner;
        const QString address = busOwner.startSessionBus();
        QVERIFY2(!address.isEmpty(), "dbus-daemon did not start");
        QDBusConnection lockerBus = privateConnection(address);
        FakeLocker locker(true);
        QVERIFY(locker.serve(lockerBus));

        Secrecy secrecy;
        ScreenSaverLockWatcher watcher(privateConnection(address));
        watcher.start(secrecy);
        QVERIFY(secrecy.protections().value(0).isOn);
        QTRY_VERIFY(secrecy.isLocked());
        emit locker.ActiveChanged(false);
        QTRY_VERIFY(!secrecy.isLocked());

        const auto activeChanged = [](const char *desktop, bool active) {
            const QString name = QStringLiteral("org.%1.ScreenSaver").arg(desktop);
            QDBusMessage signal = QDBusMessage::createSignal(
                u'/' + QString(name).replace(u'.', u'/'), name, QStringLiteral("ActiveChanged"));
            signal.setArguments({active});
            return signal;
        };
        // Only the locker that owns the name is heard.
        privateConnection(address).send(activeChanged("freedesktop", true));
        QTest::qWait(200);
        QVERIFY(!secrecy.isLocked());

        // GNOME's interface, sent from a path of its own.
        QVERIFY(lockerBus.registerService(QStringLiteral("org.gnome.ScreenSaver")));
        lockerBus.send(activeChanged("gnome", true));
        QTRY_VERIFY(secrecy.isLocked());
        lockerBus.send(activeChanged("gnome", false));
        QTRY_VERIFY(!secrecy.isLocked());

        emit locker.ActiveChanged(true);
        QTRY_VERIFY(secrecy.isLocked());
        QVERIFY(lockerBus.unregisterService(QStringLiteral("org.freedesktop.ScreenSaver")));
        QTRY_VERIFY(!secrecy.isLocked());
    }

    // `xset s activate` turns the saver on; `xset s reset` off.
    void x11ScreenSaver()
    {
        VirtualDisplay display;
        QString error;
        QVERIFY2(display.start(&error), qPrintable(error));
        Secrecy secrecy;
        X11ScreenSaverWatcher watcher(display.displayName().toLatin1());
        watcher.start(secrecy);
        QVERIFY(secrecy.protections().value(0).isOn);
        QVERIFY(!secrecy.isLocked());
        QVERIFY(
            display.run(QStringLiteral("xset"), {QStringLiteral("s"), QStringLiteral("activate")}));
        QTRY_VERIFY(secrecy.isLocked());
        QVERIFY(
            display.run(QStringLiteral("xset"), {QStringLiteral("s"), QStringLiteral("reset")}));
        QTRY_VERIFY(!secrecy.isLocked());
    }
};

QTEST_GUILESS_MAIN(tst_LockWatchers)
#include "tst_LockWatchers.moc"
