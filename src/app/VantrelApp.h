#pragma once

#include <QObject>

#include <memory>
#include <vector>

class AppActions;
class AppDelegate;
class CompositorWatcher;
class KeyDisplayOverlayWindowFactory;
class KeyManager;
class KeyboardLayoutSource;
class KeyboardShortcuts;
class LaunchAtLogin;
class PositionCustomizerWindowController;
class RemoteControl;
class SecrecyWatcher;
class SettingsStore;
class SettingsView;
class TrayMenu;

// The running program: the update checks, the key manager with its capture and overlay windows,
// the shared actions, the tray menu and the remote control. Needs a QApplication.
class VantrelApp final : public QObject {
    Q_OBJECT

public:
    // The program's entry: answers the command line, hands remote calls to a running instance,
    // or runs Vantrel until it quits. Returns the process's exit code.
    static int main(int argc, char *argv[]);

    // `remoteControl`: offer the actions on the session bus (this process owns the name).
    explicit VantrelApp(SettingsStore &settings, bool remoteControl = false,
                        QObject *parent = nullptr);
    ~VantrelApp() override;

    KeyManager &keyManager() const { return *m_keyManager; }
    AppActions &actions() const { return *m_actions; }
    TrayMenu &trayMenu() const { return *m_trayMenu; }
    AppDelegate &appDelegate() const { return *m_appDelegate; }
    KeyboardShortcuts &shortcuts() const { return *m_shortcuts; }
    // The settings window once it was opened, else null.
    SettingsView *settingsView() const { return m_settingsView.get(); }

    // Opens the settings window, or brings it forward.
    void showSettings();
    // Stops the capture and closes the windows, then quits the event loop. Nothing is saved:
    // every setting was written when it changed.
    void quit();

private:
    void registerGlobalShortcuts();
    // The tray rows of the five actions show the shortcut recorded for each.
    void showShortcutInMenu(const QString &name);
    void watchForTrayHost();
    void reportListening(bool listening);

    SettingsStore &m_settings;
    std::unique_ptr<AppDelegate> m_appDelegate;
    std::shared_ptr<KeyboardLayoutSource> m_layoutSource;
    std::unique_ptr<CompositorWatcher> m_compositor;
    std::unique_ptr<KeyDisplayOverlayWindowFactory> m_windowFactory;
    std::unique_ptr<KeyManager> m_keyManager;
    // They report to the key manager's secrecy, so they go before it.
    std::vector<std::unique_ptr<SecrecyWatcher>> m_secrecyWatchers;
    std::unique_ptr<PositionCustomizerWindowController> m_positionCustomizer;
    std::unique_ptr<LaunchAtLogin> m_launchAtLogin;
    std::unique_ptr<AppActions> m_actions;
    std::unique_ptr<KeyboardShortcuts> m_shortcuts;
    std::unique_ptr<SettingsView> m_settingsView;
    std::unique_ptr<TrayMenu> m_trayMenu;
    std::unique_ptr<RemoteControl> m_remoteControl;
    // Without them the Shortcuts tab shows the commands to bind in the desktop's settings.
    bool m_globalGrabsAvailable = false;
    bool m_quitting = false;
};
