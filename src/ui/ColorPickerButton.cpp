#include "ui/ColorPickerButton.h"

#include <QColorDialog>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionButton>
#include <QStylePainter>

ColorPickerButton::ColorPickerButton(QWidget *parent) : QPushButton(parent)
{
    setAutoDefault(false);
    connect(this, &QPushButton::clicked, this, &ColorPickerButton::openDialog);
}

void ColorPickerButton::setColor(const QColor &color)
{
    if (m_color == color)
        return;
    m_color = color;
    update();
}

void ColorPickerButton::pick(const QColor &color)
{
    if (m_color == color)
        return;
    m_color = color;
    update();
    emit colorChanged(color);
}

void ColorPickerButton::openDialog()
{
    if (m_dialog) {
        m_dialog->raise();
        m_dialog->activateWindow();
        return;
    }
    // Qt's own dialog: platform dialogs do not all report changes while the user picks.
    m_dialog = new QColorDialog(m_color, window());
    m_dialog->setOptions(QColorDialog::ShowAlphaChannel | QColorDialog::DontUseNativeDialog);
    m_dialog->setAttribute(Qt::WA_DeleteOnClose);
    if (!accessibleName().isEmpty())
        m_dialog->setWindowTitle(accessibleName());
    const QColor initial = m_color;
    connect(m_dialog, &QColorDialog::currentColorChanged, this, &ColorPickerButton::pick);
    connect(m_dialog, &QColorDialog::colorSelected, this, &ColorPickerButton::pick);
    connect(m_dialog, &QDialog::rejected, this, [this, initial] { pick(initial); });
    m_dialog->open();
}

QSize ColorPickerButton::sizeHint() const
{
    return {48, QPushButton::sizeHint().height()};
}

void ColorPickerButton::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    painter.drawControl(QStyle::CE_PushButtonBevel, option);

    const QRectF swatch = QRectF(rect()).adjusted(7.5, 6.5, -7.5, -6.5);
    QPainterPath shape;
    shape.addRoundedRect(swatch, 3, 3);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.save();
    painter.setClipPath(shape);
    // A checkerboard under the colour, so that a transparent colour reads as such.
    constexpr int cell = 5;
    painter.fillRect(swatch, Qt::white);
    for (int y = 0; y * cell < swatch.height(); ++y)
        for (int x = 0; x * cell < swatch.width(); ++x)
            if ((x + y) % 2)
                painter.fillRect(
                    QRectF(swatch.left() + x * cell, swatch.top() + y * cell, cell, cell),
                    QColor(204, 204, 204));
    painter.fillRect(swatch, m_color);
    painter.restore();
    painter.setPen(QPen(palette().color(QPalette::Mid), 1.0));
    painter.drawPath(shape);
}
