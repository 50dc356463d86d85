#include "ui/AppearanceSettingsView.h"

#include "overlay/Color.h"
#include "settings/CustomKeyStylePresetStore.h"
#include "settings/SettingsStore.h"
#include "ui/AddPresetTile.h"
#include "ui/ColorPickerButton.h"
#include "ui/KeyStylePreview.h"
#include "ui/SavePresetDialog.h"
#include "ui/SettingsForm.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QVBoxLayout>

#include <cmath>

// A slider over a setting's range: QSlider counts in integers, so the value is kept in
// `unitsPerValue` steps per unit (100 for the size's continuous 0.01 steps, 2 for half pixels).
struct AppearanceSettingsView::SliderSpec {
    const Setting<double> *setting;
    const char *title;
    int unitsPerValue;
    int decimals;
    const char *suffix;
};

namespace {

const std::array basicSliders{
    AppearanceSettingsView::SliderSpec{
        &AppSettings::keySize, QT_TRANSLATE_NOOP("AppearanceSettingsView", "Size"), 100, 1, "x"},
    AppearanceSettingsView::SliderSpec{&AppSettings::keySpacing,
                                       QT_TRANSLATE_NOOP("AppearanceSettingsView", "Spacing"), 10,
                                       0, "px"},
    AppearanceSettingsView::SliderSpec{&AppSettings::keyOpacity,
                                       QT_TRANSLATE_NOOP("AppearanceSettingsView", "Opacity"), 10,
                                       1, ""},
};

const std::array effectSliders{
    AppearanceSettingsView::SliderSpec{&AppSettings::keyCornerRadius,
                                       QT_TRANSLATE_NOOP("AppearanceSettingsView", "Corner Radius"),
                                       1, 0, "px"},
    AppearanceSettingsView::SliderSpec{&AppSettings::keyBorderWidth,
                                       QT_TRANSLATE_NOOP("AppearanceSettingsView", "Border Width"),
                                       2, 1, "px"},
    AppearanceSettingsView::SliderSpec{&AppSettings::keyShadowRadius,
                                       QT_TRANSLATE_NOOP("AppearanceSettingsView", "Shadow Radius"),
                                       1, 0, "px"},
    AppearanceSettingsView::SliderSpec{&AppSettings::keyGlowRadius,
                                       QT_TRANSLATE_NOOP("AppearanceSettingsView", "Glow Radius"),
                                       1, 0, "px"},
};

const AppearanceSettingsView::SliderSpec *findSpec(const char *key)
{
    for (const auto &definition : effectSliders)
        if (qstrcmp(definition.setting->key, key) == 0)
            return &definition;
    return nullptr;
}

QString styleDisplayName(AppSettings::KeyStyle style)
{
    switch (style) {
    case AppSettings::KeyStyle::modern:
        return QCoreApplication::translate("AppearanceSettingsView", "Modern");
    case AppSettings::KeyStyle::classic:
        return QCoreApplication::translate("AppearanceSettingsView", "Classic");
    case AppSettings::KeyStyle::minimal:
        return QCoreApplication::translate("AppearanceSettingsView", "Minimal");
    case AppSettings::KeyStyle::gaming:
        return QCoreApplication::translate("AppearanceSettingsView", "Gaming");
    case AppSettings::KeyStyle::neon:
        return QCoreApplication::translate("AppearanceSettingsView", "Neon");
    }
    return {};
}

QString animationDisplayName(AppSettings::KeyAnimationStyle style)
{
    switch (style) {
    case AppSettings::KeyAnimationStyle::none:
        return QCoreApplication::translate("AppearanceSettingsView", "None");
    case AppSettings::KeyAnimationStyle::fadeIn:
        return QCoreApplication::translate("AppearanceSettingsView", "Fade In");
    case AppSettings::KeyAnimationStyle::scaleIn:
        return QCoreApplication::translate("AppearanceSettingsView", "Scale In");
    case AppSettings::KeyAnimationStyle::slideIn:
        return QCoreApplication::translate("AppearanceSettingsView", "Slide In");
    case AppSettings::KeyAnimationStyle::bounce:
        return QCoreApplication::translate("AppearanceSettingsView", "Bounce");
    }
    return {};
}

QString formatValue(double value, int decimals, const char *suffix)
{
    // The locale's decimal sign; the units ("px", "x") read the same in every language.
    return QLocale().toString(value, 'f', decimals) + QString::fromUtf8(suffix);
}

} // namespace

