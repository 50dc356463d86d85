#pragma once

#include <QWidget>

#include <functional>

class DisplaySettingsStore;
class KeyManager;
class LoginItem;
class QScrollArea;
class QTabWidget;
class SettingsStore;

// The settings window: five tabs (General, Appearance, Displays, Shortcuts, About), 500 pixels
// wide and at most 500 high with scrolling contents, kept above other windows. Every control
// writes its setting at once; there is no Apply step.
class SettingsView final : public QWidget {
    Q_OBJECT

public:
    enum Tab { general, appearance, displays, shortcuts, about };

    static constexpr int windowWidth = 500;
    static constexpr int maximumWindowHeight = 500;

    // `openPositionCustomizer` opens the drag-to-position overlay on the display of that id.
    SettingsView(SettingsStore &store, KeyManager &keyManager, DisplaySettingsStore &displayStore,
                 LoginItem &loginItem,
                 std::function<void(quint32 displayID)> openPositionCustomizer,
                 QWidget *parent = nullptr);

    // Replace the placeholders of the Appearance and Shortcuts tabs; the window takes ownership.
    void setAppearanceContent(QWidget *content);
    void setShortcutsContent(QWidget *content);

    // Shows the window (restored if minimised), brings it to the front and gives it the focus.
    void showAndRaise();

    QTabWidget *tabs() const { return m_tabs; }
    // The content of a tab (inside its scroll area).
    QWidget *content(Tab tab) const;

private:
    void addTab(QWidget *content, const QString &title, const QString &symbolName);
    void setContent(Tab tab, QWidget *content);

    QTabWidget *m_tabs;
    bool m_placed = false;
};
