#include "ui/InputMonitoringSheet.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

InputMonitoringSheet::InputMonitoringSheet(const QStringList &steps, bool canAllow, QWidget *parent)
    : QDialog(parent), m_steps(new QLabel(numberedSteps(steps))), m_problem(new QLabel),
      m_protections(new QLabel)
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

    auto *privacy = new QLabel(tr("Privacy"));
    QFont privacyFont = privacy->font();
    privacyFont.setBold(true);
    privacy->setFont(privacyFont);
    m_protections->setObjectName(QStringLiteral("protections"));
    m_protections->setWordWrap(true);
    m_protections->setTextFormat(Qt::RichText);
    auto *limit = new QLabel(
        tr("Not covered: a password typed into a terminal (sudo, ssh) has no field to recognise, "
           "so it shows like any other typing."));
    limit->setWordWrap(true);

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
    layout->addWidget(privacy);
    layout->addWidget(m_protections);
    layout->addWidget(limit);
    layout->addSpacing(4);
    layout->addWidget(buttons);
    setMinimumWidth(440);
}

void InputMonitoringSheet::setProblem(const QString &problem)
{
    m_problem->setText(problem);
    m_problem->setVisible(!problem.isEmpty());
}

void InputMonitoringSheet::setProtections(const QList<Secrecy::ProtectionStatus> &protections)
{
    QStringList lines;
    for (const Secrecy::ProtectionStatus &status : protections) {
        // The whole heading is one text, so that a language can place "on" after its own word.
        const QString heading = status.isOn ? tr("%1: on.") : tr("%1: off.");
        lines.append(QStringLiteral("<p style=\"margin-bottom:6px\"><b>%1</b> %2</p>")
                         .arg(heading.arg(Secrecy::title(status.protection)).toHtmlEscaped(),
                              status.detail.toHtmlEscaped()));
    }
    if (lines.isEmpty())
        lines.append(tr("Keys are not hidden anywhere: no protection is running."));
    m_protections->setText(lines.join(QString()));
}

QString InputMonitoringSheet::numberedSteps(const QStringList &steps)
{
    QStringList lines;
    for (qsizetype i = 0; i < steps.size(); ++i)
        lines.append(QStringLiteral("%1. %2").arg(i + 1).arg(steps.at(i)));
    return lines.join(QLatin1Char('\n'));
}
