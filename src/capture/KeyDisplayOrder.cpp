#include "capture/KeyDisplayOrder.h"

#include <algorithm>
#include <limits>

int KeyDisplayOrder::modifierRank(const QString &label)
{
    if (label.size() == 1) {
        switch (label.front().unicode()) {
        case u'⌘':
            return 0;
        case u'⌃':
            return 1;
        case u'⌥':
            return 2;
        case u'⇧':
            return 3;
        default:
            break;
        }
    }
    return std::numeric_limits<int>::max();
}

bool KeyDisplayOrder::lessThan(const KeyPress &a, const KeyPress &b)
{
    const bool aIsModifier = a.category.kind() == KeyCategory::Kind::modifier;
    const bool bIsModifier = b.category.kind() == KeyCategory::Kind::modifier;
    if (aIsModifier && bIsModifier) {
        const int aRank = modifierRank(a.keyName);
        const int bRank = modifierRank(b.keyName);
        if (aRank != bRank)
            return aRank < bRank;
    } else if (aIsModifier != bIsModifier) {
        return aIsModifier;
    }
    return a.timestamp < b.timestamp;
}

QList<KeyPress> KeyDisplayOrder::sorted(QList<KeyPress> keys)
{
    std::stable_sort(keys.begin(), keys.end(), &KeyDisplayOrder::lessThan);
    return keys;
}
