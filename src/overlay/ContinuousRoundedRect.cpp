#include "overlay/ContinuousRoundedRect.h"

#include <algorithm>
#include <cmath>

namespace {
// How far along each edge a smooth corner reaches, in corner radii.
constexpr double cornerExtent = 1.528;
// A cubic corner's midpoint is (P0 + 3 C1 + 3 C2 + P3) / 8; matching the depth of a circular arc,
// (1 − 1/√2) r from the corner on each axis, puts the controls (8 (1 − 1/√2) r − e) / 3 from it.
const double arcDepthTimesEight = 8.0 * (1.0 - 1.0 / std::sqrt(2.0));
} // namespace

QPainterPath ContinuousRoundedRect::path(const QRectF &rect, double radius)
{
    QPainterPath path;
    const QRectF r = rect.normalized();
    const double halfSide = std::min(r.width(), r.height()) / 2.0;
    const double radius_ = std::clamp(radius, 0.0, halfSide);
    if (radius_ <= 0.0) {
        path.addRect(r);
        return path;
    }
    const double e = std::min(cornerExtent * radius_, halfSide);
    const double c = std::max(0.0, (arcDepthTimesEight * radius_ - e) / 3.0);

    const double l = r.left(), t = r.top(), rt = r.right(), b = r.bottom();
    path.moveTo(l + e, t);
    path.lineTo(rt - e, t);
    path.cubicTo(rt - c, t, rt, t + c, rt, t + e);
    path.lineTo(rt, b - e);
    path.cubicTo(rt, b - c, rt - c, b, rt - e, b);
    path.lineTo(l + e, b);
    path.cubicTo(l + c, b, l, b - c, l, b - e);
    path.lineTo(l, t + e);
    path.cubicTo(l, t + c, l + c, t, l + e, t);
    path.closeSubpath();
    return path;
}
