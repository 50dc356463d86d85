#pragma once

#include "overlay/KeyEffectCache.h"
#include "overlay/KeyRowRenderer.h"

#include <QByteArray>
#include <QImage>
#include <QPointF>
#include <QRect>
#include <QString>

#include <memory>
#include <vector>

class WaylandConnection;
class WaylandShmBuffers;
struct wl_callback;
struct wl_surface;
struct wp_fractional_scale_v1;
struct wp_viewport;
struct zwlr_layer_surface_v1;

// Draws a key row on a layer surface of the compositor's overlay layer (wlr layer shell), on a
// Wayland connection of its own read on the thread it lives in (normally the main thread).
//
// The surface covers the row's band of one output, passes every click through (an empty input
// region) and takes no keyboard focus. Frames are painted with QPainter into one of two shared
// memory buffers (one the compositor still reads is never drawn into) from the caps' images, as
// the X11 renderer composes them. While anything moves, the compositor paces the frames with
// frame callbacks; an idle row commits nothing. Integer output scales are honoured; a fractional
// scale is drawn at that scale where the compositor offers fractional scales, otherwise at the
// integer scale it announces.
class WaylandKeyRowRenderer final : public KeyRowRenderer {
public:
    // A layer surface over `band` (logical pixels, relative to the output's top-left corner) of
    // the output named `outputName` (its connector name, as QScreen::name() gives it; empty: the
    // compositor chooses), on the compositor at `displayName` (empty: $WAYLAND_DISPLAY).
    // Nothing when no compositor answers, it lacks the layer shell, or no output has that name.
    static std::unique_ptr<WaylandKeyRowRenderer>
    create(const QString &outputName, const QRect &band, const QByteArray &displayName = {});
    // Whether the compositor at `displayName` (empty: $WAYLAND_DISPLAY) offers the layer shell,
    // asked once on a connection of its own.
    static bool isOffered(const QByteArray &displayName = {});
    ~WaylandKeyRowRenderer() override;

    void setScene(std::shared_ptr<const KeyRowScene> scene) override;
    void warmUp(const std::vector<std::shared_ptr<const KeyView>> &views, double opacity,
                bool opaque, double devicePixelRatio) override;

    // Frame callbacks asked of the compositor so far: none are asked while the row is idle.
    quint64 frameCallbacksRequested() const { return m_frameRequests; }
    // Buffers committed so far.
    quint64 framesCommitted() const { return m_commits; }
    // The compositor has sized the surface and it draws.
    bool isShowing() const { return m_configured && !m_stopped; }

private:
    struct CapImage {
        QImage image;
        QPointF offset;
        double opacity = -1.0;
    };

    WaylandKeyRowRenderer(std::unique_ptr<WaylandConnection> connection, const QRect &band);
    bool createSurface(const QString &outputName);
    bool createBuffers();
    // Buffers at `scale` (device pixels per logical pixel) and the row drawn again in them.
    void followScale(double scale);
    // Paints and commits the scene as of now, in a free buffer; asks for the next frame while
    // anything moves.
    void drawFrame();
    void stop(const char *reason);
    void destroySurface();
    void flush();

    static void handleConfigure(void *data, zwlr_layer_surface_v1 *surface, quint32 serial,
                                quint32 width, quint32 height);
    static void handleClosed(void *data, zwlr_layer_surface_v1 *surface);
    static void handleFrameDone(void *data, wl_callback *callback, quint32 time);
    static void handlePreferredScale(void *data, wp_fractional_scale_v1 *scale, quint32 scale120);

    const std::unique_ptr<WaylandConnection> m_connection;
    const QRect m_band;
    QString m_outputName; // the surface's; empty when the compositor chose
    double m_scale = 1.0;

    wl_surface *m_surface = nullptr;
    zwlr_layer_surface_v1 *m_layerSurface = nullptr;
    wl_callback *m_frameCallback = nullptr;
    // Where the compositor offers them: the surface's fractional scale and the viewport that
    // shows its finer buffer at the band's logical size. Output scales are ignored then.
    wp_fractional_scale_v1 *m_fractionalScale = nullptr;
    wp_viewport *m_viewport = nullptr;
    std::unique_ptr<WaylandShmBuffers> m_buffers;

    std::shared_ptr<const KeyRowScene> m_scene;
    std::vector<CapImage> m_capImages; // per cap of the scene, once drawn
    KeyEffectCache m_effects;
    quint64 m_lookGeneration = 0;
    QRect m_shown; // where the committed frame has caps
    bool m_configured = false;
    bool m_stopped = false;
    bool m_moving = false;
    bool m_sceneChanged = false; // a scene not drawn yet
    bool m_waitingForBuffer = false;
    quint64 m_frameRequests = 0;
    quint64 m_commits = 0;
};
