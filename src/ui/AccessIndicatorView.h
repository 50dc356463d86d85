#pragma once

#include <QColor>
#include <QString>
#include <QWidget>

class QLabel;

// A small status badge: a text followed by a 12x12 symbol, both in one colour, on a rounded
// rectangle filled with that colour faintly and outlined a little stronger.
class AccessIndicatorView final : public QWidget {
    Q_OBJECT

public:
    AccessIndicatorView(const QString &text, const QString &symbolName, const QColor &color,
                        QWidget *parent = nullptr);

    void setState(const QString &text, const QString &symbolName, const QColor &color);
    QString text() const;
    QString symbolName() const { return m_symbolName; }
    QColor color() const { return m_color; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QLabel *m_text;
    // Holds the symbol's place; the symbol is painted there at the screen's own scale.
    QWidget *m_symbol;
    QString m_symbolName;
    QColor m_color;
};
