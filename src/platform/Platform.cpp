#include "platform/Platform.h"

#include "platform/evdev/EvdevCaptureBackend.h"
#include "platform/linux/AtSpiFocusWatcher.h"
#include "platform/linux/DebianKeyboardDefaults.h"
#include "platform/linux/LogindLockWatcher.h"
#include "platform/linux/PortalHotKeyGrabber.h"
#include "platform/linux/ScreenSaverLockWatcher.h"
#include "platform/linux/TerminationSignalWatcher.h"
#include "platform/linux/XkbKeyboardLayoutSource.h"
#include "platform/wayland/LayerShellWidgetSurface.h"
#include "platform/wayland/WaylandKeyRowRenderer.h"
#include "platform/wayland/WaylandKeyboardLayoutMonitor.h"
#include "platform/x11/X11CaptureBackend.h"
#include "platform/x11/X11CompositorWatcher.h"
#include "platform/x11/X11HotKeyGrabber.h"
#include "platform/x11/X11KeyRowRenderer.h"
#include "platform/x11/X11KeyboardLayoutMonitor.h"
#include "platform/x11/X11ScreenSaverWatcher.h"

#include <QCoreApplication>
#include <QOpenGLContext>

#include <cstdio>
#include <utility>

#include <xcb/xcb.h>

namespace {
// VANTREL_OVERLAY: empty (chosen by the session), "x11" or "wayland".
bool overlayChoiceIsValid(const QByteArray &choice)
{
    return choice.isEmpty() || choice == "x11" || choice == "wayland";
}
} // namespace

QString Platform::displayProblem()
{
    const QByteArray choice = qgetenv("VANTREL_OVERLAY");
    if (!overlayChoiceIsValid(choice))
        return QCoreApplication::translate(
                   "Platform", "VANTREL_OVERLAY must be \"x11\" or \"wayland\", not \"%1\"")
            .arg(QString::fromLocal8Bit(choice));
    if (drawsOverlaysOnLayerShell()) {
        if (!WaylandKeyRowRenderer::isOffered())
            return QCoreApplication::translate("Platform",
                                               "no Wayland compositor with the layer shell answers "
                                               "(VANTREL_OVERLAY=wayland needs one)");
        return {};
    }
    const QByteArray display = qgetenv("DISPLAY");
    if (display.isEmpty() && isWaylandSession() && choice.isEmpty())
        return QCoreApplication::translate(
            "Platform", "no display for the overlays: the Wayland compositor offers no layer "
                        "shell and DISPLAY is not set (no XWayland)");
    if (display.isEmpty())
        return QCoreApplication::translate(
            "Platform", "no X11 display: DISPLAY is not set (Vantrel needs an X11 desktop)");
    xcb_connection_t *connection = xcb_connect(display.constData(), nullptr);
    const bool failed = xcb_connection_has_error(connection) != 0;
    xcb_disconnect(connection);
    if (failed)
        return QCoreApplication::translate("Platform", "cannot open X11 display \"%1\"")
            .arg(QString::fromLocal8Bit(display));
    return {};
}

namespace {

QtMessageHandler passOnMessage = nullptr;
// What prepareQtPlatform() put into the environment, for qtPlatformStarted() to take out.
bool choseQtPlatform = false;
bool choseBufferIntegration = false;
// Whether Vantrel (not the user) chose the buffer integration Qt's notes are about.
bool quietBufferIntegration = false;

// Notes Qt's wayland platform prints at every start that say nothing about Vantrel: the GL
// buffer integration Vantrel told it not to load is missing (a user's own choice is not hidden),
// and the tray looks for a signal only X11 has.
void dropWaylandStartNotes(QtMsgType type, const QMessageLogContext &context,
                           const QString &message)
{
    const bool known =
        type == QtWarningMsg &&
        ((quietBufferIntegration && qstrcmp(context.category, "qt.qpa.wayland") == 0 &&
          (message.startsWith(u"Failed to load client buffer integration") ||
           message.startsWith(u"Available client buffer integrations"))) ||
         (qstrcmp(context.category, "qt.core.qobject.connect") == 0 &&
          message.contains(u"QPlatformNativeInterface::systemTrayWindowChanged")));
    if (known)
        return;
    if (passOnMessage)
        passOnMessage(type, context, message);
    else
        std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, message)));
}

} // namespace

void Platform::prepareQtPlatform()
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", drawsOverlaysOnLayerShell() ? "wayland" : "xcb");
        choseQtPlatform = true;
    }
    // Vantrel's windows paint with QPainter into shared memory. Without this, Qt's wayland
    // platform loads EGL and the GL driver (about 50 MB resident with Mesa) that nothing uses.
    if (qgetenv("QT_QPA_PLATFORM") != "wayland")
        return;
    if (!qEnvironmentVariableIsSet("QT_WAYLAND_CLIENT_BUFFER_INTEGRATION")) {
        qputenv("QT_WAYLAND_CLIENT_BUFFER_INTEGRATION", "none");
        choseBufferIntegration = quietBufferIntegration = true;
    }
    static const QtMessageHandler previous = qInstallMessageHandler(&dropWaylandStartNotes);
    passOnMessage = previous;
}