AppearanceSettingsView::AppearanceSettingsView(SettingsStore &store,
                                               CustomKeyStylePresetStore &presets, QWidget *parent)
    : QWidget(parent), m_store(store), m_presets(presets), m_actions(store, presets),
      m_form(new SettingsForm), m_availableFonts(QFontDatabase::families())
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_form);

    buildStyleSection();
    buildBasicSection();
    buildColorsSection();
    buildEffectsSection();
    buildResetRow();

    connect(&m_store, &SettingsStore::valueChanged, this,
            &AppearanceSettingsView::onSettingChanged);
    connect(&m_presets, &CustomKeyStylePresetStore::presetsChanged, this,
            &AppearanceSettingsView::rebuildCustomTiles);
    for (const auto &[key, refresh] : m_refreshers)
        refresh();
    updateStateColors();
}

AppearanceSettingsView::~AppearanceSettingsView() = default;

void AppearanceSettingsView::addRefresher(const QString &key, std::function<void()> refresh)
{
    m_refreshers.emplace_back(key, std::move(refresh));
}

void AppearanceSettingsView::onSettingChanged(const QString &key)
{
    for (const auto &[refreshedKey, refresh] : m_refreshers)
        if (refreshedKey == key)
            refresh();
}

// ---- Style Presets ----

void AppearanceSettingsView::buildStyleSection()
{
    QGroupBox *section = m_form->addSection(tr("Style Presets"));
    auto *host = new QWidget;
    m_grid = new QGridLayout(host);
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setSpacing(8);
    for (int column = 0; column < styleGridColumns; ++column) {
        m_grid->setColumnStretch(column, 1);
        m_grid->setColumnMinimumWidth(column, 10);
    }
    const auto styles = AppSettings::allCases<AppSettings::KeyStyle>();
    for (const AppSettings::KeyStyle style : styles) {
        auto *tile = new KeyStylePreview(
            styleDisplayName(style), StylePresetActions::snapshotOf(style), style, previewKeySize);
        tile->setObjectName(AppSettings::rawValue(style));
        connect(tile, &KeyStylePreview::clicked, this, [this, style] { applyStylePreset(style); });
        m_grid->addWidget(tile, int(m_styleTiles.size()) / styleGridColumns,
                          int(m_styleTiles.size()) % styleGridColumns);
        m_styleTiles.append({style, tile});
    }
    m_addTile = new AddPresetTile;
    connect(m_addTile, &AddPresetTile::clicked, this, &AppearanceSettingsView::presentSavePrompt);
    m_form->addWidget(section, host);
    rebuildCustomTiles();

    addRefresher(AppSettings::keyStyle.name(), [this] { refreshTileSelection(); });
    addRefresher(AppSettings::selectedCustomPresetID.name(), [this] { refreshTileSelection(); });
}

void AppearanceSettingsView::rebuildCustomTiles()
{
    for (const auto &[id, tile] : std::as_const(m_customTiles)) {
        m_grid->removeWidget(tile);
        tile->hide();
        // Later: the tile may be the sender of the click that removed its preset.
        tile->deleteLater();
    }
    m_customTiles.clear();
    m_grid->removeWidget(m_addTile);

    const AppSettings::KeyStyle storedStyle = m_store.value(AppSettings::keyStyle);
    int index = int(m_styleTiles.size());
    for (const CustomKeyStylePreset &preset : m_presets.presets()) {
        auto *tile = new KeyStylePreview(preset.name, preset.snapshot, storedStyle, previewKeySize);
        tile->setRemovable(true);
        const QUuid id = preset.id;
        connect(tile, &KeyStylePreview::clicked, this, [this, id] {
            if (const auto chosen = m_presets.preset(id))
                applyCustomPreset(*chosen);
        });
        connect(tile, &KeyStylePreview::removeRequested, this, [this, id] {
            if (const auto doomed = m_presets.preset(id))
                removePreset(*doomed);
        });
        connect(tile, &KeyStylePreview::hoverChanged, this, [this, id](bool hovered) {
            if (hovered)
                m_hoveredPresetID = id;
            else if (m_hoveredPresetID == id)
                m_hoveredPresetID.reset();
        });
        m_grid->addWidget(tile, index / styleGridColumns, index % styleGridColumns);
        m_customTiles.append({id, tile});
        ++index;
    }
    m_grid->addWidget(m_addTile, index / styleGridColumns, index % styleGridColumns);
    // Keyboard focus moves through the tiles in grid order, new tiles included.
    QWidget *previous = m_styleTiles.last().second;
    for (const auto &[id, tile] : std::as_const(m_customTiles)) {
        QWidget::setTabOrder(previous, tile);
        previous = tile;
    }
    QWidget::setTabOrder(previous, m_addTile);
    refreshTileSelection();
}

