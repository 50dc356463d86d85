#include "platform/x11/X11HotKeyGrabber.h"

#include "platform/x11/XkbConnection.h"
#include "platform/x11/XkbEventHead.h"

#include <QSocketNotifier>
#include <QTimer>

#include <xcb/xcb.h>
// xcb-xkb names a struct member "explicit", a C++ keyword.
#define explicit explicit_
#include <xcb/xkb.h>
#undef explicit
#include <xkbcommon/xkbcommon-keysyms.h>
#include <xkbcommon/xkbcommon-x11.h>
#include <xkbcommon/xkbcommon.h>

#include <cstdlib>

namespace {

// How long a burst of keymap changes may take before the keys are grabbed again.
constexpr int keymapSettleMs = 50;
constexpr quint16 lockMasks[] = {XCB_MOD_MASK_LOCK, XCB_MOD_MASK_2, XCB_MOD_MASK_5};
constexpr quint16 combinationMasks =
    XCB_MOD_MASK_SHIFT | XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1 | XCB_MOD_MASK_4;

struct KeyAndKeysym {
    int key;
    quint32 keysym;
};

// Keys whose keysym is not their character.
constexpr KeyAndKeysym specialKeys[] = {
    {Qt::Key_Escape, XKB_KEY_Escape},
    {Qt::Key_Tab, XKB_KEY_Tab},
    {Qt::Key_Backtab, XKB_KEY_ISO_Left_Tab},
    {Qt::Key_Backspace, XKB_KEY_BackSpace},
    {Qt::Key_Return, XKB_KEY_Return},
    {Qt::Key_Enter, XKB_KEY_KP_Enter},
    {Qt::Key_Insert, XKB_KEY_Insert},
    {Qt::Key_Delete, XKB_KEY_Delete},
    {Qt::Key_Pause, XKB_KEY_Pause},
    {Qt::Key_Print, XKB_KEY_Print},
    {Qt::Key_SysReq, XKB_KEY_Sys_Req},
    {Qt::Key_Home, XKB_KEY_Home},
    {Qt::Key_End, XKB_KEY_End},
    {Qt::Key_Left, XKB_KEY_Left},
    {Qt::Key_Up, XKB_KEY_Up},
    {Qt::Key_Right, XKB_KEY_Right},
    {Qt::Key_Down, XKB_KEY_Down},
    {Qt::Key_PageUp, XKB_KEY_Prior},
    {Qt::Key_PageDown, XKB_KEY_Next},
    {Qt::Key_Menu, XKB_KEY_Menu},
    {Qt::Key_VolumeDown, XKB_KEY_XF86AudioLowerVolume},
    {Qt::Key_VolumeUp, XKB_KEY_XF86AudioRaiseVolume},
    {Qt::Key_VolumeMute, XKB_KEY_XF86AudioMute},
    {Qt::Key_MediaPlay, XKB_KEY_XF86AudioPlay},
    {Qt::Key_MediaStop, XKB_KEY_XF86AudioStop},
    {Qt::Key_MediaPrevious, XKB_KEY_XF86AudioPrev},
    {Qt::Key_MediaNext, XKB_KEY_XF86AudioNext},
};

bool isAccessError(xcb_generic_error_t *error)
{
    return error && error->error_code == XCB_ACCESS;
}

} // namespace

std::unique_ptr<X11HotKeyGrabber> X11HotKeyGrabber::create(const QByteArray &displayName)
{
    const std::optional<XkbConnection> xkb = XkbConnection::open(displayName);
    if (!xkb)
        return nullptr;
    std::unique_ptr<X11HotKeyGrabber> grabber(
        new X11HotKeyGrabber(xkb->connection, xkb->context, xkb->deviceId, xkb->firstXkbEvent));
    if (!grabber->loadKeymap())
        return nullptr;
    return grabber;
}