void Platform::qtPlatformStarted()
{
    // Qt has read them; browsers and helpers that Vantrel starts choose for themselves.
    if (std::exchange(choseQtPlatform, false))
        qunsetenv("QT_QPA_PLATFORM");
    if (std::exchange(choseBufferIntegration, false)) {
        // Qt reads it when first asked about GL; asked now, the choice is made before it goes.
        QOpenGLContext::supportsThreadedOpenGL();
        qunsetenv("QT_WAYLAND_CLIENT_BUFFER_INTEGRATION");
    }
}

std::unique_ptr<CompositorWatcher> Platform::createCompositorWatcher()
{
    return X11CompositorWatcher::create();
}

void Platform::watchTerminationSignals(QObject *context, std::function<void()> handler)
{
    auto *watcher = new TerminationSignalWatcher(context);
    QObject::connect(watcher, &TerminationSignalWatcher::terminationRequested, context,
                     std::move(handler));
}

bool Platform::isWaylandSession()
{
    return !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
           qgetenv("XDG_SESSION_TYPE") == "wayland";
}

bool Platform::drawsOverlaysOnLayerShell()
{
    static const bool layerShell = [] {
        const QByteArray choice = qgetenv("VANTREL_OVERLAY");
        if (choice == "wayland")
            return true;
        if (!choice.isEmpty())
            return false;
        return isWaylandSession() && WaylandKeyRowRenderer::isOffered();
    }();
    return layerShell;
}

std::shared_ptr<KeyboardLayoutSource> Platform::createKeyboardLayoutSource(QObject *owner)
{
    // In a Wayland session the compositor's keymap names keys; XWayland's knows only X11 windows.
    if (isWaylandSession()) {
        if (std::unique_ptr<WaylandKeyboardLayoutMonitor> monitor =
                WaylandKeyboardLayoutMonitor::create()) {
            std::shared_ptr<KeyboardLayoutSource> source = monitor->source();
            monitor.release()->setParent(owner);
            return source;
        }
    } else if (std::unique_ptr<X11KeyboardLayoutMonitor> monitor =
                   X11KeyboardLayoutMonitor::create()) {
        std::shared_ptr<KeyboardLayoutSource> source = monitor->source();
        monitor.release()->setParent(owner);
        return source;
    }
    // No keymap from the desktop (no seat, no display): the system's configured keyboard.
    if (const std::optional<DebianKeyboardDefaults> defaults = DebianKeyboardDefaults::read();
        defaults && !defaults->layout().isEmpty()) {
        if (std::unique_ptr<XkbKeyboardLayoutSource> source = XkbKeyboardLayoutSource::fromNames(
                defaults->layout(), defaults->variant(), defaults->options(), defaults->model()))
            return source;
    }
    return XkbKeyboardLayoutSource::fromNames(QStringLiteral("us"));
}

std::unique_ptr<CaptureBackend>
Platform::createCaptureBackend(const std::shared_ptr<KeyboardLayoutSource> &namingSource)
{
    // Only an xkbcommon layout can follow the keymap; any other source stays as it is.
    auto xkbSource = std::dynamic_pointer_cast<XkbKeyboardLayoutSource>(namingSource);
    // X11 raw events under XWayland carry only the keys typed into X11 windows.
    if (isWaylandSession())
        return std::make_unique<EvdevCaptureBackend>(std::move(xkbSource));
    return std::make_unique<X11CaptureBackend>(QByteArray(), std::move(xkbSource));
}

std::vector<std::unique_ptr<SecrecyWatcher>> Platform::createSecrecyWatchers()
{
    std::vector<std::unique_ptr<SecrecyWatcher>> watchers;
    watchers.push_back(std::make_unique<LogindLockWatcher>());
    watchers.push_back(std::make_unique<ScreenSaverLockWatcher>());
    // XWayland's screen saver knows nothing of the Wayland session's lock.
    if (!isWaylandSession())
        watchers.push_back(std::make_unique<X11ScreenSaverWatcher>());
    watchers.push_back(std::make_unique<AtSpiFocusWatcher>());
    return watchers;
}

std::unique_ptr<HotKeyGrabber> Platform::createHotKeyGrabber()
{
    // Without X11 no key can be grabbed: the desktop portal binds them where it answers. Also
    // on request, for desktops whose X11 grabs see only X11 windows (XWayland).
    if (drawsOverlaysOnLayerShell() || qgetenv("VANTREL_SHORTCUTS") == "portal")
        return PortalHotKeyGrabber::create();
    return X11HotKeyGrabber::create();
}

std::unique_ptr<KeyRowRenderer> Platform::createKeyRowRenderer(quintptr window)
{
    return X11KeyRowRenderer::create(static_cast<quint32>(window));
}

std::unique_ptr<KeyRowRenderer> Platform::createLayerShellKeyRowRenderer(const QString &outputName,
                                                                         const QRect &band)
{
    return WaylandKeyRowRenderer::create(outputName, band);
}

std::unique_ptr<WidgetSurface> Platform::createLayerShellWidgetSurface(QWidget &widget,
                                                                       const QString &outputName)
{
    return LayerShellWidgetSurface::create(widget, outputName);
}
