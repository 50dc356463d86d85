#include "overlay/KeyCapsuleView.h"

#include "overlay/ContinuousRoundedRect.h"
#include "overlay/KeyEffectCache.h"

#include <QFontMetricsF>
#include <QHash>
#include <QPaintDevice>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {
constexpr double fontSize = 16.0;
constexpr double horizontalPadding = 8.0;
constexpr double verticalPadding = 4.0;
constexpr double minimumSide = 32.0;

QPen borderPen(const QColor &color, double width)
{
    QPen pen(color, width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
    pen.setMiterLimit(10.0);
    return pen;
}

void appendNumber(QByteArray &key, double value)
{
    key.append(reinterpret_cast<const char *>(&value), sizeof value);
}

void appendColor(QByteArray &key, const QColor &color)
{
    const quint64 value = color.rgba64();
    key.append(reinterpret_cast<const char *>(&value), sizeof value);
}

// Everything of a look that changes the drawing, except the text (the content's key has it).
void appendLook(QByteArray &key, const KeyAppearanceSnapshot &s)
{
    for (const double value : {s.sizeMultiplier, s.borderWidth, s.cornerRadius, s.shadowRadius,
                               s.shadowYOffset, s.glowRadius, s.glowLineWidth, s.glowOpacity,
                               s.shadowEnabled ? 1.0 : 0.0, s.glowEnabled ? 1.0 : 0.0})
        appendNumber(key, value);
    for (const QColor &color :
         {s.textColor, s.backgroundColor, s.borderColor, s.shadowColor, s.glowColor})
        appendColor(key, color);
    key.append(s.fontName.toUtf8());
    key.append('\0');
}

bool hasBorder(const KeyAppearanceSnapshot &style)
{
    return style.borderWidth * style.sizeMultiplier > 0.0 && style.borderColor.alpha() > 0;
}
} // namespace

KeyCapsuleView::KeyCapsuleView(const KeyAppearanceSnapshot &style, const QSizeF &contentSize,
                               ContentPainter content)
    : m_style(style), m_contentSize(contentSize), m_content(std::move(content))
{}

KeyCapsuleView::KeyCapsuleView(const KeyAppearanceSnapshot &style)
    : KeyCapsuleView(style, textSizeFor(style), [style](QPainter &painter, const QRectF &rect) {
          paintText(painter, rect, style);
      })
{
    m_cacheKey = "t" + style.text.toUtf8();
}

qreal KeyCapsuleView::exactFontSize(const KeyAppearanceSnapshot &style)
{
    return fontSize * style.sizeMultiplier;
}

QFont KeyCapsuleView::fontFor(const KeyAppearanceSnapshot &style)
{
    // An unknown or empty family falls back to the default face through font matching.
    QFont font;
    if (!style.fontName.isEmpty())
        font.setFamilies({style.fontName});
    // Pixel sizes keep the label independent of the device's logical dots per inch. They are
    // whole numbers: the next one up, scaled down to the exact size where the label is measured
    // and drawn.
    font.setPixelSize(std::max(1, static_cast<int>(std::ceil(exactFontSize(style)))));
    font.setWeight(QFont::Medium);
    return font;
}

QSizeF KeyCapsuleView::textSizeFor(const KeyAppearanceSnapshot &style)
{
    // Shaping a label costs more than the rest of a new cap; the same few labels recur.
    // Kept in memory only, on the GUI thread, and never large.
    static QHash<QString, QSizeF> sizes;
    const QFont font = fontFor(style);
    const QString key =
        font.key() + u'\n' + QString::number(exactFontSize(style)) + u'\n' + style.text;
    if (const auto it = sizes.constFind(key); it != sizes.constEnd())
        return *it;
    if (sizes.size() >= 512)
        sizes.clear();
    const QFontMetricsF metrics(font);
    const qreal scale = exactFontSize(style) / font.pixelSize();
    const QSizeF size(metrics.horizontalAdvance(style.text) * scale, metrics.height() * scale);
    sizes.insert(key, size);
    return size;
}

QSizeF KeyCapsuleView::frameSizeFor(const KeyAppearanceSnapshot &style, const QSizeF &contentSize)
{
    const double m = std::max(0.0, style.sizeMultiplier);
    return {std::max(minimumSide * m, contentSize.width() + 2.0 * horizontalPadding * m),
            std::max(minimumSide * m, contentSize.height() + 2.0 * verticalPadding * m)};
}

QSizeF KeyCapsuleView::sizeFor(const KeyAppearanceSnapshot &style)
{
    return frameSizeFor(style, textSizeFor(style));
}

