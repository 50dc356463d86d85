#pragma once

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QHash>
#include <QMutex>
#include <QThread>
#include <QTimer>

// The desktop portal's global shortcuts as far as Vantrel uses them: sessions are made at once
// and every bind is accepted; each bind is kept for the test to read. It runs on a thread of its
// own, as a client's first question blocks the thread that asks.
class FakeShortcutsPortal final : public QDBusVirtualObject {
    Q_OBJECT

public:
    static inline const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
    static inline const QString shortcutsInterface =
        QStringLiteral("org.freedesktop.portal.GlobalShortcuts");

    ~FakeShortcutsPortal() override
    {
        if (!m_thread.isRunning())
            return;
        m_bus.unregisterObject(portalPath);
        m_thread.quit();
        m_thread.wait();
    }

    // Serves as the desktop portal on the bus at `address`; false when it cannot.
    bool serve(const QString &address)
    {
        m_bus = QDBusConnection::connectToBus(address, QStringLiteral("fake portal"));
        moveToThread(&m_thread);
        m_thread.start();
        return m_bus.registerVirtualObject(portalPath, this) &&
               m_bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
    }

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
    QThread m_thread;
    QDBusConnection m_bus{QString()};
    QMutex m_mutex;
    QString m_session;
    QList<QHash<QString, QString>> m_binds;
};
