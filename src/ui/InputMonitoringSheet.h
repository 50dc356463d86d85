#pragma once

#include "capture/Secrecy.h"

#include <QDialog>
#include <QList>
#include <QStringList>

class QLabel;

// How to give Vantrel access to the keyboard: a heading, the capture backend's numbered steps, a
// button that checks access again and, where Vantrel can ask for access itself, one that does.
// Below them, which privacy protections are on and which are off, and what none can cover.
// A modal dialog of the settings window.
class InputMonitoringSheet final : public QDialog {
    Q_OBJECT

public:
    InputMonitoringSheet(const QStringList &steps, bool canAllow = false,
                         QWidget *parent = nullptr);

    // The steps as shown: "1. ..." on the first line, "2. ..." on the next.
    static QString numberedSteps(const QStringList &steps);
    QLabel *stepsLabel() const { return m_steps; }
    // Why Vantrel cannot read the keyboard now; empty hides the line.
    void setProblem(const QString &problem);
    QLabel *problemLabel() const { return m_problem; }
    // One line per protection: its name, on or off, and what it follows or why it is off.
    void setProtections(const QList<Secrecy::ProtectionStatus> &protections);
    QLabel *protectionsLabel() const { return m_protections; }

signals:
    void checkAgainRequested();
    // The user chose "Allow": ask for access (the desktop's password dialog).
    void allowRequested();

private:
    QLabel *m_steps;
    QLabel *m_problem;
    QLabel *m_protections;
};
