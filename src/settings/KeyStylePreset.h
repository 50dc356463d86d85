#pragma once

#include "settings/AppSettings.h"

#include <QString>

// The values of one built-in style, each applied to the appearance setting of the same meaning
// when the style is chosen. Colours are colour text exactly as the style defines it (lower or
// mixed case). `AppSettings::getStylePreset` gives the five styles.
struct KeyStylePreset final {
    double keySize = 0.0;
    double keySpacing = 0.0;
    double keyOpacity = 0.0;
    AppSettings::KeyAnimationStyle keyAnimationStyle = AppSettings::KeyAnimationStyle::none;
    QString fontName;
    QString backgroundColor;
    QString textColor;
    QString borderColor;
    double borderWidth = 0.0;
    double cornerRadius = 0.0;
    bool shadowEnabled = false;
    double shadowRadius = 0.0;
    QString shadowColor;
    bool glowEnabled = false;
    QString glowColor;
    double glowRadius = 0.0;

    friend bool operator==(const KeyStylePreset &, const KeyStylePreset &) = default;
};
