#include "ui/SavePresetDialog.h"

#include "settings/StylePresetActions.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

SavePresetDialog::SavePresetDialog(QWidget *parent)
    : QDialog(parent), m_name(new QLineEdit), m_cancel(new QPushButton(tr("Cancel"))),
      m_save(new QPushButton(tr("Save")))
{
    setWindowTitle(tr("Save Preset"));
    auto *heading = new QLabel(tr("Save Preset"));
    QFont headingFont = heading->font();
    headingFont.setBold(true);
    headingFont.setPointSizeF(headingFont.pointSizeF() * 1.15);
    heading->setFont(headingFont);

    m_name->setPlaceholderText(tr("Preset Name"));
    // Return in the field presses the default button, so it saves exactly once.
    m_save->setDefault(true);
    m_cancel->setAutoDefault(false);

    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(m_cancel);
    buttons->addWidget(m_save);

    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(16);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->addWidget(heading);
    layout->addWidget(m_name);
    layout->addLayout(buttons);
    setFixedWidth(300);

    connect(m_name, &QLineEdit::textChanged, this, &SavePresetDialog::limitName);
    connect(m_cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_save, &QPushButton::clicked, this, &SavePresetDialog::saveRequested);
}

QString SavePresetDialog::name() const
{
    return m_name->text();
}

void SavePresetDialog::limitName()
{
    const QString text = m_name->text();
    const QString limited = StylePresetActions::limitNameLength(text);
    if (limited != text) {
        // Setting the text calls this again, with a name that is short enough.
        m_name->setText(limited);
        return;
    }
    emit nameChanged(text);
}