QMarginsF KeyCapsuleView::visualMarginsFor(const KeyAppearanceSnapshot &style)
{
    const double m = std::max(0.0, style.sizeMultiplier);
    const double halfBorder = hasBorder(style) ? m * style.borderWidth / 2.0 : 0.0;
    double left = halfBorder, top = halfBorder, right = halfBorder, bottom = halfBorder;
    if (style.shadowEnabled && style.shadowColor.alpha() > 0) {
        const double spread = halfBorder + KeyEffectCache::spreadForRadius(m * style.shadowRadius);
        const double dy = m * style.shadowYOffset;
        left = std::max(left, spread);
        right = std::max(right, spread);
        top = std::max(top, spread - dy);
        bottom = std::max(bottom, spread + dy);
    }
    if (style.glowEnabled && style.glowOpacity > 0.0 && style.glowColor.alpha() > 0) {
        const double glow =
            m * style.glowLineWidth / 2.0 + KeyEffectCache::spreadForRadius(m * style.glowRadius);
        left = std::max(left, glow);
        right = std::max(right, glow);
        top = std::max(top, glow);
        bottom = std::max(bottom, glow);
    }
    constexpr double antialiasing = 1.0;
    return {left + antialiasing, top + antialiasing, right + antialiasing, bottom + antialiasing};
}

void KeyCapsuleView::paintText(QPainter &painter, const QRectF &contentRect,
                               const KeyAppearanceSnapshot &style)
{
    const QFont font = fontFor(style);
    const qreal scale = exactFontSize(style) / font.pixelSize();
    painter.setFont(font);
    painter.setPen(style.textColor);
    if (scale == 1.0) {
        painter.drawText(contentRect, Qt::AlignCenter | Qt::TextDontClip, style.text);
        return;
    }
    painter.save();
    painter.translate(contentRect.center());
    painter.scale(scale, scale);
    const QSizeF unscaled = contentRect.size() / scale;
    painter.drawText(QRectF(QPointF(-unscaled.width() / 2, -unscaled.height() / 2), unscaled),
                     Qt::AlignCenter | Qt::TextDontClip, style.text);
    painter.restore();
}

void KeyCapsuleView::paint(QPainter &painter, const QPointF &topLeft) const
{
    paint(painter, QRectF(topLeft, size()));
}

void KeyCapsuleView::paint(QPainter &painter, const QRectF &frame, KeyEffectCache *cache,
                           double opacity) const
{
    KeyEffectCache &effects = cache ? *cache : KeyEffectCache::shared();
    if (m_cacheKey.isEmpty() || frame.isEmpty()) {
        painter.save();
        painter.setOpacity(painter.opacity() * opacity);
        paintLayers(painter, frame, effects);
        painter.restore();
        return;
    }
    const qreal dpr = painter.device() ? painter.device()->devicePixelRatio() : 1.0;
    const KeyEffectCache::Effect cap = image(frame.size(), dpr, &effects, opacity);
    QPointF position = frame.topLeft() + cap.offset;
    const QTransform &transform = painter.worldTransform();
    if (transform.type() <= QTransform::TxTranslate) {
        // On whole device pixels the copy is a plain blend, without resampling.
        const QPointF device = transform.map(position) * dpr;
        const QPointF snapped(std::round(device.x()) / dpr, std::round(device.y()) / dpr);
        position += snapped - device / dpr;
    }
    if (transform.type() == QTransform::TxScale && transform.m11() > 0.0 && transform.m22() > 0.0) {
        drawScaled(painter, position, cap.image, dpr);
        return;
    }
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    painter.drawImage(position, cap.image);
    painter.restore();
}

KeyEffectCache::Effect KeyCapsuleView::image(const QSizeF &frameSize, qreal dpr,
                                             KeyEffectCache *cache, double opacity) const
{
    KeyEffectCache &effects = cache ? *cache : KeyEffectCache::shared();
    QByteArray key;
    if (!m_cacheKey.isEmpty()) {
        key = "c" + QByteArray::number(m_cacheKey.size()) + ':' + m_cacheKey;
        appendLook(key, m_style);
        for (const double value : {frameSize.width(), frameSize.height(), dpr, opacity})
            appendNumber(key, value);
        if (const KeyEffectCache::Effect *cap = effects.find(key))
            return *cap;
    }
    // The frame starts on a whole device pixel of the image, so a copy placed on whole pixels
    // looks exactly like a cap drawn directly there.
    const QMarginsF margins = visualMargins();
    const double left = std::ceil(margins.left() * dpr) / dpr;
    const double top = std::ceil(margins.top() * dpr) / dpr;
    const QSize pixels(
        static_cast<int>(std::ceil((left + frameSize.width() + margins.right()) * dpr)),
        static_cast<int>(std::ceil((top + frameSize.height() + margins.bottom()) * dpr)));
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    image.setDevicePixelRatio(dpr);
    {
        QPainter imagePainter(&image);
        imagePainter.setOpacity(opacity);
        paintLayers(imagePainter, QRectF(QPointF(left, top), frameSize), effects);
    }
    if (key.isEmpty())
        return {image, QPointF(-left, -top)};
    return *effects.insert(key, std::move(image), QPointF(-left, -top));
}

