#include "settings/DisplaySettingsStore.h"

#include "settings/JsonArray.h"
#include "settings/QtScreenList.h"
#include "settings/ScreenList.h"
#include "settings/SettingsStore.h"

#include <QCollator>
#include <QLocale>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

DisplaySettingsStore::DisplaySettingsStore(SettingsStore &settings, ScreenList &screens,
                                           QObject *parent)
    : QObject(parent), m_settings(settings), m_screens(screens)
{
    m_pendingLegacyPosition = readLegacyPosition(m_settings);
    loadConfigurations();
    connect(&m_screens, &ScreenList::screensChanged, this,
            &DisplaySettingsStore::syncWithConnectedScreens);
}

DisplaySettingsStore::~DisplaySettingsStore() = default;

DisplaySettingsStore &DisplaySettingsStore::shared()
{
    static QtScreenList screens;
    static DisplaySettingsStore store(SettingsStore::standard(), screens);
    return store;
}

std::optional<DisplayConfiguration> DisplaySettingsStore::configuration(quint32 displayID) const
{
    const auto it = m_persistedConfigurationsByID.constFind(displayID);
    if (it == m_persistedConfigurationsByID.constEnd())
        return std::nullopt;
    return *it;
}

std::optional<AppSettings::KeyPosition>
DisplaySettingsStore::readLegacyPosition(SettingsStore &settings)
{
    const std::optional<QVariant> stored = settings.rawValue(AppSettings::keyPosition.name());
    if (!stored)
        return std::nullopt;
    // The global setting is retired whatever it holds; it only seeds the per-display positions.
    const AppSettings::KeyPosition position = settings.value(AppSettings::keyPosition);
    settings.remove(AppSettings::keyPosition.name());
    return position;
}

std::optional<QByteArray>
DisplaySettingsStore::encode(const QList<DisplayConfiguration> &configurations)
{
    QList<DisplayConfiguration> sorted = configurations;
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const auto &a, const auto &b) { return a.id < b.id; });
    return JsonArray::encode(sorted);
}

std::optional<QList<DisplayConfiguration>> DisplaySettingsStore::decode(const QByteArray &data)
{
    return JsonArray::decode<DisplayConfiguration>(data);
}

void DisplaySettingsStore::stopOnDuplicateDisplay(quint32 displayID) const
{
    // The one deliberate stop: say what is wrong and how to mend it, then leave without a core
    // dump and without running anything that could write the settings back.
    std::fprintf(stderr,
                 "vantrel: the settings file %s has two records for display %u under \"%s\"; "
                 "remove one of them (or the whole %s line to start the displays afresh) and "
                 "start Vantrel again.\n",
                 qPrintable(m_settings.filePath()), displayID, qPrintable(userDefaultsKey()),
                 qPrintable(userDefaultsKey()));
    std::fflush(stderr);
    std::_Exit(1);
}

void DisplaySettingsStore::loadConfigurations()
{
    // Unreadable data is treated as absent; the next save replaces it (the store keeps a copy).
    QMap<quint32, DisplayConfiguration> byID;
    for (const DisplayConfiguration &c :
         JsonArray::load<DisplayConfiguration>(m_settings, AppSettings::displayConfigurations)) {
        // The stored list is trusted to be unique; a duplicate means it was not written by this
        // program, and guessing which record wins could lose settings silently.
        if (byID.contains(c.id))
            stopOnDuplicateDisplay(c.id);
        byID.insert(c.id, c);
    }
    m_persistedConfigurationsByID = byID;
    syncWithConnectedScreens();
}

void DisplaySettingsStore::syncWithConnectedScreens()
{
    const QList<ScreenList::Screen> screens = m_screens.screens();
    const std::optional<quint32> mainID = m_screens.mainScreenID();

    QList<DisplayConfiguration> result;
    bool changed = false;
    for (const ScreenList::Screen &screen : screens) {
        auto it = m_persistedConfigurationsByID.find(screen.id);
        if (it != m_persistedConfigurationsByID.end()) {
            if (it->name != screen.localizedName) {
                it->name = screen.localizedName;
                changed = true;
            }
            result.append(*it);
        } else {
            DisplayConfiguration created;
            created.id = screen.id;
            created.name = screen.localizedName;
            created.isEnabled = mainID && *mainID == screen.id;
            created.position = m_pendingLegacyPosition.value_or(AppSettings::shared().keyPosition);
            created.customOffsetX = 0.5;
            created.customOffsetY = 0.85;
            m_persistedConfigurationsByID.insert(created.id, created);
            result.append(created);
            changed = true;
        }
    }
    // The former global position seeds only the displays of the first pass.
    m_pendingLegacyPosition.reset();

    // Under the C locale QCollator compares code points ("Zeta" before "Écran"); names shown to
    // people sort better by a language's rules, so that case falls back to English.
    QLocale locale;
    if (locale.language() == QLocale::C)
        locale = QLocale(QLocale::English);
    QCollator collator(locale);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::stable_sort(result.begin(), result.end(), [&](const auto &a, const auto &b) {
        return collator.compare(a.name, b.name) < 0;
    });

    if (result != m_configurations) {
        m_configurations = result;
        emit displaySettingsChanged();
    }
    if (changed)
        saveConfigurations();
}

void DisplaySettingsStore::saveConfigurations()
{
    if (const auto data = encode(m_persistedConfigurationsByID.values()))
        m_settings.setValue(AppSettings::displayConfigurations, *data);
}

void DisplaySettingsStore::updatePublishedConfiguration(const DisplayConfiguration &configuration)
{
    for (DisplayConfiguration &published : m_configurations) {
        if (published.id == configuration.id) {
            published = configuration;
            emit displaySettingsChanged();
            return;
        }
    }
}

void DisplaySettingsStore::storeChange(const DisplayConfiguration &configuration)
{
    m_persistedConfigurationsByID.insert(configuration.id, configuration);
    updatePublishedConfiguration(configuration);
    saveConfigurations();
}

void DisplaySettingsStore::setEnabled(bool enabled, quint32 displayID)
{
    auto it = m_persistedConfigurationsByID.constFind(displayID);
    if (it == m_persistedConfigurationsByID.constEnd() || it->isEnabled == enabled)
        return;
    DisplayConfiguration changed = *it;
    changed.isEnabled = enabled;
    storeChange(changed);
}

void DisplaySettingsStore::setPosition(AppSettings::KeyPosition position, quint32 displayID)
{
    auto it = m_persistedConfigurationsByID.constFind(displayID);
    if (it == m_persistedConfigurationsByID.constEnd() ||
        AppSettings::rawValue(it->position) == AppSettings::rawValue(position))
        return;
    DisplayConfiguration changed = *it;
    changed.position = position;
    storeChange(changed);
}

void DisplaySettingsStore::setCustomOffset(double x, double y, quint32 displayID)
{
    auto it = m_persistedConfigurationsByID.constFind(displayID);
    if (it == m_persistedConfigurationsByID.constEnd())
        return;
    DisplayConfiguration changed = *it;
    changed.position = AppSettings::KeyPosition::custom;
    changed.customOffsetX = x;
    changed.customOffsetY = y;
    storeChange(changed);
}

void DisplaySettingsStore::resetToDefaults()
{
    m_settings.remove(userDefaultsKey());
    m_pendingLegacyPosition = AppSettings::shared().keyPosition;
    m_persistedConfigurationsByID.clear();
    m_configurations.clear();
    emit displaySettingsChanged();
    syncWithConnectedScreens();
}
