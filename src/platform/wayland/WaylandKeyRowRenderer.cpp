#include "platform/wayland/WaylandKeyRowRenderer.h"

#include "overlay/KeyView.h"
#include "platform/wayland/WaylandConnection.h"
#include "platform/wayland/WaylandShmBuffers.h"

#include <QPainter>

#include <wayland-client.h>

#include "fractional-scale-v1-client-protocol.h"
#include "platform/wayland/LayerShellProtocol.h"
#include "viewporter-client-protocol.h"

#include <algorithm>
#include <cmath>

std::unique_ptr<WaylandKeyRowRenderer> WaylandKeyRowRenderer::create(const QString &outputName,
                                                                     const QRect &band,
                                                                     const QByteArray &displayName)
{
    if (band.isEmpty())
        return nullptr;
    std::unique_ptr<WaylandConnection> connection = WaylandConnection::open(displayName);
    if (!connection)
        return nullptr;
    std::unique_ptr<WaylandKeyRowRenderer> renderer(
        new WaylandKeyRowRenderer(std::move(connection), band));
    if (!renderer->createSurface(outputName))
        return nullptr;
    // The first configure sizes the surface; frames wait for it.
    if (!renderer->m_connection->roundTrip() || renderer->m_stopped)
        return nullptr;
    return renderer;
}

bool WaylandKeyRowRenderer::isOffered(const QByteArray &displayName)
{
    return WaylandConnection::offersLayerShell(displayName);
}

WaylandKeyRowRenderer::WaylandKeyRowRenderer(std::unique_ptr<WaylandConnection> connection,
                                             const QRect &band)
    : m_connection(std::move(connection)), m_band(band)
{
    m_connection->onScaleChanged = [this](WaylandConnection::Output &output) {
        if (output.name == m_outputName && !m_fractionalScale)
            followScale(output.scale);
    };
    m_connection->onOutputRemoved = [this](WaylandConnection::Output &output) {
        // The compositor closes the surface too; nothing is drawn for a gone output meanwhile.
        if (output.name == m_outputName && !m_stopped) {
            destroySurface();
            m_stopped = true;
        }
    };
    m_connection->onLost = [this](const char *reason) { stop(reason); };
}

WaylandKeyRowRenderer::~WaylandKeyRowRenderer()
{
    destroySurface();
    m_buffers.reset();
}

void WaylandKeyRowRenderer::followScale(double scale)
{
    if (!m_surface || scale == m_scale)
        return;
    m_scale = scale;
    if (!createBuffers()) {
        stop("no memory for the overlay's buffers");
        return;
    }
    // With a viewport the buffer keeps scale 1 and the viewport gives its logical size.
    if (!m_viewport)
        wl_surface_set_buffer_scale(m_surface, int(m_scale));
    m_shown = QRect(QPoint(0, 0), m_buffers->size());
    m_capImages.assign(m_capImages.size(), {});
    m_sceneChanged = true;
    drawFrame();
}