X11HotKeyGrabber::X11HotKeyGrabber(xcb_connection_t *connection, xkb_context *context, int deviceId,
                                   quint8 firstXkbEvent)
    : m_connection(connection), m_context(context), m_deviceId(deviceId),
      m_firstXkbEvent(firstXkbEvent)
{
    m_root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;

    const quint32 repeat = XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT;
    std::free(xcb_xkb_per_client_flags_reply(
        m_connection,
        xcb_xkb_per_client_flags(m_connection, quint16(m_deviceId), repeat, repeat, 0, 0, 0),
        nullptr));

    constexpr quint16 events =
        XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY;
    constexpr quint16 mapParts =
        XCB_XKB_MAP_PART_KEY_TYPES | XCB_XKB_MAP_PART_KEY_SYMS | XCB_XKB_MAP_PART_MODIFIER_MAP;
    xcb_xkb_select_events_details_t details{};
    details.affectNewKeyboard = XCB_XKB_NKN_DETAIL_KEYCODES;
    details.newKeyboardDetails = XCB_XKB_NKN_DETAIL_KEYCODES;
    xcb_xkb_select_events_aux(m_connection, quint16(m_deviceId), events, 0, 0, mapParts, mapParts,
                              &details);
    xcb_flush(m_connection);

    m_notifier = std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(m_connection),
                                                   QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &X11HotKeyGrabber::processEvents);
    // Reading the keymap takes several round trips: not before the keys typed meanwhile have
    // been shown.
    m_regrab.setSingleShot(true);
    m_regrab.setInterval(keymapSettleMs);
    connect(&m_regrab, &QTimer::timeout, this, [this] {
        if (loadKeymap()) {
            regrabAll();
            emit keymapChanged();
        }
        // Events read during its round trips wait in xcb's queue.
        processEvents();
    });
}

X11HotKeyGrabber::~X11HotKeyGrabber()
{
    m_notifier.reset();
    for (const Grab &grab : std::as_const(m_grabs))
        ungrabKeys(grab);
    xcb_flush(m_connection);
    xkb_keymap_unref(m_keymap);
    xkb_context_unref(m_context);
    xcb_disconnect(m_connection);
}

quint16 X11HotKeyGrabber::modifierMask(Qt::KeyboardModifiers modifiers)
{
    quint16 mask = 0;
    if (modifiers & Qt::ShiftModifier)
        mask |= XCB_MOD_MASK_SHIFT;
    if (modifiers & Qt::ControlModifier)
        mask |= XCB_MOD_MASK_CONTROL;
    if (modifiers & Qt::AltModifier)
        mask |= XCB_MOD_MASK_1;
    if (modifiers & Qt::MetaModifier)
        mask |= XCB_MOD_MASK_4;
    return mask;
}

QList<quint16> X11HotKeyGrabber::lockVariants(quint16 mask)
{
    QList<quint16> variants;
    for (int subset = 0; subset < 1 << std::size(lockMasks); ++subset) {
        quint16 variant = mask;
        for (size_t bit = 0; bit < std::size(lockMasks); ++bit)
            if (subset & (1 << bit))
                variant |= lockMasks[bit];
        variants.append(variant);
    }
    return variants;
}

quint32 X11HotKeyGrabber::keysymForKey(int key)
{
    if (key >= Qt::Key_F1 && key <= Qt::Key_F35)
        return XKB_KEY_F1 + quint32(key - Qt::Key_F1);
    for (const KeyAndKeysym &special : specialKeys)
        if (special.key == key)
            return special.keysym;
    // Printable keys are their character; the keymap holds letters as lower case.
    if (key >= 0x20 && key < 0x1000000)
        return xkb_utf32_to_keysym(QChar::toLower(char32_t(key)));
    return 0;
}

bool X11HotKeyGrabber::loadKeymap()
{
    xkb_keymap *keymap = xkb_x11_keymap_new_from_device(m_context, m_connection, m_deviceId,
                                                        XKB_KEYMAP_COMPILE_NO_FLAGS);
    if (!keymap)
        return false;
    xkb_keymap_unref(m_keymap);
    m_keymap = keymap;
    return true;
}

quint8 X11HotKeyGrabber::keycodeForKeysym(quint32 keysym) const
{
    if (!keysym || !m_keymap)
        return 0;
    // The lowest level wins, then the first layout: "1" before the "!" above it.
    const xkb_keycode_t first = xkb_keymap_min_keycode(m_keymap);
    const xkb_keycode_t last = qMin<xkb_keycode_t>(xkb_keymap_max_keycode(m_keymap), 255);
    for (xkb_level_index_t level = 0; level < 4; ++level) {
        for (xkb_layout_index_t layout = 0; layout < xkb_keymap_num_layouts(m_keymap); ++layout) {
            for (xkb_keycode_t keycode = first; keycode <= last; ++keycode) {
                const xkb_keysym_t *syms = nullptr;
                const int count =
                    xkb_keymap_key_get_syms_by_level(m_keymap, keycode, layout, level, &syms);
                for (int i = 0; i < count; ++i)
                    if (syms[i] == keysym)
                        return quint8(keycode);
            }
        }
    }
    return 0;
}

