#include "platform/wayland/WaylandConnection.h"

#include <QSocketNotifier>

#include <wayland-client.h>

#include "fractional-scale-v1-client-protocol.h"
#include "platform/wayland/LayerShellProtocol.h"
#include "viewporter-client-protocol.h"
#include "xdg-output-unstable-v1-client-protocol.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace {
// wl_surface.damage_buffer arrived in version 4; wl_output.name in version 4; xdg_output.name
// in version 2; the layer shell's exclusive keyboard in version 4.
constexpr quint32 compositorVersion = 4;
constexpr quint32 outputVersion = 4;
constexpr quint32 xdgOutputVersion = 3;
constexpr quint32 layerShellVersion = 4;
constexpr quint32 shmVersion = 1;
constexpr quint32 seatVersion = 5;
// Round trips while setting up: globals, then the outputs' names, then xdg-output's names.
constexpr int setupRoundTrips = 3;

void ignoreGeometry(void *, wl_output *, qint32, qint32, qint32, qint32, qint32, const char *,
                    const char *, qint32)
{}
void ignoreMode(void *, wl_output *, quint32, qint32, qint32, qint32) {}
void ignoreDone(void *, wl_output *) {}
void handleName(void *data, wl_output *, const char *name)
{
    static_cast<WaylandConnection::Output *>(data)->name = QString::fromUtf8(name);
}
void ignoreDescription(void *, wl_output *, const char *) {}

void ignorePosition(void *, zxdg_output_v1 *, qint32, qint32) {}
void ignoreXdgDone(void *, zxdg_output_v1 *) {}
void handleXdgName(void *data, zxdg_output_v1 *, const char *name)
{
    auto *output = static_cast<WaylandConnection::Output *>(data);
    if (output->name.isEmpty())
        output->name = QString::fromUtf8(name);
}
void ignoreXdgDescription(void *, zxdg_output_v1 *, const char *) {}

const zxdg_output_v1_listener xdgOutputListener{&ignorePosition, &ignorePosition, &ignoreXdgDone,
                                                &handleXdgName, &ignoreXdgDescription};

void releaseOutput(WaylandConnection::Output &output)
{
    if (output.xdgOutput)
        zxdg_output_v1_destroy(output.xdgOutput);
    if (wl_output_get_version(output.output) >= WL_OUTPUT_RELEASE_SINCE_VERSION)
        wl_output_release(output.output);
    else
        wl_output_destroy(output.output);
}

// Without a runtime folder libwayland cannot find a socket and says so on stderr.
wl_display *connectQuietly(const QByteArray &displayName)
{
    const QByteArray name = displayName.isEmpty() ? qgetenv("WAYLAND_DISPLAY") : displayName;
    if (!name.startsWith('/') && qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR"))
        return nullptr;
    return wl_display_connect(displayName.isEmpty() ? nullptr : displayName.constData());
}
} // namespace

std::unique_ptr<WaylandConnection> WaylandConnection::open(const QByteArray &displayName)
{
    wl_display *display = connectQuietly(displayName);
    if (!display)
        return nullptr;
    std::unique_ptr<WaylandConnection> connection(new WaylandConnection(display));
    if (!connection->setUp())
        return nullptr;
    return connection;
}

