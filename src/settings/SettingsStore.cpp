#include "settings/SettingsStore.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

#include <memory>

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
    writeToFile(key, value);
    emit valueChanged(key);
}

void SettingsStore::remove(const QString &key)
{
    {
        QWriteLocker locker(&m_lock);
        if (m_values.remove(key) == 0)
            return;
    }
    writeToFile(key, std::nullopt);
    emit valueChanged(key);
}

void SettingsStore::writeToFile(const QString &key, const std::optional<QVariant> &value)
{
    QDir().mkpath(QFileInfo(m_filePath).absolutePath());
    QSettings file(m_filePath, QSettings::IniFormat);
    if (value)
        file.setValue(key, *value);
    else
        file.remove(key);
    file.sync();
}
