#include "platform/linux/AtSpiFocusWatcher.h"

#include "capture/Secrecy.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>

#include <utility>
#include <vector>

namespace {

const QString launcherService = QStringLiteral("org.a11y.Bus");
const QString registryService = QStringLiteral("org.a11y.atspi.Registry");
const QString focusedEvent = QStringLiteral("object:state-changed:focused");
// AtspiRole's ATSPI_ROLE_PASSWORD_TEXT, AtspiStateType's ATSPI_STATE_ACTIVE and _FOCUSED, and
// AtspiCollectionMatchType's ATSPI_Collection_MATCH_ALL.
constexpr uint passwordTextRole = 40;
constexpr int activeState = 1;
constexpr int focusedState = 12;
constexpr int matchAll = 1;

QString offBecause()
{
    return AtSpiFocusWatcher::tr("The accessibility bus (AT-SPI) is not running, so password "
                                 "fields cannot be recognised.");
}

// A Collection match rule, (aiia{ss}iaiiasib): objects with the focus. The role is asked
// afterwards: with the password role in the rule, GTK's bridge matches nothing.
QDBusArgument focusedObjectRule()
{
    QDBusArgument rule;
    rule.beginStructure();
    rule << QList<int>{1 << focusedState, 0} << matchAll << QMap<QString, QString>() << matchAll
         << QList<int>(4, 0) << matchAll << QStringList() << matchAll << false;
    rule.endStructure();
    return rule;
}

QDBusMessage accessibleCall(const QString &owner, const QString &object, const QString &method)
{
    return QDBusMessage::createMethodCall(owner, object,
                                          QStringLiteral("org.a11y.atspi.Accessible"), method);
}

// The objects of an a(so) answer: bus names and paths.
std::vector<std::pair<QString, QString>> objects(const QVariant &answer)
{
    std::vector<std::pair<QString, QString>> result;
    const QDBusArgument list = answer.value<QDBusArgument>();
    if (list.currentSignature() != QLatin1String("a(so)"))
        return result;
    list.beginArray();
    while (!list.atEnd()) {
        QString owner;
        QDBusObjectPath path;
        list.beginStructure();
        list >> owner >> path;
        list.endStructure();
        result.emplace_back(owner, path.path());
    }
    list.endArray();
    return result;
}

} // namespace

AtSpiFocusWatcher::AtSpiFocusWatcher(const QDBusConnection &sessionBus, const QString &busAddress)
    : m_sessionBus(sessionBus), m_fixedAddress(busAddress)
{}

AtSpiFocusWatcher::~AtSpiFocusWatcher()
{
    if (m_bus)
        QDBusConnection::disconnectFromBus(m_connectionName);
}

void AtSpiFocusWatcher::start(Secrecy &secrecy)
{
    m_secrecy = &secrecy;
    if (!m_fixedAddress.isEmpty()) {
        join(m_fixedAddress);
        return;
    }
    if (!m_sessionBus.isConnected()) {
        leave(tr("There is no session bus to find the accessibility bus on."));
        return;
    }
    // The launcher may start after Vantrel, or again after it stopped.
    m_launcher = std::make_unique<QDBusServiceWatcher>(launcherService, m_sessionBus);
    connect(m_launcher.get(), &QDBusServiceWatcher::serviceRegistered, this,
            &AtSpiFocusWatcher::askForBus);
    connect(m_launcher.get(), &QDBusServiceWatcher::serviceUnregistered, this,
            [this] { leave(offBecause()); });
    askForBus();
}

void AtSpiFocusWatcher::askForBus()
{
    // The launcher is started on demand where the desktop has not started it yet.
    const QDBusMessage call =
        QDBusMessage::createMethodCall(launcherService, QStringLiteral("/org/a11y/bus"),
                                       launcherService, QStringLiteral("GetAddress"));
    auto *pending = new QDBusPendingCallWatcher(m_sessionBus.asyncCall(call), this);
    connect(pending, &QDBusPendingCallWatcher::finished, this,
            [this](QDBusPendingCallWatcher *finished) {
                finished->deleteLater();
                const QDBusMessage reply = finished->reply();
                const QString address = reply.arguments().value(0).toString();
                if (reply.type() == QDBusMessage::ReplyMessage && !address.isEmpty())
                    join(address);
                else
                    leave(offBecause());
            });
}

void AtSpiFocusWatcher::join(const QString &address)
{
    if (m_bus)
        leave(QString());
    static int connections = 0;
    m_connectionName = QStringLiteral("vantrel-a11y-%1").arg(++connections);
    QDBusConnection bus = QDBusConnection::connectToBus(address, m_connectionName);
    if (!bus.isConnected()) {
        QDBusConnection::disconnectFromBus(m_connectionName);
        leave(offBecause());
        return;
    }
    m_bus = bus;
    ++m_joined;
    // Any application, any object; the sender and path name the object.
    bus.connect(QString(), QString(), QStringLiteral("org.a11y.atspi.Event.Object"),
                QStringLiteral("StateChanged"), this, SLOT(handleStateChanged(QDBusMessage)));
    bus.connect(QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
                QStringLiteral("org.freedesktop.DBus"), QStringLiteral("NameOwnerChanged"), this,
                SLOT(handleNameOwnerChanged(QString, QString, QString)));
    // Applications send only the events someone registered for.
    QDBusMessage registration =
        QDBusMessage::createMethodCall(registryService, QStringLiteral("/org/a11y/atspi/registry"),
                                       registryService, QStringLiteral("RegisterEvent"));
    registration.setArguments({focusedEvent, QStringList()});
    bus.asyncCall(registration);
    m_secrecy->setProtection(Secrecy::Protection::passwordFields, true,
                             tr("Nothing is shown while a password field has the focus."));
    findStartingFocus();
}

