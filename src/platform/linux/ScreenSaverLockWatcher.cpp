#include "platform/linux/ScreenSaverLockWatcher.h"

#include "capture/Secrecy.h"

#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>

namespace {

struct Locker {
    QString service; // also the interface
    QString path;
    Secrecy::LockSource source;
};

const Locker lockers[] = {
    {QStringLiteral("org.freedesktop.ScreenSaver"), QStringLiteral("/org/freedesktop/ScreenSaver"),
     Secrecy::LockSource::freedesktopScreenSaver},
    {QStringLiteral("org.gnome.ScreenSaver"), QStringLiteral("/org/gnome/ScreenSaver"),
     Secrecy::LockSource::gnomeScreenSaver},
};

const Locker *lockerNamed(const QString &name)
{
    for (const Locker &locker : lockers)
        if (locker.service == name)
            return &locker;
    return nullptr;
}

} // namespace

ScreenSaverLockWatcher::ScreenSaverLockWatcher(const QDBusConnection &bus) : m_bus(bus) {}

ScreenSaverLockWatcher::~ScreenSaverLockWatcher() = default;

void ScreenSaverLockWatcher::start(Secrecy &secrecy)
{
    m_secrecy = &secrecy;
    if (!m_bus.isConnected()) {
        m_secrecy->setProtection(Secrecy::Protection::screenLocker, false,
                                 tr("There is no session bus to hear the screen locker on."));
        return;
    }
    m_services = std::make_unique<QDBusServiceWatcher>();
    m_services->setConnection(m_bus);
    for (const Locker &locker : lockers) {
        // Only from the locker that owns the name, so that no other program clears its lock; any
        // path, as lockers differ in where they announce it.
        m_bus.connect(locker.service, QString(), locker.service, QStringLiteral("ActiveChanged"),
                      this, SLOT(handleActiveChanged(QDBusMessage)));
        m_services->addWatchedService(locker.service);
    }
    connect(m_services.get(), &QDBusServiceWatcher::serviceRegistered, this,
            &ScreenSaverLockWatcher::readActive);
    connect(m_services.get(), &QDBusServiceWatcher::serviceUnregistered, this,
            [this](const QString &service) {
                if (const Locker *locker = lockerNamed(service))
                    m_secrecy->setLocked(locker->source, false);
            });
    m_secrecy->setProtection(Secrecy::Protection::screenLocker, true,
                             tr("Nothing is shown while the screen locker is active."));
    for (const Locker &locker : lockers)
        readActive(locker.service);
}

void ScreenSaverLockWatcher::readActive(const QString &service)
{
    const Locker *locker = lockerNamed(service);
    if (!locker)
        return;
    QDBusMessage call = QDBusMessage::createMethodCall(
        locker->service, locker->path, locker->service, QStringLiteral("GetActive"));
    call.setAutoStartService(false); // ask a running locker; never start one
    auto *pending = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(pending, &QDBusPendingCallWatcher::finished, this,
            [this, source = locker->source](QDBusPendingCallWatcher *finished) {
                finished->deleteLater();
                const QDBusMessage reply = finished->reply();
                if (reply.type() == QDBusMessage::ReplyMessage)
                    m_secrecy->setLocked(source, reply.arguments().value(0).toBool());
            });
}

void ScreenSaverLockWatcher::handleActiveChanged(const QDBusMessage &message)
{
    if (const Locker *locker = lockerNamed(message.interface()))
        m_secrecy->setLocked(locker->source, message.arguments().value(0).toBool());
}
