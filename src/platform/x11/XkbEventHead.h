#pragma once

#include <QtGlobal>

#include <xcb/xcb.h>

// The common head of every XKB event: the XKB event type follows the response type.
struct XkbEventHead final {
    quint8 responseType;
    quint8 xkbType;
    quint16 sequence;
    xcb_timestamp_t time;
    quint8 deviceID;
};
