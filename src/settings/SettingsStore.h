#pragma once

#include "settings/Setting.h"

#include <QHash>
#include <QMutex>
#include <QObject>
#include <QReadWriteLock>
#include <QSet>
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
//
// Stored values that do not read as they stand (of another type, out of range, or records that
// their reader reports unreadable) are said once per key on stderr and stay in the file until
// replaced. Before the first write that replaces records found unreadable, the file as it was is
// kept next to it as "<file>.bak".
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

    // The stored value of a setting: its built-in default when absent or of another type, and
    // the nearest end of its range when outside.
    template <typename T> T value(const Setting<T> &setting) const
    {
        const QString key = setting.name();
        const std::optional<QVariant> stored = rawValue(key);
        if (!stored)
            return setting.defaultValue;
        const std::optional<T> decoded = SettingCodec<T>::decode(*stored);
        if (!decoded) {
            if (claimReport(key))
                report(QStringLiteral("%1 is not %2; using the default %3 instead")
                           .arg(key, SettingCodec<T>::expected(), shown(setting.defaultValue)));
            return setting.defaultValue;
        }
        if constexpr (std::is_arithmetic_v<T>) {
            const T result = setting.clamped(*decoded);
            if (result != *decoded && claimReport(key))
                report(QStringLiteral("%1=%2 is out of range (%3 to %4); using %5 instead")
                           .arg(key, shown(*decoded), shown(setting.range->minimum),
                                shown(setting.range->maximum), shown(result)));
            return result;
        }
        return *decoded;
    }

    template <typename T> void setValue(const Setting<T> &setting, const T &value)
    {
        setRawValue(setting.name(), SettingCodec<T>::encode(value));
    }

    void setRawValue(const QString &key, const QVariant &value);
    void remove(const QString &key);

    // For readers of records: the value under `key` does not read (`problem` says why, e.g. "is
    // not valid JSON (...)"), so it is ignored. Said once on stderr; the file is kept as it is
    // before a write replaces the value.
    void reportUnreadable(const QString &key, const QString &problem);

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
    void keepFileBeforeReplacing(const QString &key);

    // True the first time for each key: each stored value is reported at most once.
    bool claimReport(const QString &key) const;
    void report(const QString &message) const;
    template <typename T> static QString shown(const T &value)
    {
        return SettingCodec<T>::encode(value).toString();
    }

    QString m_filePath;
    mutable QReadWriteLock m_lock;
    QHash<QString, QVariant> m_values;

    // Reports come from any thread that reads; guarded apart from the values, as they are rare.
    mutable QMutex m_reportLock;
    mutable QSet<QString> m_reportedKeys;
    QSet<QString> m_unreadableKeys;
    bool m_keptFile = false;
};