void AppearanceSettingsView::refreshTileSelection()
{
    for (const auto &[style, tile] : std::as_const(m_styleTiles))
        tile->setSelected(isDefaultStyleSelected(style));
    // Saved looks fall back to the stored style where they leave something open, as on screen.
    const AppSettings::KeyStyle storedStyle = m_store.value(AppSettings::keyStyle);
    for (const auto &[id, tile] : std::as_const(m_customTiles)) {
        tile->setSelected(m_actions.isCustomPresetSelected(id));
        tile->setFallbackStyle(storedStyle);
    }
}

// ---- Basic ----

SettingsRow *AppearanceSettingsView::addSlider(QWidget *section, const SliderSpec &definition)
{
    auto *control = new QWidget;
    auto *line = new QHBoxLayout(control);
    line->setContentsMargins(0, 0, 0, 0);
    auto *slider = new QSlider(Qt::Horizontal);
    slider->setObjectName(definition.setting->name());
    slider->setAccessibleName(tr(definition.title));
    const Setting<double>::Range range = definition.setting->range.value();
    slider->setRange(int(std::lround(range.minimum * definition.unitsPerValue)),
                     int(std::lround(range.maximum * definition.unitsPerValue)));
    slider->setSingleStep(std::max(1, definition.unitsPerValue / 10));
    slider->setPageStep(std::max(1, definition.unitsPerValue / 10) * 5);
    slider->setMinimumWidth(160);
    auto *value = new QLabel;
    value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    // One width for every value, so that the sliders line up.
    value->setFixedWidth(value->fontMetrics().horizontalAdvance(QStringLiteral("00.0px ")));
    line->addWidget(slider, 1);
    line->addWidget(value);

    const Setting<double> &setting = *definition.setting;
    const int units = definition.unitsPerValue;
    connect(slider, &QSlider::valueChanged, this, [this, &setting, units](int position) {
        m_store.setValue(setting, double(position) / units);
    });
    addRefresher(setting.name(), [this, &setting, slider, value, definition] {
        const double stored = m_store.value(setting);
        const QSignalBlocker blocker(slider);
        slider->setValue(int(std::lround(stored * definition.unitsPerValue)));
        value->setText(formatValue(stored, definition.decimals, definition.suffix));
    });
    return m_form->addRow(static_cast<QGroupBox *>(section), tr(definition.title), QString(),
                          control);
}

void AppearanceSettingsView::buildBasicSection()
{
    QGroupBox *section = m_form->addSection(tr("Basic"));
    for (const SliderSpec &definition : basicSliders)
        addSlider(section, definition);

    m_animationMenu = new QComboBox;
    m_animationMenu->setObjectName(AppSettings::keyAnimationStyle.name());
    m_animationMenu->setAccessibleName(tr("Animation"));
    const auto animations = AppSettings::allCases<AppSettings::KeyAnimationStyle>();
    for (const auto animation : animations)
        m_animationMenu->addItem(animationDisplayName(animation), AppSettings::rawValue(animation));
    connect(m_animationMenu, &QComboBox::activated, this, [this, animations](int index) {
        if (index >= 0 && index < animations.size())
            m_store.setValue(AppSettings::keyAnimationStyle, animations.at(index));
    });
    m_form->addRow(section, tr("Animation"), tr("How keys appear on screen"), m_animationMenu);
    addRefresher(AppSettings::keyAnimationStyle.name(), [this] { refreshAnimationMenu(); });

    m_fontMenu = new QComboBox;
    m_fontMenu->setObjectName(AppSettings::keyFont.name());
    m_fontMenu->setAccessibleName(tr("Font"));
    m_fontMenu->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_fontMenu->setMinimumContentsLength(14);
    m_fontMenu->setMaxVisibleItems(16);
    for (const QString &family : std::as_const(m_availableFonts)) {
        m_fontMenu->addItem(family);
        QFont sample;
        sample.setFamilies({family});
        m_fontMenu->setItemData(m_fontMenu->count() - 1, sample, Qt::FontRole);
    }
    connect(m_fontMenu, &QComboBox::activated, this, [this](int index) {
        if (index >= 0 && index < m_availableFonts.size())
            m_store.setValue(AppSettings::keyFont, m_availableFonts.at(index));
    });
    m_form->addRow(section, tr("Font"), tr("Choose the font family"), m_fontMenu);
    addRefresher(AppSettings::keyFont.name(), [this] { refreshFontMenu(); });
}

