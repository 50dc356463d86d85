#include "platform/linux/PortalHotKeyGrabber.h"

#include "platform/x11/X11HotKeyGrabber.h"
#include "shortcuts/GlobalShortcutNames.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

#include <xkbcommon/xkbcommon.h>

#include <array>
#include <utility>

namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interface = QStringLiteral("org.freedesktop.portal.GlobalShortcuts");
const QString requestInterface = QStringLiteral("org.freedesktop.portal.Request");
const char *const responseSlot = SLOT(handleResponse(uint, QVariantMap, QDBusMessage));
const QString sessionInterface = QStringLiteral("org.freedesktop.portal.Session");
const char *const closedSlot = SLOT(handleSessionClosed(QVariantMap));
constexpr qint64 reopenIntervalMs = 60000;

// One entry of BindShortcuts' a(sa{sv}).
struct PortalShortcut {
    QString id;
    QVariantMap info;
};

QDBusArgument &operator<<(QDBusArgument &argument, const PortalShortcut &shortcut)
{
    argument.beginStructure();
    argument << shortcut.id << shortcut.info;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, PortalShortcut &shortcut)
{
    argument.beginStructure();
    argument >> shortcut.id >> shortcut.info;
    argument.endStructure();
    return argument;
}

QString descriptionOf(const QString &name)
{
    for (const GlobalShortcutNames::Entry &entry : GlobalShortcutNames::all())
        if (entry.name == name)
            return GlobalShortcutNames::title(entry);
    return name;
}

QString pathText(const QVariant &value)
{
    // The portal documents a string; object paths are met too.
    if (value.userType() == qMetaTypeId<QDBusObjectPath>())
        return value.value<QDBusObjectPath>().path();
    return value.toString();
}

} // namespace

Q_DECLARE_METATYPE(PortalShortcut)

std::unique_ptr<PortalHotKeyGrabber> PortalHotKeyGrabber::create(const QDBusConnection &bus)
{
    if (!bus.isConnected())
        return nullptr;
    QDBusMessage get = QDBusMessage::createMethodCall(
        service, path, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    get << interface << QStringLiteral("version");
    // A portal started on demand answers well within this; start-up must not wait longer.
    const QDBusMessage reply = bus.call(get, QDBus::Block, 1000);
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty())
        return nullptr;
    if (qvariant_cast<QDBusVariant>(reply.arguments().constFirst()).variant().toUInt() == 0)
        return nullptr;
    return std::unique_ptr<PortalHotKeyGrabber>(new PortalHotKeyGrabber(bus));
}

PortalHotKeyGrabber::PortalHotKeyGrabber(const QDBusConnection &bus) : m_bus(bus)
{
    qDBusRegisterMetaType<PortalShortcut>();
    qDBusRegisterMetaType<QList<PortalShortcut>>();
    m_bindTimer.setSingleShot(true);
    m_bindTimer.setInterval(0);
    connect(&m_bindTimer, &QTimer::timeout, this, &PortalHotKeyGrabber::bind);
    m_reopenTimer.setSingleShot(true);
    connect(&m_reopenTimer, &QTimer::timeout, this, &PortalHotKeyGrabber::reopen);
    m_portalWatcher.setConnection(m_bus);
    m_portalWatcher.addWatchedService(service);
    connect(&m_portalWatcher, &QDBusServiceWatcher::serviceRegistered, this, [this] {
        // The new portal knows nothing of the old session.
        if (!m_session.isEmpty())
            followSession(false);
        m_session.clear();
        m_failed = false;
        reopen();
    });
    // QtDBus finds the slot's types by name, which only registered types have.
    qRegisterMetaType<QDBusObjectPath>();
    m_bus.connect(service, path, interface, QStringLiteral("Activated"), QStringLiteral("osta{sv}"),
                  this, SLOT(handleActivated(QDBusObjectPath, QString, qulonglong, QVariantMap)));
    m_bus.connect(service, path, interface, QStringLiteral("Deactivated"),
                  QStringLiteral("osta{sv}"), this,
                  SLOT(handleDeactivated(QDBusObjectPath, QString, qulonglong, QVariantMap)));
}

