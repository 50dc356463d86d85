#include "ui/KeyStylePreview.h"

#include "overlay/Color.h"
#include "overlay/KeyCapsuleView.h"
#include "settings/KeyStylePreset.h"
#include "ui/Symbols.h"

#include <QEnterEvent>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolButton>

namespace {
constexpr int tileRadius = 8;
constexpr int capAreaHeight = 60;
constexpr int padding = 4;
constexpr int removeButtonSide = 18;
constexpr int removeSymbolSide = 12;
// The sample key's label: a letter shows the look's font as well as its colours.
const QString sampleKey = QStringLiteral("A");

QColor colorOr(const QString &stored, const QString &styleColor)
{
    return Color::fromRGBAString(stored.isEmpty() ? styleColor : stored).toQColor();
}
} // namespace

KeyStylePreview::KeyStylePreview(const QString &label, const AppearanceSettingsSnapshot &snapshot,
                                 AppSettings::KeyStyle fallbackStyle, double keySize,
                                 QWidget *parent)
    : QAbstractButton(parent), m_label(label), m_snapshot(snapshot), m_fallbackStyle(fallbackStyle),
      m_keySize(keySize)
{
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::StrongFocus);
    setText(label);
    setAccessibleName(label);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void KeyStylePreview::setSelected(bool selected)
{
    if (m_isSelected == selected)
        return;
    m_isSelected = selected;
    update();
}

void KeyStylePreview::setFallbackStyle(AppSettings::KeyStyle style)
{
    if (m_fallbackStyle == style)
        return;
    m_fallbackStyle = style;
    update();
}

void KeyStylePreview::setRemovable(bool removable)
{
    if (removable == (m_removeButton != nullptr))
        return;
    if (!removable) {
        delete m_removeButton;
        m_removeButton = nullptr;
        return;
    }
    m_removeButton = new QToolButton(this);
    m_removeButton->setAutoRaise(true);
    m_removeButton->setFocusPolicy(Qt::NoFocus);
    m_removeButton->setFixedSize(removeButtonSide, removeButtonSide);
    m_removeButton->setIconSize(QSize(removeSymbolSide, removeSymbolSide));
    const QIcon trash = Symbols::icon(QStringLiteral("trash.fill"), QColor(Qt::red));
    if (trash.isNull())
        m_removeButton->setText(QStringLiteral("×"));
    else
        m_removeButton->setIcon(trash);
    m_removeButton->setToolTip(tr("Delete"));
    m_removeButton->setAccessibleName(tr("Delete"));
    m_removeButton->setVisible(m_isHovered);
    connect(m_removeButton, &QToolButton::clicked, this, &KeyStylePreview::removeRequested);
    placeRemoveButton();
}

KeyAppearanceSnapshot KeyStylePreview::appearanceFor(const AppearanceSettingsSnapshot &look,
                                                     AppSettings::KeyStyle fallbackStyle,
                                                     double keySize, const QString &text)
{
    const KeyStylePreset style = AppSettings::getStylePreset(fallbackStyle);
    KeyAppearanceSnapshot s;
    s.text = text;
    s.fontName = look.keyFont;
    s.sizeMultiplier = keySize;
    s.textColor = colorOr(look.keyTextColor, style.textColor);
    s.backgroundColor = colorOr(look.keyBackgroundColor, style.backgroundColor);
    s.borderColor = colorOr(look.keyBorderColor, style.borderColor);
    // A zero width means the style's width, as on the overlay.
    s.borderWidth = look.keyBorderWidth != 0.0 ? look.keyBorderWidth : style.borderWidth;
    s.cornerRadius = look.keyCornerRadius;
    s.shadowEnabled = look.keyShadowEnabled;
    s.shadowColor = colorOr(look.keyShadowColor, style.shadowColor);
    s.shadowRadius = s.shadowEnabled ? look.keyShadowRadius : 0.0;
    s.shadowYOffset = 2.0;
    s.glowEnabled = look.keyGlowEnabled;
    s.glowColor = colorOr(look.keyGlowColor, style.glowColor);
    s.glowRadius = s.glowEnabled ? look.keyGlowRadius : 0.0;
    s.glowLineWidth = s.glowEnabled ? 2.0 : 0.0;
    s.glowOpacity = s.glowEnabled ? 0.6 : 0.0;
    return s;
}

