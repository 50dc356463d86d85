#pragma once

#include "capture/KeyPress.h"
#include "overlay/KeyAppearanceSnapshot.h"
#include "overlay/KeyEffectCache.h"

#include <QMarginsF>
#include <QPointF>
#include <QRectF>
#include <QSizeF>

#include <optional>

class KeyCapsuleView;
class QPainter;
class SettingsStore;

// One key press drawn as a cap: its label, or for a mouse click the mouse glyph in the text
// colour (never the click's label). A change of label animates for 0.2 s, ease-in-out: the cap
// resizes and the old content fades into the new. Changes of look or size never animate; call
// `refresh()` and the next frame shows them. Times are seconds on the caller's clock.
class KeyView final {
public:
    KeyView(const KeyPress &keyPress, double keySize, const SettingsStore &settings);

    const KeyPress &keyPress() const { return m_keyPress; }
    // Takes a newer record of the same key; a different label starts the label animation.
    void setKeyPress(const KeyPress &keyPress, double now);
    void setKeySize(double keySize);
    // Resolves the look again from the settings, at once.
    void refresh();

    const KeyAppearanceSnapshot &appearanceSnapshot() const { return m_snapshot; }
    // The frame at rest, and while the label animates.
    QSizeF size() const { return m_size; }
    QSizeF size(double now) const;
    QMarginsF visualMargins() const;
    bool isAnimating(double now) const;

    // Draws the cap with its frame centred on `center`, at a steady `opacity` (see
    // KeyCapsuleView::paint); shadows, glows and whole caps come from `cache` (by default the
    // shared one of the GUI thread).
    void paint(QPainter &painter, const QPointF &center, double now, double opacity = 1.0,
               KeyEffectCache *cache = nullptr) const;
    // The cap as of `now` in an image of its own (see KeyCapsuleView::image).
    KeyEffectCache::Effect image(double now, qreal dpr, KeyEffectCache *cache,
                                 double opacity = 1.0) const;

private:
    struct Content {
        KeyPress keyPress;
        KeyAppearanceSnapshot snapshot;
        QSizeF contentSize;
        QSizeF size;
    };
    Content resolve(const KeyPress &keyPress) const;
    double labelProgress(double now) const;
    KeyCapsuleView capsule(double now) const;
    static void paintContent(QPainter &painter, const QPointF &center, const Content &content);

    const SettingsStore &m_settings;
    double m_keySize;
    KeyPress m_keyPress;
    KeyAppearanceSnapshot m_snapshot;
    QSizeF m_contentSize;
    QSizeF m_size;
    // The content being replaced while the label animates, and when that began.
    std::optional<Content> m_previous;
    double m_labelChangeStart = 0.0;
};
