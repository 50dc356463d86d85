#include "settings/SettingsStore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMutexLocker>
#include <QSettings>
#include <QStandardPaths>
#include <QtGlobal>

#include <algorithm>
#include <cstdio>
#include <map>
#include <memory>

namespace {

// Structured values (JSON arrays and objects) are kept in the file as they are, so that a person
// can read and edit them: key=[{"id":1,...}]. Any one-line text that starts with a bracket is
// written so and reads back as the same text. Everything else is written the way QSettings writes
// and reads INI files, so files written by earlier versions read the same.
bool isStructuredText(const QByteArray &value)
{
    return (value.startsWith('[') || value.startsWith('{')) && !value.contains('\n') &&
           !value.contains('\r') && value == value.trimmed();
}

QByteArray quoted(const QString &text);

QByteArray encodedText(const QByteArray &utf8)
{
    return isStructuredText(utf8) ? utf8 : quoted(QString::fromUtf8(utf8));
}

QByteArray quoted(const QString &text)
{
    QByteArray out = "\"";
    for (const char c : text.toUtf8()) {
        switch (c) {
        case '"':
            out += "\\\"";
            break;
        case '\\':
            out += "\\\\";
            break;
        case '\n':
            out += "\\n";
            break;
        case '\r':
            out += "\\r";
            break;
        case '\t':
            out += "\\t";
            break;
        default:
            // Other control characters have no place in a setting; dropping them keeps the line.
            if (static_cast<unsigned char>(c) >= 0x20)
                out += c;
        }
    }
    return out + '"';
}

QByteArray encodedValue(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool() ? "true" : "false";
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return value.toString().toUtf8();
    case QMetaType::Double:
        return QByteArray::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
    case QMetaType::QByteArray:
        return encodedText(value.toByteArray());
    case QMetaType::QStringList: {
        // A list (a hand-written value with commas) stays a list.
        QByteArrayList items;
        for (const QString &item : value.toStringList())
            items.append(quoted(item));
        return items.join(", ");
    }
    default:
        return encodedText(value.toString().toUtf8());
    }
}

// "Group/key" keys live in a section of their own; the rest in [General].
std::pair<QString, QString> sectionAndName(const QString &key)
{
    const qsizetype slash = key.indexOf(QLatin1Char('/'));
    if (slash < 0)
        return {QStringLiteral("General"), key};
    QString name = key.mid(slash + 1);
    return {key.left(slash), name.replace(QLatin1Char('/'), QLatin1Char('\\'))};
}

// A whole new file replaces the old one at once, so a crash never leaves half a file.
bool writeWhole(const QString &path, const QByteArray &text)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    const QString temporary = path + QStringLiteral(".new");
    QFile file(temporary);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(text) != text.size()) {
        file.remove();
        return false;
    }
    file.close();
    if (std::rename(QFile::encodeName(temporary).constData(),
                    QFile::encodeName(path).constData()) == 0)
        return true;
    QFile::remove(temporary);
    return false;
}

} // namespace

SettingsStore::SettingsStore(const QString &filePath, QObject *parent)
    : QObject(parent), m_filePath(filePath)
{
    load();
}

SettingsStore::~SettingsStore() = default;

QString SettingsStore::standardFilePath()
{
    const QString base = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return base + QStringLiteral("/Vantrel/Vantrel.conf");
}

SettingsStore &SettingsStore::standard()
{
    static SettingsStore store(standardFilePath());
    return store;
}

void SettingsStore::load()
{
    const QFileInfo info(m_filePath);
    if (!info.exists() || !info.isFile() || !info.isReadable())
        return;
    const QSettings file(m_filePath, QSettings::IniFormat);
    if (file.status() != QSettings::NoError)
        return;
    QWriteLocker locker(&m_lock);
    for (const QString &key : file.allKeys())
        m_values.insert(key, file.value(key));
    locker.unlock();
    loadStructuredValues();
}

