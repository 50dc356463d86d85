#include "FakeCaptureBackend.h"

void FakeCaptureBackend::inject(CaptureEvent::Type type, int keyCode, quint64 flags,
                                const QString &characters)
{
    // Like a real source, nothing is seen while no capture is installed.
    if (m_control.installed == 0)
        return;
    {
        const std::lock_guard lock(m_mutex);
        m_events.push_back({type, keyCode, flags, characters});
    }
    m_condition.notify_one();
}

void FakeCaptureBackend::endCapture()
{
    {
        const std::lock_guard lock(m_mutex);
        m_endRequested = true;
    }
    m_condition.notify_one();
}

CaptureBackend::Access FakeCaptureBackend::checkAccess()
{
    if (m_control.accessGranted)
        return {true, {}};
    return {false, QStringLiteral("The test denies access.")};
}

CaptureBackend::Access FakeCaptureBackend::requestAccess()
{
    ++m_control.requestCount;
    return checkAccess();
}

bool FakeCaptureBackend::install()
{
    if (m_control.installFails)
        return false;
    ++m_control.installCount;
    ++m_control.installed;
    return true;
}

CaptureBackend::RunResult FakeCaptureBackend::run(CaptureEventHandler &handler)
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_condition.wait(lock,
                         [this] { return m_stopRequested || m_endRequested || !m_events.empty(); });
        if (m_stopRequested) {
            m_stopRequested = false;
            return RunResult::stopped;
        }
        if (m_endRequested) {
            m_endRequested = false;
            return RunResult::ended;
        }
        const Injected injected = m_events.front();
        m_events.pop_front();
        lock.unlock();
        CaptureEvent event;
        event.type = injected.type;
        event.keyCode = injected.keyCode;
        event.flags = injected.flags;
        event.characters = [&injected] { return injected.characters; };
        handler.handleCaptureEvent(event);
        ++m_control.delivered;
        lock.lock();
    }
}

void FakeCaptureBackend::uninstall()
{
    --m_control.installed;
    ++m_control.uninstallCount;
}

void FakeCaptureBackend::stop()
{
    {
        const std::lock_guard lock(m_mutex);
        m_stopRequested = true;
    }
    m_condition.notify_one();
}
