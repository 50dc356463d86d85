#pragma once

#include <QDBusConnection>
#include <QObject>

#include <memory>

class QDBusServiceWatcher;

// Follows KDE Plasma's active keyboard layout: KWin's `org.kde.keyboard` service on the session
// bus (object /Layouts, interface org.kde.KeyboardLayouts). Plasma switches layouts itself, and
// Wayland reports the active group only to the focused client, which Vantrel never is. Waits for
// the service when it is not there (yet): outside Plasma it simply never speaks.
class KdeKeyboardLayoutWatcher final : public QObject {
    Q_OBJECT

public:
    // Returns nullptr when `bus` is not connected.
    static std::unique_ptr<KdeKeyboardLayoutWatcher>
    create(const QDBusConnection &bus = QDBusConnection::sessionBus());
    ~KdeKeyboardLayoutWatcher() override;

signals:
    // The active layout index, once the service answers and after every switch.
    void activeLayoutChanged(quint32 index);

private slots:
    // A slot, as QDBusConnection::connect delivers signals only by name.
    void handleLayoutChanged(uint index);

private:
    explicit KdeKeyboardLayoutWatcher(const QDBusConnection &bus);
    void readLayout();

    QDBusConnection m_bus;
    std::unique_ptr<QDBusServiceWatcher> m_serviceWatcher;
};
