#pragma once

#include <QObject>

#include <memory>

class CompositorWatcher;
class DisplaySettingsStore;
class KeyDisplayOverlayWindowFactory;
class KeyManager;
class KeyboardLayoutSource;
class SettingsStore;

// The running program: the settings, the display store, the key manager with its capture and
// the overlay windows. Needs a QApplication.
class VantrelApp final : public QObject {
    Q_OBJECT

public:
    explicit VantrelApp(SettingsStore &settings, QObject *parent = nullptr);
    ~VantrelApp() override;

    KeyManager &keyManager() const { return *m_keyManager; }

    // Stops the capture and closes the windows, then quits the event loop.
    void quit();

private:
    void reportListening(bool listening);

    SettingsStore &m_settings;
    std::shared_ptr<KeyboardLayoutSource> m_layoutSource;
    std::unique_ptr<CompositorWatcher> m_compositor;
    std::unique_ptr<KeyDisplayOverlayWindowFactory> m_windowFactory;
    std::unique_ptr<KeyManager> m_keyManager;
    bool m_quitting = false;
};
