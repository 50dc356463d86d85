#pragma once

#include <QByteArray>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

// Runs the helper programs that drive a test's display server.
class TestProcess final {
public:
    TestProcess() = delete;

    // Runs `program` in `environment` and waits for it; true when it exited with 0 within
    // `timeoutMs`. Its standard output goes to `output` when given; standard error is passed on.
    static bool run(const QProcessEnvironment &environment, const QString &program,
                    const QStringList &arguments, int timeoutMs, QByteArray *output = nullptr);
};
