#include "platform/wayland/SwayInputWatcher.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocalSocket>

#include <cstring>

namespace {

// The i3-compatible IPC framing: magic, payload length and type (native byte order), payload.
constexpr char ipcMagic[] = {'i', '3', '-', 'i', 'p', 'c'};
constexpr qsizetype headerSize = sizeof ipcMagic + 2 * sizeof(quint32);
constexpr quint32 subscribeMessage = 2;
constexpr quint32 getInputsMessage = 100;
constexpr quint32 inputEvent = 0x80000015;
constexpr int connectTimeoutMs = 2000;

// The active layout of a keyboard described by sway's input object; -1 for other devices.
qint64 activeLayoutIndex(const QJsonObject &input)
{
    if (input.value(u"type").toString() != u"keyboard")
        return -1;
    const QJsonValue index = input.value(u"xkb_active_layout_index");
    return index.isDouble() ? index.toInteger() : -1;
}

} // namespace

std::unique_ptr<SwayInputWatcher> SwayInputWatcher::create(const QString &socketPath)
{
    const QString path = socketPath.isEmpty() ? qEnvironmentVariable("SWAYSOCK") : socketPath;
    if (path.isEmpty())
        return nullptr;
    auto socket = std::make_unique<QLocalSocket>();
    socket->connectToServer(path);
    if (!socket->waitForConnected(connectTimeoutMs))
        return nullptr;
    return std::unique_ptr<SwayInputWatcher>(new SwayInputWatcher(std::move(socket)));
}

SwayInputWatcher::SwayInputWatcher(std::unique_ptr<QLocalSocket> socket)
    : m_socket(std::move(socket))
{
    connect(m_socket.get(), &QLocalSocket::readyRead, this, &SwayInputWatcher::readMessages);
    // The inputs first: the layout active before Vantrel started is known only from them.
    send(getInputsMessage, {});
    send(subscribeMessage, QByteArrayLiteral("[\"input\"]"));
}

SwayInputWatcher::~SwayInputWatcher()
{
    m_socket->disconnect(this);
    m_socket->abort();
}

void SwayInputWatcher::send(quint32 type, const QByteArray &payload)
{
    QByteArray message(ipcMagic, sizeof ipcMagic);
    const quint32 header[] = {quint32(payload.size()), type};
    message.append(reinterpret_cast<const char *>(header), sizeof header);
    message.append(payload);
    m_socket->write(message);
    m_socket->flush();
}

void SwayInputWatcher::readMessages()
{
    m_buffer.append(m_socket->readAll());
    while (m_buffer.size() >= headerSize) {
        if (std::memcmp(m_buffer.constData(), ipcMagic, sizeof ipcMagic) != 0) {
            m_socket->abort(); // not sway's protocol; keep the last layout
            m_buffer.clear();
            return;
        }
        quint32 header[2];
        std::memcpy(header, m_buffer.constData() + sizeof ipcMagic, sizeof header);
        if (m_buffer.size() < headerSize + qsizetype(header[0]))
            return;
        handleMessage(header[1], m_buffer.mid(headerSize, header[0]));
        m_buffer.remove(0, headerSize + header[0]);
    }
}

void SwayInputWatcher::handleMessage(quint32 type, const QByteArray &payload)
{
    const QJsonDocument document = QJsonDocument::fromJson(payload);
    qint64 index = -1;
    if (type == getInputsMessage) {
        for (const QJsonValue &input : document.array()) {
            index = activeLayoutIndex(input.toObject());
            if (index >= 0)
                break;
        }
    } else if (type == inputEvent) {
        const QString change = document.object().value(u"change").toString();
        // A new keymap starts again at its first layout; sway says which one is active.
        if (change == u"xkb_layout" || change == u"xkb_keymap")
            index = activeLayoutIndex(document.object().value(u"input").toObject());
    }
    if (index >= 0)
        emit activeLayoutChanged(quint32(index));
}