bool WaylandKeyRowRenderer::createSurface(const QString &outputName)
{
    WaylandConnection::Output *output = nullptr;
    if (!outputName.isEmpty() && !(output = m_connection->output(outputName)))
        return false;
    m_outputName = outputName;
    m_scale = output ? output->scale : 1;
    wl_compositor *compositor = m_connection->compositor();
    m_surface = wl_compositor_create_surface(compositor);
    // No input at all: every click goes to what lies below.
    wl_region *region = wl_compositor_create_region(compositor);
    wl_surface_set_input_region(m_surface, region);
    wl_region_destroy(region);
    if (m_connection->fractionalScaleManager() && m_connection->viewporter()) {
        static const wp_fractional_scale_v1_listener scaleListener{&handlePreferredScale};
        m_fractionalScale = wp_fractional_scale_manager_v1_get_fractional_scale(
            m_connection->fractionalScaleManager(), m_surface);
        wp_fractional_scale_v1_add_listener(m_fractionalScale, &scaleListener, this);
        m_viewport = wp_viewporter_get_viewport(m_connection->viewporter(), m_surface);
        wp_viewport_set_destination(m_viewport, m_band.width(), m_band.height());
    } else {
        wl_surface_set_buffer_scale(m_surface, int(m_scale));
    }
    m_layerSurface = zwlr_layer_shell_v1_get_layer_surface(
        m_connection->layerShell(), m_surface, output ? output->output : nullptr,
        ZWLR_LAYER_SHELL_V1_LAYER_OVERLAY, "vantrel-keys");
    static const zwlr_layer_surface_v1_listener layerListener{&handleConfigure, &handleClosed};
    zwlr_layer_surface_v1_add_listener(m_layerSurface, &layerListener, this);
    // Anchored to the output's top-left corner and placed by margins; -1 ignores the panels'
    // exclusive zones, so the band lies where the row's geometry says.
    zwlr_layer_surface_v1_set_size(m_layerSurface, quint32(m_band.width()),
                                   quint32(m_band.height()));
    zwlr_layer_surface_v1_set_anchor(m_layerSurface, ZWLR_LAYER_SURFACE_V1_ANCHOR_TOP |
                                                         ZWLR_LAYER_SURFACE_V1_ANCHOR_LEFT);
    zwlr_layer_surface_v1_set_margin(m_layerSurface, m_band.y(), 0, 0, m_band.x());
    zwlr_layer_surface_v1_set_exclusive_zone(m_layerSurface, -1);
    zwlr_layer_surface_v1_set_keyboard_interactivity(
        m_layerSurface, ZWLR_LAYER_SURFACE_V1_KEYBOARD_INTERACTIVITY_NONE);
    // The first commit has no buffer: it asks for the configure.
    wl_surface_commit(m_surface);
    m_connection->watch();
    return createBuffers();
}

bool WaylandKeyRowRenderer::createBuffers()
{
    m_buffers.reset();
    // A fractional scale's buffer is the band's size times the scale, rounded.
    m_buffers = WaylandShmBuffers::create(m_connection->shm(),
                                          (QSizeF(m_band.size()) * m_scale).toSize(), [this] {
                                              if (m_waitingForBuffer)
                                                  drawFrame();
                                          });
    return m_buffers != nullptr;
}

void WaylandKeyRowRenderer::destroySurface()
{
    if (m_fractionalScale)
        wp_fractional_scale_v1_destroy(m_fractionalScale);
    m_fractionalScale = nullptr;
    if (m_viewport)
        wp_viewport_destroy(m_viewport);
    m_viewport = nullptr;
    if (m_frameCallback)
        wl_callback_destroy(m_frameCallback);
    m_frameCallback = nullptr;
    if (m_layerSurface)
        zwlr_layer_surface_v1_destroy(m_layerSurface);
    m_layerSurface = nullptr;
    if (m_surface)
        wl_surface_destroy(m_surface);
    m_surface = nullptr;
}

void WaylandKeyRowRenderer::setScene(std::shared_ptr<const KeyRowScene> scene)
{
    const bool urgent = scene->urgent;
    m_scene = std::move(scene);
    m_capImages.assign(m_scene->caps.size(), {});
    if (m_scene->lookGeneration != m_lookGeneration) {
        m_effects.clear();
        m_lookGeneration = m_scene->lookGeneration;
    }
    // While frames run, a change that need not show at once waits for the next one.
    m_sceneChanged = true;
    if (m_frameCallback && !urgent)
        return;
    drawFrame();
}

void WaylandKeyRowRenderer::warmUp(const std::vector<std::shared_ptr<const KeyView>> &views,
                                   double opacity, bool, double)
{
    // A compositor always blends, so caps are never drawn opaque; the output's scale decides.
    for (const auto &view : views)
        view->image(0.0, m_scale, &m_effects, opacity);
}

