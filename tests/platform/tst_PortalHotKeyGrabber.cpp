#include "platform/linux/PortalHotKeyGrabber.h"

#include "VirtualDisplay.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QMutex>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTest>
#include <QThread>
#include <QTimer>

namespace {

const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString shortcutsInterface = QStringLiteral("org.freedesktop.portal.GlobalShortcuts");

} // namespace

// The desktop portal's global shortcuts as far as Vantrel uses them: sessions are made at once
// and every bind is accepted; each bind is kept for the test to read. It runs on a thread of its
// own, as the grabber's first question blocks the thread that asks.
class FakeShortcutsPortal final : public QDBusVirtualObject {
    Q_OBJECT

public:
    explicit FakeShortcutsPortal(const QDBusConnection &bus) : m_bus(bus) {}

    QString introspect(const QString &) const override { return {}; }

    bool handleMessage(const QDBusMessage &message, const QDBusConnection &) override
    {
        const QString member = message.member();
        const QList<QVariant> arguments = message.arguments();
        if (member == QLatin1String("Get")) {
            m_bus.send(message.createReply(QVariant::fromValue(QDBusVariant(2u))));
            return true;
        }
        const QString sender = message.service().mid(1).replace(QLatin1Char('.'), '_');
        const QVariantMap options = qdbus_cast<QVariantMap>(arguments.last());
        const QString request = portalPath + QStringLiteral("/request/") + sender + '/' +
                                options.value(QStringLiteral("handle_token")).toString();
        QVariantMap results;
        const QMutexLocker lock(&m_mutex);
        if (member == QLatin1String("CreateSession")) {
            m_session = portalPath + QStringLiteral("/session/") + sender + '/' +
                        options.value(QStringLiteral("session_handle_token")).toString();
            results.insert(QStringLiteral("session_handle"), m_session);
        } else if (member == QLatin1String("BindShortcuts")) {
            QHash<QString, QString> triggers;
            const QDBusArgument shortcuts = arguments.at(1).value<QDBusArgument>();
            shortcuts.beginArray();
            while (!shortcuts.atEnd()) {
                QString id;
                QVariantMap info;
                shortcuts.beginStructure();
                shortcuts >> id >> info;
                shortcuts.endStructure();
                triggers.insert(id, info.value(QStringLiteral("preferred_trigger")).toString());
            }
            shortcuts.endArray();
            m_binds.append(triggers);
        } else {
            return false; // Session.Close and the like need no answer here
        }
        m_bus.send(message.createReply(QVariant::fromValue(QDBusObjectPath(request))));
        // The answer comes later, as from a dialog.
        QTimer::singleShot(0, this, [this, request, results] {
            QDBusMessage response = QDBusMessage::createSignal(
                request, QStringLiteral("org.freedesktop.portal.Request"),
                QStringLiteral("Response"));
            response << 0u << results;
            m_bus.send(response);
        });
        return true;
    }

    QList<QHash<QString, QString>> binds()
    {
        const QMutexLocker lock(&m_mutex);
        return m_binds;
    }

    // The desktop ends the session, as when its portal restarts.
    void closeSession()
    {
        const QMutexLocker lock(&m_mutex);
        QDBusMessage message = QDBusMessage::createSignal(
            m_session, QStringLiteral("org.freedesktop.portal.Session"), QStringLiteral("Closed"));
        message << QVariantMap();
        m_bus.send(message);
    }

    void emitShortcut(const QString &signal, const QString &id)
    {
        const QMutexLocker lock(&m_mutex);
        QDBusMessage message = QDBusMessage::createSignal(portalPath, shortcutsInterface, signal);
        message << QVariant::fromValue(QDBusObjectPath(m_session)) << id << qulonglong(1)
                << QVariantMap();
        m_bus.send(message);
    }

private:
    QDBusConnection m_bus;
    QMutex m_mutex;
    QString m_session;
    QList<QHash<QString, QString>> m_binds;
};

