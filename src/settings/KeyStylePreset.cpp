#include "settings/KeyStylePreset.h"

// The table of built-in styles lives beside the record it fills.
KeyStylePreset AppSettings::getStylePreset(KeyStyle style)
{
    using A = KeyAnimationStyle;
    switch (style) {
    case KeyStyle::modern:
        // The built-in defaults, except for the animation.
        return {2.0,
                20.0,
                0.9,
                A::bounce,
                QStringLiteral("SF Pro Display"),
                QStringLiteral("#ffffffff"),
                QStringLiteral("#000000ff"),
                QStringLiteral("#ccccccff"),
                1.0,
                12.0,
                true,
                4.0,
                QStringLiteral("#00000040"),
                false,
                QStringLiteral("#007AFFff"),
                8.0};
    case KeyStyle::classic:
        return {2.0,
                18.0,
                1.0,
                A::fadeIn,
                QStringLiteral("SF Pro Display"),
                QStringLiteral("#f5f5f5ff"),
                QStringLiteral("#333333ff"),
                QStringLiteral("#999999ff"),
                2.0,
                6.0,
                true,
                2.0,
                QStringLiteral("#00000030"),
                false,
                QStringLiteral("#33333300"),
                0.0};
    case KeyStyle::minimal:
        return {1.6,
                12.0,
                0.9,
                A::none,
                QStringLiteral("SF Pro Display"),
                QStringLiteral("#f0f0f0ff"),
                QStringLiteral("#000000ff"),
                QStringLiteral("#00000000"),
                0.0,
                8.0,
                false,
                0.0,
                QStringLiteral("#00000000"),
                false,
                QStringLiteral("#00000000"),
                0.0};
    case KeyStyle::gaming:
        return {2.0,
                16.0,
                1.0,
                A::bounce,
                QStringLiteral("Menlo"),
                QStringLiteral("#000000ff"),
                QStringLiteral("#00ff00ff"),
                QStringLiteral("#00ff00ff"),
                2.0,
                4.0,
                true,
                6.0,
                QStringLiteral("#00ff0060"),
                true,
                QStringLiteral("#00ff00ff"),
                10.0};
    case KeyStyle::neon:
        return {2.0,
                18.0,
                0.9,
                A::slideIn,
                QStringLiteral("Futura"),
                QStringLiteral("#1a1a1aff"),
                QStringLiteral("#ff00ffff"),
                QStringLiteral("#ff00ffff"),
                2.0,
                15.0,
                true,
                8.0,
                QStringLiteral("#ff00ff80"),
                true,
                QStringLiteral("#ff00ffff"),
                12.0};
    }
    return getStylePreset(KeyStyle::modern);
}
