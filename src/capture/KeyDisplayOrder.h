#pragma once

#include "capture/KeyPress.h"

#include <QList>
#include <QString>

// The left-to-right order of the caps on screen: modifier symbols first, in the order ⌘ ⌃ ⌥ ⇧,
// then every other record oldest first. Shared by the key event engine and the overlay views.
class KeyDisplayOrder final {
public:
    KeyDisplayOrder() = delete;

    // Rank of a modifier symbol: "⌘" 0, "⌃" 1, "⌥" 2, "⇧" 3; any other label ranks last.
    static int modifierRank(const QString &label);
    // Whether `a` is shown before `b`.
    static bool lessThan(const KeyPress &a, const KeyPress &b);
    // `keys` in display order; records that compare equal keep their relative order.
    static QList<KeyPress> sorted(QList<KeyPress> keys);
};
