#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

#include <memory>

class QLocalSocket;

// Follows sway's active keyboard layout through its IPC socket ($SWAYSOCK): asks for the inputs
// once, then subscribes to `input` events. Needed because Wayland reports the active group
// (wl_keyboard.modifiers) only to the client with the keyboard focus, which Vantrel never has.
class SwayInputWatcher final : public QObject {
    Q_OBJECT

public:
    // Connects to `socketPath` (empty: $SWAYSOCK). Returns nullptr when sway is not reachable.
    static std::unique_ptr<SwayInputWatcher> create(const QString &socketPath = {});
    ~SwayInputWatcher() override;

signals:
    // A keyboard's active layout index, after a switch or a new keymap, and once at start.
    void activeLayoutChanged(quint32 index);

private:
    explicit SwayInputWatcher(std::unique_ptr<QLocalSocket> socket);
    void send(quint32 type, const QByteArray &payload);
    void readMessages();
    void handleMessage(quint32 type, const QByteArray &payload);

    std::unique_ptr<QLocalSocket> m_socket;
    QByteArray m_buffer;
};
