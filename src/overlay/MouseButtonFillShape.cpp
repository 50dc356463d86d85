#include "overlay/MouseButtonFillShape.h"

#include <algorithm>

MouseButtonFillShape::MouseButtonFillShape(MouseClickButton button, double buttonHeight,
                                           double cornerRadius)
    : m_button(button), m_buttonHeight(buttonHeight), m_cornerRadius(cornerRadius)
{}

QPainterPath MouseButtonFillShape::path(const QRectF &rect) const
{
    // Capped at half the width so that the curve never passes the centre line.
    const double r = std::min({rect.width() * 0.5, m_buttonHeight, m_cornerRadius});
    const double yb = rect.top() + m_buttonHeight;
    const double midX = rect.center().x();

    QPainterPath path;
    if (m_button == MouseClickButton::left) {
        path.moveTo(rect.left(), yb);
        path.lineTo(rect.left(), rect.top() + r);
        path.quadTo(rect.left(), rect.top(), rect.left() + r, rect.top());
        path.lineTo(midX, rect.top());
        path.lineTo(midX, yb);
    } else {
        path.moveTo(midX, yb);
        path.lineTo(midX, rect.top());
        path.lineTo(rect.right() - r, rect.top());
        path.quadTo(rect.right(), rect.top(), rect.right(), rect.top() + r);
        path.lineTo(rect.right(), yb);
    }
    path.closeSubpath();
    return path;
}
