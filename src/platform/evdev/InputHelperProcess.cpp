#include "platform/evdev/InputHelperProcess.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <linux/input.h>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>

extern char **environ;

namespace {

// pkexec's own exit statuses.
constexpr int pkexecDismissed = 126;
constexpr int pkexecNotAuthorized = 127;

} // namespace

InputHelperProcess::InputHelperProcess(QString program)
    : m_program(program.isEmpty() ? helperPath() : std::move(program))
{}

InputHelperProcess::~InputHelperProcess()
{
    stop();
}

QString InputHelperProcess::helperPath()
{
    const QString here = QCoreApplication::applicationDirPath();
    const QStringList candidates{here + QStringLiteral("/../libexec/vantrel-input-helper"),
                                 here + QStringLiteral("/../helper/vantrel-input-helper")};
    for (const QString &candidate : candidates)
        if (QFileInfo(candidate).isExecutable())
            return QFileInfo(candidate).canonicalFilePath();
    return {};
}

InputHelperProcess::State InputHelperProcess::start()
{
    stop();
    const QByteArray helper = QFile::encodeName(m_program);
    if (helper.isEmpty())
        return State::missing;
    int input[2], output[2];
    if (pipe2(input, O_CLOEXEC) != 0)
        return State::missing;
    if (pipe2(output, O_CLOEXEC) != 0) {
        ::close(input[0]);
        ::close(input[1]);
        return State::missing;
    }
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, input[0], STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, output[1], STDOUT_FILENO);
    char pkexec[] = "pkexec";
    char *arguments[] = {pkexec, const_cast<char *>(helper.constData()), nullptr};
    const int spawned = posix_spawnp(&m_pid, pkexec, &actions, nullptr, arguments, environ);
    posix_spawn_file_actions_destroy(&actions);
    ::close(input[0]);
    ::close(output[1]);
    m_input = input[1];
    m_output = output[0];
    if (spawned != 0) {
        m_pid = -1;
        stop();
        return State::missing;
    }
    // The helper's first record says it runs; an end of the pipe says pkexec gave up.
    pollfd ready{m_output, POLLIN, 0};
    while (poll(&ready, 1, -1) < 0 && errno == EINTR) {
    }
    input_event first;
    ssize_t got;
    while ((got = read(m_output, &first, sizeof first)) < 0 && errno == EINTR) {
    }
    if (got == ssize_t(sizeof first))
        return State::running;
    int status = 0;
    waitpid(m_pid, &status, 0);
    m_pid = -1;
    stop();
    const int code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    if (code == pkexecDismissed)
        return State::dismissed;
    if (code == pkexecNotAuthorized)
        return State::noAgent;
    return State::ended;
}

void InputHelperProcess::stop()
{
    if (m_input >= 0)
        ::close(m_input);
    if (m_output >= 0)
        ::close(m_output);
    m_input = m_output = -1;
    if (m_pid > 0)
        waitpid(m_pid, nullptr, 0);
    m_pid = -1;
}

QString InputHelperProcess::describe(State state)
{
    switch (state) {
    case State::running:
        return {};
    case State::dismissed:
        return QCoreApplication::translate(
            "InputHelperProcess",
            "The password dialog was closed; Vantrel cannot read the keyboard.");
    case State::noAgent:
        return QCoreApplication::translate("InputHelperProcess",
                                           "No authentication agent answered; start your desktop's "
                                           "authentication agent, then choose Check Again.");
    case State::missing:
        return QStringLiteral("pkexec or vantrel-input-helper is not installed.");
    case State::ended:
        return QCoreApplication::translate("InputHelperProcess", "Vantrel's input helper stopped.");
    }
    return {};
}
