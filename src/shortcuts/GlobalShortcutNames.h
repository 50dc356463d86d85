#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>

// The five global shortcuts of Vantrel, shared by the tray menu, the Shortcuts tab and the
// registration of their handlers. None has a default combination: a fresh installation has no
// global shortcuts until the user records them.
class GlobalShortcutNames final {
public:
    GlobalShortcutNames() = delete;

    struct Entry {
        QString name;      // the text name: identity and settings key suffix
        const char *title; // the row title in the Shortcuts tab, in English
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
            {toggleVantrel(), QT_TRANSLATE_NOOP("GlobalShortcutNames", "Toggle Vantrel")},
            {increaseKeySize(), QT_TRANSLATE_NOOP("GlobalShortcutNames", "Increase Key Size")},
            {decreaseKeySize(), QT_TRANSLATE_NOOP("GlobalShortcutNames", "Decrease Key Size")},
            {openPositionCustomizer(),
             QT_TRANSLATE_NOOP("GlobalShortcutNames", "Open Position Customizer")},
            {toggleMouseClicks(), QT_TRANSLATE_NOOP("GlobalShortcutNames", "Toggle Mouse Clicks")},
        };
        return entries;
    }

    // An entry's title in the user's language.
    static QString title(const Entry &entry)
    {
        return QCoreApplication::translate("GlobalShortcutNames", entry.title);
    }
};
