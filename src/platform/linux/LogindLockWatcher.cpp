#include "platform/linux/LogindLockWatcher.h"

#include "capture/Secrecy.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>

#include <unistd.h>

namespace {

const QString service = QStringLiteral("org.freedesktop.login1");
const QString managerPath = QStringLiteral("/org/freedesktop/login1");
const QString managerInterface = QStringLiteral("org.freedesktop.login1.Manager");
const QString sessionInterface = QStringLiteral("org.freedesktop.login1.Session");
const QString userInterface = QStringLiteral("org.freedesktop.login1.User");
const QString propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");

QString objectPath(const QVariant &value)
{
    return value.value<QDBusObjectPath>().path();
}

} // namespace

LogindLockWatcher::LogindLockWatcher(const QDBusConnection &bus, const QString &sessionId)
    : m_bus(bus), m_sessionId(sessionId)
{}

LogindLockWatcher::~LogindLockWatcher() = default;

void LogindLockWatcher::start(Secrecy &secrecy)
{
    m_secrecy = &secrecy;
    if (!m_bus.isConnected()) {
        giveUp(tr("There is no system bus to ask the login manager (logind)."));
        return;
    }
    if (m_sessionId.isEmpty()) {
        findSessionByProcess();
        return;
    }
    call(managerPath, managerInterface, QStringLiteral("GetSession"), {m_sessionId},
         [this](const QDBusMessage &reply) {
             if (reply.type() == QDBusMessage::ReplyMessage)
                 follow(objectPath(reply.arguments().value(0)));
             else
                 findSessionByProcess();
         });
}

void LogindLockWatcher::call(const QString &path, const QString &interface, const QString &method,
                             const QVariantList &arguments, Reply reply)
{
    QDBusMessage message = QDBusMessage::createMethodCall(service, path, interface, method);
    message.setArguments(arguments);
    auto *pending = new QDBusPendingCallWatcher(m_bus.asyncCall(message), this);
    connect(pending, &QDBusPendingCallWatcher::finished, this,
            [reply = std::move(reply)](QDBusPendingCallWatcher *finished) {
                finished->deleteLater();
                reply(finished->reply());
            });
}

void LogindLockWatcher::findSessionByProcess()
{
    call(managerPath, managerInterface, QStringLiteral("GetSessionByPID"), {quint32(::getpid())},
         [this](const QDBusMessage &reply) {
             if (reply.type() == QDBusMessage::ReplyMessage)
                 follow(objectPath(reply.arguments().value(0)));
             else
                 findUserSession();
         });
}

void LogindLockWatcher::findUserSession()
{
    // Outside a session: the user's graphical session ("Display", a (so) pair).
    call(managerPath, managerInterface, QStringLiteral("GetUser"), {quint32(::getuid())},
         [this](const QDBusMessage &reply) {
             if (reply.type() != QDBusMessage::ReplyMessage) {
                 giveUp(tr("The login manager (logind) does not answer."));
                 return;
             }
             call(objectPath(reply.arguments().value(0)), propertiesInterface,
                  QStringLiteral("Get"), {userInterface, QStringLiteral("Display")},
                  [this](const QDBusMessage &display) {
                      QString path;
                      if (display.type() == QDBusMessage::ReplyMessage) {
                          const QDBusArgument pair = display.arguments()
                                                         .value(0)
                                                         .value<QDBusVariant>()
                                                         .variant()
                                                         .value<QDBusArgument>();
                          QString id;
                          QDBusObjectPath object;
                          pair.beginStructure();
                          pair >> id >> object;
                          pair.endStructure();
                          path = object.path();
                      }
                      if (path.isEmpty() || path == QLatin1String("/"))
                          giveUp(tr("The login manager (logind) knows no session of yours."));
                      else
                          follow(path);
                  });
         });
}

void LogindLockWatcher::follow(const QString &sessionPath)
{
    m_sessionPath = sessionPath;
    // The subscription first, so that no change falls between the answer and it.
    m_bus.connect(service, m_sessionPath, propertiesInterface, QStringLiteral("PropertiesChanged"),
                  this, SLOT(handlePropertiesChanged(QDBusMessage)));
    m_secrecy->setProtection(
        Secrecy::Protection::sessionLock, true,
        tr("Nothing is shown while the login manager says this session is locked."));
    readLockedHint();
}

void LogindLockWatcher::readLockedHint()
{
    call(m_sessionPath, propertiesInterface, QStringLiteral("Get"),
         {sessionInterface, QStringLiteral("LockedHint")}, [this](const QDBusMessage &reply) {
             if (reply.type() == QDBusMessage::ReplyMessage)
                 m_secrecy->setLocked(
                     Secrecy::LockSource::logind,
                     reply.arguments().value(0).value<QDBusVariant>().variant().toBool());
         });
}

void LogindLockWatcher::handlePropertiesChanged(const QDBusMessage &message)
{
    const QVariantList arguments = message.arguments();
    if (arguments.value(0).toString() != sessionInterface)
        return;
    const QVariantMap changed = qdbus_cast<QVariantMap>(arguments.value(1));
    if (const auto hint = changed.constFind(QStringLiteral("LockedHint")); hint != changed.cend())
        m_secrecy->setLocked(Secrecy::LockSource::logind, hint->toBool());
    else if (arguments.value(2).toStringList().contains(QStringLiteral("LockedHint")))
        readLockedHint();
}

void LogindLockWatcher::giveUp(const QString &why)
{
    m_secrecy->setProtection(Secrecy::Protection::sessionLock, false, why);
}
