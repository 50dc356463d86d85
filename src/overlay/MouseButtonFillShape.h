#pragma once

#include "capture/MouseClickButton.h"

#include <QPainterPath>
#include <QRectF>

// The pressed button's area of the mouse glyph: the left or right half of the body above the
// divider, its outer top corner rounded by a quadratic curve. Never animated.
class MouseButtonFillShape final {
public:
    MouseButtonFillShape(MouseClickButton button, double buttonHeight, double cornerRadius);

    QPainterPath path(const QRectF &rect) const;

    MouseClickButton button() const { return m_button; }
    double buttonHeight() const { return m_buttonHeight; }
    double cornerRadius() const { return m_cornerRadius; }

private:
    MouseClickButton m_button;
    double m_buttonHeight;
    double m_cornerRadius;
};
