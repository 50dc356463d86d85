#pragma once

#include "capture/CaptureBackend.h"

#include <atomic>
#include <condition_variable>
#include <deque>
#include <mutex>

// A capture backend for tests: events injected from any thread are delivered on the capture
// thread, as a real backend delivers what it reads from the system.
class FakeCaptureBackend final : public CaptureBackend {
public:
    // Shared with the test while the engine owns the backend.
    struct Control {
        std::atomic<int> installed{0}; // captures installed right now
        std::atomic<int> delivered{0}; // events handed to the engine
    };

    explicit FakeCaptureBackend(Control &control) : m_control(control) {}

    void inject(CaptureEvent::Type type, int keyCode = -1, quint64 flags = 0);

    Access checkAccess() override { return {true, {}}; }
    Access requestAccess() override { return {true, {}}; }
    bool install() override { return ++m_control.installed > 0; }
    RunResult run(CaptureEventHandler &handler) override;
    void uninstall() override { --m_control.installed; }
    void stop() override;

private:
    Control &m_control;
    std::mutex m_mutex;
    std::condition_variable m_condition;
    std::deque<CaptureEvent> m_events;
    bool m_stopRequested = false;
};
