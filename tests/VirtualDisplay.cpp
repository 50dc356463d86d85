#include "VirtualDisplay.h"

#include "TestProcess.h"

#include <QDir>
#include <QThread>

#include <xcb/xcb.h>

#include <cstdlib>

VirtualDisplay::VirtualDisplay() = default;

VirtualDisplay::~VirtualDisplay()
{
    stop();
}

bool VirtualDisplay::start(QString *error)
{
    m_server = std::make_unique<QProcess>();
    m_server->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    // Xvfb writes its display number to standard output once it accepts connections.
    m_server->start(QStringLiteral("Xvfb"),
                    {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                     QStringLiteral("0"), QStringLiteral("3840x1080x24"),
                     QStringLiteral("+extension"), QStringLiteral("RANDR"),
                     QStringLiteral("-noreset"), QStringLiteral("-nolisten"),
                     QStringLiteral("tcp")});
    if (!m_server->waitForStarted(5000) || !m_server->waitForReadyRead(10000)) {
        *error = QStringLiteral("Xvfb did not start: ") + m_server->errorString();
        return false;
    }
    m_displayName = QStringLiteral(":") + QString::fromLatin1(m_server->readLine().trimmed());

    if (!run(QStringLiteral("xrandr"),
             {QStringLiteral("--setmonitor"), QStringLiteral("*LEFT"),
              QStringLiteral("1920/508x1080/286+0+0"), QStringLiteral("screen")}) ||
        !addRightMonitor()) {
        *error = QStringLiteral("xrandr could not define the monitors");
        return false;
    }
    run(QStringLiteral("setxkbmap"), {QStringLiteral("us")});
    return true;
}

void VirtualDisplay::stop()
{
    for (auto *helper : {&m_bus, &m_windowManager}) {
        if (*helper) {
            (*helper)->terminate();
            (*helper)->waitForFinished(3000);
            helper->reset();
        }
    }
    m_busAddress.clear();
    stopCompositor();
    if (m_server) {
        m_server->terminate();
        if (!m_server->waitForFinished(3000))
            m_server->kill();
        m_server->waitForFinished(1000);
        m_server.reset();
    }
}

bool VirtualDisplay::isRunning() const
{
    return m_server && m_server->state() == QProcess::Running;
}

QProcessEnvironment VirtualDisplay::environment() const
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("DISPLAY"), m_displayName);
    env.remove(QStringLiteral("WAYLAND_DISPLAY"));
    env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    // Never the desktop's buses: a Vantrel under test would hand over to one running there.
    env.remove(QStringLiteral("AT_SPI_BUS_ADDRESS"));
    if (m_busAddress.isEmpty())
        env.remove(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"));
    else
        env.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), m_busAddress);
    return env;
}

bool VirtualDisplay::addRightMonitor()
{
    return run(QStringLiteral("xrandr"),
               {QStringLiteral("--setmonitor"), QStringLiteral("RIGHT"),
                QStringLiteral("1920/508x1080/286+1920+0"), QStringLiteral("none")});
}

bool VirtualDisplay::removeRightMonitor()
{
    return run(QStringLiteral("xrandr"), {QStringLiteral("--delmonitor"), QStringLiteral("RIGHT")});
}

bool VirtualDisplay::startCompositor()
{
    m_compositor = std::make_unique<QProcess>();
    m_compositor->setProcessEnvironment(environment());
    m_compositor->start(QStringLiteral("xcompmgr"), {});
    if (!m_compositor->waitForStarted(5000))
        return false;
    QThread::msleep(300); // let it take the compositing selection
    return m_compositor->state() == QProcess::Running;
}

void VirtualDisplay::stopCompositor()
{
    if (!m_compositor)
        return;
    m_compositor->terminate();
    if (!m_compositor->waitForFinished(3000))
        m_compositor->kill();
    m_compositor.reset();
}

bool VirtualDisplay::run(const QString &program, const QStringList &arguments, int timeoutMs) const
{
    return TestProcess::run(environment(), program, arguments, timeoutMs);
}

QImage VirtualDisplay::grab() const
{
    xcb_connection_t *connection = xcb_connect(m_displayName.toLatin1().constData(), nullptr);
    QImage image;
    if (!xcb_connection_has_error(connection)) {
        const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
        xcb_get_image_reply_t *reply = xcb_get_image_reply(
            connection,
            xcb_get_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP, screen->root, 0, 0,
                          screen->width_in_pixels, screen->height_in_pixels, ~0u),
            nullptr);
        if (reply) {
            // A 24-bit depth root is stored as 32 bits per pixel, BGRX in memory.
            const QImage view(xcb_get_image_data(reply), screen->width_in_pixels,
                              screen->height_in_pixels, QImage::Format_RGB32);
            image = view.copy();
            std::free(reply);
        }
    }
    xcb_disconnect(connection);
    return image;
}

QImage VirtualDisplay::grab(const QString &name) const
{
    const QImage screen = grab();
    if (const QString dir = qEnvironmentVariable("VANTREL_E2E_SCREENSHOTS"); !dir.isEmpty())
        screen.save(QDir(dir).filePath(name + u".png"));
    return screen;
}

bool VirtualDisplay::startWindowManager()
{
    m_windowManager = std::make_unique<QProcess>();
    m_windowManager->setProcessEnvironment(environment());
    m_windowManager->start(QStringLiteral("openbox"), {QStringLiteral("--sm-disable")});
    return m_windowManager->waitForStarted(5000);
}

QString VirtualDisplay::startSessionBus()
{
    m_busRuntime = std::make_unique<QTemporaryDir>();
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_busRuntime->path());
    // What the bus starts (the accessibility bus's launcher marks the X root window) stays on
    // this server, off the desktop the tests may run from.
    env.remove(QStringLiteral("WAYLAND_DISPLAY"));
    if (m_displayName.isEmpty())
        env.remove(QStringLiteral("DISPLAY"));
    else
        env.insert(QStringLiteral("DISPLAY"), m_displayName);
    m_bus = std::make_unique<QProcess>();
    m_bus->setProcessEnvironment(env);
    m_bus->start(QStringLiteral("dbus-daemon"),
                 {QStringLiteral("--session"), QStringLiteral("--nofork"),
                  QStringLiteral("--print-address=1")});
    if (!m_bus->waitForReadyRead(5000))
        return {};
    m_busAddress = QString::fromLatin1(m_bus->readLine().trimmed());
    return m_busAddress;
}
