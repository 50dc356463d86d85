#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

class QSocketNotifier;
struct wl_compositor;
struct wl_display;
struct wl_output;
struct wl_registry;
struct wl_seat;
struct wl_shm;
struct wp_fractional_scale_manager_v1;
struct wp_viewporter;
struct zwlr_layer_shell_v1;
struct zxdg_output_manager_v1;
struct zxdg_output_v1;

// A connection of Vantrel's own to the compositor, beside Qt's: the globals that layer surfaces
// need, the outputs by connector name and scale, and the first seat. Once set up, its events are
// read on the thread it lives in (normally the main thread) as they arrive.
class WaylandConnection final {
public:
    struct Output {
        WaylandConnection *connection = nullptr;
        wl_output *output = nullptr;
        zxdg_output_v1 *xdgOutput = nullptr;
        quint32 globalName = 0;
        QString name;
        int scale = 1;
    };

    // Connected, with the compositor, shared memory and the layer shell bound and every output
    // named; nothing when no compositor answers at `displayName` (empty: $WAYLAND_DISPLAY) or
    // it lacks one of them.
    static std::unique_ptr<WaylandConnection> open(const QByteArray &displayName = {});
    // Whether the compositor at `displayName` offers the layer shell, asked once on a
    // short-lived connection.
    static bool offersLayerShell(const QByteArray &displayName = {});
    ~WaylandConnection();
    WaylandConnection(const WaylandConnection &) = delete;
    WaylandConnection &operator=(const WaylandConnection &) = delete;

    wl_display *display() const { return m_display; }
    wl_compositor *compositor() const { return m_compositor; }
    wl_shm *shm() const { return m_shm; }
    zwlr_layer_shell_v1 *layerShell() const { return m_layerShell; }
    // Fractional scales and the viewports that show their buffers; nullptr where not offered.
    wp_fractional_scale_manager_v1 *fractionalScaleManager() const { return m_fractionalScale; }
    wp_viewporter *viewporter() const { return m_viewporter; }
    // The first seat the compositor announced; nullptr when it has none.
    wl_seat *seat() const { return m_seat; }
    // What the seat has now (wl_seat capability bits: pointer, keyboard, touch).
    quint32 seatCapabilities() const { return m_seatCapabilities; }
    // The output with this connector name; nullptr when no output has it.
    Output *output(const QString &name) const;

    // An output's scale changed.
    std::function<void(Output &)> onScaleChanged;
    // An output is going away; it is freed after this returns.
    std::function<void(Output &)> onOutputRemoved;
    // The seat gained or lost a pointer or keyboard.
    std::function<void(quint32 capabilities)> onSeatCapabilities;
    // The connection ended (the compositor closed it, or writing failed); called once.
    std::function<void(const char *reason)> onLost;

    // Reads events from now on as they arrive.
    void watch();
    // Sends what was asked and waits until the compositor has answered it all.
    bool roundTrip();
    // Sends what was asked.
    void flush();
    bool isLost() const { return m_lost; }

private:
    explicit WaylandConnection(wl_display *display);
    bool setUp();
    void readEvents();
    void lose(const char *reason);
    void nameByXdgOutput(Output &output);

    static void handleGlobal(void *data, wl_registry *registry, quint32 name, const char *interface,
                             quint32 version);
    static void handleGlobalRemove(void *data, wl_registry *registry, quint32 name);
    static void handleOutputScale(void *data, wl_output *output, qint32 factor);

    wl_display *const m_display;
    wl_registry *m_registry = nullptr;
    wl_compositor *m_compositor = nullptr;
    wl_shm *m_shm = nullptr;
    wl_seat *m_seat = nullptr;
    quint32 m_seatCapabilities = 0;
    zwlr_layer_shell_v1 *m_layerShell = nullptr;
    zxdg_output_manager_v1 *m_xdgOutputManager = nullptr;
    wp_fractional_scale_manager_v1 *m_fractionalScale = nullptr;
    wp_viewporter *m_viewporter = nullptr;
    std::vector<std::unique_ptr<Output>> m_outputs;
    std::unique_ptr<QSocketNotifier> m_notifier;
    bool m_lost = false;
};
