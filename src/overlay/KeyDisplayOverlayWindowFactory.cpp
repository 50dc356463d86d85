#include "overlay/KeyDisplayOverlayWindowFactory.h"

#include "overlay/KeyDisplayOverlayWindow.h"

KeyDisplayOverlayWindowFactory::KeyDisplayOverlayWindowFactory(DisplaySettingsStore &displayStore,
                                                               SettingsStore &settings,
                                                               CompositorWatcher *compositor)
    : m_displayStore(displayStore), m_settings(settings), m_compositor(compositor)
{}

std::unique_ptr<KeyDisplayWindow>
KeyDisplayOverlayWindowFactory::createWindow(quint32 displayID, const QRect &screenFrame)
{
    Q_ASSERT(m_keyManager);
    if (m_makeSurfaceRenderer)
        return std::make_unique<KeyDisplaySurfaceOverlay>(displayID, *m_keyManager, m_displayStore,
                                                          m_settings, m_makeSurfaceRenderer);
    auto window = std::make_unique<KeyDisplayOverlayWindow>(
        displayID, *m_keyManager, m_displayStore, m_settings, m_compositor, m_makeRenderer);
    window->setGeometry(screenFrame);
    return window;
}
