#include "platform/x11/X11KeyboardLayoutMonitor.h"

#include "platform/x11/XkbConnection.h"
#include "platform/x11/XkbEventHead.h"

#include "platform/linux/XkbKeyboardLayoutSource.h"

#include <QSocketNotifier>
#include <QTimer>

#include <xcb/xcb.h>
// xcb-xkb names a struct member "explicit", a C++ keyword.
#define explicit explicit_
#include <xcb/xkb.h>
#undef explicit
#include <xkbcommon/xkbcommon-x11.h>
#include <xkbcommon/xkbcommon.h>

#include <cstdlib>

namespace {
// How long a burst of keymap changes may take before the keymap is read again.
constexpr int keymapSettleMs = 50;
} // namespace

std::unique_ptr<X11KeyboardLayoutMonitor>
X11KeyboardLayoutMonitor::create(const QByteArray &displayName)
{
    const std::optional<XkbConnection> xkb = XkbConnection::open(displayName);
    if (!xkb)
        return nullptr;
    std::unique_ptr<X11KeyboardLayoutMonitor> monitor(new X11KeyboardLayoutMonitor(
        xkb->connection, xkb->context, xkb->deviceId, xkb->firstXkbEvent));
    if (!monitor->selectEvents() || !monitor->loadKeymap())
        return nullptr;
    return monitor;
}

X11KeyboardLayoutMonitor::X11KeyboardLayoutMonitor(xcb_connection_t *connection,
                                                   xkb_context *context, int deviceId,
                                                   quint8 firstXkbEvent)
    : m_connection(connection), m_context(context), m_deviceId(deviceId),
      m_firstXkbEvent(firstXkbEvent)
{
    m_notifier = std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(m_connection),
                                                   QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this,
            &X11KeyboardLayoutMonitor::processEvents);
    m_reload.setSingleShot(true);
    m_reload.setInterval(keymapSettleMs);
    connect(&m_reload, &QTimer::timeout, this, [this] {
        if (loadKeymap())
            emit layoutChanged();
        // Events read during its round trips wait in xcb's queue.
        processEvents();
    });
    // Events read during the set-up round trips wait in xcb's queue, where the notifier cannot
    // see them.
    QTimer::singleShot(0, this, &X11KeyboardLayoutMonitor::processEvents);
}

X11KeyboardLayoutMonitor::~X11KeyboardLayoutMonitor()
{
    m_notifier.reset();
    xkb_context_unref(m_context);
    xcb_disconnect(m_connection);
}

bool X11KeyboardLayoutMonitor::selectEvents()
{
    constexpr quint16 events = XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY |
                               XCB_XKB_EVENT_TYPE_MAP_NOTIFY | XCB_XKB_EVENT_TYPE_STATE_NOTIFY;
    constexpr quint16 mapParts =
        XCB_XKB_MAP_PART_KEY_TYPES | XCB_XKB_MAP_PART_KEY_SYMS | XCB_XKB_MAP_PART_MODIFIER_MAP |
        XCB_XKB_MAP_PART_EXPLICIT_COMPONENTS | XCB_XKB_MAP_PART_KEY_ACTIONS |
        XCB_XKB_MAP_PART_VIRTUAL_MODS | XCB_XKB_MAP_PART_VIRTUAL_MOD_MAP;
    constexpr quint16 stateParts = XCB_XKB_STATE_PART_GROUP_STATE | XCB_XKB_STATE_PART_GROUP_BASE |
                                   XCB_XKB_STATE_PART_GROUP_LATCH | XCB_XKB_STATE_PART_GROUP_LOCK;
    xcb_xkb_select_events_details_t details{};
    details.affectNewKeyboard = XCB_XKB_NKN_DETAIL_KEYCODES;
    details.newKeyboardDetails = XCB_XKB_NKN_DETAIL_KEYCODES;
    details.affectState = stateParts;
    details.stateDetails = stateParts;
    const xcb_void_cookie_t cookie = xcb_xkb_select_events_aux_checked(
        m_connection, quint16(m_deviceId), events, 0, 0, mapParts, mapParts, &details);
    xcb_generic_error_t *error = xcb_request_check(m_connection, cookie);
    std::free(error);
    return !error;
}

bool X11KeyboardLayoutMonitor::loadKeymap()
{
    xkb_keymap *keymap = xkb_x11_keymap_new_from_device(m_context, m_connection, m_deviceId,
                                                        XKB_KEYMAP_COMPILE_NO_FLAGS);
    if (!keymap)
        return false;
    xkb_state *state = xkb_x11_state_new_from_device(keymap, m_connection, m_deviceId);
    const quint32 group = state ? xkb_state_serialize_layout(state, XKB_STATE_LAYOUT_EFFECTIVE) : 0;
    xkb_state_unref(state);
    if (m_source) {
        m_source->setKeymap(keymap);
        m_source->setActiveGroup(group);
    } else {
        m_source = std::make_shared<XkbKeyboardLayoutSource>(keymap, group);
    }
    xkb_keymap_unref(keymap);
    return true;
}

void X11KeyboardLayoutMonitor::processEvents()
{
    bool changed = false;
    while (xcb_generic_event_t *event = xcb_poll_for_event(m_connection)) {
        const auto *head = reinterpret_cast<const XkbEventHead *>(event);
        if ((event->response_type & 0x7f) == m_firstXkbEvent && head->deviceID == m_deviceId) {
            switch (head->xkbType) {
            case XCB_XKB_NEW_KEYBOARD_NOTIFY:
            case XCB_XKB_MAP_NOTIFY:
                // Reading the keymap takes several round trips to the server: not before the
                // keys typed meanwhile have been shown (the first key from another keyboard
                // brings such a change; the capture names it with its own copy).
                m_reload.start();
                break;
            case XCB_XKB_STATE_NOTIFY: {
                const auto *state = reinterpret_cast<const xcb_xkb_state_notify_event_t *>(event);
                m_source->setActiveGroup(state->group);
                changed = true;
                break;
            }
            default:
                break;
            }
        }
        std::free(event);
    }
    if (xcb_connection_has_error(m_connection))
        m_notifier->setEnabled(false); // the server is gone; keep the last layout
    if (changed)
        emit layoutChanged();
}
