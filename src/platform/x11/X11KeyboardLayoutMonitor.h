#pragma once

#include <QByteArray>
#include <QObject>
#include <QTimer>

#include <memory>

class QSocketNotifier;
class XkbKeyboardLayoutSource;
struct xcb_connection_t;
struct xkb_context;

// Follows the keyboard layout of a running X server: reads its keymap through xkbcommon-x11 into
// an XkbKeyboardLayoutSource, reloads it when the server reports a new keyboard or a changed
// keymap, and passes on changes of the active group. Uses a connection of its own, read on the
// thread the monitor lives in (normally the main thread).
class X11KeyboardLayoutMonitor final : public QObject {
    Q_OBJECT

public:
    // Connects to `displayName` (empty: $DISPLAY). Returns nullptr when no X server with the
    // XKB extension is reachable there.
    static std::unique_ptr<X11KeyboardLayoutMonitor> create(const QByteArray &displayName = {});
    ~X11KeyboardLayoutMonitor() override;

    std::shared_ptr<XkbKeyboardLayoutSource> source() const { return m_source; }

signals:
    // After the source took a new keymap or active group.
    void layoutChanged();

private:
    X11KeyboardLayoutMonitor(xcb_connection_t *connection, xkb_context *context, int deviceId,
                             quint8 firstXkbEvent);
    bool loadKeymap();
    bool selectEvents();
    void processEvents();

    xcb_connection_t *m_connection;
    xkb_context *m_context;
    int m_deviceId;
    quint8 m_firstXkbEvent;
    std::shared_ptr<XkbKeyboardLayoutSource> m_source;
    std::unique_ptr<QSocketNotifier> m_notifier;
    // Keymap changes come in bursts; the keymap is read again once they settle.
    QTimer m_reload;
};
