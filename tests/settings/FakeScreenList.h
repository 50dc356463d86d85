#pragma once

#include "settings/ScreenList.h"

// Connected screens for tests, changed at will.
class FakeScreenList final : public ScreenList {
    Q_OBJECT

public:
    QList<Screen> list;
    std::optional<quint32> main;

    QList<Screen> screens() const override { return list; }
    std::optional<quint32> mainScreenID() const override { return main; }
    // Each change announces itself, as the platform does.
    void update(const QList<Screen> &screens)
    {
        list = screens;
        emit screensChanged();
    }
};
