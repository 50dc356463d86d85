#include "ui/SettingsForm.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPalette>
#include <QVBoxLayout>

namespace {

QVBoxLayout *sectionLayout(QGroupBox *section)
{
    return static_cast<QVBoxLayout *>(section->layout());
}

} // namespace

SettingsRow::SettingsRow(const QString &title, const QString &description, QWidget *control,
                         QWidget *parent)
    : QWidget(parent), m_title(new QLabel(title)), m_description(new QLabel), m_control(control)
{
    m_title->setWordWrap(true);
    m_description->setWordWrap(true);
    SettingsForm::makeCaption(m_description);

    auto *texts = new QVBoxLayout;
    texts->setSpacing(1);
    texts->addWidget(m_title);
    texts->addWidget(m_description);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 2, 0, 2);
    layout->addLayout(texts, 1);
    if (m_control)
        layout->addWidget(m_control, 0, Qt::AlignRight | Qt::AlignVCenter);
    setDescription(description);
}

void SettingsRow::setDescription(const QString &description)
{
    m_description->setText(description);
    m_description->setVisible(!description.isEmpty());
}

SettingsForm::SettingsForm(QWidget *parent) : QWidget(parent), m_sections(new QVBoxLayout(this))
{
    m_sections->setContentsMargins(12, 12, 12, 12);
    m_sections->setSpacing(12);
    m_sections->addStretch(1);
}

QGroupBox *SettingsForm::addSection(const QString &title)
{
    auto *section = new QGroupBox(title);
    auto *layout = new QVBoxLayout(section);
    layout->setSpacing(6);
    // Before the closing stretch, so sections stay at the top.
    m_sections->insertWidget(m_sections->count() - 1, section);
    return section;
}

SettingsRow *SettingsForm::addRow(QGroupBox *section, const QString &title,
                                  const QString &description, QWidget *control)
{
    auto *row = new SettingsRow(title, description, control);
    sectionLayout(section)->addWidget(row);
    return row;
}

void SettingsForm::addWidget(QGroupBox *section, QWidget *widget)
{
    sectionLayout(section)->addWidget(widget);
}

void SettingsForm::addTrailingWidgets(QGroupBox *section, const QList<QWidget *> &widgets)
{
    auto *line = new QHBoxLayout;
    line->addStretch(1);
    for (QWidget *widget : widgets)
        line->addWidget(widget);
    sectionLayout(section)->addLayout(line);
}

void SettingsForm::addTrailingWidgets(const QList<QWidget *> &widgets)
{
    auto *line = new QHBoxLayout;
    line->addStretch(1);
    for (QWidget *widget : widgets)
        line->addWidget(widget);
    m_sections->insertLayout(m_sections->count() - 1, line);
}

void SettingsForm::makeCaption(QLabel *label)
{
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * 0.85);
    label->setFont(font);
    // The secondary text colour: the palette's placeholder text, readable in light and dark.
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, palette.color(QPalette::PlaceholderText));
    label->setPalette(palette);
}
