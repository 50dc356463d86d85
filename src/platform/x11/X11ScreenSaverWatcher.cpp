#include "platform/x11/X11ScreenSaverWatcher.h"

#include "capture/Secrecy.h"

#include <QByteArray>
#include <QSocketNotifier>

#include <xcb/screensaver.h>
#include <xcb/xcb.h>

#include <cstdlib>

X11ScreenSaverWatcher::X11ScreenSaverWatcher(const QByteArray &display) : m_display(display) {}

X11ScreenSaverWatcher::~X11ScreenSaverWatcher()
{
    m_notifier.reset();
    if (m_connection)
        xcb_disconnect(m_connection);
}

void X11ScreenSaverWatcher::start(Secrecy &secrecy)
{
    m_secrecy = &secrecy;
    int screenNumber = 0;
    m_connection =
        xcb_connect(m_display.isEmpty() ? nullptr : m_display.constData(), &screenNumber);
    const xcb_query_extension_reply_t *extension =
        xcb_connection_has_error(m_connection)
            ? nullptr
            : xcb_get_extension_data(m_connection, &xcb_screensaver_id);
    if (!extension || !extension->present) {
        m_secrecy->setProtection(
            Secrecy::Protection::x11ScreenSaver, false,
            tr("The X server has no screen saver extension (MIT-SCREEN-SAVER)."));
        return;
    }
    m_eventBase = extension->first_event;
    xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(m_connection));
    for (int i = 0; i < screenNumber && screens.rem; ++i)
        xcb_screen_next(&screens);
    const xcb_window_t root = screens.data->root;
    // Subscribed before the state is read, so that no change falls in between.
    xcb_screensaver_select_input(m_connection, root, XCB_SCREENSAVER_EVENT_NOTIFY_MASK);
    if (xcb_screensaver_query_info_reply_t *info = xcb_screensaver_query_info_reply(
            m_connection, xcb_screensaver_query_info(m_connection, root), nullptr)) {
        setState(info->state);
        std::free(info);
    }
    m_notifier = std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(m_connection),
                                                   QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this,
            &X11ScreenSaverWatcher::readEvents);
    m_secrecy->setProtection(Secrecy::Protection::x11ScreenSaver, true,
                             tr("Nothing is shown while the X11 screen saver or locker is on."));
    readEvents(); // events that came with the replies
}

void X11ScreenSaverWatcher::readEvents()
{
    while (xcb_generic_event_t *event = xcb_poll_for_event(m_connection)) {
        if ((event->response_type & 0x7f) == m_eventBase + XCB_SCREENSAVER_NOTIFY)
            setState(reinterpret_cast<xcb_screensaver_notify_event_t *>(event)->state);
        std::free(event);
    }
    if (xcb_connection_has_error(m_connection))
        m_notifier->setEnabled(false);
}

void X11ScreenSaverWatcher::setState(int state)
{
    m_secrecy->setLocked(Secrecy::LockSource::x11ScreenSaver,
                         state == XCB_SCREENSAVER_STATE_ON || state == XCB_SCREENSAVER_STATE_CYCLE);
}
