#pragma once

#include <QString>
#include <QStringList>

// The language of Vantrel's windows, menus and messages: the first of the user's languages that
// Vantrel has a translation for, with Qt's own texts (standard buttons, dialogs) in the same
// language. English is the source language: it needs no translation and ends the search.
class UiLanguage final {
public:
    UiLanguage() = delete;

    // Installs Vantrel's and Qt's translators for the first of `preferredLanguages` (BCP 47 names
    // in the user's order, as QLocale::uiLanguages() gives them) whose translation is in one of
    // `folders`. Needs a QCoreApplication; call it before any window exists. Returns the
    // translation's name ("de", "pt_BR"), or an empty string when the texts stay English.
    static QString install(const QStringList &preferredLanguages, const QStringList &folders);

    // Where the translations are: beside an installed program (share/vantrel/translations) and
    // beside the program in its build tree.
    static QStringList standardFolders();
};
