#pragma once

#include <QList>
#include <QString>

// The five global shortcuts of Vantrel, shared by the tray menu, the Shortcuts tab and the
// registration of their handlers. None has a default combination: a fresh installation has no
// global shortcuts until the user records them.
class GlobalShortcutNames final {
public:
    GlobalShortcutNames() = delete;

    struct Entry {
        QString name;  // the text name: identity and settings key suffix
        QString title; // the row title in the Shortcuts tab
    };

    static QString toggleVantrel() { return QStringLiteral("toggleVantrel"); }
    static QString increaseKeySize() { return QStringLiteral("increaseKeySize"); }
    static QString decreaseKeySize() { return QStringLiteral("decreaseKeySize"); }
    static QString openPositionCustomizer() { return QStringLiteral("openPositionCustomizer"); }
    static QString toggleMouseClicks() { return QStringLiteral("toggleMouseClicks"); }

    // All five in the order of the tab and of the registration.
    static const QList<Entry> &all()
    {
        static const QList<Entry> entries{
            {toggleVantrel(), QStringLiteral("Toggle Vantrel")},
            {increaseKeySize(), QStringLiteral("Increase Key Size")},
            {decreaseKeySize(), QStringLiteral("Decrease Key Size")},
            {openPositionCustomizer(), QStringLiteral("Open Position Customizer")},
            {toggleMouseClicks(), QStringLiteral("Toggle Mouse Clicks")},
        };
        return entries;
    }
};
