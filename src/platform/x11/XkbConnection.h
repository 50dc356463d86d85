#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <optional>

struct xcb_connection_t;
struct xkb_context;

// A connection of its own to the X server with the XKB extension set up, and an xkbcommon
// context for its keymaps. The owner disconnects and unrefs both.
struct XkbConnection final {
    xcb_connection_t *connection = nullptr;
    xkb_context *context = nullptr;
    int deviceId = -1;
    quint8 firstXkbEvent = 0;

    // Connects to `displayName` ($DISPLAY when empty); nothing when the server cannot be reached
    // or has no XKB.
    static std::optional<XkbConnection> open(const QByteArray &displayName);
};
