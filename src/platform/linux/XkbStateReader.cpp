#include "platform/linux/XkbStateReader.h"

#include "capture/KeyCode.h"

#include <QByteArray>

#include <xkbcommon/xkbcommon.h>

quint64 XkbStateReader::modifierFlags(xkb_state *state)
{
    const auto active = [state](const char *name) {
        return xkb_state_mod_name_is_active(state, name, XKB_STATE_MODS_EFFECTIVE) > 0;
    };
    quint64 flags = 0;
    if (active(XKB_MOD_NAME_SHIFT))
        flags |= ModifierFlag::Shift;
    if (active(XKB_MOD_NAME_CAPS))
        flags |= ModifierFlag::CapsLock;
    if (active(XKB_MOD_NAME_CTRL))
        flags |= ModifierFlag::Control;
    // Alt sits on Mod1, AltGr (ISO Level 3) on Mod5, Super and Meta-as-Super on Mod4.
    if (active(XKB_MOD_NAME_ALT) || active("Mod5"))
        flags |= ModifierFlag::Option;
    if (active(XKB_MOD_NAME_LOGO))
        flags |= ModifierFlag::Command;
    return flags;
}

QString XkbStateReader::characters(xkb_state *state, quint32 keycode)
{
    char buffer[64];
    const int size = xkb_state_key_get_utf8(state, keycode, buffer, sizeof buffer);
    if (size <= 0)
        return {};
    if (size < int(sizeof buffer))
        return QString::fromUtf8(buffer, size);
    QByteArray text(size + 1, Qt::Uninitialized);
    xkb_state_key_get_utf8(state, keycode, text.data(), size_t(text.size()));
    text.chop(1);
    return QString::fromUtf8(text);
}
