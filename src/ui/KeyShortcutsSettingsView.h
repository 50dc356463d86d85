#pragma once

#include <QWidget>

class KeyboardShortcutRecorder;
class KeyboardShortcuts;

// The Shortcuts tab: one "Global Shortcuts" section with a recorder for each of the five
// global shortcuts. Recording, changing and clearing take effect at once.
class KeyShortcutsSettingsView final : public QWidget {
    Q_OBJECT

public:
    explicit KeyShortcutsSettingsView(KeyboardShortcuts &shortcuts, QWidget *parent = nullptr);

    // The recorder of `name`, or null.
    KeyboardShortcutRecorder *recorder(const QString &name) const;

protected:
    void showEvent(QShowEvent *event) override;

private:
    KeyboardShortcuts &m_shortcuts;
};
