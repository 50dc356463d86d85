#include "platform/linux/AtSpiFocusWatcher.h"

#include "capture/Secrecy.h"

#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>

namespace {

const QString launcherService = QStringLiteral("org.a11y.Bus");
const QString registryService = QStringLiteral("org.a11y.atspi.Registry");
const QString focusedEvent = QStringLiteral("object:state-changed:focused");
// AtspiRole's ATSPI_ROLE_PASSWORD_TEXT.
constexpr uint passwordTextRole = 40;

QString offBecause()
{
    return AtSpiFocusWatcher::tr("The accessibility bus (AT-SPI) is not running, so password "
                                 "fields cannot be recognised.");
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
    const QDBusMessage call = QDBusMessage::createMethodCall(
        owner, object, QStringLiteral("org.a11y.atspi.Accessible"), QStringLiteral("GetRole"));
    auto *pending = new QDBusPendingCallWatcher(m_bus->asyncCall(call), this);
    connect(pending, &QDBusPendingCallWatcher::finished, this,
            [this, owner, object](QDBusPendingCallWatcher *finished) {
                finished->deleteLater();
                const QDBusMessage reply = finished->reply();
                // No answer: the focus stays hidden until it moves or the application goes.
                if (reply.type() == QDBusMessage::ReplyMessage)
                    m_secrecy->focusRoleKnown(
                        owner, object, reply.arguments().value(0).toUInt() == passwordTextRole);
            });
}

void AtSpiFocusWatcher::handleNameOwnerChanged(const QString &name, const QString &,
                                               const QString &newOwner)
{
    if (newOwner.isEmpty() && name.startsWith(QLatin1Char(':')))
        m_secrecy->applicationGone(name);
}
