#pragma once

#include <QColor>
#include <QPointer>
#include <QPushButton>

#include <QColorDialog>

// A colour control: a button showing the colour as a swatch (over a checkerboard, so opacity
// shows). Pressing it opens a colour dialog with an opacity channel; every change in the dialog
// is reported at once, and cancelling the dialog reports the colour it started with again.
class ColorPickerButton final : public QPushButton {
    Q_OBJECT

public:
    explicit ColorPickerButton(QWidget *parent = nullptr);

    QColor color() const { return m_color; }
    // Shows `color`; reports nothing.
    void setColor(const QColor &color);

    // The open dialog, if any.
    QColorDialog *dialog() const { return m_dialog; }
    void openDialog();

    QSize sizeHint() const override;

signals:
    // The user changed the colour.
    void colorChanged(const QColor &color);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void pick(const QColor &color);

    QColor m_color;
    QPointer<QColorDialog> m_dialog;
};
