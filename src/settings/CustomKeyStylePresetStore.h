#pragma once

#include "settings/AppSettings.h"
#include "settings/CustomKeyStylePreset.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QUuid>

#include <optional>

class SettingsStore;

// The user's saved presets, in the order they were added, kept as one compact JSON array under
// "customKeyStylePresets". Loaded once, when the store is created; saved after every addition
// and removal. Names need not be unique. Main thread only.
//
// Stored data that does not read back in full (bad JSON, one entry missing a value) gives an
// empty list and is reported; the data stays as it is until the next save replaces it, and the
// settings store keeps a copy of the file then.
class CustomKeyStylePresetStore final : public QObject {
    Q_OBJECT

public:
    explicit CustomKeyStylePresetStore(SettingsStore &settings, QObject *parent = nullptr);
    ~CustomKeyStylePresetStore() override;

    // The store over the user's settings, created on first use.
    static CustomKeyStylePresetStore &shared();

    static QString presetsKey() { return AppSettings::customKeyStylePresets.name(); }

    const QList<CustomKeyStylePreset> &presets() const { return m_presets; }
    // The first preset with this id.
    std::optional<CustomKeyStylePreset> preset(const QUuid &id) const;

    // Appends a preset (never replacing one) and saves.
    void addPreset(const CustomKeyStylePreset &preset);
    // Removes the first preset with this id and saves; an unknown id changes and writes nothing.
    void removePreset(const QUuid &id);

    // The JSON form of a list of presets, or nothing when a value cannot be written as JSON.
    static std::optional<QByteArray> encode(const QList<CustomKeyStylePreset> &presets);
    // The list from its JSON form, or nothing when any part of it does not read.
    static std::optional<QList<CustomKeyStylePreset>> decode(const QByteArray &data);

signals:
    void presetsChanged();

private:
    void loadPresets();
    void persistPresets();

    SettingsStore &m_settings;
    QList<CustomKeyStylePreset> m_presets;
};