HotKeyGrabber::GrabResult X11HotKeyGrabber::grabKeys(Grab &grab)
{
    grab.keycode = keycodeForKeysym(keysymForKey(grab.combination.key()));
    grab.mask = modifierMask(grab.combination.keyboardModifiers());
    if (!grab.keycode)
        return GrabResult::unavailable;
    QList<xcb_void_cookie_t> cookies;
    for (const quint16 variant : lockVariants(grab.mask))
        cookies.append(xcb_grab_key_checked(m_connection, 0, m_root, variant, grab.keycode,
                                            XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
    bool taken = false, failed = false;
    for (const xcb_void_cookie_t cookie : std::as_const(cookies)) {
        xcb_generic_error_t *error = xcb_request_check(m_connection, cookie);
        taken = taken || isAccessError(error);
        failed = failed || error;
        std::free(error);
    }
    // The round trips may have queued events that the socket notifier will not announce.
    processLater();
    if (!failed)
        return GrabResult::grabbed;
    ungrabKeys(grab); // the variants that did succeed
    return taken ? GrabResult::taken : GrabResult::unavailable;
}

void X11HotKeyGrabber::ungrabKeys(const Grab &grab)
{
    if (!grab.keycode)
        return;
    for (const quint16 variant : lockVariants(grab.mask))
        xcb_ungrab_key(m_connection, grab.keycode, m_root, variant);
}

HotKeyGrabber::GrabResult X11HotKeyGrabber::grab(const QString &name, QKeyCombination combination)
{
    release(name);
    Grab grab{combination};
    const GrabResult result = grabKeys(grab);
    if (result == GrabResult::grabbed)
        m_grabs.insert(name, grab);
    return result;
}

void X11HotKeyGrabber::release(const QString &name)
{
    const auto grab = m_grabs.constFind(name);
    if (grab == m_grabs.cend())
        return;
    ungrabKeys(*grab);
    xcb_flush(m_connection);
    m_grabs.erase(grab);
}

void X11HotKeyGrabber::regrabAll()
{
    for (Grab &grab : m_grabs)
        ungrabKeys(grab);
    for (auto grab = m_grabs.begin(); grab != m_grabs.end();) {
        if (grabKeys(*grab) == GrabResult::grabbed)
            ++grab;
        else
            grab = m_grabs.erase(grab); // no longer on this keyboard, or taken meanwhile
    }
    // A shortcut held across the change (xdotool, say, changes the keymap as it types) still
    // fires on its release: key codes name physical keys and stay.
    m_down.removeIf(
        [this](QHash<quint8, QString>::iterator down) { return !m_grabs.contains(down.value()); });
    xcb_flush(m_connection);
}

void X11HotKeyGrabber::processLater()
{
    QTimer::singleShot(0, this, &X11HotKeyGrabber::processEvents);
}

void X11HotKeyGrabber::processEvents()
{
    bool keymapChanged = false;
    while (xcb_generic_event_t *event = xcb_poll_for_event(m_connection)) {
        const quint8 type = event->response_type & 0x7f;
        if (type == XCB_KEY_PRESS) {
            const auto *press = reinterpret_cast<const xcb_key_press_event_t *>(event);
            for (auto grab = m_grabs.cbegin(); grab != m_grabs.cend(); ++grab) {
                if (grab->keycode == press->detail &&
                    (press->state & combinationMasks) == grab->mask) {
                    m_down.insert(press->detail, grab.key());
                    const QString name = grab.key();
                    emit pressed(name);
                    break;
                }
            }
        } else if (type == XCB_KEY_RELEASE) {
            const auto *release = reinterpret_cast<const xcb_key_release_event_t *>(event);
            const QString name = m_down.take(release->detail);
            if (!name.isEmpty())
                emit released(name);
        } else if (type == m_firstXkbEvent) {
            const auto *head = reinterpret_cast<const XkbEventHead *>(event);
            keymapChanged = keymapChanged || (head->deviceID == m_deviceId &&
                                              (head->xkbType == XCB_XKB_NEW_KEYBOARD_NOTIFY ||
                                               head->xkbType == XCB_XKB_MAP_NOTIFY));
        }
        std::free(event);
    }
    if (xcb_connection_has_error(m_connection)) {
        m_notifier->setEnabled(false); // the server is gone
        return;
    }
    if (keymapChanged)
        m_regrab.start();
}
