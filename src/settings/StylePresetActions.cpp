#include "settings/StylePresetActions.h"

#include "settings/CustomKeyStylePresetStore.h"
#include "settings/KeyStylePreset.h"
#include "settings/SettingsStore.h"

#include <QTextBoundaryFinder>

namespace {

// The first `count` characters as a reader counts them (grapheme clusters), so that a name is
// never cut inside an accented letter or an emoji.
QString firstCharacters(const QString &text, int count)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    qsizetype end = 0;
    for (int i = 0; i < count; ++i) {
        const qsizetype next = finder.toNextBoundary();
        if (next < 0)
            return text;
        end = next;
    }
    return text.left(end);
}

} // namespace

StylePresetActions::StylePresetActions(SettingsStore &settings, CustomKeyStylePresetStore &presets)
    : m_settings(settings), m_presets(presets)
{}

QString StylePresetActions::presetName(const QString &typed)
{
    QString name = typed.trimmed();
    if (!name.isEmpty())
        name = firstCharacters(name, 10).trimmed();
    if (name.isEmpty())
        name = QStringLiteral("Preset");
    return name;
}

QString StylePresetActions::limitNameLength(const QString &typed)
{
    return firstCharacters(typed, maxNameLength);
}

AppearanceSettingsSnapshot StylePresetActions::snapshotOf(AppSettings::KeyStyle style)
{
    const KeyStylePreset p = AppSettings::getStylePreset(style);
    return {p.keySize,         p.keySpacing,
            p.keyOpacity,      AppSettings::rawValue(p.keyAnimationStyle),
            p.fontName,        p.textColor,
            p.backgroundColor, p.borderColor,
            p.borderWidth,     p.cornerRadius,
            p.shadowEnabled,   p.shadowRadius,
            p.shadowColor,     p.glowEnabled,
            p.glowColor,       p.glowRadius};
}

CustomKeyStylePreset StylePresetActions::saveCurrentLookAsPreset(const QString &typedName)
{
    const CustomKeyStylePreset preset{QUuid::createUuid(), presetName(typedName),
                                      AppearanceSettingsSnapshot::fromSettings(m_settings)};
    m_presets.addPreset(preset);
    m_settings.setValue(AppSettings::selectedCustomPresetID,
                        CustomKeyStylePreset::uuidText(preset.id));
    return preset;
}

void StylePresetActions::applyBuiltInStyle(AppSettings::KeyStyle style)
{
    m_settings.setValue(AppSettings::keyStyle, style);
    m_settings.setValue(AppSettings::selectedCustomPresetID, QString());
    writeLook(snapshotOf(style));
}

void StylePresetActions::applyCustomPreset(const CustomKeyStylePreset &preset)
{
    m_settings.setValue(AppSettings::selectedCustomPresetID,
                        CustomKeyStylePreset::uuidText(preset.id));
    writeLook(preset.snapshot);
}

void StylePresetActions::writeLook(const AppearanceSettingsSnapshot &s)
{
    m_settings.setValue(AppSettings::keySize, s.keySize);
    m_settings.setValue(AppSettings::keySpacing, s.keySpacing);
    m_settings.setValue(AppSettings::keyOpacity, s.keyOpacity);
    // Deliberately no animation, not the default one, for a name this version does not know.
    m_settings.setValue(
        AppSettings::keyAnimationStyle,
        AppSettings::fromRawValue<AppSettings::KeyAnimationStyle>(s.keyAnimationStyleRawValue)
            .value_or(AppSettings::KeyAnimationStyle::none));
    m_settings.setValue(AppSettings::keyFont, s.keyFont);
    m_settings.setValue(AppSettings::keyTextColor, s.keyTextColor);
    m_settings.setValue(AppSettings::keyBackgroundColor, s.keyBackgroundColor);
    m_settings.setValue(AppSettings::keyBorderColor, s.keyBorderColor);
    m_settings.setValue(AppSettings::keyBorderWidth, s.keyBorderWidth);
    m_settings.setValue(AppSettings::keyCornerRadius, s.keyCornerRadius);
    m_settings.setValue(AppSettings::keyShadowEnabled, s.keyShadowEnabled);
    m_settings.setValue(AppSettings::keyShadowRadius, s.keyShadowRadius);
    m_settings.setValue(AppSettings::keyShadowColor, s.keyShadowColor);
    m_settings.setValue(AppSettings::keyGlowEnabled, s.keyGlowEnabled);
    m_settings.setValue(AppSettings::keyGlowColor, s.keyGlowColor);
    m_settings.setValue(AppSettings::keyGlowRadius, s.keyGlowRadius);
}

void StylePresetActions::deletePreset(const QUuid &id)
{
    const bool wasSelected = isCustomPresetSelected(id);
    m_presets.removePreset(id);
    // Deliberately `modern`, not the style stored last.
    if (wasSelected)
        applyBuiltInStyle(AppSettings::KeyStyle::modern);
}

bool StylePresetActions::isBuiltInStyleSelected(AppSettings::KeyStyle style) const
{
    return !CustomKeyStylePreset::parseUuidText(
                m_settings.value(AppSettings::selectedCustomPresetID))
                .has_value() &&
           m_settings.value(AppSettings::keyStyle) == style;
}

bool StylePresetActions::isCustomPresetSelected(const QUuid &id) const
{
    return CustomKeyStylePreset::parseUuidText(
               m_settings.value(AppSettings::selectedCustomPresetID)) == id;
}
