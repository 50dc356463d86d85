#include "settings/CustomKeyStylePresetStore.h"

#include "settings/AppSettings.h"
#include "settings/JsonWriter.h"
#include "settings/SettingsStore.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonParseError>

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
    JsonWriter writer;
    writer.beginArray();
    for (const CustomKeyStylePreset &p : presets)
        p.write(writer);
    writer.endArray();
    if (!writer.isValid())
        return std::nullopt;
    return writer.data();
}

std::optional<QList<CustomKeyStylePreset>> CustomKeyStylePresetStore::decode(const QByteArray &data)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(data, &error);
    if (error.error != QJsonParseError::NoError || !document.isArray())
        return std::nullopt;
    QList<CustomKeyStylePreset> result;
    for (const QJsonValue &entry : document.array()) {
        std::optional<CustomKeyStylePreset> preset = CustomKeyStylePreset::fromJson(entry);
        if (!preset)
            return std::nullopt;
        result.append(*preset);
    }
    return result;
}

void CustomKeyStylePresetStore::loadPresets()
{
    if (!m_settings.contains(presetsKey()))
        return;
    // Anything that does not read in full leaves the list empty; the data stays untouched.
    m_presets = decode(m_settings.value(AppSettings::customKeyStylePresets))
                    .value_or(QList<CustomKeyStylePreset>());
}

void CustomKeyStylePresetStore::persistPresets()
{
    if (const std::optional<QByteArray> data = encode(m_presets))
        m_settings.setValue(AppSettings::customKeyStylePresets, *data);
}
