#include "FakeCaptureBackend.h"

void FakeCaptureBackend::inject(CaptureEvent::Type type, int keyCode, quint64 flags)
{
    // Like a real source, nothing is seen while no capture is installed.
    if (m_control.installed == 0)
        return;
    {
        const std::lock_guard lock(m_mutex);
        m_events.push_back({type, keyCode, flags, [] { return QString(); }});
    }
    m_condition.notify_one();
}

CaptureBackend::RunResult FakeCaptureBackend::run(CaptureEventHandler &handler)
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_condition.wait(lock, [this] { return m_stopRequested || !m_events.empty(); });
        if (m_stopRequested) {
            m_stopRequested = false;
            return RunResult::stopped;
        }
        const CaptureEvent event = m_events.front();
        m_events.pop_front();
        lock.unlock();
        handler.handleCaptureEvent(event);
        ++m_control.delivered;
        lock.lock();
    }
}

void FakeCaptureBackend::stop()
{
    {
        const std::lock_guard lock(m_mutex);
        m_stopRequested = true;
    }
    m_condition.notify_one();
}
