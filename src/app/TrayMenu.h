#pragma once

#include <QHash>
#include <QIcon>
#include <QObject>
#include <QPointer>
#include <QString>

#include <memory>

class AppActions;
class PaletteWatcher;
class QAction;
class QMenu;
class QPalette;
class QSystemTrayIcon;
class SettingsStore;

// Vantrel's permanent user interface: the tray icon and its menu of eighteen rows. The icon
// follows the `menuBarIcon` setting and the application palette (light or dark theme), the first
// row the master switch, all live.
class TrayMenu final : public QObject {
    Q_OBJECT

public:
    TrayMenu(SettingsStore &settings, AppActions &actions, QObject *parent = nullptr);
    ~TrayMenu() override;

    QMenu &menu() const { return *m_menu; }
    QSystemTrayIcon &trayIcon() const { return *m_trayIcon; }

    // The row of a global shortcut's action ("toggleVantrel", "increaseKeySize",
    // "decreaseKeySize", "openPositionCustomizer", "toggleMouseClicks"), so that it can show the
    // recorded shortcut; null for other names.
    QAction *action(const QString &shortcutName) const;

    // The tray icon for a `menuBarIcon` name, tinted to stand out from `palette`'s window colour.
    // An unknown name gives the default icon.
    static QIcon iconForName(const QString &name, const QPalette &palette);

signals:
    void settingsRequested();
    void updateCheckRequested();
    void quitRequested();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildMenu();
    void updateToggleTitle();
    void updateIcon();

    SettingsStore &m_settings;
    AppActions &m_actions;
    std::unique_ptr<QMenu> m_menu;
    std::unique_ptr<QSystemTrayIcon> m_trayIcon;
    std::unique_ptr<PaletteWatcher> m_paletteWatcher;
    QHash<QString, QAction *> m_shortcutActions;
    // The row whose shortcut is down while the menu is open; it runs on the key's release.
    QPointer<QAction> m_heldRow;
};