bool WaylandConnection::offersLayerShell(const QByteArray &displayName)
{
    wl_display *display = connectQuietly(displayName);
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

WaylandConnection::WaylandConnection(wl_display *display) : m_display(display) {}

WaylandConnection::~WaylandConnection()
{
    m_notifier.reset();
    for (const auto &output : m_outputs)
        releaseOutput(*output);
    if (m_xdgOutputManager)
        zxdg_output_manager_v1_destroy(m_xdgOutputManager);
    if (m_fractionalScale)
        wp_fractional_scale_manager_v1_destroy(m_fractionalScale);
    if (m_viewporter)
        wp_viewporter_destroy(m_viewporter);
    if (m_layerShell)
        zwlr_layer_shell_v1_destroy(m_layerShell);
    if (m_seat) {
        if (wl_seat_get_version(m_seat) >= WL_SEAT_RELEASE_SINCE_VERSION)
            wl_seat_release(m_seat);
        else
            wl_seat_destroy(m_seat);
    }
    if (m_shm)
        wl_shm_destroy(m_shm);
    if (m_compositor)
        wl_compositor_destroy(m_compositor);
    if (m_registry)
        wl_registry_destroy(m_registry);
    wl_display_disconnect(m_display);
}

bool WaylandConnection::setUp()
{
    static const wl_registry_listener registryListener{&handleGlobal, &handleGlobalRemove};
    m_registry = wl_display_get_registry(m_display);
    wl_registry_add_listener(m_registry, &registryListener, this);
    for (int trip = 0; trip < setupRoundTrips; ++trip) {
        if (wl_display_roundtrip(m_display) < 0)
            return false;
        for (const auto &output : m_outputs)
            nameByXdgOutput(*output);
    }
    return m_compositor && m_shm && m_layerShell;
}

void WaylandConnection::nameByXdgOutput(Output &output)
{
    // Outputs older than version 4 learn their names from xdg-output.
    if (!m_xdgOutputManager || output.xdgOutput ||
        wl_output_get_version(output.output) >= WL_OUTPUT_NAME_SINCE_VERSION)
        return;
    output.xdgOutput = zxdg_output_manager_v1_get_xdg_output(m_xdgOutputManager, output.output);
    zxdg_output_v1_add_listener(output.xdgOutput, &xdgOutputListener, &output);
}

WaylandConnection::Output *WaylandConnection::output(const QString &name) const
{
    const auto found = std::find_if(m_outputs.begin(), m_outputs.end(),
                                    [&](const auto &output) { return output->name == name; });
    return found == m_outputs.end() ? nullptr : found->get();
}

void WaylandConnection::handleGlobal(void *data, wl_registry *registry, quint32 name,
                                     const char *interface, quint32 version)
{
    auto *self = static_cast<WaylandConnection *>(data);
    const auto bind = [&](const wl_interface *type, quint32 newest) {
        return wl_registry_bind(registry, name, type, std::min(version, newest));
    };
    if (std::strcmp(interface, wl_compositor_interface.name) == 0 && !self->m_compositor) {
        self->m_compositor =
            static_cast<wl_compositor *>(bind(&wl_compositor_interface, compositorVersion));
    } else if (std::strcmp(interface, wl_shm_interface.name) == 0 && !self->m_shm) {
        self->m_shm = static_cast<wl_shm *>(bind(&wl_shm_interface, shmVersion));
    } else if (std::strcmp(interface, wl_seat_interface.name) == 0 && !self->m_seat) {
        self->m_seat = static_cast<wl_seat *>(bind(&wl_seat_interface, seatVersion));
        // Listened to from the start: the capabilities come once, right after binding.
        static const wl_seat_listener seatListener{
            [](void *data, wl_seat *, quint32 capabilities) {
                auto *connection = static_cast<WaylandConnection *>(data);
                connection->m_seatCapabilities = capabilities;
                if (connection->onSeatCapabilities)
                    connection->onSeatCapabilities(capabilities);
            },
            [](void *, wl_seat *, const char *) {}};
        wl_seat_add_listener(self->m_seat, &seatListener, self);
    } else if (std::strcmp(interface, zwlr_layer_shell_v1_interface.name) == 0 &&
               !self->m_layerShell) {
        self->m_layerShell = static_cast<zwlr_layer_shell_v1 *>(
            bind(&zwlr_layer_shell_v1_interface, layerShellVersion));
    } else if (std::strcmp(interface, zxdg_output_manager_v1_interface.name) == 0 &&
               !self->m_xdgOutputManager && version >= ZXDG_OUTPUT_V1_NAME_SINCE_VERSION) {
        self->m_xdgOutputManager = static_cast<zxdg_output_manager_v1 *>(
            bind(&zxdg_output_manager_v1_interface, xdgOutputVersion));
    } else if (std::strcmp(interface, wp_fractional_scale_manager_v1_interface.name) == 0 &&
               !self->m_fractionalScale) {
        self->m_fractionalScale = static_cast<wp_fractional_scale_manager_v1 *>(
            bind(&wp_fractional_scale_manager_v1_interface, 1));
    } else if (std::strcmp(interface, wp_viewporter_interface.name) == 0 && !self->m_viewporter) {
        self->m_viewporter = static_cast<wp_viewporter *>(bind(&wp_viewporter_interface, 1));
    } else if (std::strcmp(interface, wl_output_interface.name) == 0 && version >= 2) {
        auto output = std::make_unique<Output>();
        output->connection = self;
        output->globalName = name;
        output->output = static_cast<wl_output *>(bind(&wl_output_interface, outputVersion));
        static const wl_output_listener outputListener{&ignoreGeometry, &ignoreMode,
                                                       &ignoreDone,     &handleOutputScale,
                                                       &handleName,     &ignoreDescription};
        wl_output_add_listener(output->output, &outputListener, output.get());
        self->nameByXdgOutput(*output);
        self->m_outputs.push_back(std::move(output));
    }
}

void WaylandConnection::handleGlobalRemove(void *data, wl_registry *, quint32 name)
{
    auto *self = static_cast<WaylandConnection *>(data);
    const auto found = std::find_if(self->m_outputs.begin(), self->m_outputs.end(),
                                    [&](const auto &output) { return output->globalName == name; });
    if (found == self->m_outputs.end())
        return;
    std::unique_ptr<Output> output = std::move(*found);
    self->m_outputs.erase(found);
    if (self->onOutputRemoved)
        self->onOutputRemoved(*output);
    releaseOutput(*output);
}

void WaylandConnection::handleOutputScale(void *data, wl_output *, qint32 factor)
{
    auto *output = static_cast<Output *>(data);
    const int scale = std::max(1, factor);
    if (scale == output->scale)
        return;
    output->scale = scale;
    if (output->connection->onScaleChanged)
        output->connection->onScaleChanged(*output);
}

void WaylandConnection::watch()
{
    m_notifier =
        std::make_unique<QSocketNotifier>(wl_display_get_fd(m_display), QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(),
                     [this] { readEvents(); });
}

bool WaylandConnection::roundTrip()
{
    if (m_lost)
        return false;
    if (wl_display_roundtrip(m_display) >= 0)
        return true;
    lose("the compositor closed the connection");
    return false;
}

void WaylandConnection::readEvents()
{
    // Events already read by a round trip wait in the queue, where the notifier cannot see them.
    while (wl_display_prepare_read(m_display) != 0) {
        // After a protocol error the queue never empties: stop instead of spinning.
        if (wl_display_dispatch_pending(m_display) < 0) {
            lose("the compositor closed the connection");
            return;
        }
    }
    if (wl_display_read_events(m_display) < 0 || wl_display_dispatch_pending(m_display) < 0)
        lose("the compositor closed the connection");
    else
        flush();
}

void WaylandConnection::flush()
{
    // A full socket (EAGAIN) is left to the next flush; anything else ends the connection.
    if (!m_lost && wl_display_flush(m_display) < 0 && errno != EAGAIN)
        lose("the connection to the compositor failed");
}

void WaylandConnection::lose(const char *reason)
{
    if (m_lost)
        return;
    m_lost = true;
    if (m_notifier)
        m_notifier->setEnabled(false);
    if (onLost)
        onLost(reason);
}
