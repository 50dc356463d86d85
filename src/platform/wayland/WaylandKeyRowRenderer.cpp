#include "platform/wayland/WaylandKeyRowRenderer.h"

#include "overlay/KeyView.h"

#include <QPainter>
#include <QSocketNotifier>

#include <wayland-client.h>

// The layer shell names a parameter `namespace`, a keyword in C++.
#define namespace layerNamespace
#include "wlr-layer-shell-unstable-v1-client-protocol.h"
#undef namespace
#include "xdg-output-unstable-v1-client-protocol.h"

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstring>

namespace {
// wl_surface.damage_buffer arrived in version 4; wl_output.name in version 4; xdg_output.name
// in version 2.
constexpr quint32 compositorVersion = 4;
constexpr quint32 outputVersion = 4;
constexpr quint32 xdgOutputVersion = 3;
constexpr quint32 layerShellVersion = 4;
constexpr quint32 shmVersion = 1;
// Round trips while setting up: globals, then the outputs' names, then xdg-output's names.
constexpr int setupRoundTrips = 3;

void ignoreGeometry(void *, wl_output *, qint32, qint32, qint32, qint32, qint32, const char *,
                    const char *, qint32)
{}
void ignoreMode(void *, wl_output *, quint32, qint32, qint32, qint32) {}
void ignoreDone(void *, wl_output *) {}
void handleName(void *data, wl_output *, const char *name)
{
    static_cast<WaylandKeyRowRenderer::Output *>(data)->name = QString::fromUtf8(name);
}
void ignoreDescription(void *, wl_output *, const char *) {}

void ignorePosition(void *, zxdg_output_v1 *, qint32, qint32) {}
void ignoreXdgDone(void *, zxdg_output_v1 *) {}
void handleXdgName(void *data, zxdg_output_v1 *, const char *name)
{
    auto *output = static_cast<WaylandKeyRowRenderer::Output *>(data);
    if (output->name.isEmpty())
        output->name = QString::fromUtf8(name);
}
void ignoreXdgDescription(void *, zxdg_output_v1 *, const char *) {}

const zxdg_output_v1_listener xdgOutputListener{&ignorePosition, &ignorePosition, &ignoreXdgDone,
                                                &handleXdgName, &ignoreXdgDescription};
} // namespace

std::unique_ptr<WaylandKeyRowRenderer> WaylandKeyRowRenderer::create(const QString &outputName,
                                                                     const QRect &band,
                                                                     const QByteArray &displayName)
{
    if (band.isEmpty())
        return nullptr;
    wl_display *display =
        wl_display_connect(displayName.isEmpty() ? nullptr : displayName.constData());
    if (!display)
        return nullptr;
    std::unique_ptr<WaylandKeyRowRenderer> renderer(new WaylandKeyRowRenderer(display, band));
    if (!renderer->connect(outputName))
        return nullptr;
    return renderer;
}

