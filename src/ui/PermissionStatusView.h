#pragma once

#include <QColor>
#include <QString>
#include <QWidget>

class QLabel;

// Whether Vantrel may read the keyboard, at the trailing edge of the Input Monitoring row: a
// symbol in the state's colour, then its text, 4 pixels apart.
class PermissionStatusView final : public QWidget {
    Q_OBJECT

public:
    explicit PermissionStatusView(QWidget *parent = nullptr);

    void setGranted(bool granted);
    QString text() const;
    QString symbolName() const { return m_symbolName; }

private:
    void showSymbol();

    QLabel *m_symbol;
    QLabel *m_text;
    QString m_symbolName;
    QColor m_color;
};
