#include "platform/x11/X11CompositorWatcher.h"

#include <QByteArray>
#include <QSocketNotifier>

#include <xcb/xcb.h>
#include <xcb/xfixes.h>

#include <cstdlib>

std::unique_ptr<X11CompositorWatcher> X11CompositorWatcher::create()
{
    int screenNumber = 0;
    xcb_connection_t *connection = xcb_connect(nullptr, &screenNumber);
    if (xcb_connection_has_error(connection)) {
        xcb_disconnect(connection);
        return nullptr;
    }
    const QByteArray name = "_NET_WM_CM_S" + QByteArray::number(screenNumber);
    xcb_intern_atom_reply_t *atom = xcb_intern_atom_reply(
        connection, xcb_intern_atom(connection, 0, uint16_t(name.size()), name.constData()),
        nullptr);
    if (!atom) {
        xcb_disconnect(connection);
        return nullptr;
    }
    const xcb_atom_t selection = atom->atom;
    std::free(atom);

    // Subscribe to owner changes of the selection on the screen's root window.
    xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
    for (int i = 0; i < screenNumber && screens.rem; ++i)
        xcb_screen_next(&screens);
    if (xcb_xfixes_query_version_reply_t *version = xcb_xfixes_query_version_reply(
            connection, xcb_xfixes_query_version(connection, 5, 0), nullptr)) {
        std::free(version);
        xcb_xfixes_select_selection_input(
            connection, screens.data->root, selection,
            XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
    }
    xcb_flush(connection);
    return std::unique_ptr<X11CompositorWatcher>(new X11CompositorWatcher(connection, selection));
}

X11CompositorWatcher::X11CompositorWatcher(xcb_connection_t *connection, unsigned int selectionAtom)
    : m_connection(connection), m_selectionAtom(selectionAtom)
{
    m_notifier = std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(m_connection),
                                                   QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &X11CompositorWatcher::readEvents);
    refresh();
}

X11CompositorWatcher::~X11CompositorWatcher()
{
    m_notifier.reset();
    xcb_disconnect(m_connection);
}

void X11CompositorWatcher::readEvents()
{
    bool selectionChanged = false;
    while (xcb_generic_event_t *event = xcb_poll_for_event(m_connection)) {
        selectionChanged = true; // only selection notifications were asked for
        std::free(event);
    }
    if (xcb_connection_has_error(m_connection)) {
        m_notifier->setEnabled(false);
        return;
    }
    // Each change can arrive twice; refresh() only signals real changes.
    if (selectionChanged)
        refresh();
}

void X11CompositorWatcher::refresh()
{
    bool compositing = false;
    if (xcb_get_selection_owner_reply_t *owner = xcb_get_selection_owner_reply(
            m_connection, xcb_get_selection_owner(m_connection, m_selectionAtom), nullptr)) {
        compositing = owner->owner != XCB_NONE;
        std::free(owner);
    }
    if (compositing == m_compositing)
        return;
    m_compositing = compositing;
    emit compositingChanged(compositing);
}
