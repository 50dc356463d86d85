#pragma once

#include "settings/AppSettings.h"
#include "settings/CustomKeyStylePreset.h"

#include <QString>
#include <QUuid>

class CustomKeyStylePresetStore;
class SettingsStore;

// What the style tiles of the Appearance tab do, without any widget: choosing a built-in style
// or a saved preset writes its values into the appearance settings; saving keeps the current
// look as a new preset; `selectedCustomPresetID` tells which saved preset was applied last.
class StylePresetActions final {
public:
    StylePresetActions(SettingsStore &settings, CustomKeyStylePresetStore &presets);

    // The name a preset gets for what the user typed: trimmed, cut to 10 characters (as the user
    // sees characters), trimmed again; "Preset" when nothing is left.
    static QString presetName(const QString &typed);
    // The longest name a preset keeps, in characters as the user sees them.
    static constexpr int maxNameLength = 10;
    // What the name field keeps of `typed`: text of 11 characters or more is cut to its first 10.
    static QString limitNameLength(const QString &typed);
    // The sixteen values of a built-in style as a look, the animation as its text.
    static AppearanceSettingsSnapshot snapshotOf(AppSettings::KeyStyle style);

    // Saves the current look under `typedName` as a new preset, selects it and returns it.
    CustomKeyStylePreset saveCurrentLookAsPreset(const QString &typedName);
    // Writes the style's name, clears the selected preset, then writes every value of the style.
    void applyBuiltInStyle(AppSettings::KeyStyle style);
    // Selects the preset, then writes its values; an animation this version does not know
    // applies no animation. The stored built-in style is left as it is.
    void applyCustomPreset(const CustomKeyStylePreset &preset);
    // Deletes a saved preset; when it was the selected one, the look returns to `modern`.
    void deletePreset(const QUuid &id);
    // Writes the sixteen values of a look; neither the built-in style nor the selected preset
    // changes. An animation this version does not know applies no animation.
    void applyAppearanceSnapshot(const AppearanceSettingsSnapshot &look) { writeLook(look); }

    // A style tile is marked while no valid preset id is selected and it is the stored style.
    bool isBuiltInStyleSelected(AppSettings::KeyStyle style) const;
    // A preset tile is marked when the selected id is its id.
    bool isCustomPresetSelected(const QUuid &id) const;

private:
    // Writes the sixteen appearance settings.
    void writeLook(const AppearanceSettingsSnapshot &look);

    SettingsStore &m_settings;
    CustomKeyStylePresetStore &m_presets;
};
