#include "app/AppActions.h"

#include "capture/KeyManager.h"
#include "settings/AppSettings.h"
#include "settings/ScreenList.h"
#include "settings/SettingsStore.h"

#include <QCursor>

#include <algorithm>
#include <optional>

namespace {

constexpr double keySizeStep = 0.1;
// The shortcuts stop below the settings window's largest size.
constexpr double maximumKeySize = 3.0;

std::optional<quint32> mainScreenID(const ScreenList &screens)
{
    const QPoint pointer = QCursor::pos();
    for (const ScreenList::Screen &screen : screens.screens())
        if (screen.geometry.contains(pointer))
            return screen.id;
    return screens.mainScreenID();
}

} // namespace

AppActions::AppActions(SettingsStore &settings, KeyManager &keyManager, const ScreenList &screens,
                       PositionCustomizerOpener openCustomizer)
    : m_settings(settings), m_keyManager(keyManager), m_screens(screens),
      m_openCustomizer(std::move(openCustomizer))
{}

void AppActions::toggleVantrel()
{
    m_settings.setValue(AppSettings::isVantrelEnabled,
                        !m_settings.value(AppSettings::isVantrelEnabled));
    if (m_settings.value(AppSettings::isVantrelEnabled))
        m_keyManager.startListening();
    else
        m_keyManager.stopListening();
}

void AppActions::increaseKeySize()
{
    const double size = m_settings.value(AppSettings::keySize);
    if (size < maximumKeySize)
        m_settings.setValue(AppSettings::keySize, std::min(size + keySizeStep, maximumKeySize));
}

void AppActions::decreaseKeySize()
{
    const double size = m_settings.value(AppSettings::keySize);
    const double minimumKeySize = AppSettings::keySize.range->minimum;
    if (size > minimumKeySize)
        m_settings.setValue(AppSettings::keySize, std::max(size - keySizeStep, minimumKeySize));
}

void AppActions::openPositionCustomizer()
{
    if (!m_openCustomizer)
        return;
    if (const std::optional<quint32> id = mainScreenID(m_screens))
        m_openCustomizer(*id);
}

void AppActions::toggleMouseClicks()
{
    m_settings.setValue(AppSettings::showMouseClicks,
                        !m_settings.value(AppSettings::showMouseClicks));
}

void AppActions::setPositionCustomizerOpener(PositionCustomizerOpener openCustomizer)
{
    m_openCustomizer = std::move(openCustomizer);
}
