#pragma once

#include "CapFinder.h"
#include "VirtualDisplay.h"
#include "settings/SettingsStore.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QVariantMap>

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

// Vantrel on a private two-monitor X server whose desktop is one plain colour, with its settings
// in a folder of its own, and the programs a test adds beside it. For whole-program tests.
class X11Session final {
public:
    static constexpr QRgb desktopColor = qRgb(0x20, 0x40, 0x60);

    struct Options {
        bool compositor = false;
        bool windowManager = false; // so that windows take the keyboard
        bool sessionBus = false;    // a private one, so that `vantrel --command` reaches Vantrel
    };

    ~X11Session()
    {
        // Vantrel (started last) quits first, the X server last.
        if (m_vantrel && m_vantrel->state() != QProcess::NotRunning) {
            m_vantrel->terminate();
            m_vantrel->waitForFinished(5000);
        }
        std::for_each(m_programs.rbegin(), m_programs.rend(), [](auto &program) {
            program->terminate();
            program->waitForFinished(3000);
        });
    }

    // Starts the server and what `options` ask for; false with a reason on failure.
    bool start(Options options, QString *error)
    {
        if (!m_display.start(error))
            return false;
        m_display.run(QStringLiteral("xsetroot"),
                      {QStringLiteral("-solid"), QStringLiteral("#204060")});
        m_environment = m_display.environment();
        m_environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_config.path());
        if (options.sessionBus) {
            const QString bus = m_display.startSessionBus();
            if (bus.isEmpty()) {
                *error = QStringLiteral("dbus-daemon did not start");
                return false;
            }
            m_environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), bus);
        }
        if (options.compositor && !m_display.startCompositor()) {
            *error = QStringLiteral("xcompmgr did not start");
            return false;
        }
        if (options.windowManager) {
            if (!m_display.startWindowManager()) {
                *error = QStringLiteral("openbox did not start");
                return false;
            }
            QTest::qWait(500); // until it manages windows
        }
        return true;
    }

    VirtualDisplay &display() { return m_display; }
    // What Vantrel and the programs started here run in; a test may add to it.
    QProcessEnvironment &environment() { return m_environment; }
    QString configPath() const { return m_config.path(); }
    QString settingsPath() const
    {
        return m_config.filePath(QStringLiteral("Vantrel/Vantrel.conf"));
    }
    QString sessionBus() const
    {
        return m_environment.value(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"));
    }

    void writeSettings(const QVariantMap &values) const
    {
        SettingsStore settings(settingsPath());
        for (auto it = values.cbegin(); it != values.cend(); ++it)
            settings.setRawValue(it.key(), it.value());
    }

    // Starts another program in the session's environment; it ends with the session.
    QProcess *startProgram(const QString &program, const QStringList &arguments)
    {
        auto &process = m_programs.emplace_back(std::make_unique<QProcess>());
        process->setProcessEnvironment(m_environment);
        process->start(program, arguments);
        return process->waitForStarted(5000) ? process.get() : nullptr;
    }

    // Starts Vantrel, waits until it says it listens, then gives its windows `settleMs` to map.
    bool startVantrel(int settleMs = 300)
    {
        m_vantrel = std::make_unique<QProcess>();
        m_vantrel->setProcessEnvironment(m_environment);
        m_vantrel->start(QStringLiteral(VANTREL_BINARY), {});
        m_said[0].clear();
        m_said[1].clear();
        m_heard[0] = m_heard[1] = 0;
        if (!m_vantrel->waitForStarted(5000) || !vantrelSays("is showing pressed keys")) {
            qWarning("vantrel did not start: %s", QByteArray(m_said[0] + m_said[1]).constData());
            return false;
        }
        QTest::qWait(settleMs);
        return true;
    }

    // Waits until Vantrel writes `text` to `channel` after what an earlier call found there.
    bool vantrelSays(const QByteArray &text, int timeoutMs = 10000,
                     QProcess::ProcessChannel channel = QProcess::StandardOutput)
    {
        QElapsedTimer timer;
        timer.start();
        for (;;) {
            readVantrel();
            if (const qsizetype at = m_said[channel].indexOf(text, m_heard[channel]); at >= 0) {
                m_heard[channel] = at + text.size();
                return true;
            }
            if (timer.elapsed() >= timeoutMs || m_vantrel->state() == QProcess::NotRunning)
                return false;
            m_vantrel->waitForReadyRead(100);
        }
    }
    // All that Vantrel wrote to standard error so far.
    QByteArray vantrelErrors()
    {
        readVantrel();
        return m_said[QProcess::StandardError];
    }
    QProcess &vantrel() { return *m_vantrel; }

    // Quits Vantrel as a user would (SIGTERM, unless it has ended) and checks that it ended
    // cleanly and that no key label reached its outputs.
    void stopVantrel()
    {
        if (!m_vantrel)
            return;
        if (m_vantrel->state() != QProcess::NotRunning) {
            m_vantrel->terminate();
            QVERIFY2(m_vantrel->waitForFinished(5000), "vantrel did not quit on SIGTERM");
        }
        readVantrel();
        const QByteArray output = m_said[0] + m_said[1];
        const auto status = m_vantrel->exitStatus();
        const int code = m_vantrel->exitCode();
        m_vantrel.reset();
        QCOMPARE(status, QProcess::NormalExit);
        QCOMPARE(code, 0);
        QVERIFY2(!output.contains("⌃") && !output.contains("K\n"), output.constData());
    }

    // Runs `vantrel ARGUMENTS` to its end, as a user's command would: its exit code (-1 when it
    // did not end normally within 10 s) and both its outputs.
    std::pair<int, QString> runVantrel(const QStringList &arguments) const
    {
        QProcess process;
        process.setProcessEnvironment(m_environment);
        process.start(QStringLiteral(VANTREL_BINARY), arguments);
        if (!process.waitForFinished(10000) || process.exitStatus() != QProcess::NormalExit)
            return {-1, QStringLiteral("did not end normally")};
        return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput() +
                                                      process.readAllStandardError())};
    }

    // Opens the settings window from the command line and activates it.
    bool openSettingsWindow() const
    {
        if (runVantrel({QStringLiteral("--settings")}).first != 0)
            return false;
        // Tried until the window manager, busy on a loaded machine, activates it.
        const bool active = QTest::qWaitFor(
            [this] {
                return m_display.xdotool({QStringLiteral("search"), QStringLiteral("--sync"),
                                          QStringLiteral("--onlyvisible"), QStringLiteral("--name"),
                                          QStringLiteral("Vantrel Settings"),
                                          QStringLiteral("windowactivate"),
                                          QStringLiteral("--sync")});
            },
            15000);
        QTest::qWait(300);
        return active;
    }

    // Runs xdotool with space-separated arguments.
    bool xdotool(const QString &arguments) const
    {
        return m_display.xdotool(arguments.split(u' '));
    }

    // Presses `keys` (xdotool's names, one after the other) and reads the screen `waitMs` later,
    // saved under `name` when given (see VirtualDisplay::grab).
    QImage pressAndGrab(const QString &keys, int waitMs = 500, const QString &name = {}) const
    {
        if (!xdotool(u"key " + keys)) {
            QTest::qFail("xdotool could not press the keys", __FILE__, __LINE__);
            return {};
        }
        QTest::qWait(waitMs);
        return name.isEmpty() ? m_display.grab() : m_display.grab(name);
    }

    // Where the caps of a monitor show by default ("Bottom Center").
    static QRect bottomBand(const QRect &monitor)
    {
        return {monitor.left(), monitor.bottom() - 140, monitor.width(), 140};
    }
    static QList<QRect> findCaps(const QImage &screen, const QRect &area,
                                 QRgb background = desktopColor)
    {
        return CapFinder::findCaps(screen, area, background);
    }
    // Pixels of `area` that differ clearly from the desktop.
    static int changedPixels(const QImage &screen, const QRect &area)
    {
        int count = 0;
        for (int y = area.top(); y <= area.bottom(); ++y)
            for (int x = area.left(); x <= area.right(); ++x)
                count += CapFinder::differs(screen.pixel(x, y), desktopColor) ? 1 : 0;
        return count;
    }

private:
    void readVantrel()
    {
        m_said[QProcess::StandardOutput] += m_vantrel->readAllStandardOutput();
        m_said[QProcess::StandardError] += m_vantrel->readAllStandardError();
    }

    VirtualDisplay m_display;
    QTemporaryDir m_config;
    QProcessEnvironment m_environment;
    std::vector<std::unique_ptr<QProcess>> m_programs;
    std::unique_ptr<QProcess> m_vantrel;
    QByteArray m_said[2];   // all Vantrel wrote to standard output and error
    qsizetype m_heard[2]{}; // where vantrelSays() looks from
};
