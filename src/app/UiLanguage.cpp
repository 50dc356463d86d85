#include "app/UiLanguage.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <algorithm>
#include <memory>

namespace {

const QString fileName = QStringLiteral("vantrel");

} // namespace

QString UiLanguage::install(const QStringList &preferredLanguages, const QStringList &folders)
{
    QCoreApplication *app = QCoreApplication::instance();
    if (!app)
        return {};
    for (const QString &language : preferredLanguages) {
        const QLocale locale(language);
        // A user who prefers English before another language gets English, not the other.
        if (locale.language() == QLocale::English || locale.language() == QLocale::C)
            return {};
        auto translator = std::make_unique<QTranslator>(app);
        // QTranslator tries the locale's longer names before the shorter ones ("pt_BR", "pt"),
        // and never a script or region of the same language that it does not read.
        const bool found = std::any_of(folders.begin(), folders.end(), [&](const QString &folder) {
            return translator->load(locale, fileName, QStringLiteral("_"), folder);
        });
        if (!found)
            continue;
        // Qt's texts only in the language of Vantrel's own, so that a window never mixes two
        // languages or takes a right-to-left direction from Qt alone.
        auto qtTranslator = std::make_unique<QTranslator>(app);
        if (qtTranslator->load(locale, QStringLiteral("qtbase"), QStringLiteral("_"),
                               QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
            QCoreApplication::installTranslator(qtTranslator.release());
        const QString name = QFileInfo(translator->filePath()).completeBaseName();
        QCoreApplication::installTranslator(translator.release());
        return name.mid(fileName.size() + 1);
    }
    return {};
}

QStringList UiLanguage::standardFolders()
{
    const QString programFolder = QCoreApplication::applicationDirPath();
    return {programFolder + QStringLiteral("/../share/vantrel/translations"),
            programFolder + QStringLiteral("/translations")};
}
