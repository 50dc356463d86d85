#pragma once

#include "capture/KeyDisplayWindow.h"

#include <QObject>
#include <QRect>
#include <QString>

#include <functional>
#include <memory>

class KeyDisplayView;
class KeyManager;
class KeyRowRenderer;
class DisplaySettingsStore;
class SettingsStore;

// The overlay of one display where the compositor gives the row a surface of its own, above all
// windows and passing clicks through: no window of the application shows; the renderer's surface
// is the overlay, over the band of the display where the row can be drawn. A compositor always
// blends, so caps are never drawn opaque.
class KeyDisplaySurfaceOverlay final : public QObject, public KeyDisplayWindow {
    Q_OBJECT

public:
    // Makes the renderer of a surface over `band` (relative to the top-left corner of the output
    // named `outputName`), or nothing when the compositor offers none.
    using RendererFactory = std::function<std::unique_ptr<KeyRowRenderer>(const QString &outputName,
                                                                          const QRect &band)>;

    KeyDisplaySurfaceOverlay(quint32 displayID, KeyManager &keyManager,
                             DisplaySettingsStore &displayStore, SettingsStore &settings,
                             RendererFactory makeRenderer);
    ~KeyDisplaySurfaceOverlay() override;

    quint32 displayID() const { return m_displayID; }
    // Whether a surface shows the row now.
    bool hasSurface() const { return m_renderer != nullptr; }

    void setFrame(const QRect &frame) override;
    void orderFront() override;
    void close() override;

private:
    // A surface over the view's drawing area, made again when that area moves or resizes
    // (a surface keeps the size it was made with).
    void fitToDrawingArea();
    void publishScene();
    void warmUp();

    const quint32 m_displayID;
    SettingsStore &m_settings;
    const RendererFactory m_makeRenderer;
    QRect m_frame; // the display's available area
    QRect m_area;  // the surface's part of it, in the view's coordinates
    QString m_outputName;
    QRect m_band; // the surface's place on its output
    bool m_shown = false;
    std::unique_ptr<KeyDisplayView> m_view;
    std::unique_ptr<KeyRowRenderer> m_renderer;
};
