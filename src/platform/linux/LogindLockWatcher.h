#pragma once

#include "capture/SecrecyWatcher.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>

#include <functional>
#include <memory>

// Follows logind's LockedHint of the session Vantrel runs in (system bus). The session is the
// one XDG_SESSION_ID names, else the one of this process, else the user's graphical session, so
// that a Vantrel started outside a login session (a user service) is still covered.
class LogindLockWatcher final : public QObject, public SecrecyWatcher {
    Q_OBJECT

public:
    // `sessionId` empty: the session is found from the process or the user.
    explicit LogindLockWatcher(const QDBusConnection &bus = QDBusConnection::systemBus(),
                               const QString &sessionId = qEnvironmentVariable("XDG_SESSION_ID"));
    ~LogindLockWatcher() override;

    void start(Secrecy &secrecy) override;

private slots:
    // Slots, as QDBusConnection::connect delivers signals only by name.
    void handlePropertiesChanged(const QDBusMessage &message);

private:
    using Reply = std::function<void(const QDBusMessage &)>;
    void call(const QString &path, const QString &interface, const QString &method,
              const QVariantList &arguments, Reply reply);
    void findSessionByProcess();
    void findUserSession();
    void follow(const QString &sessionPath);
    void readLockedHint();
    void giveUp(const QString &why);

    QDBusConnection m_bus;
    QString m_sessionId;
    QString m_sessionPath;
    Secrecy *m_secrecy = nullptr;
};
