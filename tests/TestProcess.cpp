#include "TestProcess.h"

#include <QProcess>

bool TestProcess::run(const QProcessEnvironment &environment, const QString &program,
                      const QStringList &arguments, int timeoutMs, QByteArray *output)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program, arguments);
    if (!process.waitForFinished(timeoutMs)) {
        process.kill();
        process.waitForFinished(1000);
        return false;
    }
    if (output)
        *output = process.readAllStandardOutput();
    return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}
