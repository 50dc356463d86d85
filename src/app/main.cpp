#include "settings/AppSettings.h"
#include "settings/SettingsStore.h"

#include <QCoreApplication>
#include <QTextStream>

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Vantrel"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VANTREL_VERSION));

    SettingsStore &settings = SettingsStore::standard();
    QTextStream out(stdout);
    out << "Vantrel " << VANTREL_VERSION << "\n";
    out << "Settings: " << settings.filePath() << "\n";
    out << "Would " << (settings.value(AppSettings::isVantrelEnabled) ? "show" : "not show")
        << " pressed keys on screen for " << settings.value(AppSettings::keyDisplayDuration)
        << " s, at most " << settings.value(AppSettings::keyMaxDisplayCount) << " at once.\n";
    return 0;
}
