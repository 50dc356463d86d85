#pragma once

#include <functional>

#include "overlay/KeyAppearanceSnapshot.h"

#include <QByteArray>
#include <QCache>
#include <QImage>
#include <QPointF>
#include <QSizeF>

// Rendered parts of key caps, reused on every frame after the first: blurred drop shadows and
// glow rings (per look, cap size, scale and device pixel ratio) and whole caps at rest (the same,
// plus their content). Images live in memory only.
//
// Bounded as a least-recently-used cache by bytes: at most `byteBudget` bytes of images (by
// default 8 MiB, enough for some eighty caps at size 3 on a 2× display); the least recently
// used image goes first. An image larger than the whole budget is rendered for the one frame and
// not kept. For use on the GUI thread only.
class KeyEffectCache final {
public:
    // A rendered effect: draw `image` (which carries its device pixel ratio) with its top-left
    // corner at the cap frame's top-left corner plus `offset`.
    struct Effect {
        QImage image;
        QPointF offset;
    };

    static constexpr qsizetype defaultByteBudget = 8 * 1024 * 1024;

    explicit KeyEffectCache(qsizetype byteBudget = defaultByteBudget);

    // The program's cache of the GUI thread.
    static KeyEffectCache &shared();

    // Paints a cap's content (its label) for a frame at the given place.
    using ContentPainter = std::function<void(QPainter &painter, const QRectF &frame)>;

    // The cap's drop shadow (including its offset), cast by its fill, border and the content
    // that `paintContent` draws (`contentKey` names it), or nothing when it would be invisible.
    // Where the cap's fill is opaque the shadow is cut away, since it could never show there.
    const Effect *shadow(const KeyAppearanceSnapshot &style, const QSizeF &frameSize, qreal dpr,
                         const QByteArray &contentKey = {},
                         const ContentPainter &paintContent = {});
    // The cap's blurred glow ring at its opacity, or nothing when glow is off or unblurred.
    const Effect *glow(const KeyAppearanceSnapshot &style, const QSizeF &frameSize, qreal dpr);

    // Standard deviation of the Gaussian for a blur radius: the radius spans two deviations.
    static double sigmaForRadius(double radius) { return radius / 2.0; }
    // How far a blur of that radius spreads beyond the blurred shape.
    static double spreadForRadius(double radius) { return 3.0 * sigmaForRadius(radius); }

    // Any image under `key`, or nothing; `insert` keeps one (when it fits the budget) and returns
    // it. A returned effect stays valid until the next insertion or `clear()`.
    const Effect *find(const QByteArray &key) { return m_cache.object(key); }
    const Effect *insert(const QByteArray &key, QImage image, const QPointF &offset);

    void clear();
    qsizetype bytes() const { return m_cache.totalCost(); }
    qsizetype count() const { return m_cache.count(); }
    qsizetype byteBudget() const { return m_cache.maxCost(); }

    // Blurs an 8-bit alpha image in place with three box passes per axis (close to a Gaussian
    // of deviation `sigma`, in pixels). Pixels outside the image count as transparent.
    static void blurAlpha(QImage &alpha, double sigma);

private:
    QCache<QByteArray, Effect> m_cache;
    // Holds an effect that did not fit the budget, for the caller's current frame.
    Effect m_oversized;
};
