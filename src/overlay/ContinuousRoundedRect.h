#pragma once

#include <QPainterPath>
#include <QRectF>

// A rounded rectangle with smooth ("continuous") corners: each corner is one cubic curve that
// starts further along the edges than a circular arc of the same radius and bends in gently, so
// the curvature has no jump where edge and corner meet. Its depth at the diagonal equals that of
// the circular arc. A radius larger than half the shorter side is limited to it, and the more a
// corner is limited, the closer it comes to a circular arc (a fully rounded end stays round).
class ContinuousRoundedRect final {
public:
    static QPainterPath path(const QRectF &rect, double radius);
};
