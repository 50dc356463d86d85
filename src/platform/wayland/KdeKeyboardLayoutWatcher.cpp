#include "platform/wayland/KdeKeyboardLayoutWatcher.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>

namespace {

const QString service = QStringLiteral("org.kde.keyboard");
const QString path = QStringLiteral("/Layouts");
const QString interface = QStringLiteral("org.kde.KeyboardLayouts");

} // namespace

std::unique_ptr<KdeKeyboardLayoutWatcher>
KdeKeyboardLayoutWatcher::create(const QDBusConnection &bus)
{
    if (!bus.isConnected())
        return nullptr;
    return std::unique_ptr<KdeKeyboardLayoutWatcher>(new KdeKeyboardLayoutWatcher(bus));
}

KdeKeyboardLayoutWatcher::KdeKeyboardLayoutWatcher(const QDBusConnection &bus)
    : m_bus(bus), m_serviceWatcher(std::make_unique<QDBusServiceWatcher>(
                      service, m_bus, QDBusServiceWatcher::WatchForRegistration))
{
    // The signal first, so that no switch falls between the answer and the subscription.
    m_bus.connect(service, path, interface, QStringLiteral("layoutChanged"), this,
                  SLOT(handleLayoutChanged(uint)));
    // KWin may come up after Vantrel (or restart): read the layout again whenever it does.
    connect(m_serviceWatcher.get(), &QDBusServiceWatcher::serviceRegistered, this,
            &KdeKeyboardLayoutWatcher::readLayout);
    readLayout();
}

KdeKeyboardLayoutWatcher::~KdeKeyboardLayoutWatcher() = default;

void KdeKeyboardLayoutWatcher::readLayout()
{
    QDBusMessage call =
        QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("getLayout"));
    call.setAutoStartService(false); // never start anything of KDE's outside Plasma
    auto *pending = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(pending, &QDBusPendingCallWatcher::finished, this,
            [this](QDBusPendingCallWatcher *finished) {
                const QDBusPendingReply<uint> reply = *finished;
                if (reply.isValid())
                    emit activeLayoutChanged(reply.value());
                finished->deleteLater();
            });
}

void KdeKeyboardLayoutWatcher::handleLayoutChanged(uint index)
{
    emit activeLayoutChanged(index);
}