QFont KeyStylePreview::captionFont() const
{
    QFont caption = font();
    caption.setPointSizeF(caption.pointSizeF() * 0.85);
    return caption;
}

QSize KeyStylePreview::sizeHint() const
{
    return {84, padding + capAreaHeight + QFontMetrics(captionFont()).height() + 2 * padding};
}

QSize KeyStylePreview::minimumSizeHint() const
{
    // Grid columns may shrink to 10 pixels; the tile keeps its height.
    return {10, sizeHint().height()};
}

void KeyStylePreview::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF tile = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    QPainterPath outline;
    outline.addRoundedRect(tile, tileRadius, tileRadius);

    const QColor accent = palette().color(QPalette::Highlight);
    QColor fill = palette().color(QPalette::Text);
    fill.setAlphaF(m_isHovered || isDown() ? 0.09f : 0.05f);
    if (m_isSelected) {
        fill = accent;
        fill.setAlphaF(0.22f);
    }
    painter.fillPath(outline, fill);
    if (m_isSelected || hasFocus()) {
        painter.setPen(QPen(accent, m_isSelected ? 1.5 : 1.0));
        painter.drawPath(outline);
    }

    // Shadows and glows stay inside the tile.
    painter.save();
    painter.setClipPath(outline);
    const KeyAppearanceSnapshot look =
        appearanceFor(m_snapshot, m_fallbackStyle, m_keySize, sampleKey);
    const KeyCapsuleView cap(look);
    const QRectF capArea(tile.left(), tile.top() + padding, tile.width(), capAreaHeight);
    const QSizeF capSize = cap.size();
    const QPointF topLeft(std::round(capArea.center().x() - capSize.width() / 2.0),
                          std::round(capArea.center().y() - capSize.height() / 2.0));
    cap.paint(painter, QRectF(topLeft, capSize), nullptr, m_snapshot.keyOpacity);
    painter.restore();

    painter.setFont(captionFont());
    painter.setPen(
        palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    const QRectF labelRect(tile.left() + padding, capArea.bottom(), tile.width() - 2 * padding,
                           tile.bottom() - capArea.bottom() - padding);
    const QString shown =
        painter.fontMetrics().elidedText(m_label, Qt::ElideRight, int(labelRect.width()));
    painter.drawText(labelRect, Qt::AlignHCenter | Qt::AlignVCenter, shown);
}

void KeyStylePreview::enterEvent(QEnterEvent *event)
{
    QAbstractButton::enterEvent(event);
    setHovered(true);
}

void KeyStylePreview::leaveEvent(QEvent *event)
{
    QAbstractButton::leaveEvent(event);
    setHovered(false);
}

void KeyStylePreview::setHovered(bool hovered)
{
    if (m_isHovered == hovered)
        return;
    m_isHovered = hovered;
    if (m_removeButton)
        m_removeButton->setVisible(hovered);
    update();
    emit hoverChanged(hovered);
}

void KeyStylePreview::resizeEvent(QResizeEvent *event)
{
    QAbstractButton::resizeEvent(event);
    placeRemoveButton();
}

void KeyStylePreview::keyPressEvent(QKeyEvent *event)
{
    if (m_removeButton && (event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace)) {
        emit removeRequested();
        return;
    }
    QAbstractButton::keyPressEvent(event);
}

void KeyStylePreview::changeEvent(QEvent *event)
{
    QAbstractButton::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        placeRemoveButton();
}

void KeyStylePreview::placeRemoveButton()
{
    if (!m_removeButton)
        return;
    // The top trailing corner: right in left-to-right layouts, left otherwise.
    const int x = layoutDirection() == Qt::RightToLeft ? 2 : width() - removeButtonSide - 2;
    m_removeButton->move(x, 2);
}
