#pragma once

#include <QString>

#include <sys/types.h>

// vantrel-input-helper started through pkexec, for a user who may not read the input devices:
// its standard output is read like one more device, and closing its standard input ends it
// (Vantrel cannot signal a process that runs as root).
class InputHelperProcess final {
public:
    enum class State {
        running,
        dismissed, // the user closed the password dialog
        noAgent,   // nothing could ask for the password, or it was refused
        missing,   // pkexec or the helper is not installed
        ended,     // it ran, then stopped
    };

    // `program` empty: helperPath().
    explicit InputHelperProcess(QString program = {});
    ~InputHelperProcess();
    InputHelperProcess(const InputHelperProcess &) = delete;
    InputHelperProcess &operator=(const InputHelperProcess &) = delete;

    // The installed helper beside this program (../libexec), or the one of a build tree.
    static QString helperPath();

    // Starts it and waits until it runs or ends (the password dialog comes in between).
    State start();
    // The helper's records; -1 when it does not run.
    int output() const { return m_output; }
    // Ends it: its input closes, and it is waited for.
    void stop();
    // What a person reads for `state`.
    static QString describe(State state);

    QString program() const { return m_program; }

private:
    QString m_program;
    pid_t m_pid = -1;
    int m_input = -1;
    int m_output = -1;
};
