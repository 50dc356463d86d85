#include "settings/CustomKeyStylePreset.h"

#include "settings/JsonWriter.h"
#include "settings/RequiredJsonFields.h"

#include <QJsonObject>

QString CustomKeyStylePreset::uuidText(const QUuid &id)
{
    return id.toString(QUuid::WithoutBraces).toUpper();
}

std::optional<QUuid> CustomKeyStylePreset::parseUuidText(const QString &text)
{
    if (text.size() != 36)
        return std::nullopt;
    const QUuid id = QUuid::fromString(text);
    // A null result is either the all-zero UUID, which is valid, or a parse failure.
    if (id.isNull() && text != u"00000000-0000-0000-0000-000000000000")
        return std::nullopt;
    return id;
}

void CustomKeyStylePreset::write(JsonWriter &w) const
{
    w.beginObject();
    w.key(QStringLiteral("id"));
    w.value(uuidText(id));
    w.key(QStringLiteral("name"));
    w.value(name);
    w.key(QStringLiteral("snapshot"));
    snapshot.write(w);
    w.endObject();
}

std::optional<CustomKeyStylePreset> CustomKeyStylePreset::fromJson(const QJsonValue &json)
{
    if (!json.isObject())
        return std::nullopt;
    const QJsonObject object = json.toObject();
    RequiredJsonFields fields(object);
    QString idText;
    CustomKeyStylePreset preset;
    fields.read("id", idText);
    fields.read("name", preset.name);
    if (!fields.ok())
        return std::nullopt;
    const std::optional<QUuid> id = parseUuidText(idText);
    const std::optional<AppearanceSettingsSnapshot> snapshot =
        AppearanceSettingsSnapshot::fromJson(object.value(QLatin1String("snapshot")));
    if (!id || !snapshot)
        return std::nullopt;
    preset.id = *id;
    preset.snapshot = *snapshot;
    return preset;
}
