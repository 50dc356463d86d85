#pragma once

#include "settings/Setting.h"

#include <QByteArray>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

#include <array>
#include <optional>
#include <utility>

class SettingsStore;
struct KeyStylePreset;

// The settings of Vantrel: their enumerations, the one table of keys and built-in defaults, and
// the group resets of the settings window.
class AppSettings final {
public:
    enum class KeyStyle { modern, classic, minimal, gaming, neon };
    enum class KeyPosition {
        topLeft,
        topCenter,
        topRight,
        bottomLeft,
        bottomCenter,
        bottomRight,
        custom
    };
    enum class KeyAnimationStyle { none, fadeIn, scaleIn, slideIn, bounce };

    // Raw values: the stored texts of the enumeration cases (also shown to the user for positions).
    static QString rawValue(KeyStyle style);
    static QString rawValue(KeyPosition position);
    static QString rawValue(KeyAnimationStyle style);

    // Text to case; text that is no raw value (compared exactly, case-sensitively) gives nothing.
    template <typename Enum> static std::optional<Enum> fromRawValue(const QString &text)
    {
        for (const Enum value : allCases<Enum>())
            if (rawValue(value) == text)
                return value;
        return std::nullopt;
    }

    template <typename Enum> static QList<Enum> allCases();

    // The six anchored positions: every case whose raw value is not "Custom".
    static QList<KeyPosition> presets();
    // The symbol shown beside a position in pickers.
    static QString symbolName(KeyPosition position);

    // The values of a built-in style (settings/KeyStylePreset.h).
    static KeyStylePreset getStylePreset(KeyStyle style);

    // ---- The settings table: key, type and built-in default of every setting, and for numbers
    // the range the settings window offers (stored values outside it read as its nearest end). ----
    static inline const Setting<bool> isVantrelEnabled{"isVantrelEnabled", true};
    static inline const Setting<KeyPosition> keyPosition{"keyPosition", KeyPosition::bottomCenter};
    static inline const Setting<double> keyDisplayDuration{"keyDisplayDuration", 1.5, {0.5, 10.0}};
    static inline const Setting<int> keyMaxDisplayCount{"keyMaxDisplayCount", 4, {1, 20}};
    static inline const Setting<QString> menuBarIcon{"menuBarIcon", QStringLiteral("MenuBarIcon")};
    static inline const Setting<bool> showAllKeys{"showAllKeys", false};
    static inline const Setting<bool> showModifierKeys{"showModifierKeys", true};
    static inline const Setting<bool> showFunctionKeys{"showFunctionKeys", true};
    static inline const Setting<bool> showSpecialKeys{"showSpecialKeys", true};
    static inline const Setting<bool> showMouseClicks{"showMouseClicks", false};
    static inline const Setting<KeyStyle> keyStyle{"keyStyle", KeyStyle::modern};
    static inline const Setting<double> keySize{"keySize", 2.0, {1.0, 10.0}};
    static inline const Setting<double> keySpacing{"keySpacing", 20.0, {0.0, 40.0}};
    static inline const Setting<double> keyCornerRadius{"keyCornerRadius", 12.0, {0.0, 25.0}};
    static inline const Setting<double> keyOpacity{"keyOpacity", 0.9, {0.1, 1.0}};
    static inline const Setting<KeyAnimationStyle> keyAnimationStyle{"keyAnimationStyle",
                                                                     KeyAnimationStyle::fadeIn};
    static inline const Setting<QString> keyFont{"keyFont", QStringLiteral("SF Pro Display")};
    static inline const Setting<QString> keyTextColor{"keyTextColor", QStringLiteral("#000000ff")};
    static inline const Setting<QString> keyBackgroundColor{"keyBackgroundColor",
                                                            QStringLiteral("#ffffffff")};
    static inline const Setting<QString> keyBorderColor{"keyBorderColor",
                                                        QStringLiteral("#ccccccff")};
    static inline const Setting<double> keyBorderWidth{"keyBorderWidth", 1.0, {0.0, 5.0}};
    static inline const Setting<bool> keyShadowEnabled{"keyShadowEnabled", true};
    static inline const Setting<double> keyShadowRadius{"keyShadowRadius", 4.0, {0.0, 15.0}};
    static inline const Setting<QString> keyShadowColor{"keyShadowColor",
                                                        QStringLiteral("#00000040")};
    static inline const Setting<bool> keyGlowEnabled{"keyGlowEnabled", false};
    static inline const Setting<QString> keyGlowColor{"keyGlowColor", QStringLiteral("#007AFFff")};
    static inline const Setting<double> keyGlowRadius{"keyGlowRadius", 8.0, {0.0, 20.0}};
    static inline const Setting<QString> selectedCustomPresetID{"selectedCustomPresetID",
                                                                QString()};
    // JSON arrays; absent by default.
    static inline const Setting<QByteArray> customKeyStylePresets{"customKeyStylePresets",
                                                                  QByteArray()};
    static inline const Setting<QByteArray> displayConfigurations{"displayConfigurations",
                                                                  QByteArray()};

