#pragma once

#include <QByteArray>
#include <QObject>

#include <memory>
#include <mutex>

class GnomeInputSourcesWatcher;
class KdeKeyboardLayoutWatcher;
class QSocketNotifier;
class SwayInputWatcher;
class XkbKeyboardLayoutSource;
struct wl_display;
struct wl_keyboard;
struct wl_registry;
struct wl_seat;
struct xkb_context;

// Follows the keyboard layout of a Wayland compositor: the keymap that wl_keyboard.keymap sends
// to a connection of Vantrel's own (the desktop's layouts, variants and options, remaps included)
// becomes an XkbKeyboardLayoutSource, loaded again whenever a new keymap arrives. The active
// group comes from wl_keyboard.modifiers, which only a focused client receives, and from the
// desktop's own signals where it switches layouts itself (sway's IPC, KDE's D-Bus service,
// GNOME's input-source settings). The connection is read on the thread the monitor lives in
// (normally the main thread). Keymap changes notify the source's change observers.
class WaylandKeyboardLayoutMonitor final : public QObject {
    Q_OBJECT

public:
    // Connects to `displayName` (empty: $WAYLAND_DISPLAY) and follows sway at $SWAYSOCK when set,
    // KDE Plasma when its keyboard service appears, GNOME when it is the desktop.
    // Returns nullptr when no compositor is reachable or it offers no seat with a keyboard.
    static std::unique_ptr<WaylandKeyboardLayoutMonitor> create(const QByteArray &displayName = {});
    ~WaylandKeyboardLayoutMonitor() override;

    std::shared_ptr<XkbKeyboardLayoutSource> source() const { return m_source; }

    // The compositor's current keymap in the xkb text format (XKB_KEYMAP_FORMAT_TEXT_V1), for
    // code that needs an xkb_state of its own, such as the evdev capture: compile it with
    // xkb_keymap_new_from_string() in its own xkb_context. Thread-safe; it changes just before
    // the source's change observers are called.
    QByteArray keymapText() const;

signals:
    // After the source took a new keymap or active group.
    void layoutChanged();

private:
    WaylandKeyboardLayoutMonitor(wl_display *display, xkb_context *context);
    void setSeat(wl_seat *seat);
    void updateKeyboard(bool present);
    void loadKeymap(int fd, quint32 size);
    void setActiveGroup(quint32 group);
    void followDesktop();
    void readEvents();

    static void handleGlobal(void *data, wl_registry *registry, quint32 name, const char *interface,
                             quint32 version);
    static void handleCapabilities(void *data, wl_seat *seat, quint32 capabilities);
    static void handleKeymap(void *data, wl_keyboard *keyboard, quint32 format, int fd,
                             quint32 size);
    static void handleModifiers(void *data, wl_keyboard *keyboard, quint32 serial,
                                quint32 depressed, quint32 latched, quint32 locked, quint32 group);

    wl_display *m_display;
    xkb_context *m_context;
    wl_registry *m_registry = nullptr;
    wl_seat *m_seat = nullptr;
    wl_keyboard *m_keyboard = nullptr;
    std::shared_ptr<XkbKeyboardLayoutSource> m_source;
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::unique_ptr<SwayInputWatcher> m_sway;
    std::unique_ptr<KdeKeyboardLayoutWatcher> m_kde;
    std::unique_ptr<GnomeInputSourcesWatcher> m_gnome;

    mutable std::mutex m_keymapLock;
    QByteArray m_keymapText;
};