void WaylandKeyRowRenderer::drawFrame()
{
    if (!m_scene || !m_configured || m_stopped)
        return;
    WaylandShmBuffers::Buffer *free = m_buffers->freeBuffer();
    if (!free) {
        // Both are on screen or about to be: draw when the compositor lets one go.
        m_waitingForBuffer = true;
        return;
    }
    m_waitingForBuffer = false;
    WaylandShmBuffers::Buffer &buffer = *free;
    const KeyRowScene &scene = *m_scene;
    const double time = scene.time();
    const double dpr = m_scale;
    const QRect all(QPoint(0, 0), m_buffers->size());

    struct Placement {
        const QImage *image;
        QRect rect;
        double opacity;
    };
    std::vector<Placement> placements;
    QRect covered;
    bool moving = false;
    for (std::size_t index = 0; index < scene.caps.size(); ++index) {
        const KeyRowScene::Cap &cap = scene.caps[index];
        const KeyView &view = *cap.view;
        if (cap.motion.isGone(time))
            continue;
        moving = moving || cap.motion.isMoving(view, time);
        // A compositor always blends: caps are never drawn opaque here.
        const KeyMotion::Drawing drawing = cap.motion.drawing(view, time, scene.rowOpacity, false);
        if (!drawing.isVisible())
            continue;
        // A cap's image changes only with its label or while it fades: look it up once per
        // scene otherwise.
        CapImage &image = m_capImages[index];
        if (view.isAnimating(time) || image.image.isNull() ||
            image.opacity != drawing.imageOpacity) {
            const KeyEffectCache::Effect effect =
                view.image(time, dpr, &m_effects, drawing.imageOpacity);
            image = {effect.image, effect.offset, drawing.imageOpacity};
        }
        if (image.image.isNull())
            continue;
        const QRect rect = drawing.imageRect(image.image.size(), image.offset, scene.origin, dpr);
        if (rect.isEmpty())
            continue;
        placements.push_back({&image.image, rect, drawing.drawOpacity});
        covered |= rect;
    }
    covered &= all;
    m_moving = moving;

    {
        // The buffer holds an older frame: clear where it had caps and where the new ones go.
        QPainter painter(&buffer.image);
        const QRect dirty = (covered | buffer.ink) & all;
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.fillRect(dirty, Qt::transparent);
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
        for (const Placement &placement : placements) {
            painter.setOpacity(placement.opacity);
            painter.drawImage(placement.rect, *placement.image);
        }
    }
    buffer.ink = covered;
    buffer.busy = true;
    m_sceneChanged = false;

    wl_surface_attach(m_surface, buffer.buffer, 0, 0);
    const QRect damage = covered | m_shown;
    m_shown = covered;
    if (!damage.isEmpty())
        wl_surface_damage_buffer(m_surface, damage.x(), damage.y(), damage.width(),
                                 damage.height());
    if (m_moving && !m_frameCallback) {
        static const wl_callback_listener frameListener{&handleFrameDone};
        m_frameCallback = wl_surface_frame(m_surface);
        wl_callback_add_listener(m_frameCallback, &frameListener, this);
        ++m_frameRequests;
    }
    wl_surface_commit(m_surface);
    ++m_commits;
    flush();
}

void WaylandKeyRowRenderer::handleConfigure(void *data, zwlr_layer_surface_v1 *surface,
                                            quint32 serial, quint32, quint32)
{
    auto *self = static_cast<WaylandKeyRowRenderer *>(data);
    // The band's size was asked for; the compositor has no reason to choose another.
    zwlr_layer_surface_v1_ack_configure(surface, serial);
    const bool first = !self->m_configured;
    self->m_configured = true;
    if (first)
        self->drawFrame();
}

void WaylandKeyRowRenderer::handleClosed(void *data, zwlr_layer_surface_v1 *)
{
    // The compositor took the surface away (its output is gone): nothing more is drawn.
    auto *self = static_cast<WaylandKeyRowRenderer *>(data);
    self->destroySurface();
    self->m_stopped = true;
}

void WaylandKeyRowRenderer::handlePreferredScale(void *data, wp_fractional_scale_v1 *,
                                                 quint32 scale120)
{
    // The protocol gives the scale in 120ths.
    if (scale120 > 0)
        static_cast<WaylandKeyRowRenderer *>(data)->followScale(scale120 / 120.0);
}

void WaylandKeyRowRenderer::handleFrameDone(void *data, wl_callback *callback, quint32)
{
    auto *self = static_cast<WaylandKeyRowRenderer *>(data);
    wl_callback_destroy(callback);
    self->m_frameCallback = nullptr;
    if (self->m_moving || self->m_sceneChanged)
        self->drawFrame();
}

void WaylandKeyRowRenderer::flush()
{
    m_connection->flush();
}

void WaylandKeyRowRenderer::stop(const char *reason)
{
    if (m_stopped)
        return;
    m_stopped = true;
    qWarning("Vantrel: the key overlay stops drawing: %s", reason);
}
