#pragma once

#include "settings/AppSettings.h"
#include "settings/DisplayConfiguration.h"

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QObject>
#include <QString>

#include <optional>

class ScreenList;
class SettingsStore;

// The settings of every display ever connected, kept as one JSON array (sorted by id) under
// "displayConfigurations". Records of disconnected displays are kept so their settings return
// with them; `configurations()` lists those of the connected displays, sorted by name.
// `displaySettingsChanged` is emitted whenever that list changes. Main thread only.
//
// On first use the former global `keyPosition` setting is retired: it seeds the position of the
// displays met in the first synchronisation. A newly met display is enabled only if it is the
// main display.
class DisplaySettingsStore final : public QObject {
    Q_OBJECT

public:
    static constexpr const char *displaySettingsChangedNotification =
        "DisplaySettingsStore.displaySettingsChanged";

    DisplaySettingsStore(SettingsStore &settings, ScreenList &screens, QObject *parent = nullptr);
    ~DisplaySettingsStore() override;

    // The store over the user's settings and Qt's screens, created on first use (needs a
    // QGuiApplication).
    static DisplaySettingsStore &shared();

    static QString userDefaultsKey() { return AppSettings::displayConfigurations.name(); }

    const QList<DisplayConfiguration> &configurations() const { return m_configurations; }
    ScreenList &screenList() const { return m_screens; }
    // Known displays, connected or not.
    std::optional<DisplayConfiguration> configuration(quint32 displayID) const;

    // Each changes a known display only, and saves; the list of connected displays is updated.
    void setEnabled(bool enabled, quint32 displayID);
    void setPosition(AppSettings::KeyPosition position, quint32 displayID);
    // Always writes, even when nothing changes: the position becomes custom at these fractions.
    void setCustomOffset(double x, double y, quint32 displayID);

    // Forgets every display; the connected ones start afresh at the default position.
    void resetToDefaults();
    // Brings the records in line with the connected screens (also called on screen changes).
    void syncWithConnectedScreens();

    // The stored form: the JSON array of the records, sorted by id.
    static std::optional<QByteArray> encode(const QList<DisplayConfiguration> &configurations);
    static std::optional<QList<DisplayConfiguration>> decode(const QByteArray &data);

signals:
    void displaySettingsChanged();

private:
    static std::optional<AppSettings::KeyPosition> readLegacyPosition(SettingsStore &settings);
    void loadConfigurations();
    [[noreturn]] void stopOnDuplicateDisplay(quint32 displayID) const;
    void saveConfigurations();
    void updatePublishedConfiguration(const DisplayConfiguration &configuration);
    // Stores a changed record, publishes it and saves.
    void storeChange(const DisplayConfiguration &configuration);

    SettingsStore &m_settings;
    ScreenList &m_screens;
    QList<DisplayConfiguration> m_configurations;
    std::optional<AppSettings::KeyPosition> m_pendingLegacyPosition;
    QMap<quint32, DisplayConfiguration> m_persistedConfigurationsByID;
};
