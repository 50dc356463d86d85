#pragma once

#include "overlay/KeyAppearanceSnapshot.h"
#include "overlay/KeyEffectCache.h"

#include <QByteArray>
#include <QFont>
#include <QMarginsF>
#include <QPointF>
#include <QRectF>
#include <QSizeF>

#include <functional>

class QPainter;

// One key cap: content (the label, or the mouse glyph) centred in a filled, bordered rounded
// rectangle with an optional drop shadow below and an optional glow ring on top. Every length is
// the snapshot's value times its size multiplier m: font 16·m (medium weight), padding 8·m beside
// and 4·m above and below the content, at least 32·m × 32·m (so one character makes a square cap
// and longer labels grow sideways only). Lengths are in device-independent pixels.
class KeyCapsuleView final {
public:
    // Draws the content centred in `contentRect` (the content's own size, centred in the frame).
    using ContentPainter = std::function<void(QPainter &painter, const QRectF &contentRect)>;

    // A cap around content of the given size.
    KeyCapsuleView(const KeyAppearanceSnapshot &style, const QSizeF &contentSize,
                   ContentPainter content);
    // A cap showing `style.text`, verbatim.
    explicit KeyCapsuleView(const KeyAppearanceSnapshot &style);

    static QFont fontFor(const KeyAppearanceSnapshot &style);
    // The label's size in pixels: 16 times the style's size multiplier.
    static qreal exactFontSize(const KeyAppearanceSnapshot &style);
    static QSizeF textSizeFor(const KeyAppearanceSnapshot &style);
    static QSizeF frameSizeFor(const KeyAppearanceSnapshot &style, const QSizeF &contentSize);
    // The frame of a cap showing `style.text`.
    static QSizeF sizeFor(const KeyAppearanceSnapshot &style);
    // How far the drawing reaches beyond the frame on each side: half the border, the shadow's
    // blur and offset, the glow ring and its blur (plus a pixel for antialiasing).
    static QMarginsF visualMarginsFor(const KeyAppearanceSnapshot &style);
    // Draws the label text of `style` centred in `contentRect`.
    static void paintText(QPainter &painter, const QRectF &contentRect,
                          const KeyAppearanceSnapshot &style);

    // Names the content for the cache of whole caps: caps with equal looks, sizes and keys are
    // drawn once and then copied. Without a key (the default for other content) the cap is drawn
    // layer by layer each time. The text constructor sets one.
    void setCacheKey(const QByteArray &key) { m_cacheKey = key; }

    QSizeF size() const { return frameSizeFor(m_style, m_contentSize); }
    QMarginsF visualMargins() const { return visualMarginsFor(m_style); }
    const KeyAppearanceSnapshot &style() const { return m_style; }

    // Draws the cap with its frame's top-left corner at `topLeft`.
    void paint(QPainter &painter, const QPointF &topLeft) const;
    // Draws the cap into `frame`, whatever its size (used while a cap changes size). Blurred
    // effects come from `cache` (the shared one when none is given). `opacity` is a steady
    // opacity of the cap: a cached cap keeps it baked in, so that drawing it again is a plain
    // copy rather than a blend at partial opacity.
    void paint(QPainter &painter, const QRectF &frame, KeyEffectCache *cache = nullptr,
               double opacity = 1.0) const;

    // The cap of the given frame size drawn into an image of its own, for a renderer that copies
    // it: the frame's top-left corner lies at minus `offset` in the image. Cached like paint()'s
    // copies; without a cache key it is drawn afresh.
    KeyEffectCache::Effect image(const QSizeF &frameSize, qreal dpr,
                                 KeyEffectCache *cache = nullptr, double opacity = 1.0) const;

private:
    // Where the content goes in `frame`: its own size, centred.
    QRectF contentRect(const QRectF &frame) const;
    // Draws `image` under the painter's scaling, on whole device pixels, without smoothing.
    static void drawScaled(QPainter &painter, const QPointF &position, const QImage &image,
                           qreal dpr);
    void paintLayers(QPainter &painter, const QRectF &frame, KeyEffectCache &effects) const;

    KeyAppearanceSnapshot m_style;
    QSizeF m_contentSize;
    ContentPainter m_content;
    QByteArray m_cacheKey;
};
