#pragma once

#include "settings/Setting.h"

#include <QHash>
#include <QObject>
#include <QReadWriteLock>
#include <QString>
#include <QVariant>

#include <optional>

// The user's settings: one flat key-value domain kept in an INI file
// ($XDG_CONFIG_HOME/Vantrel/Vantrel.conf for the standard store).
//
// Values live in memory and are safe to read from any thread; writes happen on the thread that
// owns the store (the main thread) and go to the file at once. JSON values (display records,
// presets) stand in the file as plain JSON text; files with the older quoted forms still read. A
// missing, corrupt or unreadable file reads as empty and is left untouched until a setting is
// written. Nothing is ever written at start-up.
class SettingsStore final : public QObject {
    Q_OBJECT

public:
    // A store kept in the INI file at `filePath`.
    explicit SettingsStore(const QString &filePath, QObject *parent = nullptr);
    ~SettingsStore() override;

    // The user's own store, created on first use. Tests never use it.
    static SettingsStore &standard();
    static QString standardFilePath();

    QString filePath() const { return m_filePath; }

    // The raw stored value, or nothing when the key is absent.
    std::optional<QVariant> rawValue(const QString &key) const;
    bool contains(const QString &key) const;

    // The stored value of a setting, or its built-in default when absent or of another type.
    template <typename T> T value(const Setting<T> &setting) const
    {
        if (const auto stored = rawValue(setting.name()))
            if (auto decoded = SettingCodec<T>::decode(*stored))
                return *decoded;
        return setting.defaultValue;
    }

    template <typename T> void setValue(const Setting<T> &setting, const T &value)
    {
        setRawValue(setting.name(), SettingCodec<T>::encode(value));
    }

    void setRawValue(const QString &key, const QVariant &value);
    void remove(const QString &key);

    // Calls `handler` (in `context`'s thread) whenever `key` changes.
    template <typename Handler>
    QMetaObject::Connection observe(const QString &key, const QObject *context, Handler handler)
    {
        return connect(this, &SettingsStore::valueChanged, context,
                       [key, handler](const QString &changedKey) {
                           if (changedKey == key)
                               handler();
                       });
    }

signals:
    // Emitted after a key was written or removed.
    void valueChanged(const QString &key);

private:
    void load();
    void loadStructuredValues();
    void writeToFile();

    QString m_filePath;
    mutable QReadWriteLock m_lock;
    QHash<QString, QVariant> m_values;
};