void AppearanceSettingsView::refreshAnimationMenu()
{
    const QSignalBlocker blocker(m_animationMenu);
    m_animationMenu->setCurrentIndex(m_animationMenu->findData(
        AppSettings::rawValue(m_store.value(AppSettings::keyAnimationStyle))));
}

void AppearanceSettingsView::refreshFontMenu()
{
    // A font that is not installed shows no selection; the stored name stays until the user
    // chooses another.
    const QSignalBlocker blocker(m_fontMenu);
    m_fontMenu->setCurrentIndex(int(m_availableFonts.indexOf(m_store.value(AppSettings::keyFont))));
}

// ---- Colors ----

const Setting<QString> &AppearanceSettingsView::colorSetting(ColorSetting which)
{
    switch (which) {
    case ColorSetting::text:
        return AppSettings::keyTextColor;
    case ColorSetting::background:
        return AppSettings::keyBackgroundColor;
    case ColorSetting::border:
        return AppSettings::keyBorderColor;
    case ColorSetting::shadow:
        return AppSettings::keyShadowColor;
    case ColorSetting::glow:
        return AppSettings::keyGlowColor;
    }
    return AppSettings::keyTextColor;
}

SettingsRow *AppearanceSettingsView::addColor(QWidget *section, ColorSetting which,
                                              const QString &title, const QString &description)
{
    auto *picker = new ColorPickerButton;
    const Setting<QString> &setting = colorSetting(which);
    picker->setObjectName(setting.name());
    picker->setAccessibleName(title);
    const auto index = std::size_t(which);
    m_colorPickers[index] = picker;
    connect(picker, &ColorPickerButton::colorChanged, this,
            [this, index, &setting](const QColor &color) {
                m_colors[index] = color;
                m_store.setValue(setting, Color::fromQColor(color).toRGBAString());
            });
    addRefresher(setting.name(), [this, index, &setting] {
        m_colors[index] = Color::fromRGBAString(m_store.value(setting)).toQColor();
        m_colorPickers[index]->setColor(m_colors[index]);
    });
    return m_form->addRow(static_cast<QGroupBox *>(section), title, description, picker);
}

void AppearanceSettingsView::buildColorsSection()
{
    QGroupBox *section = m_form->addSection(tr("Colors"));
    addColor(section, ColorSetting::text, tr("Text Color"), tr("Color of the key labels"));
    addColor(section, ColorSetting::background, tr("Background Color"),
             tr("Color of the key background"));
    addColor(section, ColorSetting::border, tr("Border Color"), tr("Color of the key border"));
}

void AppearanceSettingsView::updateStateColors()
{
    for (const ColorSetting which :
         {ColorSetting::text, ColorSetting::background, ColorSetting::border, ColorSetting::shadow,
          ColorSetting::glow}) {
        const auto index = std::size_t(which);
        m_colors[index] = Color::fromRGBAString(m_store.value(colorSetting(which))).toQColor();
        if (m_colorPickers[index])
            m_colorPickers[index]->setColor(m_colors[index]);
    }
}

QColor AppearanceSettingsView::stateColor(ColorSetting which) const
{
    return m_colors[std::size_t(which)];
}

// ---- Effects ----

SettingsRow *AppearanceSettingsView::addToggle(QWidget *section, const Setting<bool> &setting,
                                               const QString &title, const QString &description)
{
    auto *toggle = new QCheckBox;
    toggle->setObjectName(setting.name());
    toggle->setAccessibleName(title);
    connect(toggle, &QCheckBox::toggled, this,
            [this, &setting](bool on) { m_store.setValue(setting, on); });
    addRefresher(setting.name(), [this, &setting, toggle] {
        const QSignalBlocker blocker(toggle);
        toggle->setChecked(m_store.value(setting));
        refreshEffectRows();
    });
    return m_form->addRow(static_cast<QGroupBox *>(section), title, description, toggle);
}

