#include "platform/Platform.h"

#include "platform/linux/TerminationSignalWatcher.h"
#include "platform/linux/XkbKeyboardLayoutSource.h"
#include "platform/x11/X11CaptureBackend.h"
#include "platform/x11/X11CompositorWatcher.h"
#include "platform/x11/X11HotKeyGrabber.h"
#include "platform/x11/X11KeyRowRenderer.h"
#include "platform/x11/X11KeyboardLayoutMonitor.h"

#include <xcb/xcb.h>

QString Platform::displayProblem()
{
    const QByteArray display = qgetenv("DISPLAY");
    if (display.isEmpty())
        return QStringLiteral("no X11 display: DISPLAY is not set (Vantrel needs an X11 desktop)");
    xcb_connection_t *connection = xcb_connect(display.constData(), nullptr);
    const bool failed = xcb_connection_has_error(connection) != 0;
    xcb_disconnect(connection);
    if (failed)
        return QStringLiteral("cannot open X11 display \"%1\"")
            .arg(QString::fromLocal8Bit(display));
    return {};
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

std::shared_ptr<KeyboardLayoutSource> Platform::createKeyboardLayoutSource(QObject *owner)
{
    if (std::unique_ptr<X11KeyboardLayoutMonitor> monitor = X11KeyboardLayoutMonitor::create()) {
        std::shared_ptr<KeyboardLayoutSource> source = monitor->source();
        monitor.release()->setParent(owner);
        return source;
    }
    return XkbKeyboardLayoutSource::fromNames(QStringLiteral("us"));
}

std::unique_ptr<CaptureBackend>
Platform::createCaptureBackend(const std::shared_ptr<KeyboardLayoutSource> &namingSource)
{
    // Only an xkbcommon layout can follow the server's keymap; any other source stays as it is.
    return std::make_unique<X11CaptureBackend>(
        QByteArray(), std::dynamic_pointer_cast<XkbKeyboardLayoutSource>(namingSource));
}

std::unique_ptr<HotKeyGrabber> Platform::createHotKeyGrabber()
{
    return X11HotKeyGrabber::create();
}

std::unique_ptr<KeyRowRenderer> Platform::createKeyRowRenderer(quintptr window)
{
    return X11KeyRowRenderer::create(static_cast<quint32>(window));
}
