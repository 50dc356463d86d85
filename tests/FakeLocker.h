#pragma once

#include <QDBusConnection>
#include <QObject>

// A screen locker on a session bus, as org.freedesktop.ScreenSaver: active or not when asked,
// and ActiveChanged emitted by the test.
class FakeLocker final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.ScreenSaver")

public:
    explicit FakeLocker(bool active) : m_active(active) {}

    // Takes the locker's name and object on `bus`; false when it cannot.
    bool serve(QDBusConnection &bus)
    {
        return bus.registerObject(QStringLiteral("/org/freedesktop/ScreenSaver"), this,
                                  QDBusConnection::ExportAllSlots |
                                      QDBusConnection::ExportAllSignals) &&
               bus.registerService(QStringLiteral("org.freedesktop.ScreenSaver"));
    }

public slots:
    bool GetActive() const { return m_active; }

signals:
    void ActiveChanged(bool active);

private:
    bool m_active;
};
