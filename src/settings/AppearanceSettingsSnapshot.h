#pragma once

#include <QJsonValue>
#include <QString>

#include <optional>

class JsonWriter;
class SettingsStore;

// The sixteen appearance settings as one record: what a user preset keeps. Members are named as
// their JSON keys and written in this order. The animation is kept as its text, so that a
// preset naming an animation this version does not know still loads.
struct AppearanceSettingsSnapshot final {
    double keySize = 0.0;
    double keySpacing = 0.0;
    double keyOpacity = 0.0;
    QString keyAnimationStyleRawValue;
    QString keyFont;
    QString keyTextColor;
    QString keyBackgroundColor;
    QString keyBorderColor;
    double keyBorderWidth = 0.0;
    double keyCornerRadius = 0.0;
    bool keyShadowEnabled = false;
    double keyShadowRadius = 0.0;
    QString keyShadowColor;
    bool keyGlowEnabled = false;
    QString keyGlowColor;
    double keyGlowRadius = 0.0;

    // The current values of the sixteen settings (defaults where unset).
    static AppearanceSettingsSnapshot fromSettings(const SettingsStore &settings);

    // Writes the record as a JSON object.
    void write(JsonWriter &writer) const;
    // Reads a JSON object; every key is required and must have its type, else nothing.
    static std::optional<AppearanceSettingsSnapshot> fromJson(const QJsonValue &json);

    friend bool operator==(const AppearanceSettingsSnapshot &,
                           const AppearanceSettingsSnapshot &) = default;
};
