#include "HeadlessSway.h"

#include "TestProcess.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QThread>

#include <pwd.h>
#include <unistd.h>

#include <functional>
#include <optional>

namespace {

// The unprivileged user that runs sway; it owns only the private runtime folder.
constexpr char swayUser[] = "nobody";
constexpr int startTimeoutMs = 15000;
// XWayland (when enabled) starts when an X11 client first connects.
constexpr char swayOutputConfig[] = "output HEADLESS-1 resolution 1920x1080 position 0 0\n";
// How long the virtual keyboard stays (wtype pauses this many milliseconds): longer than a test.
constexpr char keyboardLifetimeMs[] = "2000000";

bool waitUntil(const std::function<bool()> &condition, int timeoutMs)
{
    const QDeadlineTimer deadline(timeoutMs);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QThread::msleep(50);
    }
    return true;
}

} // namespace

HeadlessSway::HeadlessSway(XWayland xwayland) : m_xwayland(xwayland) {}

HeadlessSway::~HeadlessSway()
{
    stop();
}

bool HeadlessSway::start(QString *error)
{
    for (const char *program : {"sway", "swaymsg", "setpriv", "wtype"}) {
        if (QStandardPaths::findExecutable(QString::fromLatin1(program)).isEmpty()) {
            *error = QStringLiteral("%1 is not installed: the Wayland tests need headless sway "
                                    "(scripts/common.sh lists the packages)")
                         .arg(QString::fromLatin1(program));
            return false;
        }
    }
    // sway refuses to run as root; another user runs it as itself.
    const bool root = geteuid() == 0;
    const passwd *user = root ? getpwnam(swayUser) : getpwuid(geteuid());
    if (!user || !m_runtimeDir.isValid()) {
        *error = QStringLiteral("no user \"nobody\" or no temporary folder for sway");
        return false;
    }
    // XDG_RUNTIME_DIR must belong to sway's user and be private (mode 0700, as QTemporaryDir
    // makes it).
    const QString dir = m_runtimeDir.path();
    if (chown(QFile::encodeName(dir).constData(), user->pw_uid, user->pw_gid) != 0) {
        *error = QStringLiteral("cannot give %1 to the sway user").arg(dir);
        return false;
    }
    QFile config(dir + u"/config");
    const QByteArray swayConfig =
        QByteArray(m_xwayland == XWayland::onDemand ? "xwayland enable\n" : "xwayland disable\n") +
        swayOutputConfig;
    if (!config.open(QIODevice::WriteOnly) || config.write(swayConfig) < 0) {
        *error = QStringLiteral("cannot write the sway configuration");
        return false;
    }
    config.close();

    QProcessEnvironment env;
    env.insert(QStringLiteral("PATH"), qEnvironmentVariable("PATH"));
    env.insert(QStringLiteral("HOME"), dir);
    env.insert(QStringLiteral("XDG_RUNTIME_DIR"), dir);
    env.insert(QStringLiteral("WLR_BACKENDS"), QStringLiteral("headless"));
    env.insert(QStringLiteral("WLR_RENDERER"), QStringLiteral("pixman"));
    env.insert(QStringLiteral("WLR_LIBINPUT_NO_DEVICES"), QStringLiteral("1"));
    m_sway = std::make_unique<QProcess>();
    m_sway->setProcessEnvironment(env);
    m_sway->setWorkingDirectory(dir);
    m_sway->setProcessChannelMode(QProcess::MergedChannels);
    m_sway->setStandardOutputFile(dir + u"/sway.log");
    QStringList arguments{QStringLiteral("-c"), config.fileName()};
    QString program = QStringLiteral("sway");
    if (root) {
        arguments = QStringList{QStringLiteral("--reuid"),        QString::number(user->pw_uid),
                                QStringLiteral("--regid"),        QString::number(user->pw_gid),
                                QStringLiteral("--clear-groups"), program} +
                    arguments;
        program = QStringLiteral("setpriv");
    }
    m_sway->start(program, arguments);
    if (!m_sway->waitForStarted(5000)) {
        *error = QStringLiteral("sway did not start: ") + m_sway->errorString();
        return false;
    }
    return waitForSockets(error) && startKeyboard(error);
}

bool HeadlessSway::waitForSockets(QString *error)
{
    const QDir dir(m_runtimeDir.path());
    const bool found = waitUntil(
        [&] {
            if (m_sway->state() != QProcess::Running)
                return true;
            const QStringList wayland =
                dir.entryList({QStringLiteral("wayland-*")}, QDir::System)
                    .filter(QRegularExpression(QStringLiteral("^wayland-\\d+$")));
            const QStringList ipc =
                dir.entryList({QStringLiteral("sway-ipc.*.sock")}, QDir::System);
            if (wayland.isEmpty() || ipc.isEmpty())
                return false;
            m_waylandDisplay = dir.filePath(wayland.first());
            m_swaySocket = dir.filePath(ipc.first());
            return true;
        },
        startTimeoutMs);
    if (!found || m_sway->state() != QProcess::Running || m_swaySocket.isEmpty()) {
        *error = QStringLiteral("headless sway did not open its sockets:\n") + log();
        return false;
    }
    // The IPC socket is bound before sway answers; wait until it does.
    if (!waitUntil(
            [this] {
                return swaymsg({QStringLiteral("-t"), QStringLiteral("get_version")});
            },
            startTimeoutMs)) {
        *error = QStringLiteral("sway does not answer on its IPC socket:\n") + log();
        return false;
    }
    return true;
}

