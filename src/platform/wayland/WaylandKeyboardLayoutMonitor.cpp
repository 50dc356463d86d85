#include "platform/wayland/WaylandKeyboardLayoutMonitor.h"

#include "platform/linux/XkbKeyboardLayoutSource.h"
#include "platform/wayland/GnomeInputSourcesWatcher.h"
#include "platform/wayland/KdeKeyboardLayoutWatcher.h"
#include "platform/wayland/SwayInputWatcher.h"
#include "platform/wayland/WaylandKeymapFile.h"

#include <QSocketNotifier>

#include <wayland-client.h>
#include <xkbcommon/xkbcommon.h>

#include <linux/input-event-codes.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>

namespace {

// wl_keyboard.release arrived in version 3; nothing newer is needed.
constexpr quint32 seatVersion = 5;
// Round trips that create() waits for the keymap: registry, seat capabilities, keyboard.
constexpr int setupRoundTrips = 4;
// xkb key codes are evdev's plus 8.
constexpr xkb_keycode_t evdevOffset = 8;

} // namespace

std::unique_ptr<WaylandKeyboardLayoutMonitor>
WaylandKeyboardLayoutMonitor::create(const QByteArray &displayName)
{
    wl_display *display =
        wl_display_connect(displayName.isEmpty() ? nullptr : displayName.constData());
    if (!display)
        return nullptr;
    xkb_context *context = xkb_context_new(XKB_CONTEXT_NO_FLAGS);
    if (!context) {
        wl_display_disconnect(display);
        return nullptr;
    }
    std::unique_ptr<WaylandKeyboardLayoutMonitor> monitor(
        new WaylandKeyboardLayoutMonitor(display, context));
    // On wlroots the keymap is sent as soon as the wl_keyboard is made, focus or not.
    for (int trip = 0; trip < setupRoundTrips && !monitor->m_source; ++trip) {
        if (wl_display_roundtrip(display) < 0)
            return nullptr;
    }
    if (!monitor->m_source)
        return nullptr;
    monitor->followDesktop();
    return monitor;
}

void WaylandKeyboardLayoutMonitor::followDesktop()
{
    // Each watcher is made only where its desktop can be (or speaks only when it runs).
    m_sway = SwayInputWatcher::create();
    if (m_sway)
        connect(m_sway.get(), &SwayInputWatcher::activeLayoutChanged, this,
                &WaylandKeyboardLayoutMonitor::setActiveGroup);
    m_kde = KdeKeyboardLayoutWatcher::create();
    if (m_kde)
        connect(m_kde.get(), &KdeKeyboardLayoutWatcher::activeLayoutChanged, this,
                &WaylandKeyboardLayoutMonitor::setActiveGroup);
    m_gnome = GnomeInputSourcesWatcher::create();
    if (m_gnome)
        connect(m_gnome.get(), &GnomeInputSourcesWatcher::activeLayoutChanged, this,
                &WaylandKeyboardLayoutMonitor::setActiveGroup);
}

WaylandKeyboardLayoutMonitor::WaylandKeyboardLayoutMonitor(wl_display *display,
                                                           xkb_context *context)
    : m_display(display), m_context(context)
{
    static const wl_registry_listener registryListener{&handleGlobal,
                                                       [](void *, wl_registry *, quint32) {}};
    m_registry = wl_display_get_registry(m_display);
    wl_registry_add_listener(m_registry, &registryListener, this);
    m_notifier =
        std::make_unique<QSocketNotifier>(wl_display_get_fd(m_display), QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this,
            &WaylandKeyboardLayoutMonitor::readEvents);
}

WaylandKeyboardLayoutMonitor::~WaylandKeyboardLayoutMonitor()
{
    m_notifier.reset();
    m_sway.reset();
    m_kde.reset();
    m_gnome.reset();
    if (m_keyboard)
        wl_keyboard_release(m_keyboard);
    if (m_seat)
        wl_seat_release(m_seat);
    wl_registry_destroy(m_registry);
    wl_display_disconnect(m_display);
    xkb_context_unref(m_context);
}

QByteArray WaylandKeyboardLayoutMonitor::keymapText() const
{
    const std::lock_guard guard(m_keymapLock);
    return m_keymapText;
}

void WaylandKeyboardLayoutMonitor::handleGlobal(void *data, wl_registry *registry, quint32 name,
                                                const char *interface, quint32 version)
{
    auto *monitor = static_cast<WaylandKeyboardLayoutMonitor *>(data);
    // The first seat is the desktop's (seat0); a second seat is rare and has its own keyboards.
    if (monitor->m_seat || std::strcmp(interface, wl_seat_interface.name) != 0 || version < 3)
        return;
    monitor->setSeat(static_cast<wl_seat *>(
        wl_registry_bind(registry, name, &wl_seat_interface, std::min(version, seatVersion))));
}

