#include "platform/linux/TerminationSignalWatcher.h"

#include <QSocketNotifier>

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {
// A signal handler may only write to a pipe; the main loop reads the other end.
int g_pipe[2] = {-1, -1};

void onSignal(int signalNumber)
{
    const char byte = char(signalNumber);
    [[maybe_unused]] const auto written = ::write(g_pipe[1], &byte, 1);
}
} // namespace

TerminationSignalWatcher::TerminationSignalWatcher(QObject *parent) : QObject(parent)
{
    if (::pipe2(g_pipe, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    m_notifier = std::make_unique<QSocketNotifier>(g_pipe[0], QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this,
            &TerminationSignalWatcher::readSignal);

    struct sigaction action = {};
    action.sa_handler = onSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    sigaction(SIGINT, &action, nullptr);
    sigaction(SIGTERM, &action, nullptr);
}

TerminationSignalWatcher::~TerminationSignalWatcher()
{
    signal(SIGINT, SIG_DFL);
    signal(SIGTERM, SIG_DFL);
    m_notifier.reset();
    for (int &fd : g_pipe) {
        if (fd >= 0)
            ::close(fd);
        fd = -1;
    }
}

void TerminationSignalWatcher::readSignal()
{
    char buffer[16];
    while (::read(g_pipe[0], buffer, sizeof buffer) > 0) {
    }
    emit terminationRequested();
}
