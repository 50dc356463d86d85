#pragma once

#include <QString>
#include <QtGlobal>

#include <functional>
#include <memory>
#include <vector>

class CaptureBackend;
class CompositorWatcher;
class HotKeyGrabber;
class KeyboardLayoutSource;
class KeyRowRenderer;
class QObject;
class QRect;
class QWidget;
class WidgetSurface;
class SecrecyWatcher;

// Factories for the platform's implementations of the interfaces that the rest of Vantrel uses.
// The backend is chosen at build time; nothing outside src/platform/ includes platform headers.
class Platform final {
public:
    Platform() = delete;

    // Why no display can be used for the overlays (empty when one can): the compositor's layer
    // shell where overlays are drawn there, an X11 display otherwise.
    static QString displayProblem();
    // A Wayland session (WAYLAND_DISPLAY or XDG_SESSION_TYPE says so): keys come from the input
    // devices and are named by the compositor's keymap.
    static bool isWaylandSession();
    // Overlays are layer surfaces of the compositor (and Qt runs on its wayland platform): in a
    // Wayland session whose compositor offers the layer shell, or when VANTREL_OVERLAY=wayland.
    // VANTREL_OVERLAY=x11 keeps X11 windows, through XWayland in a Wayland session. Decided once.
    static bool drawsOverlaysOnLayerShell();
    // Chooses Qt's platform before the application object exists: wayland where overlays are
    // layer surfaces, xcb otherwise (unless QT_QPA_PLATFORM says), and on wayland shared-memory
    // windows without GL.
    static void prepareQtPlatform();
    // Called once the application object exists: takes that choice out of the environment
    // again, so that programs Vantrel starts (a browser, the input helper) do not inherit it.
    static void qtPlatformStarted();
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
    // What tells when keys are secret, not started: logind's lock state of this session, the
    // screen lockers' signals, the X11 screen saver (in X11 sessions) and the accessibility bus's
    // focused password fields.
    static std::vector<std::unique_ptr<SecrecyWatcher>> createSecrecyWatchers();
    // System-wide key grabs for KeyboardShortcuts; nothing when no display can be reached. With
    // VANTREL_SHORTCUTS=portal, the desktop portal's global shortcuts (nothing without a portal).
    static std::unique_ptr<HotKeyGrabber> createHotKeyGrabber();
    // Draws a key row into the overlay window `window` (a native window of the application)
    // through the display server; nothing when the display cannot.
    static std::unique_ptr<KeyRowRenderer> createKeyRowRenderer(quintptr window);
    // Draws a key row on a layer surface over `band` of the output named `outputName`; nothing
    // when the compositor cannot.
    static std::unique_ptr<KeyRowRenderer> createLayerShellKeyRowRenderer(const QString &outputName,
                                                                          const QRect &band);
    // Shows `widget` on a layer surface over the output named `outputName`, holding the
    // keyboard; nothing when the compositor cannot.
    static std::unique_ptr<WidgetSurface> createLayerShellWidgetSurface(QWidget &widget,
                                                                        const QString &outputName);
};
