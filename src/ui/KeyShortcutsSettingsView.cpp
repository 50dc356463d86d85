#include "ui/KeyShortcutsSettingsView.h"

#include "shortcuts/GlobalShortcutNames.h"
#include "shortcuts/KeyboardShortcuts.h"
#include "ui/KeyboardShortcutRecorder.h"
#include "ui/SettingsForm.h"

#include <QLabel>
#include <QVBoxLayout>

KeyShortcutsSettingsView::KeyShortcutsSettingsView(KeyboardShortcuts &shortcuts,
                                                   const QHash<QString, QString> &desktopCommands,
                                                   QWidget *parent)
    : QWidget(parent), m_shortcuts(shortcuts)
{
    auto *form = new SettingsForm;
    QGroupBox *section = form->addSection(tr("Global Shortcuts"));
    if (!desktopCommands.isEmpty()) {
        auto *note = new QLabel(
            tr("This desktop lets you bind keys to Vantrel's commands in its keyboard settings"));
        note->setWordWrap(true);
        form->addWidget(section, note);
    }
    for (const GlobalShortcutNames::Entry &entry : GlobalShortcutNames::all()) {
        if (!desktopCommands.isEmpty()) {
            // Selectable, so that the command can be copied into the desktop's settings.
            auto *command = new QLabel(desktopCommands.value(entry.name));
            command->setTextInteractionFlags(Qt::TextSelectableByMouse);
            form->addRow(section, GlobalShortcutNames::title(entry), QString(), command);
            continue;
        }
        auto *recorder = new KeyboardShortcutRecorder(shortcuts, entry.name);
        SettingsRow *row =
            form->addRow(section, GlobalShortcutNames::title(entry), QString(), recorder);
        // Why a combination was refused shows under the row's title until the next attempt.
        connect(recorder, &KeyboardShortcutRecorder::messageChanged, row,
                &SettingsRow::setDescription);
        row->setDescription(recorder->message());
    }
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(form);
}

KeyboardShortcutRecorder *KeyShortcutsSettingsView::recorder(const QString &name) const
{
    for (auto *recorder : findChildren<KeyboardShortcutRecorder *>())
        if (recorder->name() == name)
            return recorder;
    return nullptr;
}

void KeyShortcutsSettingsView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    // The program that held a combination may have let it go since.
    m_shortcuts.retryTakenGrabs();
}
