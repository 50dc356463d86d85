#pragma once

#include "capture/KeyDisplayWindow.h"
#include "overlay/KeyDisplayOverlayWindow.h"
#include "overlay/KeyDisplaySurfaceOverlay.h"

class CompositorWatcher;
class DisplaySettingsStore;
class KeyManager;
class SettingsStore;

// Makes KeyDisplayOverlayWindow windows (or, where the compositor gives overlays surfaces of
// their own, KeyDisplaySurfaceOverlay overlays) bound to the program's key manager and stores.
class KeyDisplayOverlayWindowFactory final : public KeyDisplayWindowFactory {
public:
    KeyDisplayOverlayWindowFactory(DisplaySettingsStore &displayStore, SettingsStore &settings,
                                   CompositorWatcher *compositor);

    // The manager whose keys the windows show; set before the first window is made.
    void setKeyManager(KeyManager *keyManager) { m_keyManager = keyManager; }
    // Where the platform draws overlays itself; without one the windows paint with QPainter.
    void setRendererFactory(KeyDisplayOverlayWindow::RendererFactory factory)
    {
        m_makeRenderer = std::move(factory);
    }
    // Where the compositor gives each overlay a surface of its own: no windows are made.
    void setSurfaceRendererFactory(KeyDisplaySurfaceOverlay::RendererFactory factory)
    {
        m_makeSurfaceRenderer = std::move(factory);
    }

    std::unique_ptr<KeyDisplayWindow> createWindow(quint32 displayID,
                                                   const QRect &screenFrame) override;

private:
    KeyManager *m_keyManager = nullptr;
    DisplaySettingsStore &m_displayStore;
    SettingsStore &m_settings;
    CompositorWatcher *m_compositor;
    KeyDisplayOverlayWindow::RendererFactory m_makeRenderer;
    KeyDisplaySurfaceOverlay::RendererFactory m_makeSurfaceRenderer;
};
