#pragma once

#include <QDialog>
#include <QStringList>

class QLabel;

// How to give Vantrel access to the keyboard: a heading, the capture backend's numbered steps and
// a button that checks access again. A modal dialog of the settings window.
class InputMonitoringSheet final : public QDialog {
    Q_OBJECT

public:
    InputMonitoringSheet(const QStringList &steps, QWidget *parent = nullptr);

    // The steps as shown: "1. ..." on the first line, "2. ..." on the next.
    static QString numberedSteps(const QStringList &steps);
    QLabel *stepsLabel() const { return m_steps; }

signals:
    void checkAgainRequested();

private:
    QLabel *m_steps;
};
