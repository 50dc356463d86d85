#include "ui/InputMonitoringSheet.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

InputMonitoringSheet::InputMonitoringSheet(const QStringList &steps, bool canAllow, QWidget *parent)
    : QDialog(parent), m_steps(new QLabel(numberedSteps(steps))), m_problem(new QLabel)
{
    setWindowTitle(tr("Input Monitoring"));
    setModal(true);

    auto *heading = new QLabel(tr("Enable Input Monitoring"));
    QFont font = heading->font();
    font.setPointSizeF(font.pointSizeF() * 1.25);
    font.setBold(true);
    heading->setFont(font);

    m_steps->setWordWrap(true);
    m_steps->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_problem->setObjectName(QStringLiteral("problem"));
    m_problem->setWordWrap(true);
    m_problem->hide();

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    auto *checkAgain = new QPushButton(tr("Check Again"));
    checkAgain->setDefault(true);
    buttons->addButton(checkAgain, QDialogButtonBox::ActionRole);
    connect(checkAgain, &QPushButton::clicked, this, &InputMonitoringSheet::checkAgainRequested);
    if (canAllow) {
        auto *allow = new QPushButton(tr("Allow"));
        allow->setObjectName(QStringLiteral("allow"));
        buttons->addButton(allow, QDialogButtonBox::ActionRole);
        connect(allow, &QPushButton::clicked, this, &InputMonitoringSheet::allowRequested);
    }
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 20, 20, 16);
    layout->setSpacing(12);
    layout->addWidget(heading);
    layout->addWidget(m_steps);
    layout->addWidget(m_problem);
    layout->addSpacing(4);
    layout->addWidget(buttons);
    setMinimumWidth(380);
}

void InputMonitoringSheet::setProblem(const QString &problem)
{
    m_problem->setText(problem);
    m_problem->setVisible(!problem.isEmpty());
}

QString InputMonitoringSheet::numberedSteps(const QStringList &steps)
{
    QStringList lines;
    for (qsizetype i = 0; i < steps.size(); ++i)
        lines.append(QStringLiteral("%1. %2").arg(i + 1).arg(steps.at(i)));
    return lines.join(QLatin1Char('\n'));
}
