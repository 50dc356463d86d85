#include "app/LaunchAtLogin.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QSettings>
#include <QStandardPaths>

namespace {

// Desktop entry values may not hold line breaks; spaces and quotes in Exec are quoted.
QString quotedExec(const QString &path)
{
    QString escaped = path;
    escaped.replace(QLatin1Char('\\'), QStringLiteral("\\\\"))
        .replace(QLatin1Char('"'), QStringLiteral("\\\""))
        .replace(QLatin1Char('`'), QStringLiteral("\\`"))
        .replace(QLatin1Char('$'), QStringLiteral("\\$"));
    return QStringLiteral("\"") + escaped + QStringLiteral("\"");
}

} // namespace

LaunchAtLogin::LaunchAtLogin(QString executablePath, QObject *parent)
    : QObject(parent), m_executablePath(std::move(executablePath))
{
    if (m_executablePath.isEmpty())
        m_executablePath = QCoreApplication::applicationFilePath();
}

QString LaunchAtLogin::entryPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/autostart/vantrel.desktop");
}

bool LaunchAtLogin::isEnabled() const
{
    QFile file(entryPath());
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return false;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine().trimmed();
        if (line.startsWith("Hidden") && line.contains('=') &&
            line.mid(line.indexOf('=') + 1).trimmed() == "true")
            return false;
    }
    return true;
}

void LaunchAtLogin::setEnabled(bool enabled)
{
    const bool wasEnabled = isEnabled();
    if (enabled) {
        QDir().mkpath(QFileInfo(entryPath()).absolutePath());
        QSaveFile file(entryPath());
        if (!file.open(QIODevice::WriteOnly | QIODevice::Text))
            return;
        const QString entry = QStringLiteral("[Desktop Entry]\n"
                                             "Type=Application\n"
                                             "Name=Vantrel\n"
                                             "Comment=Show the keys you press on screen\n"
                                             "Icon=vantrel\n"
                                             "Exec=") +
                              quotedExec(m_executablePath) +
                              QStringLiteral("\n"
                                             "Terminal=false\n"
                                             "StartupNotify=false\n"
                                             "X-GNOME-Autostart-enabled=true\n");
        file.write(entry.toUtf8());
        if (!file.commit())
            return;
    } else if (QFile::exists(entryPath()) && !QFile::remove(entryPath())) {
        return;
    }
    if (isEnabled() != wasEnabled)
        emit enabledChanged(isEnabled());
}
