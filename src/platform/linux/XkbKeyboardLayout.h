#pragma once

#include "capture/KeyboardLayout.h"

#include <QString>

#include <vector>

struct xkb_keymap;

// One layout (group) of an xkbcommon keymap as an immutable snapshot. A key is named by the
// character of its base level in that group; the modifier state never changes the text. The
// texts are worked out once at construction, so translating is a table look-up.
class XkbKeyboardLayout final : public KeyboardLayout {
public:
    XkbKeyboardLayout(xkb_keymap *keymap, quint32 group);

    std::optional<QString> translate(int keyCode, quint32 modifierState) const override;

private:
    // Indexed by canonical key code; empty where the key has no text.
    std::vector<QString> m_texts;
};