class tst_PortalHotKeyGrabber final : public QObject {
    Q_OBJECT

private slots:
    void triggers()
    {
        QCOMPARE(PortalHotKeyGrabber::trigger(Qt::CTRL | Qt::ALT | Qt::Key_K),
                 QStringLiteral("CTRL+ALT+k"));
        QCOMPARE(PortalHotKeyGrabber::trigger(Qt::META | Qt::SHIFT | Qt::Key_F5),
                 QStringLiteral("SHIFT+LOGO+F5"));
    }

    // The five names are bound in one request with their triggers, the portal's key down and up
    // become presses and releases, a changed combination is bound again, and without a portal
    // there is no grabber.
    void bindsThroughThePortal()
    {
        VirtualDisplay busOwner; // only its private session bus is used
        const QString address = busOwner.startSessionBus();
        QVERIFY2(!address.isEmpty(), "dbus-daemon did not start");
        const QDBusConnection client = QDBusConnection::connectToBus(address, "client");
        QVERIFY(!PortalHotKeyGrabber::create(client));

        QDBusConnection desktop = QDBusConnection::connectToBus(address, "portal");
        FakeShortcutsPortal portal(desktop);
        QThread portalThread;
        portal.moveToThread(&portalThread);
        portalThread.start();
        const auto stop = qScopeGuard([&] {
            desktop.unregisterObject(portalPath);
            portalThread.quit();
            portalThread.wait();
        });
        QVERIFY(desktop.registerVirtualObject(portalPath, &portal));
        QVERIFY(desktop.registerService(QStringLiteral("org.freedesktop.portal.Desktop")));
        const std::unique_ptr<PortalHotKeyGrabber> grabber = PortalHotKeyGrabber::create(client);
        QVERIFY(grabber);

        const QStringList names{"toggleVantrel", "increaseKeySize", "decreaseKeySize",
                                "openPositionCustomizer", "toggleMouseClicks"};
        QHash<QString, QString> expected;
        for (int i = 0; i < names.size(); ++i) {
            const QKeyCombination combination(Qt::CTRL | Qt::ALT, Qt::Key(Qt::Key_1 + i));
            QCOMPARE(grabber->grab(names.at(i), combination), HotKeyGrabber::GrabResult::grabbed);
            expected.insert(names.at(i), QStringLiteral("CTRL+ALT+%1").arg(i + 1));
        }
        QTRY_COMPARE(portal.binds().size(), 1);
        QCOMPARE(portal.binds().constFirst(), expected);

        QSignalSpy pressed(grabber.get(), &HotKeyGrabber::pressed);
        QSignalSpy released(grabber.get(), &HotKeyGrabber::released);
        portal.emitShortcut(QStringLiteral("Activated"), names.at(1));
        portal.emitShortcut(QStringLiteral("Deactivated"), names.at(1));
        QTRY_COMPARE(released.size(), 1);
        QCOMPARE(pressed.size(), 1);
        QCOMPARE(pressed.constFirst().constFirst().toString(), names.at(1));
        QCOMPARE(released.constFirst().constFirst().toString(), names.at(1));

        QCOMPARE(grabber->grab(names.at(0), Qt::CTRL | Qt::ALT | Qt::Key_K),
                 HotKeyGrabber::GrabResult::grabbed);
        grabber->release(names.at(4));
        QTRY_COMPARE(portal.binds().size(), 2);
        expected.insert(names.at(0), QStringLiteral("CTRL+ALT+k"));
        expected.remove(names.at(4));
        QCOMPARE(portal.binds().last(), expected);
        // Key downs of the new session still arrive.
        portal.emitShortcut(QStringLiteral("Activated"), names.at(0));
        QTRY_COMPARE(pressed.size(), 2);

        // A session the desktop closes is made again with the same grabs.
        portal.closeSession();
        QTRY_COMPARE(portal.binds().size(), 3);
        QCOMPARE(portal.binds().last(), expected);
    }
};

QTEST_GUILESS_MAIN(tst_PortalHotKeyGrabber)
#include "tst_PortalHotKeyGrabber.moc"
