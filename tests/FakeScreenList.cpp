#include "FakeScreenList.h"

ScreenList::Screen FakeScreenList::screen(quint32 id, const QString &name)
{
    // Side by side, 1920 wide each, in the order of their ids.
    const QRect geometry(int(id) * 1920, 0, 1920, 1080);
    return {id, name, geometry, geometry.adjusted(0, 32, 0, 0)};
}

void FakeScreenList::setScreens(const QList<Screen> &screens, std::optional<quint32> mainID)
{
    m_screens = screens;
    m_mainID = mainID;
    emit screensChanged();
}

void FakeScreenList::connectScreen(quint32 id, const QString &name)
{
    m_screens.append(screen(id, name));
    emit screensChanged();
}

void FakeScreenList::disconnectScreen(quint32 id)
{
    m_screens.removeIf([id](const Screen &s) { return s.id == id; });
    if (m_mainID == id)
        m_mainID.reset();
    emit screensChanged();
}

void FakeScreenList::renameScreen(quint32 id, const QString &name)
{
    for (Screen &s : m_screens)
        if (s.id == id)
            s.localizedName = name;
    emit screensChanged();
}
