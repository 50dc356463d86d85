#pragma once

#include "settings/JsonWriter.h"
#include "settings/Setting.h"
#include "settings/SettingsStore.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonParseError>
#include <QList>

#include <optional>

// Records stored as one JSON array. A record type T writes itself with
// `void write(JsonWriter &) const` and reads itself with
// `static std::optional<T> fromJson(const QJsonValue &)`.
class JsonArray final {
public:
    JsonArray() = delete;

    // The array's text, or nothing when a record cannot be written faithfully.
    template <typename T> static std::optional<QByteArray> encode(const QList<T> &records)
    {
        JsonWriter writer;
        writer.beginArray();
        for (const T &record : records)
            record.write(writer);
        writer.endArray();
        if (!writer.isValid())
            return std::nullopt;
        return writer.data();
    }

    // The records, or nothing when the text is no array or any one record does not read;
    // `problem` then says why, in a few words ("is not valid JSON (...)").
    template <typename T>
    static std::optional<QList<T>> decode(const QByteArray &data, QString *problem = nullptr)
    {
        const auto fail = [problem](const QString &why) -> std::optional<QList<T>> {
            if (problem)
                *problem = why;
            return std::nullopt;
        };
        QJsonParseError error;
        const QJsonDocument document = QJsonDocument::fromJson(data, &error);
        if (error.error != QJsonParseError::NoError)
            return fail(QStringLiteral("is not valid JSON (%1 at offset %2)")
                            .arg(error.errorString())
                            .arg(error.offset));
        if (!document.isArray())
            return fail(QStringLiteral("is not a JSON array"));
        QList<T> result;
        for (const QJsonValue &entry : document.array()) {
            std::optional<T> record = T::fromJson(entry);
            if (!record)
                return fail(
                    QStringLiteral("is not valid: entry %1 has a missing or unreadable field")
                        .arg(result.size() + 1));
            result.append(std::move(*record));
        }
        return result;
    }

    // The records stored under `setting`; none when absent. Records that do not read are none
    // too, and are reported to the store, which keeps them until they are replaced.
    template <typename T>
    static QList<T> load(SettingsStore &store, const Setting<QByteArray> &setting)
    {
        const std::optional<QVariant> stored = store.rawValue(setting.name());
        if (!stored)
            return {};
        QString problem = QStringLiteral("is not valid JSON");
        if (const std::optional<QByteArray> data = SettingCodec<QByteArray>::decode(*stored))
            if (std::optional<QList<T>> records = decode<T>(*data, &problem))
                return *records;
        store.reportUnreadable(setting.name(), problem);
        return {};
    }
};
