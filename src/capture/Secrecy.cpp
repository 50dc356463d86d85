#include "capture/Secrecy.h"

#include <algorithm>
#include <utility>

Secrecy::Secrecy(QObject *parent) : QObject(parent) {}

bool Secrecy::isLocked() const
{
    return std::any_of(m_locks.cbegin(), m_locks.cend(), [](bool locked) { return locked; });
}

bool Secrecy::isPasswordFieldFocused() const
{
    return m_focus && m_focus->role != Role::other;
}

void Secrecy::setLocked(LockSource source, bool locked)
{
    m_locks.at(std::size_t(source)) = locked;
    update();
}

void Secrecy::focusMoved(const QString &owner, const QString &object)
{
    // The same focus reported again keeps what is known about it.
    if (focusIs(owner, object))
        return;
    m_focus = Focus{owner, object, Role::unknown};
    update();
}

void Secrecy::focusRoleKnown(const QString &owner, const QString &object, bool isPasswordField)
{
    if (!focusIs(owner, object))
        return;
    m_focus->role = isPasswordField ? Role::passwordField : Role::other;
    update();
}

void Secrecy::focusLeft(const QString &owner, const QString &object)
{
    if (!focusIs(owner, object))
        return;
    m_focus.reset();
    update();
}

void Secrecy::applicationGone(const QString &owner)
{
    if (!m_focus || m_focus->owner != owner)
        return;
    m_focus.reset();
    update();
}

void Secrecy::forgetFocus()
{
    m_focus.reset();
    update();
}

void Secrecy::setProtection(Protection protection, bool isOn, const QString &detail)
{
    std::optional<ProtectionStatus> &status = m_protections.at(std::size_t(protection));
    if (status && status->isOn == isOn && status->detail == detail)
        return;
    status = ProtectionStatus{protection, isOn, detail};
    emit protectionsChanged();
}

QList<Secrecy::ProtectionStatus> Secrecy::protections() const
{
    QList<ProtectionStatus> list;
    for (const std::optional<ProtectionStatus> &status : m_protections)
        if (status)
            list.append(*status);
    return list;
}

QString Secrecy::title(Protection protection)
{
    switch (protection) {
    case Protection::sessionLock:
        return tr("Locked session");
    case Protection::screenLocker:
        return tr("Screen locker");
    case Protection::x11ScreenSaver:
        return tr("X11 screen saver");
    case Protection::passwordFields:
        return tr("Password fields");
    }
    return {};
}

bool Secrecy::focusIs(const QString &owner, const QString &object) const
{
    return m_focus && m_focus->owner == owner && m_focus->object == object;
}

void Secrecy::update()
{
    const bool secret = isLocked() || isPasswordFieldFocused();
    const quint64 old = m_state.load(std::memory_order_relaxed);
    if (isSecret(old) != secret) {
        // The count moves on with every change, so a key seen under the old state never matches.
        m_state.store(((old >> 1) + 1) << 1 | (secret ? 1 : 0), std::memory_order_release);
    }
    const bool hidden = isLocked() || (m_focus && m_focus->role == Role::passwordField);
    if (std::exchange(m_hidden, hidden) != hidden)
        emit secretChanged(hidden);
}
