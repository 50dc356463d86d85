#pragma once

#include "settings/AppSettings.h"
#include "settings/AppearanceSettingsSnapshot.h"
#include "settings/CustomKeyStylePreset.h"
#include "settings/StylePresetActions.h"
#include "ui/SavePresetDialog.h"

#include <QColor>
#include <QList>
#include <QPointer>
#include <QStringList>
#include <QUuid>
#include <QWidget>

#include <array>

#include <functional>
#include <optional>
#include <utility>
#include <vector>

class AddPresetTile;
class ColorPickerButton;
class CustomKeyStylePresetStore;
class KeyStylePreview;
class QComboBox;
class QGridLayout;

class SettingsForm;
class SettingsRow;
class SettingsStore;

// The Appearance tab: a grid of sample keys to choose a built-in style or a saved preset, and
// every appearance setting (size, spacing, opacity, animation, font, colours, border, corners,
// shadow, glow) edited live. Controls write their setting at once and follow changes made
// elsewhere (menu, shortcuts, another window) while the tab is open.
class AppearanceSettingsView final : public QWidget {
    Q_OBJECT

public:
    AppearanceSettingsView(SettingsStore &store, CustomKeyStylePresetStore &presets,
                           QWidget *parent = nullptr);
    ~AppearanceSettingsView() override;

    // The size multiplier of the grid's sample keys and the grid's column count.
    static constexpr double previewKeySize = 1.1;
    static constexpr int styleGridColumns = 5;

    // The colour settings in the order their local colours are kept.
    enum class ColorSetting { text, background, border, shadow, glow };

    // A built-in tile is marked while no saved preset is selected and it is the stored style.
    bool isDefaultStyleSelected(AppSettings::KeyStyle style) const;
    // Chooses a built-in style: its name, no saved preset, then all of its values.
    void applyStylePreset(AppSettings::KeyStyle style);
    // Writes the sixteen values of a look and reloads the local colours.
    void applyAppearanceSnapshot(const AppearanceSettingsSnapshot &snapshot);
    // Chooses a saved preset: selects it and writes its values.
    void applyCustomPreset(const CustomKeyStylePreset &preset);
    // The sixteen current values.
    AppearanceSettingsSnapshot currentAppearanceSnapshot() const;
    // Reloads the local colours (and their pickers) from the stored colour texts.
    void updateStateColors();
    QColor stateColor(ColorSetting which) const;

    // The save sheet: opening it clears the name; a blank name is refused and keeps it open.
    void presentSavePrompt();
    bool isPresentingSavePrompt() const { return m_isPresentingSavePrompt; }
    SavePresetDialog *savePrompt() const { return m_savePrompt; }
    QString newPresetName() const { return m_newPresetName; }
    void setNewPresetName(const QString &name) { m_newPresetName = name; }
    // Saves and closes the sheet unless the name is blank; true when it saved.
    bool attemptSavePreset();
    // Saves the current look under the typed name (or "Preset") and selects it.
    void saveCurrentPreset();
    // Deletes a saved preset; deleting the selected one returns to the `modern` style.
    void removePreset(const CustomKeyStylePreset &preset);
    std::optional<QUuid> hoveredPresetID() const { return m_hoveredPresetID; }

    // Fonts offered in the menu, fixed when the tab is made.
    const QStringList &availableFonts() const { return m_availableFonts; }

    // A slider's setting, title, range and how its value is shown.
    struct SliderSpec;

protected:
    void showEvent(QShowEvent *event) override;

private:
    void buildStyleSection();
    void buildBasicSection();
    void buildColorsSection();
    void buildEffectsSection();
    void buildResetRow();
    SettingsRow *addSlider(QWidget *section, const SliderSpec &definition);
    SettingsRow *addColor(QWidget *section, ColorSetting which, const QString &title,
                          const QString &description);
    SettingsRow *addToggle(QWidget *section, const Setting<bool> &setting, const QString &title,
                           const QString &description);
    void addRefresher(const QString &key, std::function<void()> refresh);

    void rebuildCustomTiles();
    void refreshTileSelection();
    void refreshEffectRows();
    void refreshFontMenu();
    void refreshAnimationMenu();
    void onSettingChanged(const QString &key);

    static const Setting<QString> &colorSetting(ColorSetting which);

    SettingsStore &m_store;
    CustomKeyStylePresetStore &m_presets;
    StylePresetActions m_actions;
    SettingsForm *m_form;

    QStringList m_availableFonts;
    std::array<QColor, 5> m_colors;
    std::array<ColorPickerButton *, 5> m_colorPickers{};
    std::optional<QUuid> m_hoveredPresetID;
    QString m_newPresetName;
    QPointer<SavePresetDialog> m_savePrompt;
    bool m_isPresentingSavePrompt = false;

    QGridLayout *m_grid = nullptr;
    QList<std::pair<AppSettings::KeyStyle, KeyStylePreview *>> m_styleTiles;
    QList<std::pair<QUuid, KeyStylePreview *>> m_customTiles;
    AddPresetTile *m_addTile = nullptr;
    QComboBox *m_animationMenu = nullptr;
    QComboBox *m_fontMenu = nullptr;
    // Rows shown only while their effect is on.
    QList<SettingsRow *> m_shadowRows;
    QList<SettingsRow *> m_glowRows;
    // What to redraw when a setting changes, by key.
    std::vector<std::pair<QString, std::function<void()>>> m_refreshers;
};
