#pragma once

#include "capture/SecrecyWatcher.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>

#include <functional>
#include <memory>
#include <optional>

class QDBusServiceWatcher;

// A small AT-SPI2 client that follows the keyboard focus and tells whether the focused object is
// a password field. It asks the session bus's org.a11y.Bus for the accessibility bus
// (AT_SPI_BUS_ADDRESS first), registers for Object:StateChanged:focused with the registry, and
// asks each newly focused object for its role ("password text"). On joining it also looks for a
// focused password field in the active window, which no event would tell of. It reads roles and
// states only, never text. Everything runs on the main thread; the capture thread only reads
// Secrecy's state.
//
// An accessibility bus that starts after Vantrel is joined when org.a11y.Bus appears; one that
// goes away turns the protection off (and forgets the focus) until it is back.
class AtSpiFocusWatcher final : public QObject, public SecrecyWatcher {
    Q_OBJECT

public:
    // `busAddress`: the accessibility bus to use instead of asking `sessionBus`.
    explicit AtSpiFocusWatcher(
        const QDBusConnection &sessionBus = QDBusConnection::sessionBus(),
        const QString &busAddress = qEnvironmentVariable("AT_SPI_BUS_ADDRESS"));
    ~AtSpiFocusWatcher() override;

    void start(Secrecy &secrecy) override;

private slots:
    // Slots, as QDBusConnection::connect delivers signals only by name.
    void handleStateChanged(const QDBusMessage &message);
    void handleNameOwnerChanged(const QString &name, const QString &oldOwner,
                                const QString &newOwner);

private:
    void askForBus();
    void join(const QString &address);
    void leave(const QString &why);
    void readRole(const QString &owner, const QString &object);
    void findStartingFocus();
    void findFocusInActiveWindow(const QString &owner, const QString &window,
                                 const std::function<bool()> &current);
    // Calls on the accessibility bus; `answer` hears only replies (not errors) from the bus
    // joined when it was asked.
    void ask(const QDBusMessage &call, std::function<void(const QVariantList &)> answer);

    QDBusConnection m_sessionBus;
    QString m_fixedAddress;
    std::optional<QDBusConnection> m_bus;
    QString m_connectionName;
    std::unique_ptr<QDBusServiceWatcher> m_launcher;
    Secrecy *m_secrecy = nullptr;
    quint64 m_joined = 0;      // buses joined so far
    quint64 m_focusEvents = 0; // focus changes heard, so that older answers know they are stale
};
