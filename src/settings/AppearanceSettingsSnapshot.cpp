#include "settings/AppearanceSettingsSnapshot.h"

#include "settings/AppSettings.h"
#include "settings/JsonWriter.h"
#include "settings/RequiredJsonFields.h"
#include "settings/SettingsStore.h"

AppearanceSettingsSnapshot AppearanceSettingsSnapshot::fromSettings(const SettingsStore &s)
{
    AppearanceSettingsSnapshot r;
    r.keySize = s.value(AppSettings::keySize);
    r.keySpacing = s.value(AppSettings::keySpacing);
    r.keyOpacity = s.value(AppSettings::keyOpacity);
    r.keyAnimationStyleRawValue = AppSettings::rawValue(s.value(AppSettings::keyAnimationStyle));
    r.keyFont = s.value(AppSettings::keyFont);
    r.keyTextColor = s.value(AppSettings::keyTextColor);
    r.keyBackgroundColor = s.value(AppSettings::keyBackgroundColor);
    r.keyBorderColor = s.value(AppSettings::keyBorderColor);
    r.keyBorderWidth = s.value(AppSettings::keyBorderWidth);
    r.keyCornerRadius = s.value(AppSettings::keyCornerRadius);
    r.keyShadowEnabled = s.value(AppSettings::keyShadowEnabled);
    r.keyShadowRadius = s.value(AppSettings::keyShadowRadius);
    r.keyShadowColor = s.value(AppSettings::keyShadowColor);
    r.keyGlowEnabled = s.value(AppSettings::keyGlowEnabled);
    r.keyGlowColor = s.value(AppSettings::keyGlowColor);
    r.keyGlowRadius = s.value(AppSettings::keyGlowRadius);
    return r;
}

void AppearanceSettingsSnapshot::write(JsonWriter &w) const
{
    w.beginObject();
    w.key(QStringLiteral("keySize"));
    w.value(keySize);
    w.key(QStringLiteral("keySpacing"));
    w.value(keySpacing);
    w.key(QStringLiteral("keyOpacity"));
    w.value(keyOpacity);
    w.key(QStringLiteral("keyAnimationStyleRawValue"));
    w.value(keyAnimationStyleRawValue);
    w.key(QStringLiteral("keyFont"));
    w.value(keyFont);
    w.key(QStringLiteral("keyTextColor"));
    w.value(keyTextColor);
    w.key(QStringLiteral("keyBackgroundColor"));
    w.value(keyBackgroundColor);
    w.key(QStringLiteral("keyBorderColor"));
    w.value(keyBorderColor);
    w.key(QStringLiteral("keyBorderWidth"));
    w.value(keyBorderWidth);
    w.key(QStringLiteral("keyCornerRadius"));
    w.value(keyCornerRadius);
    w.key(QStringLiteral("keyShadowEnabled"));
    w.value(keyShadowEnabled);
    w.key(QStringLiteral("keyShadowRadius"));
    w.value(keyShadowRadius);
    w.key(QStringLiteral("keyShadowColor"));
    w.value(keyShadowColor);
    w.key(QStringLiteral("keyGlowEnabled"));
    w.value(keyGlowEnabled);
    w.key(QStringLiteral("keyGlowColor"));
    w.value(keyGlowColor);
    w.key(QStringLiteral("keyGlowRadius"));
    w.value(keyGlowRadius);
    w.endObject();
}

std::optional<AppearanceSettingsSnapshot>
AppearanceSettingsSnapshot::fromJson(const QJsonValue &json)
{
    if (!json.isObject())
        return std::nullopt;
    RequiredJsonFields f(json.toObject());
    AppearanceSettingsSnapshot r;
    f.read("keySize", r.keySize);
    f.read("keySpacing", r.keySpacing);
    f.read("keyOpacity", r.keyOpacity);
    f.read("keyAnimationStyleRawValue", r.keyAnimationStyleRawValue);
    f.read("keyFont", r.keyFont);
    f.read("keyTextColor", r.keyTextColor);
    f.read("keyBackgroundColor", r.keyBackgroundColor);
    f.read("keyBorderColor", r.keyBorderColor);
    f.read("keyBorderWidth", r.keyBorderWidth);
    f.read("keyCornerRadius", r.keyCornerRadius);
    f.read("keyShadowEnabled", r.keyShadowEnabled);
    f.read("keyShadowRadius", r.keyShadowRadius);
    f.read("keyShadowColor", r.keyShadowColor);
    f.read("keyGlowEnabled", r.keyGlowEnabled);
    f.read("keyGlowColor", r.keyGlowColor);
    f.read("keyGlowRadius", r.keyGlowRadius);
    if (!f.ok())
        return std::nullopt;
    return r;
}
