#pragma once

#include "settings/JsonWriter.h"

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

    // The records, or nothing when the text is no array or any one record does not read.
    template <typename T> static std::optional<QList<T>> decode(const QByteArray &data)
    {
        QJsonParseError error;
        const QJsonDocument document = QJsonDocument::fromJson(data, &error);
        if (error.error != QJsonParseError::NoError || !document.isArray())
            return std::nullopt;
        QList<T> result;
        for (const QJsonValue &entry : document.array()) {
            std::optional<T> record = T::fromJson(entry);
            if (!record)
                return std::nullopt;
            result.append(std::move(*record));
        }
        return result;
    }
};
