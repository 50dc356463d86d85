#pragma once

#include "capture/MouseClickButton.h"

#include <QtGlobal>

// What kind of thing a key cap shows. `mouse` carries the clicked button; two categories are
// equal when their kinds are, and for `mouse` their buttons too.
class KeyCategory final {
public:
    enum class Kind { mouse, letter, number, function, arrow, special, modifier, other };

    constexpr KeyCategory(Kind kind = Kind::other) : m_kind(kind) {}
    static constexpr KeyCategory mouse(MouseClickButton button)
    {
        KeyCategory category(Kind::mouse);
        category.m_button = button;
        return category;
    }

    constexpr Kind kind() const { return m_kind; }
    constexpr bool isMouse() const { return m_kind == Kind::mouse; }
    // The clicked button; meaningful for `mouse` only.
    constexpr MouseClickButton button() const { return m_button; }

    friend constexpr bool operator==(const KeyCategory &a, const KeyCategory &b)
    {
        return a.m_kind == b.m_kind && (a.m_kind != Kind::mouse || a.m_button == b.m_button);
    }

private:
    Kind m_kind;
    MouseClickButton m_button = MouseClickButton::left;
};

// Classifies a canonical key code. Never yields `mouse`, `number` or `modifier`: those come
// from the key event engine.
KeyCategory getKeyCategory(qint64 keyCode);
