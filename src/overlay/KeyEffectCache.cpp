#include "overlay/KeyEffectCache.h"

#include "overlay/ContinuousRoundedRect.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace {
void appendNumber(QByteArray &key, double value)
{
    key.append(reinterpret_cast<const char *>(&value), sizeof value);
}

void appendColor(QByteArray &key, const QColor &color)
{
    const QRgba64 rgba = color.rgba64();
    const quint64 value = rgba;
    key.append(reinterpret_cast<const char *>(&value), sizeof value);
}

// Widths of three successive box blurs that together approximate a Gaussian of `sigma`.
std::array<int, 3> boxSizesForGauss(double sigma)
{
    constexpr int n = 3;
    const double ideal = std::sqrt(12.0 * sigma * sigma / n + 1.0);
    int lower = static_cast<int>(std::floor(ideal));
    if (lower % 2 == 0)
        --lower;
    const int upper = lower + 2;
    const double idealCount =
        (12.0 * sigma * sigma - n * lower * lower - 4.0 * n * lower - 3.0 * n) /
        (-4.0 * lower - 4.0);
    const int count = static_cast<int>(std::lround(idealCount));
    std::array<int, 3> sizes{};
    for (int i = 0; i < n; ++i)
        sizes[static_cast<std::size_t>(i)] = i < count ? lower : upper;
    return sizes;
}

// One box blur along a line of `length` values `stride` bytes apart; outside is zero.
void boxBlurLine(uchar *line, int length, qsizetype stride, int radius, std::vector<int> &buffer)
{
    if (radius <= 0 || length <= 0)
        return;
    buffer.resize(static_cast<std::size_t>(length));
    for (int i = 0; i < length; ++i)
        buffer[static_cast<std::size_t>(i)] = line[i * stride];
    const int width = 2 * radius + 1;
    int sum = 0;
    for (int i = 0; i <= std::min(radius, length - 1); ++i)
        sum += buffer[static_cast<std::size_t>(i)];
    for (int i = 0; i < length; ++i) {
        line[i * stride] = static_cast<uchar>((sum + width / 2) / width);
        const int entering = i + radius + 1;
        const int leaving = i - radius;
        if (entering < length)
            sum += buffer[static_cast<std::size_t>(entering)];
        if (leaving >= 0)
            sum -= buffer[static_cast<std::size_t>(leaving)];
    }
}

QImage colorize(const QImage &alpha, const QColor &color)
{
    QImage result(alpha.size(), QImage::Format_ARGB32_Premultiplied);
    result.fill(color);
    QPainter painter(&result);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.drawImage(0, 0, alpha);
    return result;
}

QImage alphaCanvas(const QSizeF &logicalSize, qreal dpr)
{
    const QSize pixels(static_cast<int>(std::ceil(logicalSize.width() * dpr)),
                       static_cast<int>(std::ceil(logicalSize.height() * dpr)));
    QImage image(pixels, QImage::Format_Alpha8);
    image.fill(0);
    return image;
}
} // namespace

KeyEffectCache::KeyEffectCache(qsizetype byteBudget) : m_cache(byteBudget) {}

KeyEffectCache &KeyEffectCache::shared()
{
    static KeyEffectCache cache;
    return cache;
}

void KeyEffectCache::clear()
{
    m_cache.clear();
    m_oversized = {};
}

