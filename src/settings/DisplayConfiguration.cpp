#include "settings/DisplayConfiguration.h"

#include "settings/JsonWriter.h"
#include "settings/RequiredJsonFields.h"

void DisplayConfiguration::write(JsonWriter &w) const
{
    w.beginObject();
    w.key(QStringLiteral("id"));
    w.value(id);
    w.key(QStringLiteral("name"));
    w.value(name);
    w.key(QStringLiteral("isEnabled"));
    w.value(isEnabled);
    w.key(QStringLiteral("position"));
    w.value(AppSettings::rawValue(position));
    w.key(QStringLiteral("customOffsetX"));
    w.value(customOffsetX);
    w.key(QStringLiteral("customOffsetY"));
    w.value(customOffsetY);
    w.endObject();
}

std::optional<DisplayConfiguration> DisplayConfiguration::fromJson(const QJsonValue &json)
{
    if (!json.isObject())
        return std::nullopt;
    RequiredJsonFields fields(json.toObject());
    DisplayConfiguration c;
    QString positionText;
    fields.read("id", c.id);
    fields.read("name", c.name);
    fields.read("isEnabled", c.isEnabled);
    fields.read("position", positionText);
    fields.read("customOffsetX", c.customOffsetX);
    fields.read("customOffsetY", c.customOffsetY);
    if (!fields.ok())
        return std::nullopt;
    const auto position = AppSettings::fromRawValue<AppSettings::KeyPosition>(positionText);
    if (!position)
        return std::nullopt;
    c.position = *position;
    return c;
}