void WaylandKeyboardLayoutMonitor::setSeat(wl_seat *seat)
{
    static const wl_seat_listener seatListener{&handleCapabilities,
                                               [](void *, wl_seat *, const char *) {}};
    m_seat = seat;
    wl_seat_add_listener(m_seat, &seatListener, this);
}

void WaylandKeyboardLayoutMonitor::handleCapabilities(void *data, wl_seat *, quint32 capabilities)
{
    static_cast<WaylandKeyboardLayoutMonitor *>(data)->updateKeyboard(capabilities &
                                                                      WL_SEAT_CAPABILITY_KEYBOARD);
}

void WaylandKeyboardLayoutMonitor::updateKeyboard(bool present)
{
    // Enter, leave and key events never carry anything Vantrel uses (and it never has focus).
    static const wl_keyboard_listener keyboardListener{
        &handleKeymap,
        [](void *, wl_keyboard *, quint32, wl_surface *, wl_array *) {},
        [](void *, wl_keyboard *, quint32, wl_surface *) {},
        [](void *, wl_keyboard *, quint32, quint32, quint32, quint32) {},
        &handleModifiers,
        [](void *, wl_keyboard *, qint32, qint32) {}};
    if (present && !m_keyboard) {
        // A new wl_keyboard brings the current keymap; keys never come, as Vantrel has no focus.
        m_keyboard = wl_seat_get_keyboard(m_seat);
        wl_keyboard_add_listener(m_keyboard, &keyboardListener, this);
    } else if (!present && m_keyboard) {
        // The last keyboard went away: the last keymap stays until one comes back.
        wl_keyboard_release(m_keyboard);
        m_keyboard = nullptr;
    }
}

void WaylandKeyboardLayoutMonitor::handleKeymap(void *data, wl_keyboard *, quint32 format, int fd,
                                                quint32 size)
{
    auto *monitor = static_cast<WaylandKeyboardLayoutMonitor *>(data);
    if (format == WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1)
        monitor->loadKeymap(fd, size);
    close(fd);
}

void WaylandKeyboardLayoutMonitor::loadKeymap(int fd, quint32 size)
{
    const QByteArray text = WaylandKeymapFile::read(fd, size);
    if (text.isEmpty())
        return;
    xkb_keymap *keymap = xkb_keymap_new_from_string(
        m_context, text.constData(), XKB_KEYMAP_FORMAT_TEXT_V1, XKB_KEYMAP_COMPILE_NO_FLAGS);
    if (!keymap)
        return; // keep the last layout
    // A virtual keyboard that types a few symbols (wtype, remote input) brings a keymap of just
    // those; the seat passes it on once it types. It cannot name the keys of the real keyboards,
    // so the last full layout stays.
    const xkb_keysym_t *symbols = nullptr;
    if (m_source &&
        xkb_keymap_key_get_syms_by_level(keymap, KEY_A + evdevOffset, 0, 0, &symbols) == 0) {
        xkb_keymap_unref(keymap);
        return;
    }
    {
        const std::lock_guard guard(m_keymapLock);
        m_keymapText = text;
    }
    const bool first = !m_source;
    if (first)
        m_source = std::make_shared<XkbKeyboardLayoutSource>(keymap);
    else
        m_source->setKeymap(keymap);
    xkb_keymap_unref(keymap);
    if (!first)
        emit layoutChanged();
}

void WaylandKeyboardLayoutMonitor::handleModifiers(void *data, wl_keyboard *, quint32, quint32,
                                                   quint32, quint32, quint32 group)
{
    static_cast<WaylandKeyboardLayoutMonitor *>(data)->setActiveGroup(group);
}

void WaylandKeyboardLayoutMonitor::setActiveGroup(quint32 group)
{
    if (!m_source)
        return;
    if (m_source->setActiveGroup(group))
        emit layoutChanged();
}

void WaylandKeyboardLayoutMonitor::readEvents()
{
    // Events already read by a round trip wait in the queue, where the notifier cannot see them.
    while (wl_display_prepare_read(m_display) != 0)
        wl_display_dispatch_pending(m_display);
    if (wl_display_read_events(m_display) < 0 || wl_display_dispatch_pending(m_display) < 0 ||
        wl_display_flush(m_display) < 0) {
        m_notifier->setEnabled(false); // the compositor is gone; keep the last layout
    }
}