void AtSpiFocusWatcher::ask(const QDBusMessage &call,
                            std::function<void(const QVariantList &)> answer)
{
    auto *pending = new QDBusPendingCallWatcher(m_bus->asyncCall(call), this);
    connect(
        pending, &QDBusPendingCallWatcher::finished, this,
        [this, joined = m_joined, answer = std::move(answer)](QDBusPendingCallWatcher *finished) {
            finished->deleteLater();
            const QDBusMessage reply = finished->reply();
            if (m_bus && joined == m_joined && reply.type() == QDBusMessage::ReplyMessage)
                answer(reply.arguments());
        });
}

void AtSpiFocusWatcher::findStartingFocus()
{
    // Events only tell of focus that moves: a password field that had the focus before Vantrel
    // joined the bus is looked for once, in every application that can be asked. An answer
    // that comes after a focus event is out of date.
    const quint64 focusEvents = m_focusEvents;
    const auto current = [this, focusEvents] { return focusEvents == m_focusEvents; };
    ask(accessibleCall(registryService, QStringLiteral("/org/a11y/atspi/accessible/root"),
                       QStringLiteral("GetChildren")),
        [this, current](const QVariantList &applications) {
            // a(so): each application's name and root object; then its windows.
            for (const auto &[owner, root] : objects(applications.value(0)))
                ask(accessibleCall(owner, root, QStringLiteral("GetChildren")),
                    [this, current](const QVariantList &windows) {
                        for (const auto &[owner, window] : objects(windows.value(0)))
                            findFocusInActiveWindow(owner, window, current);
                    });
        });
}

void AtSpiFocusWatcher::findFocusInActiveWindow(const QString &owner, const QString &window,
                                                const std::function<bool()> &current)
{
    // Only the active window is searched: a large document elsewhere is not walked for nothing.
    ask(accessibleCall(owner, window, QStringLiteral("GetState")),
        [this, current, owner, window](const QVariantList &states) {
            const auto bits = qdbus_cast<QList<uint>>(states.value(0));
            if (bits.isEmpty() || !(bits.first() & (1u << activeState)) || !current())
                return;
            QDBusMessage matches = QDBusMessage::createMethodCall(
                owner, window, QStringLiteral("org.a11y.atspi.Collection"),
                QStringLiteral("GetMatches"));
            // Canonical order, at most one match, through the whole tree. Applications without
            // the Collection interface answer with an error, which says nothing.
            matches.setArguments({QVariant::fromValue(focusedObjectRule()), 1u, 1, true});
            ask(matches, [this, current](const QVariantList &found) {
                const auto focused = objects(found.value(0));
                if (focused.empty() || !current())
                    return;
                // The object may live in another process than its window (a plug).
                const auto [owner, object] = focused.front();
                ask(accessibleCall(owner, object, QStringLiteral("GetRole")),
                    [this, current, owner, object](const QVariantList &role) {
                        if (current() && role.value(0).toUInt() == passwordTextRole) {
                            m_secrecy->focusMoved(owner, object);
                            m_secrecy->focusRoleKnown(owner, object, true);
                        }
                    });
            });
        });
}

void AtSpiFocusWatcher::leave(const QString &why)
{
    if (m_bus) {
        m_bus.reset();
        QDBusConnection::disconnectFromBus(m_connectionName);
    }
    m_secrecy->forgetFocus();
    if (!why.isEmpty())
        m_secrecy->setProtection(Secrecy::Protection::passwordFields, false, why);
}

void AtSpiFocusWatcher::handleStateChanged(const QDBusMessage &message)
{
    // A signal queued before the bus went away finds no connection to ask on.
    if (!m_bus)
        return;
    // (kind, detail1, detail2, any_data, ...): "focused", 1 gained or 0 lost.
    const QVariantList arguments = message.arguments();
    if (arguments.value(0).toString() != QLatin1String("focused"))
        return;
    ++m_focusEvents;
    const QString owner = message.service();
    const QString object = message.path();
    if (arguments.value(1).toInt() == 0) {
        m_secrecy->focusLeft(owner, object);
        return;
    }
    m_secrecy->focusMoved(owner, object);
    readRole(owner, object);
}

void AtSpiFocusWatcher::readRole(const QString &owner, const QString &object)
{
    // No answer: the focus stays hidden until it moves or the application goes.
    ask(accessibleCall(owner, object, QStringLiteral("GetRole")),
        [this, owner, object](const QVariantList &role) {
            m_secrecy->focusRoleKnown(owner, object, role.value(0).toUInt() == passwordTextRole);
        });
}

void AtSpiFocusWatcher::handleNameOwnerChanged(const QString &name, const QString &,
                                               const QString &newOwner)
{
    if (newOwner.isEmpty() && name.startsWith(QLatin1Char(':')))
        m_secrecy->applicationGone(name);
}