    // The built-in defaults as one record, members named as their keys.
    struct DefaultSettings {
        bool isVantrelEnabled = AppSettings::isVantrelEnabled.defaultValue;
        KeyPosition keyPosition = AppSettings::keyPosition.defaultValue;
        double keyDisplayDuration = AppSettings::keyDisplayDuration.defaultValue;
        int keyMaxDisplayCount = AppSettings::keyMaxDisplayCount.defaultValue;
        QString menuBarIcon = AppSettings::menuBarIcon.defaultValue;
        bool showAllKeys = AppSettings::showAllKeys.defaultValue;
        bool showModifierKeys = AppSettings::showModifierKeys.defaultValue;
        bool showFunctionKeys = AppSettings::showFunctionKeys.defaultValue;
        bool showSpecialKeys = AppSettings::showSpecialKeys.defaultValue;
        bool showMouseClicks = AppSettings::showMouseClicks.defaultValue;
        KeyStyle keyStyle = AppSettings::keyStyle.defaultValue;
        double keySize = AppSettings::keySize.defaultValue;
        double keySpacing = AppSettings::keySpacing.defaultValue;
        double keyCornerRadius = AppSettings::keyCornerRadius.defaultValue;
        double keyOpacity = AppSettings::keyOpacity.defaultValue;
        KeyAnimationStyle keyAnimationStyle = AppSettings::keyAnimationStyle.defaultValue;
        QString keyFont = AppSettings::keyFont.defaultValue;
        QString keyTextColor = AppSettings::keyTextColor.defaultValue;
        QString keyBackgroundColor = AppSettings::keyBackgroundColor.defaultValue;
        QString keyBorderColor = AppSettings::keyBorderColor.defaultValue;
        double keyBorderWidth = AppSettings::keyBorderWidth.defaultValue;
        bool keyShadowEnabled = AppSettings::keyShadowEnabled.defaultValue;
        double keyShadowRadius = AppSettings::keyShadowRadius.defaultValue;
        QString keyShadowColor = AppSettings::keyShadowColor.defaultValue;
        bool keyGlowEnabled = AppSettings::keyGlowEnabled.defaultValue;
        QString keyGlowColor = AppSettings::keyGlowColor.defaultValue;
        double keyGlowRadius = AppSettings::keyGlowRadius.defaultValue;

        // The menu bar icon choices, in the order offered, and those drawn from our own images.
        QStringList menuBarIconOptions;
        QSet<QString> customMenuBarIconNames;
    };

    // The built-in defaults; built once, on first use, from any thread.
    static const DefaultSettings &shared();

    // The group resets of the settings window: each deletes exactly its keys.
    static void resetGeneralSettings(SettingsStore &store);
    static void resetKeyboardSettings(SettingsStore &store);
    static void resetAppearanceSettings(SettingsStore &store);
    static QStringList generalSettingsKeys();
    static QStringList keyboardSettingsKeys();
    static QStringList appearanceSettingsKeys();
};

template <> QList<AppSettings::KeyStyle> AppSettings::allCases<AppSettings::KeyStyle>();
template <> QList<AppSettings::KeyPosition> AppSettings::allCases<AppSettings::KeyPosition>();
template <>
QList<AppSettings::KeyAnimationStyle> AppSettings::allCases<AppSettings::KeyAnimationStyle>();

// Enumerations are stored as their raw texts; unknown texts read as the default.
template <typename Enum> struct EnumSettingCodec {
    static std::optional<Enum> decode(const QVariant &value)
    {
        if (value.typeId() != QMetaType::QString)
            return std::nullopt;
        return AppSettings::fromRawValue<Enum>(value.toString());
    }
    static QVariant encode(Enum value) { return AppSettings::rawValue(value); }
    static QString expected()
    {
        QStringList names;
        for (const Enum value : AppSettings::allCases<Enum>())
            names.append(AppSettings::rawValue(value));
        return QStringLiteral("one of ") + names.join(QStringLiteral(", "));
    }
};
template <> struct SettingCodec<AppSettings::KeyStyle> : EnumSettingCodec<AppSettings::KeyStyle> {};
template <>
struct SettingCodec<AppSettings::KeyPosition> : EnumSettingCodec<AppSettings::KeyPosition> {};
template <>
struct SettingCodec<AppSettings::KeyAnimationStyle>
    : EnumSettingCodec<AppSettings::KeyAnimationStyle> {};
