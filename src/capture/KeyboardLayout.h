#pragma once

#include <QString>

#include <optional>

// An immutable snapshot of one keyboard layout (one layout of a keymap, in its active group).
// It names a canonical key code by the character of the key's base level: the modifier state
// handed in selects the layout's default table, so Shift, Caps Lock and Option never change the
// text (Shift+1 is "1"; letters are upper-cased later by the naming rules). Safe to use from any
// thread.
class KeyboardLayout {
public:
    virtual ~KeyboardLayout() = default;

    // The text the key produces, or nothing when the key is unknown or produces no text.
    // `modifierState` is the translator's modifier value for this key press.
    virtual std::optional<QString> translate(int keyCode, quint32 modifierState) const = 0;
};
