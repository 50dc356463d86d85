#pragma once

#include <QAbstractButton>

// The last tile of the style grid: a plus over "New Preset", which starts saving the current look
// as a new preset.
class AddPresetTile final : public QAbstractButton {
    Q_OBJECT

public:
    explicit AddPresetTile(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};
