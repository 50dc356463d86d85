#include "ui/AddPresetTile.h"

#include "ui/Symbols.h"

#include <QPainter>
#include <QPainterPath>

namespace {
constexpr int tileHeight = 54;
constexpr int tileRadius = 8;
constexpr int symbolSide = 16;
} // namespace

AddPresetTile::AddPresetTile(QWidget *parent) : QAbstractButton(parent)
{
    setText(tr("New Preset"));
    setAccessibleName(text());
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setFixedHeight(tileHeight);
}

QSize AddPresetTile::sizeHint() const
{
    return {84, tileHeight};
}

QSize AddPresetTile::minimumSizeHint() const
{
    return {10, tileHeight};
}

void AddPresetTile::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF tile = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    QPainterPath outline;
    outline.addRoundedRect(tile, tileRadius, tileRadius);
    QColor fill = palette().color(QPalette::Text);
    fill.setAlphaF(underMouse() || isDown() ? 0.09f : 0.05f);
    painter.fillPath(outline, fill);
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 1.0));
        painter.drawPath(outline);
    }

    const QColor ink = palette().color(QPalette::WindowText);
    QFont caption = font();
    caption.setPointSizeF(caption.pointSizeF() * 0.85);
    const QFontMetrics metrics(caption);
    const int gap = 3;
    const int contentHeight = symbolSide + gap + metrics.height();
    const int top = (height() - contentHeight) / 2;

    const QPixmap plus = Symbols::pixmap(QStringLiteral("plus"), QSize(symbolSide, symbolSide), ink,
                                         devicePixelRatioF());
    const QRect symbolRect((width() - symbolSide) / 2, top, symbolSide, symbolSide);
    painter.setPen(ink);
    if (!plus.isNull()) {
        painter.drawPixmap(symbolRect, plus);
    } else {
        painter.setFont(font());
        painter.drawText(symbolRect, Qt::AlignCenter, QStringLiteral("+"));
    }

    painter.setFont(caption);
    const QRect labelRect(2, top + symbolSide + gap, width() - 4, metrics.height());
    painter.drawText(labelRect, Qt::AlignCenter,
                     metrics.elidedText(text(), Qt::ElideRight, labelRect.width()));
}
