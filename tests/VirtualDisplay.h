#pragma once

#include <QGuiApplication>
#include <QImage>
#include <QProcess>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

// A private X server for tests: Xvfb with two RandR monitors side by side
// (LEFT, the primary, and RIGHT, 1920x1080 each), optionally a compositing manager, and helpers
// to press keys, click and read the screen back.
class VirtualDisplay final {
public:
    VirtualDisplay();
    ~VirtualDisplay();

    // Starts the server and defines the two monitors; false with a reason on failure.
    bool start(QString *error);
    void stop();
    bool isRunning() const;

    QString displayName() const { return m_displayName; }
    // An environment for child processes that talk to this server.
    QProcessEnvironment environment() const;

    static QRect leftMonitor() { return {0, 0, 1920, 1080}; }
    static QRect rightMonitor() { return {1920, 0, 1920, 1080}; }

    // A test program's main(): runs the Qt Test object of type Test with the xcb platform on a new
    // virtual display.
    template <typename Test> static int execTests(int argc, char *argv[]);

    bool addRightMonitor();
    bool removeRightMonitor();
    bool startCompositor();
    void stopCompositor();

    // Runs a command against this server and waits for it; true when it exited with 0.
    bool run(const QString &program, const QStringList &arguments, int timeoutMs = 10000) const;
    bool xdotool(const QStringList &arguments) const
    {
        return run(QStringLiteral("xdotool"), arguments);
    }

    // The whole screen as the X server holds it.
    QImage grab() const;
    // The same, also saved as <name>.png in $VANTREL_E2E_SCREENSHOTS when that is set, for
    // people who want to see what a test saw.
    QImage grab(const QString &name) const;

    // A window manager (openbox) on this server, so that windows take the keyboard. It stops
    // with the server.
    bool startWindowManager();
    // A private session bus; its address, empty when it cannot start. It stops with the server.
    QString startSessionBus();

private:
    QString m_displayName;
    std::unique_ptr<QProcess> m_server;
    std::unique_ptr<QProcess> m_compositor;
    std::unique_ptr<QProcess> m_windowManager;
    std::unique_ptr<QProcess> m_bus;
    QString m_busAddress;
    // The bus's runtime folder: services it starts (the accessibility bus) keep their sockets
    // there, apart from those of other tests.
    std::unique_ptr<QTemporaryDir> m_busRuntime;
};

template <typename Test> int VirtualDisplay::execTests(int argc, char *argv[])
{
    VirtualDisplay display;
    QString error;
    if (!display.start(&error)) {
        qWarning("%s", qPrintable(error));
        return 1;
    }
    qputenv("DISPLAY", display.displayName().toLatin1());
    qputenv("QT_QPA_PLATFORM", "xcb");
    QGuiApplication app(argc, argv);
    Test test;
    return QTest::qExec(&test, argc, argv);
}
