#pragma once

#include <QString>
#include <QtGlobal>

#include <functional>
#include <memory>

class CaptureBackend;
class CompositorWatcher;
class HotKeyGrabber;
class KeyboardLayoutSource;
class KeyRowRenderer;
class QObject;

// Factories for the platform's implementations of the interfaces that the rest of Vantrel uses.
// The backend is chosen at build time; nothing outside src/platform/ includes platform headers.
class Platform final {
public:
    Platform() = delete;

    // Why no display can be used (empty when one can): the program needs an X11 display.
    static QString displayProblem();
    // A Wayland session (WAYLAND_DISPLAY or XDG_SESSION_TYPE says so): keys come from the input
    // devices and are named by the compositor's keymap; the overlays stay X11 windows, drawn
    // through XWayland.
    static bool isWaylandSession();
    // Follows whether a compositing manager runs; nothing when no display can be reached.
    static std::unique_ptr<CompositorWatcher> createCompositorWatcher();
    // Calls `handler` on the main thread when the process is asked to terminate (SIGINT, SIGTERM).
    static void watchTerminationSignals(QObject *context, std::function<void()> handler);
    // The current keyboard layout: the compositor's in a Wayland session, the X server's
    // otherwise, followed as it changes by a monitor that becomes a child of `owner`; a fixed
    // US layout when neither can be reached, so that keys are still named. Install the result
    // into KeyboardLayoutTranslator::installSharedSource() at start-up.
    static std::shared_ptr<KeyboardLayoutSource> createKeyboardLayoutSource(QObject *owner);
    // The global input capture for KeyManager: the input devices in a Wayland session, X11's raw
    // events otherwise. `namingSource` is the layout that names keys (the one from
    // createKeyboardLayoutSource()); the capture keeps it on the keymap and group that each event
    // was typed in, so a layout switch names the very next key. Made on the main thread: it
    // connects to the display here, and two threads must not connect at once.
    static std::unique_ptr<CaptureBackend>
    createCaptureBackend(const std::shared_ptr<KeyboardLayoutSource> &namingSource);
    // System-wide key grabs for KeyboardShortcuts; nothing when no display can be reached. With
    // VANTREL_SHORTCUTS=portal, the desktop portal's global shortcuts (nothing without a portal).
    static std::unique_ptr<HotKeyGrabber> createHotKeyGrabber();
    // Draws a key row into the overlay window `window` (a native window of the application)
    // through the display server; nothing when the display cannot.
    static std::unique_ptr<KeyRowRenderer> createKeyRowRenderer(quintptr window);
};
