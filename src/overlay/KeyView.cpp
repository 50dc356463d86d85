#include "overlay/KeyView.h"

#include "overlay/AnimationTiming.h"
#include "overlay/KeyAppearance.h"
#include "overlay/KeyCapsuleView.h"
#include "overlay/KeyEffectCache.h"
#include "overlay/MouseClickIndicatorView.h"

#include <QPainter>

namespace {
QSizeF lerp(const QSizeF &from, const QSizeF &to, double t)
{
    return from + (to - from) * t;
}
} // namespace

KeyView::KeyView(const KeyPress &keyPress, double keySize, const SettingsStore &settings)
    : m_settings(settings), m_keySize(keySize), m_keyPress(keyPress)
{
    refresh();
}

KeyView::Content KeyView::resolve(const KeyPress &keyPress) const
{
    Content content{keyPress, resolveKeyAppearance(keyPress, m_keySize, m_settings), {}, {}};
    content.contentSize = keyPress.category.isMouse()
                              ? MouseClickIndicatorView::sizeFor(content.snapshot.sizeMultiplier)
                              : KeyCapsuleView::textSizeFor(content.snapshot);
    content.size = KeyCapsuleView::frameSizeFor(content.snapshot, content.contentSize);
    return content;
}

void KeyView::refresh()
{
    const Content current = resolve(m_keyPress);
    m_snapshot = current.snapshot;
    m_contentSize = current.contentSize;
    m_size = current.size;
    if (m_previous)
        m_previous = resolve(m_previous->keyPress);
}

void KeyView::setKeySize(double keySize)
{
    if (keySize == m_keySize)
        return;
    m_keySize = keySize;
    refresh();
}

void KeyView::setKeyPress(const KeyPress &keyPress, double now)
{
    if (keyPress.keyName == m_keyPress.keyName && keyPress.category == m_keyPress.category &&
        keyPress.keyCode == m_keyPress.keyCode) {
        // The same cap: nothing to resolve again (a change of look calls refresh()).
        m_keyPress = keyPress;
        return;
    }
    if (keyPress.keyName != m_keyPress.keyName || keyPress.category != m_keyPress.category) {
        // Start from what is on screen now, even in the middle of an earlier change.
        Content shown{m_keyPress, m_snapshot, m_contentSize, size(now)};
        m_previous = shown;
        m_labelChangeStart = now;
    }
    m_keyPress = keyPress;
    refresh();
}

double KeyView::labelProgress(double now) const
{
    if (!m_previous)
        return 1.0;
    return AnimationTiming::forLabelChange().value(now - m_labelChangeStart);
}

bool KeyView::isAnimating(double now) const
{
    return m_previous && !AnimationTiming::forLabelChange().isFinished(now - m_labelChangeStart);
}

QSizeF KeyView::size(double now) const
{
    if (!isAnimating(now))
        return m_size;
    return lerp(m_previous->size, m_size, labelProgress(now));
}

QMarginsF KeyView::visualMargins() const
{
    return KeyCapsuleView::visualMarginsFor(m_snapshot);
}

void KeyView::paintContent(QPainter &painter, const QPointF &center, const Content &content)
{
    const QRectF rect(center.x() - content.contentSize.width() / 2.0,
                      center.y() - content.contentSize.height() / 2.0, content.contentSize.width(),
                      content.contentSize.height());
    const auto &category = content.keyPress.category;
    if (category.isMouse()) {
        const MouseClickIndicatorView glyph(category.button(), content.snapshot.textColor,
                                            content.snapshot.sizeMultiplier);
        glyph.paint(painter, rect.topLeft());
    } else {
        KeyCapsuleView::paintText(painter, rect, content.snapshot);
    }
}

KeyCapsuleView KeyView::capsule(double now) const
{
    const bool animating = isAnimating(now);
    const double progress = animating ? labelProgress(now) : 1.0;
    const Content current{m_keyPress, m_snapshot, m_contentSize, m_size};
    const std::optional<Content> previous = animating ? m_previous : std::nullopt;

    // Old and new content are both centred in the cap while they cross-fade.
    KeyCapsuleView capsule(m_snapshot, m_contentSize,
                           [current, previous, progress](QPainter &p, const QRectF &rect) {
                               const QPointF middle = rect.center();
                               if (previous) {
                                   const double opacity = p.opacity();
                                   p.setOpacity(opacity * (1.0 - progress));
                                   paintContent(p, middle, *previous);
                                   p.setOpacity(opacity * progress);
                                   paintContent(p, middle, current);
                                   p.setOpacity(opacity);
                               } else {
                                   paintContent(p, middle, current);
                               }
                           });
    if (!animating) {
        const auto &category = m_keyPress.category;
        capsule.setCacheKey(
            category.isMouse()
                ? QByteArray(category.button() == MouseClickButton::left ? "ml" : "mr")
                : "t" + m_keyPress.keyName.toUtf8());
    }
    return capsule;
}

void KeyView::paint(QPainter &painter, const QPointF &center, double now, double opacity,
                    KeyEffectCache *cache) const
{
    const QSizeF frameSize = size(now);
    const QRectF frame(center.x() - frameSize.width() / 2.0, center.y() - frameSize.height() / 2.0,
                       frameSize.width(), frameSize.height());
    capsule(now).paint(painter, frame, cache, opacity);
}

KeyEffectCache::Effect KeyView::image(double now, qreal dpr, KeyEffectCache *cache,
                                      double opacity) const
{
    return capsule(now).image(size(now), dpr, cache, opacity);
}
