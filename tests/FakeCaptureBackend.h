#pragma once

#include "capture/CaptureBackend.h"

#include <QString>

#include <atomic>
#include <condition_variable>
#include <deque>
#include <mutex>

// A capture backend for tests: events injected from any thread are delivered on the capture
// thread, as a real backend delivers what it reads from the system.
class FakeCaptureBackend final : public CaptureBackend {
public:
    // What the tests observe and control; shared with the test while the backend is owned by the
    // engine.
    struct Control {
        std::atomic<bool> accessGranted{true};
        std::atomic<bool> installFails{false};
        std::atomic<int> installCount{0};
        std::atomic<int> uninstallCount{0};
        std::atomic<int> requestCount{0};
        std::atomic<int> installed{0}; // captures installed right now
        std::atomic<int> delivered{0}; // events handed to the engine
    };

    explicit FakeCaptureBackend(Control &control) : m_control(control) {}

    // Queues an event; `characters` is what the key types under the event's modifiers.
    void inject(CaptureEvent::Type type, int keyCode = -1, quint64 flags = 0,
                const QString &characters = {});
    // Makes the running capture end as if the event source went away.
    void endCapture();

    Access checkAccess() override;
    Access requestAccess() override;
    bool install() override;
    RunResult run(CaptureEventHandler &handler) override;
    void uninstall() override;
    void stop() override;

private:
    struct Injected {
        CaptureEvent::Type type;
        int keyCode;
        quint64 flags;
        QString characters;
    };

    Control &m_control;
    std::mutex m_mutex;
    std::condition_variable m_condition;
    std::deque<Injected> m_events;
    bool m_stopRequested = false;
    bool m_endRequested = false;
};
