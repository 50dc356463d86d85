#pragma once

#include <QList>
#include <QObject>
#include <QString>

#include <array>
#include <atomic>
#include <optional>

// Whether what the user types now is secret: while the session is locked, or while a password
// field has the keyboard focus. Nothing typed then is shown, modifiers and clicks included.
//
// The platform's watchers (SecrecyWatcher) report here on the main thread; the capture thread
// reads state() for every event, which is one atomic load. The state also counts every change,
// so that a key seen before a change and shown after it can be told apart and dropped.
class Secrecy final : public QObject {
    Q_OBJECT

public:
    // Everything that can say "locked"; the session counts as locked while any of them does.
    enum class LockSource { logind, freedesktopScreenSaver, gnomeScreenSaver, x11ScreenSaver };
    // The protections as the settings list them, in this order.
    enum class Protection { sessionLock, screenLocker, x11ScreenSaver, passwordFields };

    struct ProtectionStatus {
        Protection protection = Protection::sessionLock;
        bool isOn = false;
        // Plain words: what it follows when on, why it is off otherwise.
        QString detail;
    };

    explicit Secrecy(QObject *parent = nullptr);

    // Any thread. Bit 0: secret now (no new key is taken); the other bits count the changes.
    quint64 state() const { return m_state.load(std::memory_order_acquire); }
    static bool isSecret(quint64 state) { return state & 1; }
    bool isSecret() const { return isSecret(state()); }
    // Main thread. Whether what shows must go, and nothing may show: the session is locked or a
    // password field has the focus. While a newly focused object's role is still being asked,
    // new keys are dropped (isSecret()) but the caps already shown stay, so that the key that
    // moved the focus (Tab, Alt+Tab) does not vanish at every focus change.
    bool hidesKeys() const { return m_hidden; }

    // ---- Main thread ----
    bool isLocked() const;
    bool isPasswordFieldFocused() const;

    // A source's latest word; repeating it changes nothing.
    void setLocked(LockSource source, bool locked);

    // The keyboard focus moved to `object` of the application `owner` (both as the
    // accessibility bus names them). Until its role is known the focus counts as a password
    // field: in doubt, nothing is shown.
    void focusMoved(const QString &owner, const QString &object);
    // The role of the focused object became known; ignored when the focus has moved on since.
    void focusRoleKnown(const QString &owner, const QString &object, bool isPasswordField);
    // `object` lost the focus; ignored unless it is the focused one.
    void focusLeft(const QString &owner, const QString &object);
    // The application `owner` left the accessibility bus (it quit or crashed): none of its
    // fields can have the focus any more.
    void applicationGone(const QString &owner);
    // The focus is not known at all any more (the accessibility bus went away).
    void forgetFocus();

    void setProtection(Protection protection, bool isOn, const QString &detail);
    // The protections reported so far, in Protection order.
    QList<ProtectionStatus> protections() const;
    // What the protection is, for people ("Locked session").
    static QString title(Protection protection);

signals:
    // Emitted on the main thread when hidesKeys() changes.
    void secretChanged(bool secret);
    void protectionsChanged();

private:
    enum class Role { unknown, passwordField, other };
    struct Focus {
        QString owner;
        QString object;
        Role role = Role::unknown;
    };

    bool focusIs(const QString &owner, const QString &object) const;
    void update();

    std::array<bool, 4> m_locks{};
    std::optional<Focus> m_focus;
    std::array<std::optional<ProtectionStatus>, 4> m_protections;
    std::atomic<quint64> m_state{0};
    bool m_hidden = false;
};
