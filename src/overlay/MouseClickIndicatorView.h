#pragma once

#include "capture/MouseClickButton.h"

#include <QColor>
#include <QPointF>
#include <QSizeF>
#include <QString>

class QPainter;

// The mouse glyph shown in a cap for a click: an outlined body, a T-shaped divider between the
// two buttons, and the pressed button tinted. Every length is scaled by the size multiplier.
class MouseClickIndicatorView final {
public:
    MouseClickIndicatorView(MouseClickButton button, const QColor &color, double sizeMultiplier);

    // The glyph's frame, W × H; the outline's stroke reaches half a line width beyond it.
    static QSizeF sizeFor(double sizeMultiplier);
    // Never thinner than one point.
    static double lineWidthFor(double sizeMultiplier);
    // The height of the button area, which is also the body's corner radius.
    static double buttonHeightFor(double sizeMultiplier);
    // The tint of the pressed button: the glyph's colour at 28 % opacity.
    static QColor tintFor(const QColor &color);

    // What assistive technologies announce for a click ("Left mouse click", translated).
    static QString accessibleName(MouseClickButton button);

    QSizeF size() const { return sizeFor(m_sizeMultiplier); }
    QString accessibleName() const { return accessibleName(m_button); }

    // Draws the glyph with its frame's top-left corner at `topLeft`.
    void paint(QPainter &painter, const QPointF &topLeft) const;

private:
    MouseClickButton m_button;
    QColor m_color;
    double m_sizeMultiplier;
};
