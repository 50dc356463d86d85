#include "overlay/KeyDisplaySurfaceOverlay.h"

#include "capture/KeyManager.h"
#include "overlay/KeyDisplayView.h"
#include "overlay/KeyRowRenderer.h"
#include "overlay/KeyView.h"
#include "settings/DisplaySettingsStore.h"
#include "settings/SettingsStore.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

KeyDisplaySurfaceOverlay::KeyDisplaySurfaceOverlay(quint32 displayID, KeyManager &keyManager,
                                                   DisplaySettingsStore &displayStore,
                                                   SettingsStore &settings,
                                                   RendererFactory makeRenderer)
    : m_displayID(displayID), m_settings(settings), m_makeRenderer(std::move(makeRenderer)),
      m_view(std::make_unique<KeyDisplayView>(settings))
{
    m_view->setOpaque(false);
    m_view->setFramesDrawnByRenderer(true);
    m_view->setConfiguration(displayStore.configuration(displayID));
    m_view->setKeys(keyManager.currentKeys());
    connect(&keyManager, &KeyManager::currentKeysChanged, this,
            [this, &keyManager] { m_view->setKeys(keyManager.currentKeys()); });
    connect(&displayStore, &DisplaySettingsStore::displaySettingsChanged, this,
            [this, &displayStore] {
                m_view->setConfiguration(displayStore.configuration(m_displayID));
            });
    connect(m_view.get(), &KeyDisplayView::drawingAreaChanged, this,
            &KeyDisplaySurfaceOverlay::fitToDrawingArea);
    connect(m_view.get(), &KeyDisplayView::sceneChanged, this,
            &KeyDisplaySurfaceOverlay::publishScene);
}

KeyDisplaySurfaceOverlay::~KeyDisplaySurfaceOverlay() = default;

void KeyDisplaySurfaceOverlay::setFrame(const QRect &frame)
{
    m_frame = frame;
    if (const QScreen *display = QGuiApplication::screenAt(frame.center()))
        m_view->setRefreshRate(display->refreshRate());
    m_view->setSize(frame.size());
    fitToDrawingArea();
    publishScene();
}

void KeyDisplaySurfaceOverlay::orderFront()
{
    m_shown = true;
    fitToDrawingArea();
    publishScene();
}

void KeyDisplaySurfaceOverlay::close()
{
    m_shown = false;
    m_renderer.reset();
    m_band = QRect();
}

void KeyDisplaySurfaceOverlay::fitToDrawingArea()
{
    QRect area = m_view->drawingArea();
    if (area.isEmpty())
        area = QRect(0, 0, std::max(1, m_frame.width()), 1);
    m_area = area;
    if (!m_shown)
        return;
    // The output is the QScreen's, named as the compositor names it; the band is placed
    // relative to the output's corner.
    const QScreen *display = QGuiApplication::screenAt(m_frame.center());
    if (!display)
        return;
    const QRect band = area.translated(m_frame.topLeft() - display->geometry().topLeft());
    if (m_renderer && band == m_band && display->name() == m_outputName)
        return;
    m_renderer.reset();
    m_band = band;
    m_outputName = display->name();
    m_renderer = m_makeRenderer(m_outputName, m_band);
    if (!m_renderer) {
        qWarning("vantrel: no overlay surface on output \"%s\"", qPrintable(m_outputName));
        return;
    }
    warmUp();
}

void KeyDisplaySurfaceOverlay::publishScene()
{
    if (!m_renderer)
        return;
    std::shared_ptr<KeyRowScene> scene = m_view->scene();
    scene->origin = m_area.topLeft();
    scene->windowSize = m_area.size();
    if (const QScreen *display = QGuiApplication::screenAt(m_frame.center()))
        scene->devicePixelRatio = display->devicePixelRatio();
    m_renderer->setScene(std::move(scene));
}

void KeyDisplaySurfaceOverlay::warmUp()
{
    // The caps shown most often find their shadows and glows cached before the first key.
    std::vector<std::shared_ptr<const KeyView>> samples;
    for (const KeyPress &sample :
         {KeyPress{QUuid(), QStringLiteral("W"), 0, KeyCategory(KeyCategory::Kind::letter), 0.0},
          KeyPress{QUuid(), QStringLiteral("F5"), 96, KeyCategory(KeyCategory::Kind::function),
                   0.0}})
        samples.push_back(std::make_shared<const KeyView>(
            sample, m_settings.value(AppSettings::keySize), m_settings));
    m_renderer->warmUp(samples, m_settings.value(AppSettings::keyOpacity), false, 1.0);
}
