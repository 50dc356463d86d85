#pragma once

#include "overlay/AnimationTiming.h"
#include "settings/AppSettings.h"

#include <QPointF>
#include <QRect>
#include <QRectF>

class KeyView;

// How one cap of the row comes, goes and moves: plain data with the times its animations
// started, evaluated for any moment. The row's engine changes it; a renderer evaluates copies
// of it for frames ahead of time.
struct KeyMotion final {
    enum class Phase { inserting, shown, removing };

    // The transition's effect at a moment; 1, 1 and no offset when at rest.
    struct Look {
        double opacity = 1.0;
        double scale = 1.0;
        QPointF offset;
    };

    // How a cap is drawn at a moment in a row of the given opacity: its centre (offset
    // included), scale, the steady opacity baked into the cap's image and the opacity the image
    // is then drawn at. `opaque` rows (windows that cannot blend) draw every cap whole.
    struct Drawing {
        QRectF visualRect; // as visualRect() says
        QSizeF frameSize;  // unscaled
        QPointF center;
        double scale = 1.0;
        double imageOpacity = 1.0;
        double drawOpacity = 1.0;
        bool isVisible() const { return drawOpacity > 0.0 && scale > 0.0; }
        // Where a renderer puts the cap's image (of `imageSize` pixels, drawn `imageOffset` from
        // the cap's frame) in a window whose top-left corner is `origin` in the row, in pixels
        // at `dpr`: whole pixels, so that a scaled image is sampled on them.
        QRect imageRect(const QSize &imageSize, const QPointF &imageOffset, const QPoint &origin,
                        double dpr) const;
    };

    Phase phase = Phase::shown;
    double phaseStart = 0.0;
    AppSettings::KeyAnimationStyle transition = AppSettings::KeyAnimationStyle::none;
    AnimationTiming transitionTiming = AnimationTiming::easeInOut(0.0);
    // How far a sliding key travels from the leading edge, or towards the trailing edge.
    double slideDistance = 0.0;

    // The centre moves from `from` to `to`; a new key is placed without moving.
    bool placed = false;
    QPointF from;
    QPointF to;
    double moveStart = 0.0;
    AnimationTiming moveTiming = AnimationTiming::easeInOut(0.0);

    Look look(double time) const;
    QPointF center(double time) const;
    // A removed cap whose removal has played.
    bool isGone(double time) const;
    // Whether anything of the cap still changes after `time` (its label included).
    bool isMoving(const KeyView &view, double time) const;
    Drawing drawing(const KeyView &view, double time, double rowOpacity, bool opaque) const;
    // The area the cap covers, shadows and glows included.
    QRectF visualRect(const KeyView &view, double time) const;

private:
    QRectF visualRect(const KeyView &view, double time, const Look &current,
                      const QSizeF &frameSize) const;
};