PortalHotKeyGrabber::~PortalHotKeyGrabber()
{
    closeSession();
}

QString PortalHotKeyGrabber::trigger(QKeyCombination combination)
{
    const quint32 keysym = X11HotKeyGrabber::keysymForKey(combination.key());
    std::array<char, 64> name{};
    if (!keysym || xkb_keysym_get_name(keysym, name.data(), name.size()) <= 0)
        return {};
    QStringList parts;
    const Qt::KeyboardModifiers modifiers = combination.keyboardModifiers();
    if (modifiers & Qt::ControlModifier)
        parts << QStringLiteral("CTRL");
    if (modifiers & Qt::AltModifier)
        parts << QStringLiteral("ALT");
    if (modifiers & Qt::ShiftModifier)
        parts << QStringLiteral("SHIFT");
    if (modifiers & Qt::MetaModifier)
        parts << QStringLiteral("LOGO");
    parts << QString::fromLatin1(name.data());
    return parts.join(QLatin1Char('+'));
}

HotKeyGrabber::GrabResult PortalHotKeyGrabber::grab(const QString &name,
                                                    QKeyCombination combination)
{
    if (m_failed || trigger(combination).isEmpty()) {
        release(name);
        return GrabResult::unavailable;
    }
    if (m_refused.value(name) == combination) {
        release(name);
        return GrabResult::taken;
    }
    if (m_grabs.value(name) != combination) {
        m_grabs.insert(name, combination);
        m_bindTimer.start();
    }
    return GrabResult::grabbed;
}

void PortalHotKeyGrabber::release(const QString &name)
{
    if (m_grabs.remove(name))
        m_bindTimer.start();
}

QString PortalHotKeyGrabber::expectResponse()
{
    // Tokens are unique in the process, as the request path is made of the connection's name
    // and the token alone.
    static uint counter = 0;
    const QString token = QStringLiteral("vantrel%1").arg(++counter);
    QString sender = m_bus.baseService().mid(1);
    sender.replace(QLatin1Char('.'), QLatin1Char('_'));
    m_pendingRequest = path + QStringLiteral("/request/") + sender + QLatin1Char('/') + token;
    // Subscribed before the call, so that no answer comes before the subscription.
    m_bus.connect(service, m_pendingRequest, requestInterface, QStringLiteral("Response"),
                  QStringLiteral("ua{sv}"), this, responseSlot);
    return token;
}

void PortalHotKeyGrabber::bind()
{
    if (!m_pendingRequest.isEmpty()) {
        m_bindAgain = true;
        return;
    }
    closeSession();
    if (m_grabs.isEmpty() || m_failed)
        return;
    const QString token = expectResponse();
    QDBusMessage call =
        QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("CreateSession"));
    call << QVariantMap{{QStringLiteral("handle_token"), token},
                        {QStringLiteral("session_handle_token"), token}};
    m_creatingSession = true;
    auto *pending = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(pending, &QDBusPendingCallWatcher::finished, this,
            [this](QDBusPendingCallWatcher *finished) {
                finished->deleteLater();
                const QDBusPendingReply<QDBusObjectPath> reply = *finished;
                if (reply.isError()) {
                    m_bus.disconnect(service, m_pendingRequest, requestInterface,
                                     QStringLiteral("Response"), QStringLiteral("ua{sv}"), this,
                                     responseSlot);
                    m_pendingRequest.clear();
                    m_creatingSession = false;
                    m_failed = true;
                }
            });
}