void KeyCapsuleView::drawScaled(QPainter &painter, const QPointF &position, const QImage &image,
                                qreal dpr)
{
    // Scaled copies appear only for the fraction of a second a cap grows or shrinks. Sampled
    // without smoothing into a scratch image on whole device pixels, then blended as a plain
    // copy: far cheaper than a transformed blend, above all at part opacity.
    const QTransform transform = painter.worldTransform();
    const QPointF origin = transform.map(position) * dpr;
    const int left = static_cast<int>(std::lround(origin.x()));
    const int top = static_cast<int>(std::lround(origin.y()));
    const int width = static_cast<int>(std::lround(image.width() * transform.m11()));
    const int height = static_cast<int>(std::lround(image.height() * transform.m22()));
    if (width <= 0 || height <= 0)
        return;
    static QImage scratch; // GUI thread only; reused from frame to frame
    if (scratch.width() < width || scratch.height() < height)
        scratch = QImage(std::max(width, scratch.width()), std::max(height, scratch.height()),
                         QImage::Format_ARGB32_Premultiplied);
    static std::vector<int> columns;
    columns.resize(static_cast<std::size_t>(width));
    for (int x = 0; x < width; ++x)
        columns[static_cast<std::size_t>(x)] =
            std::min(image.width() - 1, static_cast<int>((x + 0.5) * image.width() / width));
    uchar *const scratchBits = scratch.bits();
    const uchar *const imageBits = image.constBits();
    for (int y = 0; y < height; ++y) {
        const int sourceY =
            std::min(image.height() - 1, static_cast<int>((y + 0.5) * image.height() / height));
        const auto *source =
            reinterpret_cast<const QRgb *>(imageBits + sourceY * image.bytesPerLine());
        auto *target = reinterpret_cast<QRgb *>(scratchBits + y * scratch.bytesPerLine());
        for (int x = 0; x < width; ++x)
            target[x] = source[columns[static_cast<std::size_t>(x)]];
    }
    QImage scaled(scratch.constBits(), width, height, scratch.bytesPerLine(),
                  QImage::Format_ARGB32_Premultiplied); // a view of the scratch pixels
    scaled.setDevicePixelRatio(dpr);
    painter.save();
    painter.resetTransform();
    painter.drawImage(QPointF(left / dpr, top / dpr), scaled);
    painter.restore();
}

QRectF KeyCapsuleView::contentRect(const QRectF &frame) const
{
    return {frame.center().x() - m_contentSize.width() / 2.0,
            frame.center().y() - m_contentSize.height() / 2.0, m_contentSize.width(),
            m_contentSize.height()};
}

void KeyCapsuleView::paintLayers(QPainter &painter, const QRectF &frame,
                                 KeyEffectCache &effects) const
{
    const KeyAppearanceSnapshot &s = m_style;
    const double m = std::max(0.0, s.sizeMultiplier);
    const double radius = m * s.cornerRadius;
    const double border = hasBorder(s) ? m * s.borderWidth : 0.0;
    const qreal dpr = painter.device() ? painter.device()->devicePixelRatio() : 1.0;
    const QPainterPath shape = ContinuousRoundedRect::path(frame, radius);

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);

    // The drop shadow falls from the cap, its border and its label. A label that is changing
    // (named by no key) casts none until it settles.
    if (s.shadowEnabled && s.shadowColor.alpha() > 0) {
        const auto paintContent = [this](QPainter &mask, const QRectF &at) {
            mask.save();
            m_content(mask, contentRect(at));
            mask.restore();
        };
        if (const auto *shadow = effects.shadow(
                s, frame.size(), dpr, m_content ? m_cacheKey : QByteArray(), paintContent))
            painter.drawImage(frame.topLeft() + shadow->offset, shadow->image);
    }

    painter.fillPath(shape, s.backgroundColor);
    if (border > 0.0)
        painter.strokePath(shape, borderPen(s.borderColor, border));

    if (m_content) {
        painter.save();
        m_content(painter, contentRect(frame));
        painter.restore();
    }

    // The glow ring, on top of everything.
    const double glowWidth = m * s.glowLineWidth;
    if (s.glowEnabled && glowWidth > 0.0 && s.glowOpacity > 0.0 && s.glowColor.alpha() > 0) {
        if (const auto *glow = effects.glow(s, frame.size(), dpr)) {
            painter.drawImage(frame.topLeft() + glow->offset, glow->image);
        } else {
            painter.setOpacity(painter.opacity() * std::clamp(s.glowOpacity, 0.0, 1.0));
            painter.strokePath(shape, borderPen(s.glowColor, glowWidth));
        }
    }
    painter.restore();
}