void AppearanceSettingsView::buildEffectsSection()
{
    QGroupBox *section = m_form->addSection(tr("Effects"));
    addSlider(section, *findSpec(AppSettings::keyCornerRadius.key));
    addSlider(section, *findSpec(AppSettings::keyBorderWidth.key));
    addToggle(section, AppSettings::keyShadowEnabled, tr("Shadow"), tr("Add drop shadow to keys"));
    m_shadowRows = {addSlider(section, *findSpec(AppSettings::keyShadowRadius.key)),
                    addColor(section, ColorSetting::shadow, tr("Shadow Color"),
                             tr("Color of the drop shadow"))};
    addToggle(section, AppSettings::keyGlowEnabled, tr("Glow Effect"),
              tr("Add glow effect to keys"));
    m_glowRows = {
        addSlider(section, *findSpec(AppSettings::keyGlowRadius.key)),
        addColor(section, ColorSetting::glow, tr("Glow Color"), tr("Color of the glow effect"))};
}

void AppearanceSettingsView::refreshEffectRows()
{
    // Hidden rows keep their values: turning an effect on again shows what it had.
    const bool shadow = m_store.value(AppSettings::keyShadowEnabled);
    for (SettingsRow *row : std::as_const(m_shadowRows))
        row->setHidden(!shadow);
    const bool glow = m_store.value(AppSettings::keyGlowEnabled);
    for (SettingsRow *row : std::as_const(m_glowRows))
        row->setHidden(!glow);
}

void AppearanceSettingsView::buildResetRow()
{
    QGroupBox *section = m_form->addSection(QString());
    auto *reset = new QPushButton(tr("Reset"));
    reset->setObjectName(QStringLiteral("resetAppearance"));
    reset->setToolTip(tr("Reset to default appearance settings"));
    reset->setAutoDefault(false);
    connect(reset, &QPushButton::clicked, this, [this] {
        // Saved presets stay.
        AppSettings::resetAppearanceSettings(m_store);
        updateStateColors();
    });
    m_form->addTrailingWidgets(section, {reset});
}

void AppearanceSettingsView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    updateStateColors();
}

// ---- The algorithms of the tab ----

bool AppearanceSettingsView::isDefaultStyleSelected(AppSettings::KeyStyle style) const
{
    return m_actions.isBuiltInStyleSelected(style);
}

void AppearanceSettingsView::applyStylePreset(AppSettings::KeyStyle style)
{
    m_actions.applyBuiltInStyle(style);
    updateStateColors();
}

void AppearanceSettingsView::applyAppearanceSnapshot(const AppearanceSettingsSnapshot &snapshot)
{
    m_actions.applyAppearanceSnapshot(snapshot);
    updateStateColors();
}

void AppearanceSettingsView::applyCustomPreset(const CustomKeyStylePreset &preset)
{
    m_actions.applyCustomPreset(preset);
    updateStateColors();
}

AppearanceSettingsSnapshot AppearanceSettingsView::currentAppearanceSnapshot() const
{
    return AppearanceSettingsSnapshot::fromSettings(m_store);
}

void AppearanceSettingsView::presentSavePrompt()
{
    m_newPresetName.clear();
    if (m_savePrompt && m_isPresentingSavePrompt) {
        m_savePrompt->nameField()->clear();
        m_savePrompt->raise();
        return;
    }
    m_savePrompt = new SavePresetDialog(this);
    m_savePrompt->setAttribute(Qt::WA_DeleteOnClose);
    connect(m_savePrompt, &SavePresetDialog::nameChanged, this,
            [this](const QString &name) { m_newPresetName = name; });
    connect(m_savePrompt, &SavePresetDialog::saveRequested, this,
            &AppearanceSettingsView::attemptSavePreset);
    connect(m_savePrompt, &QDialog::finished, this, [this] { m_isPresentingSavePrompt = false; });
    m_isPresentingSavePrompt = true;
    m_savePrompt->open();
}

bool AppearanceSettingsView::attemptSavePreset()
{
    if (m_newPresetName.trimmed().isEmpty())
        return false;
    saveCurrentPreset();
    if (m_savePrompt)
        m_savePrompt->accept();
    return true;
}

void AppearanceSettingsView::saveCurrentPreset()
{
    m_actions.saveCurrentLookAsPreset(m_newPresetName);
}

void AppearanceSettingsView::removePreset(const CustomKeyStylePreset &preset)
{
    const bool wasSelected = m_actions.isCustomPresetSelected(preset.id);
    m_presets.removePreset(preset.id);
    if (m_hoveredPresetID == preset.id)
        m_hoveredPresetID.reset();
    if (wasSelected)
        applyStylePreset(AppSettings::KeyStyle::modern);
}
