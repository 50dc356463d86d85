#include "overlay/Color.h"

#include <QtGlobal>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace {

int hexDigitValue(QChar c)
{
    const char16_t u = c.unicode();
    if (u >= u'0' && u <= u'9')
        return u - u'0';
    if (u >= u'a' && u <= u'f')
        return u - u'a' + 10;
    if (u >= u'A' && u <= u'F')
        return u - u'A' + 10;
    return -1;
}

// A hexadecimal scan as lenient scanners do it: white space and line breaks before the number
// are skipped, "0x"/"0X" may precede the digits, and the number ends at the first character
// that is no hexadecimal digit. A "0x" must be followed by a digit. Too large a number
// saturates. No number at all gives nothing.
std::optional<quint64> scanHexNumber(const QString &text)
{
    qsizetype i = 0;
    const qsizetype n = text.size();
    while (i < n && text.at(i).isSpace())
        ++i;
    if (i + 1 < n && text.at(i) == u'0' && (text.at(i + 1) == u'x' || text.at(i + 1) == u'X'))
        i += 2;

    quint64 value = 0;
    bool overflowed = false;
    bool readDigit = false;
    for (; i < n; ++i) {
        const int digit = hexDigitValue(text.at(i));
        if (digit < 0)
            break;
        readDigit = true;
        if (value > (std::numeric_limits<quint64>::max() >> 4))
            overflowed = true;
        value = (value << 4) | quint64(digit);
    }
    if (!readDigit)
        return std::nullopt;
    return overflowed ? std::numeric_limits<quint64>::max() : value;
}

// Truncation toward zero. Like the integer conversion it stands for, a value that is not finite
// or does not fit is a programming error, not a colour.
qint64 truncatedChannel(double value)
{
    const double truncated = std::trunc(value);
    if (!std::isfinite(truncated) || truncated < double(std::numeric_limits<qint64>::min()) ||
        truncated >= double(std::numeric_limits<qint64>::max()))
        qFatal("Colour channel cannot be converted to an integer");
    return qint64(truncated);
}

QString hexByte(qint64 value)
{
    // "%02X" of a 32-bit int: negative values show as their two's complement.
    return QString::number(quint32(value), 16).toUpper().rightJustified(2, u'0');
}

} // namespace

Color Color::rgb(double red, double green, double blue, double opacity)
{
    Color color;
    color.m_componentCount = 4;
    color.m_red = red;
    color.m_green = green;
    color.m_blue = blue;
    color.m_opacity = opacity;
    return color;
}

Color Color::grey(double white, double opacity)
{
    Color color = rgb(white, white, white, opacity);
    color.m_componentCount = 2;
    return color;
}

Color Color::fromRGBAString(const QString &text)
{
    const QString digits = text.startsWith(u'#') ? text.mid(1) : text;
    if (digits.size() != 8)
        return white();
    const std::optional<quint64> number = scanHexNumber(digits);
    if (!number)
        return white();
    const quint32 v = quint32(*number);
    return rgb(double(v >> 24) / 255.0, double((v >> 16) & 0xFF) / 255.0,
               double((v >> 8) & 0xFF) / 255.0, double(v & 0xFF) / 255.0);
}

QString Color::toRGBAString() const
{
    if (m_componentCount < 3)
        return QStringLiteral("#FFFFFFFF");
    const double alpha = m_componentCount > 3 ? m_opacity * 255.0 : 255.0;
    return u'#' + hexByte(truncatedChannel(m_red * 255.0)) +
           hexByte(truncatedChannel(m_green * 255.0)) + hexByte(truncatedChannel(m_blue * 255.0)) +
           hexByte(truncatedChannel(alpha));
}

Color Color::fromQColor(const QColor &color)
{
    if (!color.isValid())
        return {};
    // Colours of other models (extended range, HSV, ...) as floats, which keep their range.
    if (color != color.toRgb()) {
        float r = 0, g = 0, b = 0, a = 0;
        color.getRgbF(&r, &g, &b, &a);
        return rgb(r, g, b, a);
    }
    // The 16-bit channels as doubles, so that 8-bit colours come back exact.
    const QRgba64 c = color.rgba64();
    return rgb(c.red() / 65535.0, c.green() / 65535.0, c.blue() / 65535.0, c.alpha() / 65535.0);
}

QColor Color::toQColor() const
{
    if (m_componentCount == 0)
        return {};
    // QColor refuses an opacity outside 0...1; colour channels may leave the range (extended).
    return QColor::fromRgbF(float(m_red), float(m_green), float(m_blue),
                            float(std::clamp(m_opacity, 0.0, 1.0)));
}
