#include "platform/x11/X11CaptureBackend.h"
#include "platform/x11/XkbEventHead.h"

#include "capture/KeyCode.h"
#include "platform/linux/EvdevKeyCodeTable.h"
#include "platform/linux/XkbKeyboardLayoutSource.h"
#include "platform/linux/XkbStateReader.h"

#include <QCoreApplication>
#include <QtGlobal>

#include <xcb/xcb.h>
#include <xcb/xinput.h>
// xcb-xkb names a struct member "explicit", a C++ keyword.
#define explicit explicit_
#include <xcb/xkb.h>
#undef explicit
#include <xkbcommon/xkbcommon-x11.h>
#include <xkbcommon/xkbcommon.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <memory>

#include <poll.h>
#include <pthread.h>
#include <sys/eventfd.h>
#include <unistd.h>

namespace {

// X keycodes are evdev codes offset by 8.
constexpr int evdevOffset = 8;
constexpr quint32 leftButton = 1;
constexpr quint32 rightButton = 3;

struct FreeDeleter {
    void operator()(void *pointer) const { std::free(pointer); }
};
template <typename T> using XcbReply = std::unique_ptr<T, FreeDeleter>;

bool requestSucceeded(xcb_connection_t *connection, xcb_void_cookie_t cookie)
{
    const XcbReply<xcb_generic_error_t> error(xcb_request_check(connection, cookie));
    return !error;
}

// Whether the server offers XInput 2.2 or newer to this connection (which also announces that
// this client speaks 2.2, a condition for receiving raw events).
std::optional<QString> inputExtensionProblem(xcb_connection_t *connection)
{
    const xcb_query_extension_reply_t *extension =
        xcb_get_extension_data(connection, &xcb_input_id);
    if (!extension || !extension->present)
        return QCoreApplication::translate(
            "X11CaptureBackend", "The X server has no XInput extension; Vantrel needs XInput 2.2.");
    const XcbReply<xcb_input_xi_query_version_reply_t> version(xcb_input_xi_query_version_reply(
        connection, xcb_input_xi_query_version(connection, 2, 2), nullptr));
    if (!version)
        return QCoreApplication::translate("X11CaptureBackend",
                                           "The X server did not answer the XInput version query.");
    if (version->major_version < 2 || (version->major_version == 2 && version->minor_version < 2))
        return QCoreApplication::translate(
                   "X11CaptureBackend",
                   "The X server offers XInput %1.%2; Vantrel needs XInput 2.2 or newer.")
            .arg(version->major_version)
            .arg(version->minor_version);
    return std::nullopt;
}

} // namespace

