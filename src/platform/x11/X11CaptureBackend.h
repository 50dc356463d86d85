#pragma once

#include "capture/CaptureBackend.h"

#include <QByteArray>

#include <xcb/xcb.h>

#include <array>
#include <bitset>
#include <chrono>
#include <memory>
#include <optional>
#include <vector>

class XkbKeyboardLayoutSource;
struct xkb_context;
struct xkb_keymap;
struct xkb_state;

// Global input capture on an X server: XInput 2.2 raw key and button events on the root window
// (one per physical action whatever window has focus, even under another client's key grab), with
// the XKB extension for the modifier state, the keymap and the key repeat controls. Runs on the
// capture thread over a connection of its own, sleeping in poll() on that connection and on an
// eventfd that stop() writes to.
//
// The connection is opened by the constructor, on the thread that makes the backend, and kept
// for the backend's life: connecting reads libXau's one static buffer, so a connection made on
// the capture thread would race with the main thread's own. Access is therefore decided then.
class X11CaptureBackend final : public CaptureBackend {
public:
    // `displayName` empty: $DISPLAY. `namingSource`, when given, is kept on the server's keymap
    // and active group, in event order, so a layout switch names the very next key.
    explicit X11CaptureBackend(const QByteArray &displayName = {},
                               std::shared_ptr<XkbKeyboardLayoutSource> namingSource = {});
    ~X11CaptureBackend() override;
    X11CaptureBackend(const X11CaptureBackend &) = delete;
    X11CaptureBackend &operator=(const X11CaptureBackend &) = delete;

    Access checkAccess() override;
    Access requestAccess() override;
    QStringList accessSteps() const override;
    bool install() override;
    RunResult run(CaptureEventHandler &handler) override;
    void uninstall() override;
    void stop() override;

private:
    using Clock = std::chrono::steady_clock;

    Access openConnection(const QByteArray &displayName);
    bool selectInputEvents(bool select);
    bool selectXkbEvents(bool select);
    bool loadKeymap();
    void loadRepeatControls();
    void loadPointerMapping();
    void handleEvent(const xcb_generic_event_t *event, CaptureEventHandler &handler);
    void handleXkbEvent(const xcb_generic_event_t *event, CaptureEventHandler &handler);
    void handleRawKey(quint32 keycode, bool press, CaptureEventHandler &handler);
    void deliverKey(CaptureEvent::Type type, quint32 keycode, CaptureEventHandler &handler);
    void deliverDueRepeat(CaptureEventHandler &handler);
    // Publishes the state's group to the naming source and reports changed modifier flags.
    void stateDidChange(quint32 keycode, CaptureEventHandler *handler);
    bool keyRepeats(quint32 keycode) const;

    const std::shared_ptr<XkbKeyboardLayoutSource> m_namingSource;
    int m_stopFd = -1;

    xcb_connection_t *m_connection = nullptr;
    Access m_access;
    bool m_installed = false;
    quint8 m_inputOpcode = 0;
    quint8 m_firstXkbEvent = 0;
    int m_deviceId = -1;
    xkb_context *m_context = nullptr;
    xkb_keymap *m_keymap = nullptr;
    xkb_state *m_state = nullptr;
    quint64 m_flags = 0;
    std::optional<quint32> m_group;

    // Keys down now, by X keycode: a release of a key that is not down is ignored.
    std::bitset<256> m_pressed;

    // The server's pointer mapping: the button programs see, by physical button (raw events
    // carry the physical one); 0 for a disabled button.
    std::vector<quint8> m_buttonMap;

    // Key repeat: the server's controls, and the key repeating now.
    bool m_repeatEnabled = false;
    std::chrono::milliseconds m_repeatDelay{0};
    std::chrono::milliseconds m_repeatInterval{0};
    std::array<quint8, 32> m_perKeyRepeat{};
    std::optional<quint32> m_repeatingKey;
    Clock::time_point m_nextRepeat;
};