void SettingsStore::loadStructuredValues()
{
    QFile file(m_filePath);
    if (!file.open(QIODevice::ReadOnly))
        return;
    QString section = QStringLiteral("General");
    QWriteLocker locker(&m_lock);
    while (!file.atEnd()) {
        const QByteArray line = file.readLine().trimmed();
        if (line.startsWith('[') && line.endsWith(']')) {
            section = QString::fromUtf8(line.mid(1, line.size() - 2));
            continue;
        }
        const qsizetype equals = line.indexOf('=');
        if (equals <= 0)
            continue;
        const QByteArray value = line.mid(equals + 1).trimmed();
        if (!isStructuredText(value))
            continue;
        const QString name = QString::fromUtf8(line.left(equals).trimmed());
        m_values.insert(section == u"General" ? name : section + QLatin1Char('/') + name,
                        QString::fromUtf8(value));
    }
}

std::optional<QVariant> SettingsStore::rawValue(const QString &key) const
{
    QReadLocker locker(&m_lock);
    const auto it = m_values.constFind(key);
    if (it == m_values.constEnd())
        return std::nullopt;
    return *it;
}

bool SettingsStore::contains(const QString &key) const
{
    QReadLocker locker(&m_lock);
    return m_values.contains(key);
}

void SettingsStore::setRawValue(const QString &key, const QVariant &value)
{
    {
        QWriteLocker locker(&m_lock);
        m_values.insert(key, value);
    }
    keepFileBeforeReplacing(key);
    writeToFile();
    emit valueChanged(key);
}

void SettingsStore::remove(const QString &key)
{
    {
        QWriteLocker locker(&m_lock);
        if (m_values.remove(key) == 0)
            return;
    }
    keepFileBeforeReplacing(key);
    writeToFile();
    emit valueChanged(key);
}

void SettingsStore::writeToFile()
{
    std::map<QString, QByteArray> sections; // sorted, so the file reads the same every time
    {
        QReadLocker locker(&m_lock);
        QStringList keys = m_values.keys();
        std::sort(keys.begin(), keys.end());
        for (const QString &key : keys) {
            const auto [section, name] = sectionAndName(key);
            sections[section] += name.toUtf8() + '=' + encodedValue(m_values.value(key)) + '\n';
        }
    }
    QByteArray text;
    if (const auto general = sections.find(QStringLiteral("General")); general != sections.end())
        text += "[General]\n" + general->second;
    for (const auto &[section, lines] : sections)
        if (section != u"General")
            text += "\n[" + section.toUtf8() + "]\n" + lines;

    writeWhole(m_filePath, text);
}

void SettingsStore::reportUnreadable(const QString &key, const QString &problem)
{
    {
        const QMutexLocker locker(&m_reportLock);
        m_unreadableKeys.insert(key);
    }
    if (claimReport(key))
        report(key + QLatin1Char(' ') + problem + QStringLiteral("; ignoring it"));
}

void SettingsStore::keepFileBeforeReplacing(const QString &key)
{
    {
        const QMutexLocker locker(&m_reportLock);
        if (!m_unreadableKeys.remove(key) || m_keptFile)
            return;
        m_keptFile = true;
    }
    // One copy per run, taken before the first replacement: later writes keep every other
    // unreadable value as it stood, so this copy holds them all.
    const QString copyPath = m_filePath + QStringLiteral(".bak");
    QFile file(m_filePath);
    if (file.open(QIODevice::ReadOnly) && writeWhole(copyPath, file.readAll()))
        report(
            QStringLiteral("kept the file as it was in %1 before replacing %2").arg(copyPath, key));
    else
        report(QStringLiteral("could not keep the file as it was in %1; replacing %2 all the same")
                   .arg(copyPath, key));
}

bool SettingsStore::claimReport(const QString &key) const
{
    const QMutexLocker locker(&m_reportLock);
    if (m_reportedKeys.contains(key))
        return false;
    m_reportedKeys.insert(key);
    return true;
}

void SettingsStore::report(const QString &message) const
{
    qWarning("vantrel: %s: %s", qUtf8Printable(m_filePath), qUtf8Printable(message));
}
