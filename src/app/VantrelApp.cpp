#include "app/VantrelApp.h"

#include "capture/CaptureBackend.h"
#include "capture/CompositorWatcher.h"
#include "capture/KeyManager.h"
#include "capture/KeyboardLayoutTranslator.h"
#include "overlay/KeyDisplayOverlayWindowFactory.h"
#include "platform/Platform.h"
#include "settings/AppSettings.h"
#include "settings/DisplaySettingsStore.h"
#include "settings/SettingsStore.h"

#include <QCoreApplication>
#include <QTimer>

#include <cstdio>

VantrelApp::VantrelApp(SettingsStore &settings, QObject *parent)
    : QObject(parent), m_settings(settings)
{
    m_layoutSource = Platform::createKeyboardLayoutSource(this);
    KeyboardLayoutTranslator::installSharedSource(m_layoutSource);
    m_compositor = Platform::createCompositorWatcher();

    DisplaySettingsStore &displayStore = DisplaySettingsStore::shared();
    m_windowFactory = std::make_unique<KeyDisplayOverlayWindowFactory>(displayStore, settings,
                                                                       m_compositor.get());
    m_keyManager = std::make_unique<KeyManager>(
        settings, Platform::createCaptureBackend(m_layoutSource),
        KeyboardLayoutTranslator::shared(), &displayStore, m_windowFactory.get());
    m_windowFactory->setKeyManager(m_keyManager.get());

    connect(m_keyManager.get(), &KeyManager::isListeningChanged, this,
            &VantrelApp::reportListening);
    if (!m_keyManager->hasInputMonitoringPermission())
        std::fprintf(stderr, "vantrel: cannot listen to the keyboard: %s\n",
                     qPrintable(m_keyManager->inputMonitoringProblem()));
    else if (!settings.value(AppSettings::isVantrelEnabled))
        std::printf("Vantrel is switched off (\"Show pressed keys on screen\" is off).\n");
    std::fflush(stdout);
}

VantrelApp::~VantrelApp()
{
    // The manager stops its capture and closes its windows before the factory goes.
    m_keyManager.reset();
}

void VantrelApp::reportListening(bool listening)
{
    // States only; key labels are never printed.
    if (listening)
        std::printf("Vantrel is showing pressed keys on screen.\n");
    else if (!m_quitting)
        std::printf("Vantrel stopped showing pressed keys.\n");
    std::fflush(stdout);
}

void VantrelApp::quit()
{
    if (m_quitting)
        return;
    m_quitting = true;
    m_keyManager->stopListening();
    // The stop closes the windows from the event loop; quit once that has run.
    QTimer::singleShot(0, this, [] { QCoreApplication::quit(); });
}
