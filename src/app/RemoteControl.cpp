#include "app/RemoteControl.h"

#include "app/AppActions.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>

RemoteControl::Claim RemoteControl::claimServiceName()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected() || !bus.interface())
        return Claim::noBus;
    // Not queued: a second instance must learn at once that the name is taken.
    const QDBusReply<QDBusConnectionInterface::RegisterServiceReply> reply =
        bus.interface()->registerService(QString::fromLatin1(serviceName),
                                         QDBusConnectionInterface::DontQueueService,
                                         QDBusConnectionInterface::DontAllowReplacement);
    if (!reply.isValid())
        return Claim::noBus;
    return reply.value() == QDBusConnectionInterface::ServiceRegistered ? Claim::owned
                                                                        : Claim::takenByAnother;
}

RemoteControl::CallResult RemoteControl::callRunningInstance(const QString &method)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected() || !bus.interface())
        return CallResult::notRunning;
    const QString name = QString::fromLatin1(serviceName);
    bool running = bus.interface()->isServiceRegistered(name).value();
    // Asking for the settings may start Vantrel where it is installed as a bus service; the
    // other calls act on a running Vantrel only.
    const bool mayStart = !running && method == u"showSettings" &&
                          bus.interface()->activatableServiceNames().value().contains(name);
    if (!running && !mayStart)
        return CallResult::notRunning;
    QDBusMessage call =
        QDBusMessage::createMethodCall(name, QString::fromLatin1(objectPath), name, method);
    call.setAutoStartService(mayStart);
    const QDBusMessage reply = bus.call(call, QDBus::Block, mayStart ? 20000 : 5000);
    return reply.type() == QDBusMessage::ReplyMessage ? CallResult::done : CallResult::notRunning;
}

RemoteControl::RemoteControl(AppActions &actions, std::function<void()> showSettings,
                             std::function<void()> quit, QObject *parent)
    : QObject(parent), m_actions(actions), m_showSettings(std::move(showSettings)),
      m_quit(std::move(quit))
{}

bool RemoteControl::exportOnSessionBus()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    return bus.isConnected() && bus.registerObject(QString::fromLatin1(objectPath), this,
                                                   QDBusConnection::ExportScriptableSlots);
}

void RemoteControl::toggleVantrel()
{
    m_actions.toggleVantrel();
}

void RemoteControl::increaseKeySize()
{
    m_actions.increaseKeySize();
}

void RemoteControl::decreaseKeySize()
{
    m_actions.decreaseKeySize();
}

void RemoteControl::openPositionCustomizer()
{
    m_actions.openPositionCustomizer();
}

void RemoteControl::toggleMouseClicks()
{
    m_actions.toggleMouseClicks();
}

void RemoteControl::showSettings()
{
    if (m_showSettings)
        m_showSettings();
}

void RemoteControl::quit()
{
    if (m_quit)
        m_quit();
}
