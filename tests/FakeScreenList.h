#pragma once

#include "settings/ScreenList.h"

// Screens that a test connects, renames and disconnects at will.
class FakeScreenList final : public ScreenList {
    Q_OBJECT

public:
    using ScreenList::ScreenList;

    QList<Screen> screens() const override { return m_screens; }
    std::optional<quint32> mainScreenID() const override { return m_mainID; }

    // Each change announces itself as a screen change, as the platform does.
    void setScreens(const QList<Screen> &screens, std::optional<quint32> mainID);
    void connectScreen(quint32 id, const QString &name);
    void disconnectScreen(quint32 id);
    void renameScreen(quint32 id, const QString &name);

    static Screen screen(quint32 id, const QString &name);

private:
    QList<Screen> m_screens;
    std::optional<quint32> m_mainID;
};
