#include "ui/PermissionStatusView.h"

#include "ui/Symbols.h"

#include <QHBoxLayout>
#include <QLabel>

namespace {

const QColor grantedColor(0x2e, 0xa0, 0x43);
const QColor deniedColor(0xd9, 0x3a, 0x2b);

} // namespace

PermissionStatusView::PermissionStatusView(QWidget *parent)
    : QWidget(parent), m_symbol(new QLabel), m_text(new QLabel)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(m_symbol);
    layout->addWidget(m_text);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setGranted(false);
}

void PermissionStatusView::setGranted(bool granted)
{
    m_symbolName =
        granted ? QStringLiteral("checkmark.circle.fill") : QStringLiteral("xmark.circle.fill");
    m_color = granted ? grantedColor : deniedColor;
    m_text->setText(granted ? tr("Granted") : tr("Not Granted"));
    setAccessibleName(m_text->text());
    showSymbol();
}

QString PermissionStatusView::text() const
{
    return m_text->text();
}

void PermissionStatusView::showSymbol()
{
    // As tall as the text's capitals and ascenders, drawn for the screen's scale.
    const int side = m_text->fontMetrics().ascent();
    m_symbol->setFixedSize(side, side);
    m_symbol->setPixmap(
        Symbols::pixmap(m_symbolName, QSize(side, side), m_color, devicePixelRatioF()));
}
