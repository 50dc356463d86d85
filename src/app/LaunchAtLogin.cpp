#include "app/LaunchAtLogin.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

namespace {

// The desktop entry installed for the application menu; the autostart entry is made from it.
const QString kDesktopEntryResource = QStringLiteral(":/desktop/com.vantrel.Vantrel.desktop");

// Exec holds a command line: the program is quoted as one argument (with ", `, $ and \ escaped
// inside the quotes), then the value itself escapes \ again and doubles % (field codes).
QString execValue(const QString &path)
{
    QString argument;
    for (const QChar c : path) {
        if (c == QLatin1Char('"') || c == QLatin1Char('`') || c == QLatin1Char('$') ||
            c == QLatin1Char('\\'))
            argument += QLatin1Char('\\');
        argument += c;
    }
    QString value = QLatin1Char('"') + argument + QLatin1Char('"');
    value.replace(QLatin1Char('\\'), QStringLiteral("\\\\"));
    value.replace(QLatin1Char('%'), QStringLiteral("%%"));
    return value;
}

// The menu entry with Exec naming `executablePath`; empty when the entry cannot be read.
QByteArray autostartEntry(const QString &executablePath)
{
    QFile source(kDesktopEntryResource);
    if (!source.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    QByteArray entry;
    bool inMainGroup = false;
    while (!source.atEnd()) {
        QByteArray line = source.readLine();
        const QByteArray trimmed = line.trimmed();
        if (trimmed.startsWith('['))
            inMainGroup = trimmed == "[Desktop Entry]";
        else if (inMainGroup && trimmed.startsWith("Exec") &&
                 trimmed.mid(4).trimmed().startsWith('='))
            line = "Exec=" + execValue(executablePath).toUtf8() + '\n';
        entry += line;
    }
    if (!entry.endsWith('\n'))
        entry += '\n';
    return entry;
}

// The value of `key` in the [Desktop Entry] group of the file at `path`.
QByteArray entryValue(const QString &path, const QByteArray &key)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    bool inMainGroup = false;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine().trimmed();
        if (line.startsWith('[')) {
            inMainGroup = line == "[Desktop Entry]";
            continue;
        }
        const qsizetype equals = line.indexOf('=');
        if (inMainGroup && equals > 0 && line.left(equals).trimmed() == key)
            return line.mid(equals + 1).trimmed();
    }
    return {};
}

} // namespace

LaunchAtLogin::LaunchAtLogin(QString executablePath, QObject *parent)
    : QObject(parent), m_executablePath(std::move(executablePath))
{
    if (m_executablePath.isEmpty())
        m_executablePath = QCoreApplication::applicationFilePath();
    m_executablePath = QFileInfo(m_executablePath).absoluteFilePath();
}

QString LaunchAtLogin::entryPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/autostart/vantrel.desktop");
}

bool LaunchAtLogin::isEnabled() const
{
    return QFileInfo::exists(entryPath()) && entryValue(entryPath(), "Hidden") != "true";
}

void LaunchAtLogin::setEnabled(bool enabled)
{
    const bool wasEnabled = isEnabled();
    if (enabled) {
        const QByteArray entry = autostartEntry(m_executablePath);
        if (entry.isEmpty() || !QDir().mkpath(QFileInfo(entryPath()).absolutePath()))
            return;
        QSaveFile file(entryPath());
        if (!file.open(QIODevice::WriteOnly | QIODevice::Text) ||
            file.write(entry) != entry.size() || !file.commit())
            return;
    } else if (QFileInfo::exists(entryPath()) && !QFile::remove(entryPath())) {
        return;
    }
    if (isEnabled() != wasEnabled)
        emit enabledChanged(isEnabled());
}
