#include "ui/AccessIndicatorView.h"

#include "ui/Symbols.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>

namespace {

constexpr int symbolSize = 12;
constexpr qreal cornerRadius = 8.0;

} // namespace

AccessIndicatorView::AccessIndicatorView(const QString &text, const QString &symbolName,
                                         const QColor &color, QWidget *parent)
    : QWidget(parent), m_text(new QLabel), m_symbol(new QWidget)
{
    // The subheadline font: a little smaller than the body text.
    QFont font = m_text->font();
    font.setPointSizeF(font.pointSizeF() * 0.92);
    m_text->setFont(font);
    m_symbol->setFixedSize(symbolSize, symbolSize);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 4, 8, 4);
    layout->setSpacing(4);
    layout->addWidget(m_text);
    layout->addWidget(m_symbol);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setState(text, symbolName, color);
}

void AccessIndicatorView::setState(const QString &text, const QString &symbolName,
                                   const QColor &color)
{
    m_text->setText(text);
    m_symbolName = symbolName;
    m_color = color;
    QPalette palette = m_text->palette();
    palette.setColor(QPalette::WindowText, color);
    m_text->setPalette(palette);
    setAccessibleName(text);
    update();
}

QString AccessIndicatorView::text() const
{
    return m_text->text();
}

void AccessIndicatorView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor fill = m_color;
    fill.setAlphaF(0.1f);
    QColor outline = m_color;
    outline.setAlphaF(0.2f);
    painter.setPen(QPen(outline, 1.0));
    painter.setBrush(fill);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), cornerRadius,
                            cornerRadius);
    painter.drawPixmap(
        m_symbol->geometry().topLeft(),
        Symbols::pixmap(m_symbolName, QSize(symbolSize, symbolSize), m_color, devicePixelRatioF()));
}