X11CaptureBackend::X11CaptureBackend(const QByteArray &displayName,
                                     std::shared_ptr<XkbKeyboardLayoutSource> namingSource)
    : m_namingSource(std::move(namingSource)), m_stopFd(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
{
    // Not in the initializer list: the default initializers of the members it sets run later.
    m_access = openConnection(displayName);
}

X11CaptureBackend::~X11CaptureBackend()
{
    uninstall();
    if (m_connection)
        xcb_disconnect(m_connection);
    if (m_stopFd >= 0)
        close(m_stopFd);
}

CaptureBackend::Access X11CaptureBackend::openConnection(const QByteArray &displayName)
{
    const QByteArray name = displayName.isEmpty() ? qgetenv("DISPLAY") : displayName;
    if (name.isEmpty())
        return {false,
                QCoreApplication::translate(
                    "X11CaptureBackend", "No X display is set (DISPLAY is empty); Vantrel needs an "
                                         "X11 desktop.")};
    m_connection = xcb_connect(name.constData(), nullptr);
    if (xcb_connection_has_error(m_connection))
        return {false, QCoreApplication::translate("X11CaptureBackend",
                                                   "Vantrel cannot open the X display \"%1\".")
                           .arg(QString::fromLocal8Bit(name))};
    if (const std::optional<QString> problem = inputExtensionProblem(m_connection))
        return {false, *problem};
    m_inputOpcode = xcb_get_extension_data(m_connection, &xcb_input_id)->major_opcode;
    return {true, {}};
}

CaptureBackend::Access X11CaptureBackend::checkAccess()
{
    return m_access;
}

CaptureBackend::Access X11CaptureBackend::requestAccess()
{
    // X11 has nothing to ask for: access follows from a working display.
    return m_access;
}

QStringList X11CaptureBackend::accessSteps() const
{
    return {QCoreApplication::translate("X11CaptureBackend",
                                        "Log in to an X11 session (Xorg), not a Wayland one."),
            QCoreApplication::translate(
                "X11CaptureBackend",
                "Make sure the X server offers XInput 2.2 (every current Xorg does).")};
}

bool X11CaptureBackend::install()
{
    if (m_installed)
        return true;
    // Named for profilers and the benchmark's CPU by thread.
    pthread_setname_np(pthread_self(), "KeyCapture");
    if (m_stopFd < 0 || !m_access.granted || xcb_connection_has_error(m_connection))
        return false;
    bool ok = xkb_x11_setup_xkb_extension(m_connection, XKB_X11_MIN_MAJOR_XKB_VERSION,
                                          XKB_X11_MIN_MINOR_XKB_VERSION,
                                          XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS, nullptr, nullptr,
                                          &m_firstXkbEvent, nullptr) != 0;
    if (ok) {
        m_deviceId = xkb_x11_get_core_keyboard_device_id(m_connection);
        m_context = xkb_context_new(XKB_CONTEXT_NO_FLAGS);
        m_installed = m_deviceId >= 0 && m_context && selectXkbEvents(true) && loadKeymap() &&
                      selectInputEvents(true);
    }
    if (!m_installed) {
        uninstall();
        return false;
    }
    loadRepeatControls();
    loadPointerMapping();
    return true;
}

void X11CaptureBackend::uninstall()
{
    if (m_deviceId >= 0 && !xcb_connection_has_error(m_connection)) {
        // Keys typed while stopped must neither pile up nor show at the next start. The checked
        // requests are round trips, so every event sent before them is queued now and dropped.
        selectInputEvents(false);
        selectXkbEvents(false);
        while (xcb_generic_event_t *event = xcb_poll_for_event(m_connection))
            std::free(event);
    }
    m_installed = false;
    xkb_state_unref(m_state);
    m_state = nullptr;
    xkb_keymap_unref(m_keymap);
    m_keymap = nullptr;
    xkb_context_unref(m_context);
    m_context = nullptr;
    m_deviceId = -1;
    m_flags = 0;
    m_group.reset();
    m_pressed.reset();
    m_repeatingKey.reset();
}

void X11CaptureBackend::stop()
{
    const quint64 one = 1;
    // A full counter (never in practice) still leaves the descriptor readable.
    [[maybe_unused]] const ssize_t written = write(m_stopFd, &one, sizeof one);
}

bool X11CaptureBackend::selectInputEvents(bool select)
{
    struct {
        xcb_input_event_mask_t head;
        quint32 mask;
    } mask{};
    mask.head.deviceid = XCB_INPUT_DEVICE_ALL_MASTER;
    mask.head.mask_len = 1;
    if (select)
        mask.mask = XCB_INPUT_XI_EVENT_MASK_RAW_KEY_PRESS |
                    XCB_INPUT_XI_EVENT_MASK_RAW_KEY_RELEASE |
                    XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS;
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
    return requestSucceeded(m_connection,
                            xcb_input_xi_select_events_checked(m_connection, root, 1, &mask.head));
}

bool X11CaptureBackend::selectXkbEvents(bool select)
{
    constexpr quint16 events = XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY |
                               XCB_XKB_EVENT_TYPE_MAP_NOTIFY | XCB_XKB_EVENT_TYPE_STATE_NOTIFY |
                               XCB_XKB_EVENT_TYPE_CONTROLS_NOTIFY;
    constexpr quint16 mapParts =
        XCB_XKB_MAP_PART_KEY_TYPES | XCB_XKB_MAP_PART_KEY_SYMS | XCB_XKB_MAP_PART_MODIFIER_MAP |
        XCB_XKB_MAP_PART_EXPLICIT_COMPONENTS | XCB_XKB_MAP_PART_KEY_ACTIONS |
        XCB_XKB_MAP_PART_VIRTUAL_MODS | XCB_XKB_MAP_PART_VIRTUAL_MOD_MAP;
    constexpr quint16 stateParts =
        XCB_XKB_STATE_PART_MODIFIER_BASE | XCB_XKB_STATE_PART_MODIFIER_LATCH |
        XCB_XKB_STATE_PART_MODIFIER_LOCK | XCB_XKB_STATE_PART_GROUP_BASE |
        XCB_XKB_STATE_PART_GROUP_LATCH | XCB_XKB_STATE_PART_GROUP_LOCK;
    constexpr quint32 controls = quint32(XCB_XKB_BOOL_CTRL_REPEAT_KEYS) |
                                 quint32(XCB_XKB_CONTROL_PER_KEY_REPEAT) |
                                 quint32(XCB_XKB_CONTROL_CONTROLS_ENABLED);
    xcb_xkb_select_events_details_t details{};
    details.affectNewKeyboard = XCB_XKB_NKN_DETAIL_KEYCODES;
    details.newKeyboardDetails = XCB_XKB_NKN_DETAIL_KEYCODES;
    details.affectState = stateParts;
    details.stateDetails = stateParts;
    details.affectCtrls = controls;
    details.ctrlDetails = controls;
    return requestSucceeded(
        m_connection, xcb_xkb_select_events_aux_checked(m_connection, quint16(m_deviceId), events,
                                                        select ? 0 : events, 0, mapParts,
                                                        select ? mapParts : 0, &details));
}

bool X11CaptureBackend::loadKeymap()
{
    xkb_keymap *keymap = xkb_x11_keymap_new_from_device(m_context, m_connection, m_deviceId,
                                                        XKB_KEYMAP_COMPILE_NO_FLAGS);
    xkb_state *state =
        keymap ? xkb_x11_state_new_from_device(keymap, m_connection, m_deviceId) : nullptr;
    if (!state) {
        xkb_keymap_unref(keymap);
        return false;
    }
    xkb_state_unref(m_state);
    xkb_keymap_unref(m_keymap);
    m_keymap = keymap;
    m_state = state;
    // The naming source follows at once, so the next key is named in the new keymap.
    m_group = xkb_state_serialize_layout(m_state, XKB_STATE_LAYOUT_EFFECTIVE);
    if (m_namingSource) {
        m_namingSource->setKeymap(m_keymap);
        m_namingSource->setActiveGroup(*m_group);
    }
    return true;
}

void X11CaptureBackend::loadRepeatControls()
{
    const XcbReply<xcb_xkb_get_controls_reply_t> controls(xcb_xkb_get_controls_reply(
        m_connection, xcb_xkb_get_controls(m_connection, quint16(m_deviceId)), nullptr));
    if (!controls) {
        m_repeatEnabled = false;
        return;
    }
    m_repeatEnabled = (controls->enabledControls & XCB_XKB_BOOL_CTRL_REPEAT_KEYS) != 0 &&
                      controls->repeatInterval > 0;
    m_repeatDelay = std::chrono::milliseconds(controls->repeatDelay);
    m_repeatInterval = std::chrono::milliseconds(controls->repeatInterval);
    std::copy(std::begin(controls->perKeyRepeat), std::end(controls->perKeyRepeat),
              m_perKeyRepeat.begin());
    if (m_repeatingKey && !keyRepeats(*m_repeatingKey))
        m_repeatingKey.reset();
}

void X11CaptureBackend::loadPointerMapping()
{
    const XcbReply<xcb_get_pointer_mapping_reply_t> reply(xcb_get_pointer_mapping_reply(
        m_connection, xcb_get_pointer_mapping(m_connection), nullptr));
    m_buttonMap.clear();
    if (reply) {
        const quint8 *map = xcb_get_pointer_mapping_map(reply.get());
        m_buttonMap.assign(map, map + xcb_get_pointer_mapping_map_length(reply.get()));
    }
}

CaptureBackend::RunResult X11CaptureBackend::run(CaptureEventHandler &handler)
{
    if (!m_installed)
        return RunResult::ended;
    // The state was read at install time; report the modifiers already held then.
    stateDidChange(0, &handler);
    const int connectionFd = xcb_get_file_descriptor(m_connection);
    for (;;) {
        while (xcb_generic_event_t *event = xcb_poll_for_event(m_connection)) {
            handleEvent(event, handler);
            std::free(event);
        }
        if (xcb_connection_has_error(m_connection)) {
            qWarning("Vantrel: the connection to the X server was lost; key capture has stopped.");
            return RunResult::ended;
        }
        deliverDueRepeat(handler);
        xcb_flush(m_connection);

        int timeout = -1;
        if (m_repeatingKey) {
            const auto remaining =
                std::chrono::ceil<std::chrono::milliseconds>(m_nextRepeat - Clock::now());
            timeout = int(std::max<qint64>(remaining.count(), 0));
        }
        pollfd descriptors[2] = {{connectionFd, POLLIN, 0}, {m_stopFd, POLLIN, 0}};
        if (poll(descriptors, 2, timeout) < 0 && errno != EINTR) {
            qWarning("Vantrel: waiting for X events failed; key capture has stopped.");
            return RunResult::ended;
        }
        if (descriptors[1].revents & POLLIN) {
            quint64 count = 0;
            [[maybe_unused]] const ssize_t read = ::read(m_stopFd, &count, sizeof count);
            return RunResult::stopped;
        }
    }
}

void X11CaptureBackend::handleEvent(const xcb_generic_event_t *event, CaptureEventHandler &handler)
{
    const quint8 type = event->response_type & 0x7f;
    if (type == m_firstXkbEvent) {
        handleXkbEvent(event, handler);
        return;
    }
    // The server sends this to every client, whatever it selected.
    if (type == XCB_MAPPING_NOTIFY) {
        if (reinterpret_cast<const xcb_mapping_notify_event_t *>(event)->request ==
            XCB_MAPPING_POINTER)
            loadPointerMapping();
        return;
    }
    if (type != XCB_GE_GENERIC)
        return;
    const auto *generic = reinterpret_cast<const xcb_ge_generic_event_t *>(event);
    if (generic->extension != m_inputOpcode)
        return;
    switch (generic->event_type) {
    case XCB_INPUT_RAW_KEY_PRESS:
    case XCB_INPUT_RAW_KEY_RELEASE: {
        const auto *raw = reinterpret_cast<const xcb_input_raw_key_press_event_t *>(event);
        handleRawKey(raw->detail, generic->event_type == XCB_INPUT_RAW_KEY_PRESS, handler);
        break;
    }
    case XCB_INPUT_RAW_BUTTON_PRESS: {
        const quint32 physical =
            reinterpret_cast<const xcb_input_raw_button_press_event_t *>(event)->detail;
        // Programs see the button through the pointer mapping (swapped for left-handed users).
        const quint32 button =
            physical >= 1 && physical <= m_buttonMap.size() ? m_buttonMap[physical - 1] : physical;
        if (button != leftButton && button != rightButton)
            break;
        CaptureEvent click;
        click.type = button == leftButton ? CaptureEvent::Type::leftMouseDown
                                          : CaptureEvent::Type::rightMouseDown;
        click.flags = m_flags;
        handler.handleCaptureEvent(click);
        break;
    }
    default:
        break;
    }
}

void X11CaptureBackend::handleXkbEvent(const xcb_generic_event_t *event,
                                       CaptureEventHandler &handler)
{
    const auto *head = reinterpret_cast<const XkbEventHead *>(event);
    if (head->deviceID != m_deviceId)
        return;
    switch (head->xkbType) {
    case XCB_XKB_NEW_KEYBOARD_NOTIFY:
    case XCB_XKB_MAP_NOTIFY:
        if (loadKeymap()) {
            loadRepeatControls();
            stateDidChange(0, &handler);
        }
        break;
    case XCB_XKB_STATE_NOTIFY: {
        const auto *state = reinterpret_cast<const xcb_xkb_state_notify_event_t *>(event);
        xkb_state_update_mask(m_state, state->baseMods, state->latchedMods, state->lockedMods,
                              xkb_layout_index_t(state->baseGroup),
                              xkb_layout_index_t(state->latchedGroup), state->lockedGroup);
        stateDidChange(state->keycode, &handler);
        break;
    }
    case XCB_XKB_CONTROLS_NOTIFY:
        loadRepeatControls();
        break;
    default:
        break;
    }
}

void X11CaptureBackend::stateDidChange(quint32 keycode, CaptureEventHandler *handler)
{
    const quint32 group = xkb_state_serialize_layout(m_state, XKB_STATE_LAYOUT_EFFECTIVE);
    if (m_group != group) {
        m_group = group;
        if (m_namingSource)
            m_namingSource->setActiveGroup(group);
    }
    const quint64 flags = XkbStateReader::modifierFlags(m_state);
    if (flags == m_flags)
        return;
    m_flags = flags;
    CaptureEvent changed;
    changed.type = CaptureEvent::Type::flagsChanged;
    changed.keyCode = keycode >= evdevOffset
                          ? EvdevKeyCodeTable::keyCode(int(keycode) - evdevOffset).value_or(-1)
                          : -1;
    changed.flags = flags;
    handler->handleCaptureEvent(changed);
}

void X11CaptureBackend::handleRawKey(quint32 keycode, bool press, CaptureEventHandler &handler)
{
    if (keycode >= m_pressed.size())
        return;
    if (!press) {
        // XTest sends a second release of a modifier; only a key that is down can go up.
        if (!m_pressed.test(keycode))
            return;
        m_pressed.reset(keycode);
        if (m_repeatingKey == keycode)
            m_repeatingKey.reset();
        deliverKey(CaptureEvent::Type::keyUp, keycode, handler);
        return;
    }
    m_pressed.set(keycode);
    // As the server does: a repeating key takes the repeat over; others leave it running.
    if (keyRepeats(keycode)) {
        m_repeatingKey = keycode;
        m_nextRepeat = Clock::now() + m_repeatDelay;
    }
    deliverKey(CaptureEvent::Type::keyDown, keycode, handler);
}

bool X11CaptureBackend::keyRepeats(quint32 keycode) const
{
    return m_repeatEnabled && keycode < 256 &&
           (m_perKeyRepeat[keycode / 8] & (1u << (keycode % 8))) != 0;
}

void X11CaptureBackend::deliverDueRepeat(CaptureEventHandler &handler)
{
    if (!m_repeatingKey)
        return;
    const Clock::time_point now = Clock::now();
    if (now < m_nextRepeat)
        return;
    // A late wake-up repeats once, not once per missed interval.
    m_nextRepeat = std::max(m_nextRepeat + m_repeatInterval, now + m_repeatInterval / 2);
    deliverKey(CaptureEvent::Type::keyDown, *m_repeatingKey, handler);
}

void X11CaptureBackend::deliverKey(CaptureEvent::Type type, quint32 keycode,
                                   CaptureEventHandler &handler)
{
    const std::optional<int> keyCode = EvdevKeyCodeTable::keyCode(int(keycode) - evdevOffset);
    if (!keyCode)
        return;
    CaptureEvent event;
    event.type = type;
    event.keyCode = *keyCode;
    event.flags = m_flags;
    event.characters = [this, keycode] { return XkbStateReader::characters(m_state, keycode); };
    handler.handleCaptureEvent(event);
}
