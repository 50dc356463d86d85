#pragma once

#include "shortcuts/HotKeyGrabber.h"

#include <QHash>
#include <QList>

// Grabs that only remember what they hold; `taken` combinations are refused as another
// program's, and tests press and release names themselves.
class FakeHotKeyGrabber final : public HotKeyGrabber {
    Q_OBJECT

public:
    QHash<QString, QKeyCombination> grabs;
    QList<QKeyCombination> taken;

    GrabResult grab(const QString &name, QKeyCombination combination) override
    {
        grabs.remove(name);
        if (taken.contains(combination))
            return GrabResult::taken;
        grabs.insert(name, combination);
        return GrabResult::grabbed;
    }
    void release(const QString &name) override { grabs.remove(name); }

    void press(const QString &name) { emit pressed(name); }
    void lift(const QString &name) { emit released(name); }
    void changeKeymap() { emit keymapChanged(); }
};
