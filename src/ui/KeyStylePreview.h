#pragma once

#include "overlay/KeyAppearanceSnapshot.h"
#include "settings/AppSettings.h"
#include "settings/AppearanceSettingsSnapshot.h"

#include <QAbstractButton>
#include <QString>

class QToolButton;

// One tile of the style grid: a sample key drawn with the real key cap in the tile's look, the
// look's name beneath, and a background tinted with the accent colour while it is the look in
// use. A tile of a saved preset can be removable: a small red trash button then shows at its top
// trailing corner while the pointer is over it (Delete does the same from the keyboard).
class KeyStylePreview final : public QAbstractButton {
    Q_OBJECT

public:
    // `fallbackStyle` supplies what the look leaves open (empty colours, a zero border width),
    // as the overlay does with the chosen built-in style.
    KeyStylePreview(const QString &label, const AppearanceSettingsSnapshot &snapshot,
                    AppSettings::KeyStyle fallbackStyle, double keySize, QWidget *parent = nullptr);

    QString label() const { return m_label; }
    const AppearanceSettingsSnapshot &snapshot() const { return m_snapshot; }
    bool isSelected() const { return m_isSelected; }
    void setSelected(bool selected);
    void setFallbackStyle(AppSettings::KeyStyle style);

    void setRemovable(bool removable);
    QToolButton *removeButton() const { return m_removeButton; }

    // How the sample key of `look` is drawn: the overlay's resolution rules applied to a look.
    static KeyAppearanceSnapshot appearanceFor(const AppearanceSettingsSnapshot &look,
                                               AppSettings::KeyStyle fallbackStyle, double keySize,
                                               const QString &text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void hoverChanged(bool hovered);
    void removeRequested();

protected:
    void paintEvent(QPaintEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void placeRemoveButton();
    void setHovered(bool hovered);
    QFont captionFont() const;

    QString m_label;
    AppearanceSettingsSnapshot m_snapshot;
    AppSettings::KeyStyle m_fallbackStyle;
    double m_keySize;
    bool m_isSelected = false;
    bool m_isHovered = false;
    QToolButton *m_removeButton = nullptr;
};
