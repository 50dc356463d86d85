#include "ui/PositionCustomizerHeader.h"

#include "ui/Symbols.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
constexpr double cornerRadius = 14.0;
constexpr int symbolSize = 24;
} // namespace

PositionCustomizerHeader::PositionCustomizerHeader(QWidget *parent)
    : QWidget(parent), m_symbol(new QLabel(this)),
      m_title(new QLabel(tr("Drag to Position"), this)),
      m_text(new QLabel(tr("Drag the key display to your desired location. Click anywhere to "
                           "save or press Escape to ignore changes."),
                        this)),
      m_hideButton(new QPushButton(tr("Hide"), this)),
      m_doneButton(new QPushButton(tr("Done"), this))
{
    setObjectName(QStringLiteral("positionCustomizerHeader"));
    setAttribute(Qt::WA_TranslucentBackground);

    QFont titleFont = m_title->font();
    titleFont.setWeight(QFont::DemiBold);
    titleFont.setPointSizeF(titleFont.pointSizeF() * 1.2);
    m_title->setFont(titleFont);
    m_text->setWordWrap(true);
    m_symbol->setFixedSize(symbolSize, symbolSize);
    // Buttons keep the keyboard with the overlay, which takes Escape.
    m_hideButton->setFocusPolicy(Qt::NoFocus);
    m_doneButton->setFocusPolicy(Qt::NoFocus);

    auto *texts = new QVBoxLayout;
    texts->setSpacing(2);
    texts->addWidget(m_title);
    texts->addWidget(m_text);

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(18, 14, 18, 14);
    row->setSpacing(14);
    row->addWidget(m_symbol, 0, Qt::AlignVCenter);
    row->addLayout(texts, 1);
    row->addWidget(m_hideButton, 0, Qt::AlignVCenter);
    row->addWidget(m_doneButton, 0, Qt::AlignVCenter);

    applyColors();
}

void PositionCustomizerHeader::applyColors()
{
    const QPalette base = palette();
    // The instructions in the secondary text colour: the text colour, lighter.
    QPalette secondary = m_text->palette();
    QColor textColor = base.color(QPalette::WindowText);
    textColor.setAlphaF(0.7);
    secondary.setColor(QPalette::WindowText, textColor);
    m_text->setPalette(secondary);

    // "Done" is the prominent button: filled with the accent colour.
    QPalette prominent = m_doneButton->palette();
    prominent.setColor(QPalette::Button, base.color(QPalette::Highlight));
    prominent.setColor(QPalette::ButtonText, base.color(QPalette::HighlightedText));
    m_doneButton->setPalette(prominent);

    const QPixmap symbol =
        Symbols::pixmap(QStringLiteral("hand.draw"), QSize(symbolSize, symbolSize),
                        base.color(QPalette::WindowText), devicePixelRatioF());
    m_symbol->setPixmap(symbol);
    m_symbol->setVisible(!symbol.isNull());
}

void PositionCustomizerHeader::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        applyColors();
}

void PositionCustomizerHeader::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath card;
    card.addRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), cornerRadius, cornerRadius);
    painter.fillPath(card, palette().color(QPalette::Window));
    painter.setPen(QPen(palette().color(QPalette::Mid), 1.0));
    painter.drawPath(card);
}
