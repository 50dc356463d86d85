#pragma once

#include "capture/KeyDisplayWindow.h"

#include <QImage>
#include <QRegion>
#include <QWidget>

#include <functional>
#include <memory>

class CompositorWatcher;
class KeyRowRenderer;
class DisplaySettingsStore;
class KeyDisplayView;
class KeyManager;
class SettingsStore;

// The overlay of one display: a frameless, click-through window above all others, on every
// workspace, never focused and never in a taskbar, hosting that display's key row.
//
// With a compositing manager the window is translucent. Without one the X server shows a
// translucent window's transparent pixels as black, so the window's shape is cut to the caps
// (following them as they come, go and move) and the caps are drawn opaque.
//
// Where the platform offers a renderer, it has the display server draw the row's frames at their
// times and the window never paints; otherwise the window paints the row itself, frame by frame.
//
// The row is laid out over the display's available area, but the window covers only the band
// where the row can be drawn: the server and a compositor touch, and the window's image holds,
// a fraction of the display's pixels.
class KeyDisplayOverlayWindow final : public QWidget, public KeyDisplayWindow {
    Q_OBJECT

public:
    // Makes the renderer that draws into a window through the display server, or nothing (the
    // window then paints itself with QPainter).
    using RendererFactory = std::function<std::unique_ptr<KeyRowRenderer>(WId window)>;

    KeyDisplayOverlayWindow(quint32 displayID, KeyManager &keyManager,
                            DisplaySettingsStore &displayStore, SettingsStore &settings,
                            CompositorWatcher *compositor,
                            const RendererFactory &makeRenderer = {});
    ~KeyDisplayOverlayWindow() override;

    quint32 displayID() const { return m_displayID; }

    void setFrame(const QRect &frame) override;
    void orderFront() override;
    void close() override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void setCompositing(bool compositing);
    // Fits the window to the view's drawing area within the display's area.
    void fitToDrawingArea();
    // Renders a sample cap once, so the first key shown finds its shadow and glyphs ready.
    void warmUp();
    void onUpdateRequested(const QRegion &region);
    // Hands the row as it is now to the renderer.
    void publishScene();
    // Without a compositor: renders the row opaque into m_shapedFrame and cuts the shape to it.
    void renderShapedFrame();
    // Shows nothing of the window (without a compositor).
    void hideShape();

    const quint32 m_displayID;
    SettingsStore &m_settings;
    QRect m_frame; // the display's available area
    QRect m_area;  // the window's part of it, in the view's coordinates
    std::unique_ptr<KeyDisplayView> m_view;
    std::unique_ptr<KeyRowRenderer> m_renderer;
    bool m_compositing = false;
    QImage m_shapedFrame; // covers m_shapedRect, in window coordinates
    QRect m_shapedRect;
    QRegion m_shape;
};
