#pragma once

#include "shortcuts/HotKeyGrabber.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QElapsedTimer>
#include <QHash>
#include <QSet>
#include <QTimer>
#include <QVariantMap>

#include <memory>

class QDBusMessage;
class QDBusObjectPath;

// Global shortcuts through the desktop portal (org.freedesktop.portal.GlobalShortcuts), for
// Wayland sessions where no client may grab keys itself. The shortcuts are bound in a portal
// session, each name with its combination as the preferred trigger; the desktop has the last word
// (it may show the user a dialog). Binding is asynchronous: grab() answers at once, and changes
// made together are bound together. Every bind opens a fresh session, since some desktops
// accept one bind per session only.
class PortalHotKeyGrabber final : public HotKeyGrabber {
    Q_OBJECT

public:
    // nullptr when `bus` has no portal offering global shortcuts; waits at most about a second.
    static std::unique_ptr<PortalHotKeyGrabber>
    create(const QDBusConnection &bus = QDBusConnection::sessionBus());
    ~PortalHotKeyGrabber() override;

    GrabResult grab(const QString &name, QKeyCombination combination) override;
    void release(const QString &name) override;

    // The portal's trigger text for `combination` ("CTRL+ALT+k"); empty when its key has no
    // keysym.
    static QString trigger(QKeyCombination combination);

private slots:
    // Slots, as QDBusConnection::connect delivers signals only by name.
    void handleResponse(uint response, const QVariantMap &results, const QDBusMessage &message);
    void handleActivated(const QDBusObjectPath &session, const QString &id, qulonglong timestamp,
                         const QVariantMap &options);
    void handleDeactivated(const QDBusObjectPath &session, const QString &id, qulonglong timestamp,
                           const QVariantMap &options);
    // The desktop ended the session: the grabs are bound again in a new one, at most once a
    // minute, so that a desktop that keeps closing it is not asked without end.
    void handleSessionClosed(const QVariantMap &details);

private:
    explicit PortalHotKeyGrabber(const QDBusConnection &bus);
    void bind();
    void bindShortcuts();
    void closeSession();
    void followSession(bool follow);
    // Binds the grabs again in a new session: now, or when a minute has passed since the last
    // time.
    void reopen();
    // Subscribes to the answer of a request made with a new token; returns the token.
    QString expectResponse();

    QDBusConnection m_bus;
    QHash<QString, QKeyCombination> m_grabs;
    // Names whose trigger the desktop declined, with that trigger: not asked for again.
    QHash<QString, QKeyCombination> m_refused;
    QString m_session;
    QString m_pendingRequest;
    bool m_creatingSession = false;
    bool m_bindAgain = false;
    bool m_failed = false;
    uint m_nextToken = 0;
    QElapsedTimer m_sinceReopened;
    QTimer m_reopenTimer;
    // A portal that restarts (and so forgets every session) sends no Closed.
    QDBusServiceWatcher m_portalWatcher;
    // Grabs made together (the five at start) are bound in one request.
    QTimer m_bindTimer;
};