void PortalHotKeyGrabber::bindShortcuts()
{
    QList<PortalShortcut> shortcuts;
    for (auto it = m_grabs.cbegin(); it != m_grabs.cend(); ++it)
        shortcuts.append({it.key(),
                          {{QStringLiteral("description"), descriptionOf(it.key())},
                           {QStringLiteral("preferred_trigger"), trigger(it.value())}}});
    const QString token = expectResponse();
    QDBusMessage call =
        QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("BindShortcuts"));
    call << QVariant::fromValue(QDBusObjectPath(m_session)) << QVariant::fromValue(shortcuts)
         << QString() << QVariantMap{{QStringLiteral("handle_token"), token}};
    m_bus.asyncCall(call);
}

void PortalHotKeyGrabber::closeSession()
{
    if (m_session.isEmpty())
        return;
    followSession(false);
    m_bus.call(QDBusMessage::createMethodCall(service, m_session, sessionInterface,
                                              QStringLiteral("Close")),
               QDBus::NoBlock);
    m_session.clear();
}

void PortalHotKeyGrabber::followSession(bool follow)
{
    if (follow)
        m_bus.connect(service, m_session, sessionInterface, QStringLiteral("Closed"),
                      QStringLiteral("a{sv}"), this, closedSlot);
    else
        m_bus.disconnect(service, m_session, sessionInterface, QStringLiteral("Closed"),
                         QStringLiteral("a{sv}"), this, closedSlot);
}

void PortalHotKeyGrabber::handleSessionClosed(const QVariantMap &)
{
    followSession(false);
    m_session.clear();
    reopen();
}

void PortalHotKeyGrabber::reopen()
{
    if (m_sinceReopened.isValid() && m_sinceReopened.elapsed() < reopenIntervalMs) {
        if (!m_reopenTimer.isActive())
            m_reopenTimer.start(int(reopenIntervalMs - m_sinceReopened.elapsed()));
        return;
    }
    m_sinceReopened.start();
    m_bindTimer.start();
}

void PortalHotKeyGrabber::handleResponse(uint response, const QVariantMap &results,
                                         const QDBusMessage &message)
{
    if (message.path() != m_pendingRequest)
        return;
    m_bus.disconnect(service, m_pendingRequest, requestInterface, QStringLiteral("Response"),
                     QStringLiteral("ua{sv}"), this, responseSlot);
    m_pendingRequest.clear();
    if (m_creatingSession) {
        m_creatingSession = false;
        m_session =
            response == 0 ? pathText(results.value(QStringLiteral("session_handle"))) : QString();
        const bool bindAgain = std::exchange(m_bindAgain, false);
        if (m_session.isEmpty()) {
            m_failed = true;
            return;
        }
        followSession(true);
        if (bindAgain)
            m_bindTimer.start();
        else
            bindShortcuts();
        return;
    }
    // The desktop (or its user) may decline some or all of them: those are not asked for again.
    QSet<QString> bound;
    if (response == 0 && results.contains(QStringLiteral("shortcuts"))) {
        const auto list =
            qdbus_cast<QList<PortalShortcut>>(results.value(QStringLiteral("shortcuts")));
        for (const PortalShortcut &shortcut : list)
            bound.insert(shortcut.id);
    } else if (response == 0) {
        bound = QSet<QString>(m_grabs.keyBegin(), m_grabs.keyEnd());
    }
    for (auto it = m_grabs.begin(); it != m_grabs.end();) {
        if (bound.contains(it.key())) {
            ++it;
            continue;
        }
        m_refused.insert(it.key(), it.value());
        it = m_grabs.erase(it);
    }
    if (m_bindAgain) {
        m_bindAgain = false;
        m_bindTimer.start();
    }
}

void PortalHotKeyGrabber::handleActivated(const QDBusObjectPath &session, const QString &id,
                                          qulonglong, const QVariantMap &)
{
    if (session.path() == m_session && m_grabs.contains(id))
        emit pressed(id);
}

void PortalHotKeyGrabber::handleDeactivated(const QDBusObjectPath &session, const QString &id,
                                            qulonglong, const QVariantMap &)
{
    if (session.path() == m_session && m_grabs.contains(id))
        emit released(id);
}
