#include "settings/CustomKeyStylePresetStore.h"

#include "settings/AppSettings.h"
#include "settings/JsonArray.h"
#include "settings/SettingsStore.h"

CustomKeyStylePresetStore::CustomKeyStylePresetStore(SettingsStore &settings, QObject *parent)
    : QObject(parent), m_settings(settings)
{
    loadPresets();
}

CustomKeyStylePresetStore::~CustomKeyStylePresetStore() = default;

CustomKeyStylePresetStore &CustomKeyStylePresetStore::shared()
{
    static CustomKeyStylePresetStore store(SettingsStore::standard());
    return store;
}

std::optional<CustomKeyStylePreset> CustomKeyStylePresetStore::preset(const QUuid &id) const
{
    for (const CustomKeyStylePreset &p : m_presets)
        if (p.id == id)
            return p;
    return std::nullopt;
}

void CustomKeyStylePresetStore::addPreset(const CustomKeyStylePreset &preset)
{
    m_presets.append(preset);
    emit presetsChanged();
    persistPresets();
}

void CustomKeyStylePresetStore::removePreset(const QUuid &id)
{
    for (qsizetype i = 0; i < m_presets.size(); ++i) {
        if (m_presets.at(i).id == id) {
            m_presets.removeAt(i);
            emit presetsChanged();
            persistPresets();
            return;
        }
    }
}

std::optional<QByteArray>
CustomKeyStylePresetStore::encode(const QList<CustomKeyStylePreset> &presets)
{
    return JsonArray::encode(presets);
}

std::optional<QList<CustomKeyStylePreset>> CustomKeyStylePresetStore::decode(const QByteArray &data)
{
    return JsonArray::decode<CustomKeyStylePreset>(data);
}

void CustomKeyStylePresetStore::loadPresets()
{
    // Anything that does not read in full leaves the list empty; the data stays untouched.
    m_presets =
        JsonArray::load<CustomKeyStylePreset>(m_settings, AppSettings::customKeyStylePresets);
}

void CustomKeyStylePresetStore::persistPresets()
{
    if (const std::optional<QByteArray> data = encode(m_presets))
        m_settings.setValue(AppSettings::customKeyStylePresets, *data);
}
