#pragma once

#include <QString>
#include <QtGlobal>

struct xkb_state;

// What the capture backends read from an xkbcommon state: the canonical modifier flags and the
// text a key types. Both backends key their states by X keycodes (evdev code + 8).
class XkbStateReader final {
public:
    XkbStateReader() = delete;

    // The canonical modifier flags (ModifierFlag::) of the effective modifiers.
    static quint64 modifierFlags(xkb_state *state);
    // The UTF-8 text of `keycode` under the full state (control characters under Ctrl).
    static QString characters(xkb_state *state, quint32 keycode);
};
