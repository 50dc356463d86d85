#pragma once

#include <QColor>
#include <QString>

// Everything needed to draw one key cap: the label and every resolved drawing parameter.
// Lengths are before scaling; the capsule multiplies them by `sizeMultiplier`.
struct KeyAppearanceSnapshot final {
    QString text;
    QString fontName;
    double sizeMultiplier = 1.0;
    QColor textColor;
    QColor backgroundColor;
    QColor borderColor;
    double borderWidth = 0.0;
    double cornerRadius = 0.0;
    bool shadowEnabled = false;
    QColor shadowColor;
    double shadowRadius = 0.0;
    double shadowYOffset = 2.0;
    bool glowEnabled = false;
    QColor glowColor;
    double glowRadius = 0.0;
    double glowLineWidth = 0.0;
    double glowOpacity = 0.0;

    friend bool operator==(const KeyAppearanceSnapshot &, const KeyAppearanceSnapshot &) = default;
};
