#include "overlay/KeyMotion.h"

#include "overlay/KeyView.h"

#include <algorithm>
#include <cmath>

using KeyAnimationStyle = AppSettings::KeyAnimationStyle;

KeyMotion::Look KeyMotion::look(double time) const
{
    Look result;
    if (phase == Phase::shown)
        return result;
    const double value = transitionTiming.value(time - phaseStart);
    const bool inserting = phase == Phase::inserting;
    // How much of the key is there: 1 when fully shown (a spring may overshoot it).
    const double p = inserting ? value : 1.0 - value;
    const double opacity = std::clamp(p, 0.0, 1.0);
    switch (transition) {
    case KeyAnimationStyle::none:
        break;
    case KeyAnimationStyle::fadeIn:
        result.opacity = opacity;
        result.scale = 0.8 + 0.2 * p;
        break;
    case KeyAnimationStyle::scaleIn:
        result.scale = 0.1 + 0.9 * p;
        break;
    case KeyAnimationStyle::slideIn:
        result.opacity = opacity;
        result.offset.setX(inserting ? -(1.0 - p) * slideDistance : (1.0 - p) * slideDistance);
        break;
    case KeyAnimationStyle::bounce:
        result.opacity = opacity;
        result.scale = 0.5 + 0.5 * p;
        break;
    }
    result.scale = std::max(0.0, result.scale);
    return result;
}

QPointF KeyMotion::center(double time) const
{
    if (from == to)
        return to;
    return from + (to - from) * moveTiming.value(time - moveStart);
}

bool KeyMotion::isGone(double time) const
{
    return phase == Phase::removing && transitionTiming.isFinished(time - phaseStart);
}

bool KeyMotion::isMoving(const KeyView &view, double time) const
{
    return (phase != Phase::shown && !transitionTiming.isFinished(time - phaseStart)) ||
           (from != to && !moveTiming.isFinished(time - moveStart)) || view.isAnimating(time);
}

KeyMotion::Drawing KeyMotion::drawing(const KeyView &view, double time, double rowOpacity,
                                      bool opaque) const
{
    Look current = look(time);
    Drawing result;
    result.frameSize = view.size(time);
    result.visualRect = visualRect(view, time, current, result.frameSize);
    // A window that cannot blend cannot fade either: its caps show whole from the first frame,
    // moving and scaling as they would otherwise.
    if (opaque) {
        current.opacity = 1.0;
        rowOpacity = 1.0;
    }
    result.center = center(time) + current.offset;
    result.scale = current.scale;
    if (current.opacity == 1.0) {
        // Resting or sliding: the row's opacity is baked into the cached cap.
        result.imageOpacity = rowOpacity;
        result.drawOpacity = rowOpacity > 0.0 ? 1.0 : 0.0;
    } else {
        result.drawOpacity = rowOpacity * current.opacity;
    }
    return result;
}

QRectF KeyMotion::visualRect(const KeyView &view, double time) const
{
    return visualRect(view, time, look(time), view.size(time));
}

QRectF KeyMotion::visualRect(const KeyView &view, double time, const Look &current,
                             const QSizeF &frameSize) const
{
    const QSizeF size = frameSize * current.scale;
    const QPointF middle = center(time) + current.offset;
    const QRectF frame(middle.x() - size.width() / 2.0, middle.y() - size.height() / 2.0,
                       size.width(), size.height());
    return frame.marginsAdded(view.visualMargins() * current.scale);
}

QRect KeyMotion::Drawing::imageRect(const QSize &imageSize, const QPointF &imageOffset,
                                    const QPoint &origin, double dpr) const
{
    const QPointF corner =
        (center - QPointF(origin) +
         scale * (QPointF(-frameSize.width() / 2.0, -frameSize.height() / 2.0) + imageOffset)) *
        dpr;
    const QSize pixels = scale == 1.0
                             ? imageSize
                             : QSize(static_cast<int>(std::lround(imageSize.width() * scale)),
                                     static_cast<int>(std::lround(imageSize.height() * scale)));
    return {QPoint(static_cast<int>(std::lround(corner.x())),
                   static_cast<int>(std::lround(corner.y()))),
            pixels};
}
