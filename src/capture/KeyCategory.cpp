#include "capture/KeyCategory.h"

#include <algorithm>
#include <array>

KeyCategory getKeyCategory(qint64 keyCode)
{
    using Kind = KeyCategory::Kind;
    // Compared unsigned, so a negative code lands among "above 126".
    const auto code = static_cast<quint64>(keyCode);
    if (code < 36)
        return Kind::letter;
    if (code >= 37 && code <= 47)
        return Kind::letter;
    if (code > 126)
        return Kind::other;

    static constexpr std::array<quint64, 9> special{36, 48, 51, 53, 115, 116, 117, 119, 121};
    static constexpr std::array<quint64, 12> function{96,  97,  98,  99,  100, 101,
                                                      103, 109, 111, 118, 120, 122};
    static constexpr std::array<quint64, 4> arrow{123, 124, 125, 126};
    const auto contains = [code](const auto &codes) {
        return std::find(codes.begin(), codes.end(), code) != codes.end();
    };
    if (contains(special))
        return Kind::special;
    if (contains(function))
        return Kind::function;
    if (contains(arrow))
        return Kind::arrow;
    // Space, the grave-accent key (deliberately unlike its neighbours), modifiers, F13-F20, keypad.
    return Kind::other;
}
