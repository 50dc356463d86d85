#pragma once

#include <QHash>
#include <QString>
#include <QWidget>

class KeyboardShortcutRecorder;
class KeyboardShortcuts;

// The Shortcuts tab: one "Global Shortcuts" section with a recorder for each of the five
// global shortcuts. Recording, changing and clearing take effect at once. Where the desktop lets
// no program grab keys, the section shows instead the command of each shortcut, to be bound in
// the desktop's own keyboard settings.
class KeyShortcutsSettingsView final : public QWidget {
    Q_OBJECT

public:
    // `desktopCommands`: the command line of each shortcut name, given when no global grabs are
    // available; empty: the recorders.
    explicit KeyShortcutsSettingsView(KeyboardShortcuts &shortcuts,
                                      const QHash<QString, QString> &desktopCommands = {},
                                      QWidget *parent = nullptr);

    // The recorder of `name`, or null.
    KeyboardShortcutRecorder *recorder(const QString &name) const;

protected:
    void showEvent(QShowEvent *event) override;

private:
    KeyboardShortcuts &m_shortcuts;
};
