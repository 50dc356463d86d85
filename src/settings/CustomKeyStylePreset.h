#pragma once

#include "settings/AppearanceSettingsSnapshot.h"

#include <QJsonValue>
#include <QString>
#include <QUuid>

#include <optional>

class JsonWriter;

// A look the user saved under a name. In JSON: {"id": UUID text, "name": ..., "snapshot": {...}}.
// Two presets are equal only when id, name and every snapshot value are.
struct CustomKeyStylePreset final {
    QUuid id;
    QString name;
    AppearanceSettingsSnapshot snapshot;

    void write(JsonWriter &writer) const;
    static std::optional<CustomKeyStylePreset> fromJson(const QJsonValue &json);

    // The standard text form of a UUID: upper case, 36 characters, no braces. This is also
    // how `selectedCustomPresetID` names a preset.
    static QString uuidText(const QUuid &id);
    // Reads the standard text form (either case); anything else, braces included, is nothing.
    static std::optional<QUuid> parseUuidText(const QString &text);

    friend bool operator==(const CustomKeyStylePreset &, const CustomKeyStylePreset &) = default;
};
