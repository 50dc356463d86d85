#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

// The instructions card of the position customizer: the "hand.draw" symbol, the title, one line
// of instructions and the "Hide" and "Done" buttons. Clicks outside the buttons pass through to
// the overlay below (they save and close it, as a click anywhere does).
class PositionCustomizerHeader final : public QWidget {
    Q_OBJECT

public:
    explicit PositionCustomizerHeader(QWidget *parent = nullptr);

    QPushButton *hideButton() const { return m_hideButton; }
    QPushButton *doneButton() const { return m_doneButton; }
    QLabel *titleLabel() const { return m_title; }
    QLabel *textLabel() const { return m_text; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void applyColors();

    QLabel *m_symbol;
    QLabel *m_title;
    QLabel *m_text;
    QPushButton *m_hideButton;
    QPushButton *m_doneButton;
};
