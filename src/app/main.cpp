#include "app/VantrelApp.h"
#include "platform/Platform.h"
#include "settings/SettingsStore.h"

#include <QApplication>

#include <cstdio>
#include <cstring>

namespace {

void printHelp()
{
    std::printf("Usage: vantrel [--help] [--version]\n\n"
                "Shows the keys you press as key caps in a transparent overlay on each enabled\n"
                "display, for presentations, teaching, streams and screencasts.\n\n"
                "Options:\n"
                "  -h, --help     Show this help and exit.\n"
                "  -v, --version  Show the version and exit.\n\n"
                "Settings: %s\n"
                "Quit with Ctrl+C or SIGTERM.\n",
                qPrintable(SettingsStore::standardFilePath()));
}

} // namespace

int main(int argc, char *argv[])
{
    // Options that need no display are answered before anything else starts.
    for (int i = 1; i < argc; ++i) {
        if (!std::strcmp(argv[i], "--help") || !std::strcmp(argv[i], "-h")) {
            printHelp();
            return 0;
        }
        if (!std::strcmp(argv[i], "--version") || !std::strcmp(argv[i], "-v")) {
            std::printf("Vantrel %s (build %s)\n", VANTREL_VERSION, VANTREL_BUILD_NUMBER);
            return 0;
        }
        std::fprintf(stderr, "vantrel: unknown option '%s' (see vantrel --help)\n", argv[i]);
        return 2;
    }

    if (const QString problem = Platform::displayProblem(); !problem.isEmpty()) {
        std::fprintf(stderr, "vantrel: %s\n", qPrintable(problem));
        return 1;
    }
    // Capture and overlays are X11's; under a Wayland session Vantrel runs through XWayland.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "xcb");

    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Vantrel"));
    QApplication::setOrganizationName(QStringLiteral("Vantrel"));
    QApplication::setApplicationVersion(QStringLiteral(VANTREL_VERSION));
    QApplication::setQuitOnLastWindowClosed(false);

    VantrelApp vantrel(SettingsStore::standard());
    Platform::watchTerminationSignals(&vantrel, [&vantrel] { vantrel.quit(); });
    return QApplication::exec();
}