bool HeadlessSway::startKeyboard(QString *error)
{
    // Headless sway has no input devices, so its seat has no keyboard and sends no keymap. A
    // virtual keyboard (wtype, held open by a long pause) is one.
    m_keyboard = std::make_unique<QProcess>();
    m_keyboard->setProcessEnvironment(environment());
    m_keyboard->start(QStringLiteral("wtype"),
                      {QStringLiteral("-s"), QString::fromLatin1(keyboardLifetimeMs)});
    const auto keyboardLayouts = [this]() -> std::optional<QJsonArray> {
        QByteArray inputs;
        if (!TestProcess::run(
                environment(), QStringLiteral("swaymsg"),
                {QStringLiteral("-r"), QStringLiteral("-t"), QStringLiteral("get_inputs")}, 5000,
                &inputs))
            return std::nullopt;
        for (const QJsonValue &input : QJsonDocument::fromJson(inputs).array()) {
            if (input[u"type"].toString() == u"keyboard")
                return input[u"xkb_layout_names"].toArray();
        }
        return std::nullopt;
    };
    if (!waitUntil([&] { return keyboardLayouts().has_value(); }, startTimeoutMs)) {
        *error = QStringLiteral("the virtual keyboard did not appear in sway");
        return false;
    }
    // The virtual keyboard brings a keymap of its own; sway puts its configured keymap on it
    // only when the configuration is applied anew.
    if (!swaymsg({QStringLiteral("reload")}) ||
        !waitUntil([&] { return !keyboardLayouts().value_or(QJsonArray()).isEmpty(); },
                   startTimeoutMs)) {
        *error = QStringLiteral("sway did not give the virtual keyboard its keymap");
        return false;
    }
    return true;
}

void HeadlessSway::stop()
{
    for (auto *process : {&m_keyboard, &m_sway}) {
        if (!*process)
            continue;
        (*process)->terminate();
        if (!(*process)->waitForFinished(3000))
            (*process)->kill();
        (*process)->waitForFinished(1000);
        process->reset();
    }
}

QProcessEnvironment HeadlessSway::environment() const
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("WAYLAND_DISPLAY"), m_waylandDisplay);
    env.insert(QStringLiteral("SWAYSOCK"), m_swaySocket);
    env.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_runtimeDir.path());
    env.remove(QStringLiteral("DISPLAY"));
    // Never the desktop's buses: tests that need one start their own.
    env.remove(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"));
    env.remove(QStringLiteral("AT_SPI_BUS_ADDRESS"));
    return env;
}

bool HeadlessSway::run(const QString &program, const QStringList &arguments, int timeoutMs) const
{
    return TestProcess::run(environment(), program, arguments, timeoutMs);
}

bool HeadlessSway::hasWindow(const QString &title) const
{
    QByteArray tree;
    if (!TestProcess::run(environment(), QStringLiteral("swaymsg"),
                          {QStringLiteral("-r"), QStringLiteral("-t"), QStringLiteral("get_tree")},
                          5000, &tree))
        return false;
    return tree.contains(QByteArray("\"name\": \"" + title.toUtf8() + '"'));
}

bool HeadlessSway::pointer(const QStringList &commands) const
{
    // The layout is the first output's size: tests place their pointer there.
    return run(QStringLiteral(VANTREL_TEST_POINTER),
               QStringList{QStringLiteral("1920"), QStringLiteral("1080")} + commands);
}

bool HeadlessSway::swaymsg(const QStringList &arguments) const
{
    // swaymsg exits with a failure when sway rejects a command, and says why on standard output.
    QByteArray output;
    if (TestProcess::run(environment(), QStringLiteral("swaymsg"), arguments, 10000, &output))
        return true;
    qWarning("swaymsg %s: %s", qPrintable(arguments.join(u' ')), output.simplified().constData());
    return false;
}

QString HeadlessSway::startXWayland()
{
    // Run by sway, the command has XWayland's DISPLAY; its first X11 connection starts it.
    const QString file = m_runtimeDir.filePath(QStringLiteral("x11-display"));
    if (!swaymsg({QStringLiteral("exec"),
                  QStringLiteral("xhost +si:localuser:root >/dev/null && echo $DISPLAY > %1.new "
                                 "&& mv %1.new %1")
                      .arg(file)}))
        return {};
    QString display;
    waitUntil(
        [&] {
            QFile written(file);
            if (written.open(QIODevice::ReadOnly))
                display = QString::fromLocal8Bit(written.readAll()).trimmed();
            return !display.isEmpty();
        },
        startTimeoutMs);
    return display;
}

QImage HeadlessSway::grab(const QString &output) const
{
    const QString file = m_runtimeDir.filePath(QStringLiteral("grab.png"));
    QStringList arguments{file};
    if (!output.isEmpty())
        arguments = QStringList{QStringLiteral("-o"), output} + arguments;
    if (!run(QStringLiteral("grim"), arguments))
        return {};
    QImage image(file);
    QFile::remove(file);
    return image;
}

QString HeadlessSway::log() const
{
    QFile file(m_runtimeDir.filePath(QStringLiteral("sway.log")));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    // The last lines say why it stopped.
    const QByteArray text = file.readAll();
    return QString::fromLocal8Bit(text.right(2000));
}
