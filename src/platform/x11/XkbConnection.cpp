#include "platform/x11/XkbConnection.h"

#include <xcb/xcb.h>
#include <xkbcommon/xkbcommon-x11.h>
#include <xkbcommon/xkbcommon.h>

std::optional<XkbConnection> XkbConnection::open(const QByteArray &displayName)
{
    xcb_connection_t *connection =
        xcb_connect(displayName.isEmpty() ? nullptr : displayName.constData(), nullptr);
    if (!connection || xcb_connection_has_error(connection)) {
        xcb_disconnect(connection);
        return std::nullopt;
    }
    quint8 firstXkbEvent = 0;
    const int deviceId = xkb_x11_setup_xkb_extension(connection, XKB_X11_MIN_MAJOR_XKB_VERSION,
                                                     XKB_X11_MIN_MINOR_XKB_VERSION,
                                                     XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS, nullptr,
                                                     nullptr, &firstXkbEvent, nullptr)
                             ? xkb_x11_get_core_keyboard_device_id(connection)
                             : -1;
    xkb_context *context = deviceId >= 0 ? xkb_context_new(XKB_CONTEXT_NO_FLAGS) : nullptr;
    if (!context) {
        xcb_disconnect(connection);
        return std::nullopt;
    }
    return XkbConnection{connection, context, deviceId, firstXkbEvent};
}
