#pragma once

#include "capture/SecrecyWatcher.h"

#include <QObject>

#include <memory>

class QSocketNotifier;
struct xcb_connection_t;

// Follows the X server's screen saver (the MIT-SCREEN-SAVER extension): while the saver is on,
// which is also how X11 screen lockers blank the screen, the session counts as locked. Notify
// events arrive on a connection of its own, read on the main thread.
class X11ScreenSaverWatcher final : public QObject, public SecrecyWatcher {
    Q_OBJECT

public:
    // `display` empty: DISPLAY.
    explicit X11ScreenSaverWatcher(const QByteArray &display = {});
    ~X11ScreenSaverWatcher() override;

    void start(Secrecy &secrecy) override;

private:
    void readEvents();
    void setState(int state);

    QByteArray m_display;
    xcb_connection_t *m_connection = nullptr;
    quint8 m_eventBase = 0;
    std::unique_ptr<QSocketNotifier> m_notifier;
    Secrecy *m_secrecy = nullptr;
};
