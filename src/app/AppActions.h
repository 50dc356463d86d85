#pragma once

#include <QtGlobal>

#include <functional>

class KeyManager;
class ScreenList;
class SettingsStore;

// The five actions that the tray menu, the remote control and the global shortcuts share, so
// that every way in runs the same code. Main thread only.
class AppActions final {
public:
    using PositionCustomizerOpener = std::function<void(quint32 displayID)>;

    // `openCustomizer` shows the drag-to-position overlay on a display; empty does nothing.
    AppActions(SettingsStore &settings, KeyManager &keyManager, const ScreenList &screens,
               PositionCustomizerOpener openCustomizer = {});

    // Inverts the master switch, then starts or stops listening as the stored value now says.
    void toggleVantrel();
    // One step of 0.1 towards 3.0 (up) or 1.0 (down), unrounded; nothing at or past the bound.
    void increaseKeySize();
    void decreaseKeySize();
    // On the main screen: the one under the mouse pointer, else the primary; none, nothing.
    void openPositionCustomizer();
    void toggleMouseClicks();

    void setPositionCustomizerOpener(PositionCustomizerOpener openCustomizer);

private:
    SettingsStore &m_settings;
    KeyManager &m_keyManager;
    const ScreenList &m_screens;
    PositionCustomizerOpener m_openCustomizer;
};
