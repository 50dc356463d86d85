#pragma once

#include <QImage>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

// A private Wayland compositor for tests: headless sway (pixman renderer, no input devices, one
// output, XWayland on demand) run as an unprivileged user, since sway refuses to run as root.
// A virtual keyboard gives its seat a keyboard, so that clients receive its keymap. Root clients
// (the tests) connect to its sockets; everything stops on destruction.
class HeadlessSway final {
public:
    // Whether X11 clients can start XWayland; without it only Wayland clients can show.
    enum class XWayland { onDemand, disabled };

    explicit HeadlessSway(XWayland xwayland = XWayland::onDemand);
    ~HeadlessSway();

    // Starts sway and its keyboard; false with a reason on failure (sway missing included).
    bool start(QString *error);
    void stop();

    // The absolute path of the Wayland socket (a valid WAYLAND_DISPLAY) and of the IPC socket.
    QString waylandDisplay() const { return m_waylandDisplay; }
    QString swaySocket() const { return m_swaySocket; }
    // An environment for clients of this compositor, without an X11 display.
    QProcessEnvironment environment() const;

    // Runs a command against this compositor and waits for it; true when it exited with 0.
    bool run(const QString &program, const QStringList &arguments, int timeoutMs = 10000) const;
    // swaymsg with these arguments; true when sway accepted every command.
    bool swaymsg(const QStringList &arguments) const;
    // Starts XWayland and lets root's X11 clients in; its DISPLAY, empty on failure.
    QString startXWayland();
    // Every output (or the one named `output`) as grim reads it back; null on failure.
    QImage grab(const QString &output = {}) const;
    // Whether a window with this title is mapped (in the scratchpad too).
    bool hasWindow(const QString &title) const;
    // Moves and clicks a virtual pointer (commands of tests/WaylandPointer.cpp: "move X Y",
    // "press", "release", "click", "wait MS") over a layout of one 1920x1080 output.
    bool pointer(const QStringList &commands) const;

private:
    bool waitForSockets(QString *error);
    bool startKeyboard(QString *error);
    QString log() const;

    const XWayland m_xwayland;
    QTemporaryDir m_runtimeDir;
    std::unique_ptr<QProcess> m_sway;
    std::unique_ptr<QProcess> m_keyboard;
    QString m_waylandDisplay;
    QString m_swaySocket;
};
