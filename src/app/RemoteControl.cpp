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
    if (!bus.isConnected() || !bus.interface() ||
        !bus.interface()->isServiceRegistered(QString::fromLatin1(serviceName)).value())
        return CallResult::notRunning;
    QDBusMessage call = QDBusMessage::createMethodCall(QString::fromLatin1(serviceName),
                                                       QString::fromLatin1(objectPath),
                                                       QString::fromLatin1(serviceName), method);
    // An installed service file must not start a Vantrel just to answer a remote call.
    call.setAutoStartService(false);
    const QDBusMessage reply = bus.call(call, QDBus::Block, 5000);
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