const KeyEffectCache::Effect *KeyEffectCache::shadow(const KeyAppearanceSnapshot &style,
                                                     const QSizeF &frameSize, qreal dpr,
                                                     const QByteArray &contentKey,
                                                     const ContentPainter &paintContent)
{
    const double m = style.sizeMultiplier;
    const double blurRadius = std::max(0.0, m * style.shadowRadius);
    const double border = std::max(0.0, m * style.borderWidth);
    const double fillAlpha = style.backgroundColor.alphaF();
    const double borderAlpha = border > 0.0 ? style.borderColor.alphaF() : 0.0;
    const bool content = paintContent && !contentKey.isEmpty() && style.textColor.alpha() > 0;
    if (!style.shadowEnabled || style.shadowColor.alpha() == 0 ||
        (fillAlpha <= 0.0 && borderAlpha <= 0.0 && !content) || frameSize.isEmpty())
        return nullptr;

    QByteArray key("s");
    for (const double value : {frameSize.width(), frameSize.height(), m, style.cornerRadius, border,
                               fillAlpha, borderAlpha, blurRadius, style.shadowYOffset, dpr})
        appendNumber(key, value);
    appendColor(key, style.shadowColor);
    if (content) {
        appendColor(key, style.textColor);
        key += style.fontName.toUtf8() + '\n' + contentKey;
    }
    if (Effect *cached = m_cache.object(key))
        return cached;

    const double pad = border / 2.0 + spreadForRadius(blurRadius) + 1.0;
    const double dy = m * style.shadowYOffset;
    const QRectF frame(QPointF(pad, pad), frameSize);
    const QPainterPath shape = ContinuousRoundedRect::path(frame, m * style.cornerRadius);

    // The silhouette of everything drawn beneath the glow: fill, border and label.
    QImage mask = alphaCanvas(frameSize + QSizeF(2 * pad, 2 * pad), dpr);
    {
        QPainter painter(&mask);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(dpr, dpr);
        painter.fillPath(shape, QColor::fromRgbF(0, 0, 0, static_cast<float>(fillAlpha)));
        if (borderAlpha > 0.0)
            painter.strokePath(shape,
                               QPen(QColor::fromRgbF(0, 0, 0, static_cast<float>(borderAlpha)),
                                    border, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
        if (content)
            paintContent(painter, frame);
    }
    if (blurRadius > 0.0)
        blurAlpha(mask, sigmaForRadius(blurRadius) * dpr);
    QImage image = colorize(mask, style.shadowColor);
    if (style.backgroundColor.alpha() == 255) {
        // The opaque fill hides the shadow beneath it; cutting it out lets a half-transparent
        // row show the cap, not the shadow, through its fill. Slightly inset so no seam shows.
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(dpr, dpr);
        painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
        const QRectF hidden = frame.translated(0, -dy).adjusted(1, 1, -1, -1);
        painter.fillPath(ContinuousRoundedRect::path(hidden, m * style.cornerRadius - 1.0),
                         Qt::black);
    }
    image.setDevicePixelRatio(dpr);
    return insert(key, std::move(image), QPointF(-pad, -pad + dy));
}

const KeyEffectCache::Effect *KeyEffectCache::glow(const KeyAppearanceSnapshot &style,
                                                   const QSizeF &frameSize, qreal dpr)
{
    const double m = style.sizeMultiplier;
    const double blurRadius = m * style.glowRadius;
    const double lineWidth = m * style.glowLineWidth;
    if (!style.glowEnabled || blurRadius <= 0.0 || lineWidth <= 0.0 || style.glowOpacity <= 0.0 ||
        style.glowColor.alpha() == 0 || frameSize.isEmpty())
        return nullptr;

    QByteArray key("g");
    for (const double value : {frameSize.width(), frameSize.height(), m, style.cornerRadius,
                               lineWidth, blurRadius, style.glowOpacity, dpr})
        appendNumber(key, value);
    appendColor(key, style.glowColor);
    if (Effect *cached = m_cache.object(key))
        return cached;

    const double pad = lineWidth / 2.0 + spreadForRadius(blurRadius) + 1.0;
    const QRectF frame(QPointF(pad, pad), frameSize);
    QImage mask = alphaCanvas(frameSize + QSizeF(2 * pad, 2 * pad), dpr);
    {
        QPainter painter(&mask);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(dpr, dpr);
        painter.strokePath(ContinuousRoundedRect::path(frame, m * style.cornerRadius),
                           QPen(Qt::black, lineWidth, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    }
    blurAlpha(mask, sigmaForRadius(blurRadius) * dpr);
    QColor color = style.glowColor;
    color.setAlphaF(static_cast<float>(color.alphaF() * std::clamp(style.glowOpacity, 0.0, 1.0)));
    QImage image = colorize(mask, color);
    image.setDevicePixelRatio(dpr);
    return insert(key, std::move(image), QPointF(-pad, -pad));
}

const KeyEffectCache::Effect *KeyEffectCache::insert(const QByteArray &key, QImage image,
                                                     const QPointF &offset)
{
    const qsizetype cost = image.sizeInBytes();
    if (cost > m_cache.maxCost()) {
        m_oversized = {std::move(image), offset};
        return &m_oversized;
    }
    auto *effect = new Effect{std::move(image), offset};
    m_cache.insert(key, effect, cost); // takes ownership
    return effect;
}

void KeyEffectCache::blurAlpha(QImage &alpha, double sigma)
{
    if (sigma < 0.5 || alpha.isNull())
        return;
    Q_ASSERT(alpha.format() == QImage::Format_Alpha8);
    const int width = alpha.width();
    const int height = alpha.height();
    const qsizetype rowStride = alpha.bytesPerLine();
    uchar *bits = alpha.bits();
    std::vector<int> buffer;
    for (const int size : boxSizesForGauss(sigma)) {
        const int radius = (size - 1) / 2;
        for (int y = 0; y < height; ++y)
            boxBlurLine(bits + y * rowStride, width, 1, radius, buffer);
        for (int x = 0; x < width; ++x)
            boxBlurLine(bits + x, height, rowStride, radius, buffer);
    }
}
