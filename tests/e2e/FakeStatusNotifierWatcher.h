#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QMutex>
#include <QMutexLocker>
#include <QObject>
#include <QStringList>
#include <QThread>

// A tray host as desktops announce it on the session bus (a StatusNotifierWatcher with a host),
// keeping the items that register. It answers from a thread of its own, so that a program's
// calls are answered while the test waits on something else.
class FakeStatusNotifierWatcher final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ isHostRegistered)
    Q_PROPERTY(int ProtocolVersion READ protocolVersion)
    Q_PROPERTY(QStringList RegisteredStatusNotifierItems READ items)

public:
    ~FakeStatusNotifierWatcher() override
    {
        m_thread.quit();
        m_thread.wait();
    }

    // Serves on the bus at `address`; false when the name cannot be had.
    bool start(const QString &address)
    {
        moveToThread(&m_thread);
        m_thread.start();
        bool registered = false;
        QMetaObject::invokeMethod(
            this,
            [&] {
                QDBusConnection bus = QDBusConnection::connectToBus(address, "tray host");
                registered = bus.registerObject(QStringLiteral("/StatusNotifierWatcher"), this,
                                                QDBusConnection::ExportAllSlots |
                                                    QDBusConnection::ExportAllProperties) &&
                             bus.registerService(QStringLiteral("org.kde.StatusNotifierWatcher"));
            },
            Qt::BlockingQueuedConnection);
        return registered;
    }

    bool isHostRegistered() const { return true; }
    int protocolVersion() const { return 0; }
    // The registered items' bus names.
    QStringList items() const
    {
        QMutexLocker locker(&m_mutex);
        return m_items;
    }

public slots:
    void RegisterStatusNotifierItem(const QString &service)
    {
        QMutexLocker locker(&m_mutex);
        // An item may give its object path instead of a name: it is then the caller's.
        m_items << (service.startsWith(u'/') ? message().service() : service);
    }
    void RegisterStatusNotifierHost(const QString &) {}

private:
    QThread m_thread;
    mutable QMutex m_mutex;
    QStringList m_items;
};
