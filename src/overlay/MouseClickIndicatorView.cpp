#include "overlay/MouseClickIndicatorView.h"

#include "overlay/ContinuousRoundedRect.h"
#include "overlay/MouseButtonFillShape.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

MouseClickIndicatorView::MouseClickIndicatorView(MouseClickButton button, const QColor &color,
                                                 double sizeMultiplier)
    : m_button(button), m_color(color), m_sizeMultiplier(sizeMultiplier)
{}

QSizeF MouseClickIndicatorView::sizeFor(double sizeMultiplier)
{
    return {11.5 * sizeMultiplier, 14.5 * sizeMultiplier};
}

double MouseClickIndicatorView::lineWidthFor(double sizeMultiplier)
{
    return std::max(1.35 * sizeMultiplier, 1.0);
}

double MouseClickIndicatorView::buttonHeightFor(double sizeMultiplier)
{
    return 6.0 * sizeMultiplier;
}

QColor MouseClickIndicatorView::tintFor(const QColor &color)
{
    QColor tint = color;
    tint.setAlphaF(static_cast<float>(color.alphaF() * 0.28));
    return tint;
}

QString MouseClickIndicatorView::accessibleName(MouseClickButton button)
{
    return button == MouseClickButton::left
               ? QCoreApplication::translate("MouseClickIndicatorView", "Left mouse click")
               : QCoreApplication::translate("MouseClickIndicatorView", "Right mouse click");
}

void MouseClickIndicatorView::paint(QPainter &painter, const QPointF &topLeft) const
{
    const double m = m_sizeMultiplier;
    const QRectF frame(topLeft, sizeFor(m));
    const double buttonHeight = buttonHeightFor(m);
    const double lineWidth = lineWidthFor(m);

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);

    // 1. The pressed button, tinted.
    const MouseButtonFillShape fill(m_button, buttonHeight, buttonHeight);
    QPainterPath fillPath = fill.path(frame);
    fillPath.setFillRule(Qt::WindingFill);
    painter.fillPath(fillPath, tintFor(m_color));

    // 2. The body outline; its radius is limited to half the width, so both ends are round.
    QPen outline(m_color, lineWidth, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
    outline.setMiterLimit(10.0);
    painter.setPen(outline);
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(ContinuousRoundedRect::path(frame, buttonHeight));

    // 3. The divider: down the middle of the buttons, then across below them.
    QPen divider(m_color, lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::MiterJoin);
    divider.setMiterLimit(10.0);
    painter.setPen(divider);
    const double midX = frame.center().x();
    const double y = frame.top() + buttonHeight;
    painter.drawLine(QPointF(midX, frame.top()), QPointF(midX, y));
    painter.drawLine(QPointF(frame.left(), y), QPointF(frame.right(), y));

    painter.restore();
}
