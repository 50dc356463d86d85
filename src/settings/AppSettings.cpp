#include "settings/AppSettings.h"

#include "settings/SettingsStore.h"

QString AppSettings::rawValue(KeyStyle style)
{
    switch (style) {
    case KeyStyle::modern:
        return QStringLiteral("modern");
    case KeyStyle::classic:
        return QStringLiteral("classic");
    case KeyStyle::minimal:
        return QStringLiteral("minimal");
    case KeyStyle::gaming:
        return QStringLiteral("gaming");
    case KeyStyle::neon:
        return QStringLiteral("neon");
    }
    return {};
}

QString AppSettings::rawValue(KeyPosition position)
{
    switch (position) {
    case KeyPosition::topLeft:
        return QStringLiteral("Top Left");
    case KeyPosition::topCenter:
        return QStringLiteral("Top Center");
    case KeyPosition::topRight:
        return QStringLiteral("Top Right");
    case KeyPosition::bottomLeft:
        return QStringLiteral("Bottom Left");
    case KeyPosition::bottomCenter:
        return QStringLiteral("Bottom Center");
    case KeyPosition::bottomRight:
        return QStringLiteral("Bottom Right");
    case KeyPosition::custom:
        return QStringLiteral("Custom");
    }
    return {};
}

QString AppSettings::rawValue(KeyAnimationStyle style)
{
    switch (style) {
    case KeyAnimationStyle::none:
        return QStringLiteral("none");
    case KeyAnimationStyle::fadeIn:
        return QStringLiteral("fadeIn");
    case KeyAnimationStyle::scaleIn:
        return QStringLiteral("scaleIn");
    case KeyAnimationStyle::slideIn:
        return QStringLiteral("slideIn");
    case KeyAnimationStyle::bounce:
        return QStringLiteral("bounce");
    }
    return {};
}

template <> QList<AppSettings::KeyStyle> AppSettings::allCases<AppSettings::KeyStyle>()
{
    return {KeyStyle::modern, KeyStyle::classic, KeyStyle::minimal, KeyStyle::gaming,
            KeyStyle::neon};
}

template <> QList<AppSettings::KeyPosition> AppSettings::allCases<AppSettings::KeyPosition>()
{
    return {KeyPosition::topLeft,    KeyPosition::topCenter,    KeyPosition::topRight,
            KeyPosition::bottomLeft, KeyPosition::bottomCenter, KeyPosition::bottomRight,
            KeyPosition::custom};
}

template <>
QList<AppSettings::KeyAnimationStyle> AppSettings::allCases<AppSettings::KeyAnimationStyle>()
{
    return {KeyAnimationStyle::none, KeyAnimationStyle::fadeIn, KeyAnimationStyle::scaleIn,
            KeyAnimationStyle::slideIn, KeyAnimationStyle::bounce};
}

QList<AppSettings::KeyPosition> AppSettings::presets()
{
    QList<KeyPosition> result;
    for (const KeyPosition position : allCases<KeyPosition>())
        if (rawValue(position) != u"Custom")
            result.append(position);
    return result;
}

QString AppSettings::symbolName(KeyPosition position)
{
    switch (position) {
    case KeyPosition::topLeft:
        return QStringLiteral("inset.filled.topleft.rectangle");
    case KeyPosition::topCenter:
        return QStringLiteral("inset.filled.topthird.rectangle");
    case KeyPosition::topRight:
        return QStringLiteral("inset.filled.topright.rectangle");
    case KeyPosition::bottomLeft:
        return QStringLiteral("inset.filled.bottomleft.rectangle");
    case KeyPosition::bottomCenter:
        return QStringLiteral("inset.filled.bottomthird.rectangle");
    case KeyPosition::bottomRight:
        return QStringLiteral("inset.filled.bottomright.rectangle");
    case KeyPosition::custom:
        return QStringLiteral("hand.draw");
    }
    return {};
}

const AppSettings::DefaultSettings &AppSettings::shared()
{
    // A function-local static is initialised exactly once, also under concurrent first use.
    static const DefaultSettings defaults = [] {
        DefaultSettings d;
        d.menuBarIconOptions = {
            QStringLiteral("MenuBarIcon"),
            QStringLiteral("keyboard"),
            QStringLiteral("keyboard.fill"),
            QStringLiteral("keyboard.badge.ellipsis"),
            QStringLiteral("keyboard.onehanded.left"),
            QStringLiteral("keyboard.onehanded.right"),
            QStringLiteral("textformat.abc"),
            QStringLiteral("textformat.abc.dottedunderline"),
            QStringLiteral("textformat.123"),
            QStringLiteral("character.cursor.ibeam"),
        };
        d.customMenuBarIconNames = {QStringLiteral("MenuBarIcon")};
        return d;
    }();
    return defaults;
}

QStringList AppSettings::generalSettingsKeys()
{
    return {isVantrelEnabled.name(), keyPosition.name(), keyDisplayDuration.name(),
            keyMaxDisplayCount.name()};
}

QStringList AppSettings::keyboardSettingsKeys()
{
    // showMouseClicks is deliberately not part of this group.
    return {showAllKeys.name(), showModifierKeys.name(), showFunctionKeys.name(),
            showSpecialKeys.name()};
}

QStringList AppSettings::appearanceSettingsKeys()
{
    // The saved custom presets are kept; only the current look is reset.
    return {keyStyle.name(),        keySize.name(),        keySpacing.name(),
            keyCornerRadius.name(), keyOpacity.name(),     keyAnimationStyle.name(),
            keyFont.name(),         keyTextColor.name(),   keyBackgroundColor.name(),
            keyBorderColor.name(),  keyBorderWidth.name(), keyShadowEnabled.name(),
            keyShadowRadius.name(), keyShadowColor.name(), keyGlowEnabled.name(),
            keyGlowColor.name(),    keyGlowRadius.name(),  selectedCustomPresetID.name()};
}

namespace {
void removeAll(SettingsStore &store, const QStringList &keys)
{
    for (const QString &key : keys)
        store.remove(key);
}
} // namespace

void AppSettings::resetGeneralSettings(SettingsStore &store)
{
    removeAll(store, generalSettingsKeys());
}

void AppSettings::resetKeyboardSettings(SettingsStore &store)
{
    removeAll(store, keyboardSettingsKeys());
}

void AppSettings::resetAppearanceSettings(SettingsStore &store)
{
    removeAll(store, appearanceSettingsKeys());
}
