#pragma once

#include "capture/SecrecyWatcher.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>

#include <memory>

class QDBusServiceWatcher;

// Follows the screen lockers of the desktop on the session bus: the ActiveChanged signals of
// org.freedesktop.ScreenSaver (KDE, XFCE, light-locker, ...) and org.gnome.ScreenSaver (GNOME),
// from whichever program sends them, and their GetActive when they are running. A locker that
// leaves the bus no longer counts as locked.
class ScreenSaverLockWatcher final : public QObject, public SecrecyWatcher {
    Q_OBJECT

public:
    explicit ScreenSaverLockWatcher(const QDBusConnection &bus = QDBusConnection::sessionBus());
    ~ScreenSaverLockWatcher() override;

    void start(Secrecy &secrecy) override;

private slots:
    // A slot, as QDBusConnection::connect delivers signals only by name.
    void handleActiveChanged(const QDBusMessage &message);

private:
    void readActive(const QString &service);

    QDBusConnection m_bus;
    std::unique_ptr<QDBusServiceWatcher> m_services;
    Secrecy *m_secrecy = nullptr;
};
