#include "ui/KeyShortcutsSettingsView.h"

#include "shortcuts/GlobalShortcutNames.h"
#include "ui/KeyboardShortcutRecorder.h"
#include "ui/SettingsForm.h"

#include <QVBoxLayout>

KeyShortcutsSettingsView::KeyShortcutsSettingsView(KeyboardShortcuts &shortcuts, QWidget *parent)
    : QWidget(parent)
{
    auto *form = new SettingsForm;
    QGroupBox *section = form->addSection(QStringLiteral("Global Shortcuts"));
    for (const GlobalShortcutNames::Entry &entry : GlobalShortcutNames::all()) {
        auto *recorder = new KeyboardShortcutRecorder(shortcuts, entry.name);
        SettingsRow *row = form->addRow(section, entry.title, QString(), recorder);
        // Why a combination was refused shows under the row's title until the next attempt.
        connect(recorder, &KeyboardShortcutRecorder::messageChanged, row,
                &SettingsRow::setDescription);
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
