#pragma once

#include "CapFinder.h"
#include "HeadlessSway.h"
#include "TestProcess.h"
#include "VirtualDisplay.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <linux/input.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <memory>

// Vantrel in a private headless sway, with keys written as input records into a device folder
// holding one pipe, and its settings in a folder of its own. For whole-program tests.
class WaylandSession final {
public:
    explicit WaylandSession(HeadlessSway::XWayland xwayland) : m_sway(xwayland) {}
    ~WaylandSession()
    {
        if (m_vantrel.state() != QProcess::NotRunning) {
            m_vantrel.terminate();
            m_vantrel.waitForFinished(5000);
        }
        if (m_keyboard >= 0)
            ::close(m_keyboard);
    }

    HeadlessSway &sway() { return m_sway; }
    const HeadlessSway &sway() const { return m_sway; }
    QString settingsPath() const
    {
        return m_config.filePath(QStringLiteral("Vantrel/Vantrel.conf"));
    }

    // A private session bus for the Vantrel started next, so that `vantrel --command` reaches it.
    bool startSessionBus()
    {
        m_busAddress = m_busOwner.startSessionBus();
        return !m_busAddress.isEmpty();
    }
    QString sessionBus() const { return m_busAddress; }
    // Another session bus for Vantrel (none by default).
    void setSessionBus(const QString &address) { m_busAddress = address; }

    // Starts Vantrel in `environment` (sway's, with what the test adds) on the device folder and
    // waits until it listens; false with its standard error in `error`.
    bool startVantrel(QProcessEnvironment environment, QString *error)
    {
        const QByteArray fifo = QFile::encodeName(m_devices.filePath(QStringLiteral("keyboard")));
        // Opened for reading and writing, so that neither end waits for the other.
        if (m_keyboard < 0 &&
            (mkfifo(fifo.constData(), 0600) != 0 ||
             (m_keyboard = ::open(fifo.constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC)) < 0)) {
            *error = QStringLiteral("cannot make the keyboard pipe");
            return false;
        }
        environment.insert(QStringLiteral("VANTREL_INPUT_DIR"), m_devices.path());
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_config.path());
        if (m_busAddress.isEmpty())
            environment.remove(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"));
        else
            environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), m_busAddress);
        m_environment = environment;
        m_vantrel.setProcessEnvironment(environment);
        m_vantrel.start(QStringLiteral(VANTREL_BINARY), {});
        QElapsedTimer timer;
        timer.start();
        QByteArray output;
        while (!output.contains("is showing pressed keys") && timer.elapsed() < 10000 &&
               m_vantrel.state() != QProcess::NotRunning) {
            m_vantrel.waitForReadyRead(100);
            output += m_vantrel.readAllStandardOutput();
        }
        *error = QString::fromLocal8Bit(m_vantrel.readAllStandardError());
        return output.contains("is showing pressed keys");
    }

    // What Vantrel wrote to standard error since the last call.
    QByteArray vantrelErrors() { return m_vantrel.readAllStandardError(); }

    bool stopVantrel()
    {
        m_vantrel.terminate();
        return m_vantrel.waitForFinished(5000);
    }

    // Runs `vantrel ARGUMENTS` beside the running one, as a user's command would.
    bool command(const QStringList &arguments) const
    {
        return TestProcess::run(m_environment, QStringLiteral(VANTREL_BINARY), arguments, 5000);
    }

    // Key changes (evdev code, 1 down or 0 up), each followed by the end of its report.
    bool press(const QList<std::pair<int, int>> &changes)
    {
        for (const auto &[code, value] : changes) {
            input_event events[2]{};
            events[0].type = EV_KEY;
            events[0].code = quint16(code);
            events[0].value = value;
            events[1].type = EV_SYN;
            events[1].code = SYN_REPORT;
            if (::write(m_keyboard, events, sizeof events) != qint64(sizeof events))
                return false;
        }
        return true;
    }
    bool tap(int code) { return press({{code, 1}, {code, 0}}); }

    // How many caps show in `area` of the outputs (or of the one named `output`, in its pixels)
    // now; -1 when they cannot be read.
    int capCount(const QRect &area, const QString &output = {}) const
    {
        const QImage screen = m_sway.grab(output);
        if (screen.isNull())
            return -1;
        return int(CapFinder::findCaps(screen, area, screen.pixel(area.topLeft())).size());
    }

private:
    HeadlessSway m_sway;
    QTemporaryDir m_config, m_devices;
    VirtualDisplay m_busOwner; // only its private session bus is used
    QString m_busAddress;
    QProcessEnvironment m_environment;
    QProcess m_vantrel;
    int m_keyboard = -1;
};