bool WaylandKeyRowRenderer::isOffered(const QByteArray &displayName)
{
    // Without a runtime folder libwayland cannot find a socket and says so on stderr.
    const QByteArray name = displayName.isEmpty() ? qgetenv("WAYLAND_DISPLAY") : displayName;
    if (!name.startsWith('/') && qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR"))
        return false;
    wl_display *display =
        wl_display_connect(displayName.isEmpty() ? nullptr : displayName.constData());
    if (!display)
        return false;
    bool offered = false;
    static const wl_registry_listener listener{
        [](void *data, wl_registry *, quint32, const char *interface, quint32) {
            if (std::strcmp(interface, zwlr_layer_shell_v1_interface.name) == 0)
                *static_cast<bool *>(data) = true;
        },
        [](void *, wl_registry *, quint32) {}};
    wl_registry *registry = wl_display_get_registry(display);
    wl_registry_add_listener(registry, &listener, &offered);
    const bool answered = wl_display_roundtrip(display) >= 0;
    wl_registry_destroy(registry);
    wl_display_disconnect(display);
    return answered && offered;
}

WaylandKeyRowRenderer::WaylandKeyRowRenderer(wl_display *display, const QRect &band)
    : m_display(display), m_band(band)
{}

WaylandKeyRowRenderer::~WaylandKeyRowRenderer()
{
    m_notifier.reset();
    destroySurface();
    freeBuffers();
    for (const auto &output : m_outputs) {
        if (output->xdgOutput)
            zxdg_output_v1_destroy(output->xdgOutput);
        if (wl_output_get_version(output->output) >= WL_OUTPUT_RELEASE_SINCE_VERSION)
            wl_output_release(output->output);
        else
            wl_output_destroy(output->output);
    }
    if (m_xdgOutputManager)
        zxdg_output_manager_v1_destroy(m_xdgOutputManager);
    if (m_layerShell)
        zwlr_layer_shell_v1_destroy(m_layerShell);
    if (m_shm)
        wl_shm_destroy(m_shm);
    if (m_compositor)
        wl_compositor_destroy(m_compositor);
    if (m_registry)
        wl_registry_destroy(m_registry);
    wl_display_disconnect(m_display);
}

bool WaylandKeyRowRenderer::connect(const QString &outputName)
{
    static const wl_registry_listener registryListener{&handleGlobal,
                                                       [](void *, wl_registry *, quint32) {}};
    m_registry = wl_display_get_registry(m_display);
    wl_registry_add_listener(m_registry, &registryListener, this);
    for (int trip = 0; trip < setupRoundTrips; ++trip) {
        if (wl_display_roundtrip(m_display) < 0)
            return false;
        // Outputs older than version 4 learn their names from xdg-output.
        for (const auto &output : m_outputs) {
            if (m_xdgOutputManager && !output->xdgOutput &&
                wl_output_get_version(output->output) < WL_OUTPUT_NAME_SINCE_VERSION) {
                output->xdgOutput =
                    zxdg_output_manager_v1_get_xdg_output(m_xdgOutputManager, output->output);
                zxdg_output_v1_add_listener(output->xdgOutput, &xdgOutputListener, output.get());
            }
        }
    }
    if (!m_compositor || !m_shm || !m_layerShell)
        return false;
    Output *chosen = nullptr;
    for (const auto &output : m_outputs) {
        if (output->name == outputName)
            chosen = output.get();
    }
    if (!outputName.isEmpty() && !chosen)
        return false;
    if (!createSurface(chosen))
        return false;
    m_notifier =
        std::make_unique<QSocketNotifier>(wl_display_get_fd(m_display), QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(),
                     [this] { readEvents(); });
    // The first configure sizes the surface; frames wait for it.
    return wl_display_roundtrip(m_display) >= 0 && !m_stopped;
}

void WaylandKeyRowRenderer::handleGlobal(void *data, wl_registry *registry, quint32 name,
                                         const char *interface, quint32 version)
{
    auto *self = static_cast<WaylandKeyRowRenderer *>(data);
    const auto bind = [&](const wl_interface *type, quint32 newest) {
        return wl_registry_bind(registry, name, type, std::min(version, newest));
    };
    if (std::strcmp(interface, wl_compositor_interface.name) == 0 && !self->m_compositor) {
        self->m_compositor =
            static_cast<wl_compositor *>(bind(&wl_compositor_interface, compositorVersion));
    } else if (std::strcmp(interface, wl_shm_interface.name) == 0 && !self->m_shm) {
        self->m_shm = static_cast<wl_shm *>(bind(&wl_shm_interface, shmVersion));
    } else if (std::strcmp(interface, zwlr_layer_shell_v1_interface.name) == 0 &&
               !self->m_layerShell) {
        self->m_layerShell = static_cast<zwlr_layer_shell_v1 *>(
            bind(&zwlr_layer_shell_v1_interface, layerShellVersion));
    } else if (std::strcmp(interface, zxdg_output_manager_v1_interface.name) == 0 &&
               !self->m_xdgOutputManager && version >= ZXDG_OUTPUT_V1_NAME_SINCE_VERSION) {
        self->m_xdgOutputManager = static_cast<zxdg_output_manager_v1 *>(
            bind(&zxdg_output_manager_v1_interface, xdgOutputVersion));
    } else if (std::strcmp(interface, wl_output_interface.name) == 0 && version >= 2) {
        auto output = std::make_unique<Output>();
        output->renderer = self;
        output->globalName = name;
        output->output = static_cast<wl_output *>(bind(&wl_output_interface, outputVersion));
        static const wl_output_listener outputListener{&ignoreGeometry, &ignoreMode,
                                                       &ignoreDone,     &handleOutputScale,
                                                       &handleName,     &ignoreDescription};
        wl_output_add_listener(output->output, &outputListener, output.get());
        self->m_outputs.push_back(std::move(output));
    }
}

void WaylandKeyRowRenderer::handleOutputScale(void *data, wl_output *, qint32 factor)
{
    auto *output = static_cast<Output *>(data);
    output->scale = std::max(1, factor);
    WaylandKeyRowRenderer *self = output->renderer;
    if (self->m_output != output || !self->m_surface || output->scale == self->m_scale)
        return;
    // Buffers of the new scale, the row drawn again in one of them.
    self->m_scale = output->scale;
    self->freeBuffers();
    if (!self->createBuffers(self->m_band.size() * self->m_scale)) {
        self->stop("no memory for the overlay's buffers");
        return;
    }
    wl_surface_set_buffer_scale(self->m_surface, self->m_scale);
    self->m_shown = QRect(QPoint(0, 0), self->m_bufferSize);
    self->m_capImages.assign(self->m_capImages.size(), {});
    self->m_sceneChanged = true;
    self->drawFrame();
}

bool WaylandKeyRowRenderer::createSurface(Output *output)
{
    m_output = output;
    m_scale = output ? output->scale : 1;
    m_surface = wl_compositor_create_surface(m_compositor);
    // No input at all: every click goes to what lies below.
    wl_region *region = wl_compositor_create_region(m_compositor);
    wl_surface_set_input_region(m_surface, region);
    wl_region_destroy(region);
    wl_surface_set_buffer_scale(m_surface, m_scale);
    m_layerSurface = zwlr_layer_shell_v1_get_layer_surface(
        m_layerShell, m_surface, output ? output->output : nullptr,
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
    return createBuffers(m_band.size() * m_scale);
}

bool WaylandKeyRowRenderer::createBuffers(const QSize &pixels)
{
    const int stride = pixels.width() * 4;
    const std::size_t bufferBytes = std::size_t(stride) * std::size_t(pixels.height());
    m_memorySize = bufferBytes * m_buffers.size();
    const int fd = memfd_create("vantrel-keys", MFD_CLOEXEC);
    if (fd < 0)
        return false;
    if (ftruncate(fd, off_t(m_memorySize)) != 0) {
        close(fd);
        return false;
    }
    void *memory = mmap(nullptr, m_memorySize, PROT_READ | PROT_WRITE, MAP_SHARED, fd, 0);
    if (memory == MAP_FAILED) {
        close(fd);
        return false;
    }
    m_memory = memory;
    m_pool = wl_shm_create_pool(m_shm, fd, int(m_memorySize));
    close(fd);
    static const wl_buffer_listener bufferListener{&handleRelease};
    for (std::size_t index = 0; index < m_buffers.size(); ++index) {
        Buffer &buffer = m_buffers[index];
        buffer.renderer = this;
        buffer.buffer = wl_shm_pool_create_buffer(m_pool, int(index * bufferBytes), pixels.width(),
                                                  pixels.height(), stride, WL_SHM_FORMAT_ARGB8888);
        wl_buffer_add_listener(buffer.buffer, &bufferListener, &buffer);
        // The memory is zero: every pixel transparent.
        buffer.image = QImage(static_cast<uchar *>(m_memory) + index * bufferBytes, pixels.width(),
                              pixels.height(), stride, QImage::Format_ARGB32_Premultiplied);
    }
    m_bufferSize = pixels;
    return true;
}

void WaylandKeyRowRenderer::freeBuffers()
{
    for (Buffer &buffer : m_buffers) {
        if (buffer.buffer)
            wl_buffer_destroy(buffer.buffer);
        buffer = {};
    }
    if (m_pool)
        wl_shm_pool_destroy(m_pool);
    m_pool = nullptr;
    if (m_memory)
        munmap(m_memory, m_memorySize);
    m_memory = nullptr;
}

void WaylandKeyRowRenderer::destroySurface()
{
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
    const auto free = std::find_if(m_buffers.begin(), m_buffers.end(),
                                   [](const Buffer &buffer) { return !buffer.busy; });
    if (free == m_buffers.end()) {
        // Both are on screen or about to be: draw when the compositor lets one go.
        m_waitingForBuffer = true;
        return;
    }
    m_waitingForBuffer = false;
    Buffer &buffer = *free;
    const KeyRowScene &scene = *m_scene;
    const double time = scene.time();
    const double dpr = m_scale;
    const QRect all(QPoint(0, 0), m_bufferSize);

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

void WaylandKeyRowRenderer::handleFrameDone(void *data, wl_callback *callback, quint32)
{
    auto *self = static_cast<WaylandKeyRowRenderer *>(data);
    wl_callback_destroy(callback);
    self->m_frameCallback = nullptr;
    if (self->m_moving || self->m_sceneChanged)
        self->drawFrame();
}

void WaylandKeyRowRenderer::handleRelease(void *data, wl_buffer *)
{
    auto *buffer = static_cast<Buffer *>(data);
    buffer->busy = false;
    if (buffer->renderer->m_waitingForBuffer)
        buffer->renderer->drawFrame();
}

void WaylandKeyRowRenderer::readEvents()
{
    // Events already read by a round trip wait in the queue, where the notifier cannot see them.
    while (wl_display_prepare_read(m_display) != 0)
        wl_display_dispatch_pending(m_display);
    if (wl_display_read_events(m_display) < 0 || wl_display_dispatch_pending(m_display) < 0)
        stop("the compositor closed the connection");
    else
        flush();
}

void WaylandKeyRowRenderer::flush()
{
    // A full socket (EAGAIN) is left to the next flush; anything else ends the connection.
    if (wl_display_flush(m_display) < 0 && errno != EAGAIN)
        stop("the connection to the compositor failed");
}

void WaylandKeyRowRenderer::stop(const char *reason)
{
    if (m_stopped)
        return;
    m_stopped = true;
    if (m_notifier)
        m_notifier->setEnabled(false);
    qWarning("Vantrel: the key overlay stops drawing: %s", reason);
}
