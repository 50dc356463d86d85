#pragma once

#include <QColor>
#include <QString>

// A colour as the settings keep it: sRGB red, green, blue and opacity as doubles.
//
// Colours are stored as text, "#" and eight hexadecimal digits, red, green, blue, alpha. Reading
// is lenient (anything unreadable becomes white); writing truncates each channel, so a colour
// written and read back can be one step darker per channel.
//
// A colour also knows how many components it has: an RGB colour has four, a grey one two and
// an invalid one none. Only RGB colours write their own value; the others write as white.
class Color final {
public:
    // No components; writes as white.
    Color() = default;

    static Color rgb(double red, double green, double blue, double opacity = 1.0);
    // A grey-scale colour (two components).
    static Color grey(double white, double opacity = 1.0);
    static Color white() { return rgb(1.0, 1.0, 1.0, 1.0); }

    // Parses colour text. One leading "#" is dropped; what remains must be exactly eight
    // characters, read as one hexadecimal number the way a lenient scanner does (leading white
    // space skipped, an optional "0x", digits of either case, reading stops at the first
    // non-digit). Anything else, or no number at all, gives white.
    static Color fromRGBAString(const QString &text);
    // "#RRGGBBAA" in upper case; channels are multiplied by 255 and truncated toward zero
    // (never rounded or clamped). Colours with fewer than three components give "#FFFFFFFF".
    QString toRGBAString() const;

    static Color fromQColor(const QColor &color);
    // Out-of-range components become an extended-range QColor; a colour without components an
    // invalid one.
    QColor toQColor() const;

    // 4 for RGB colours, 2 for grey ones, 0 for a colour without components.
    int componentCount() const { return m_componentCount; }
    double red() const { return m_red; }
    double green() const { return m_green; }
    double blue() const { return m_blue; }
    double opacity() const { return m_opacity; }

    friend bool operator==(const Color &, const Color &) = default;

private:
    int m_componentCount = 0;
    double m_red = 0.0;
    double m_green = 0.0;
    double m_blue = 0.0;
    double m_opacity = 0.0;
};
