#include "app/VantrelApp.h"

#include "app/AppActions.h"
#include "app/AppDelegate.h"
#include "app/LaunchAtLogin.h"
#include "app/RemoteControl.h"
#include "app/TrayMenu.h"
#include "app/UiLanguage.h"
#include "capture/CaptureBackend.h"
#include "capture/KeyManager.h"
#include "capture/KeyboardLayoutTranslator.h"
#include "capture/SecrecyWatcher.h"
#include "overlay/CompositorWatcher.h"
#include "overlay/KeyDisplayOverlayWindowFactory.h"
#include "overlay/KeyRowRenderer.h"
#include "platform/Platform.h"
#include "settings/AppSettings.h"
#include "settings/CustomKeyStylePresetStore.h"
#include "settings/DisplaySettingsStore.h"
#include "settings/SettingsStore.h"
#include "shortcuts/GlobalShortcutNames.h"
#include "shortcuts/HotKeyGrabber.h"
#include "shortcuts/KeyboardShortcuts.h"
#include "ui/AppearanceSettingsView.h"
#include "ui/KeyShortcutsSettingsView.h"
#include "ui/PositionCustomizerWindowController.h"
#include "ui/SettingsView.h"

#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QLocale>
#include <QSystemTrayIcon>
#include <QTimer>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <memory>

namespace {

// Options that call the running instance, and the call each makes.
struct RemoteOption {
    const char *option;
    const char *method;
    const char *help;
};
constexpr std::array remoteOptions{
    RemoteOption{"--toggle", "toggleVantrel",
                 QT_TRANSLATE_NOOP("VantrelApp", "Start or stop showing keys.")},
    RemoteOption{"--increase-key-size", "increaseKeySize",
                 QT_TRANSLATE_NOOP("VantrelApp", "Make the key caps larger.")},
    RemoteOption{"--decrease-key-size", "decreaseKeySize",
                 QT_TRANSLATE_NOOP("VantrelApp", "Make the key caps smaller.")},
    RemoteOption{"--position-customizer", "openPositionCustomizer",
                 QT_TRANSLATE_NOOP("VantrelApp", "Drag the key row to a place of your own.")},
    RemoteOption{"--toggle-mouse-clicks", "toggleMouseClicks",
                 QT_TRANSLATE_NOOP("VantrelApp", "Show or hide mouse clicks.")},
    RemoteOption{"--settings", "showSettings",
                 QT_TRANSLATE_NOOP("VantrelApp", "Open the settings window.")},
    RemoteOption{"--quit", "quit", QT_TRANSLATE_NOOP("VantrelApp", "Quit Vantrel.")},
};

// Without a tray host for this long, the settings window stands in for the menu.
constexpr int trayHostWaitMs = 5000;
constexpr int trayHostPollMs = 250;

// Texts for the terminal in its encoding.
void print(std::FILE *stream, const QString &text)
{
    std::fputs(text.toLocal8Bit().constData(), stream);
}

void printHelp()
{
    print(stdout,
          VantrelApp::tr(
              "Usage: vantrel [option]\n\n"
              "Shows the keys you press as key caps in a transparent overlay on each enabled\n"
              "display, for presentations, teaching, streams and screencasts. It lives in the\n"
              "system tray; starting it again opens the settings of the running Vantrel.\n\n"
              "Options:\n") +
              QStringLiteral("  %1 %2\n  %3 %4\n\n")
                  .arg(QStringLiteral("-h, --help"), -24)
                  .arg(VantrelApp::tr("Show this help and exit."))
                  .arg(QStringLiteral("-v, --version"), -24)
                  .arg(VantrelApp::tr("Show the version and exit.")) +
              VantrelApp::tr(
                  "Remote control of the running Vantrel (bind these to keys of your desktop):") +
              u'\n');
    for (const RemoteOption &option : remoteOptions)
        print(stdout, QStringLiteral("  %1 %2\n")
                          .arg(QString::fromLatin1(option.option), -24)
                          .arg(VantrelApp::tr(option.help)));
    print(
        stdout,
        u'\n' +
            VantrelApp::tr(
                "Sessions:\n"
                "  X11      keys from the X server; overlays are X11 windows.\n"
                "  Wayland  keys from the input devices (/dev/input, or the folder named by\n"
                "           VANTREL_INPUT_DIR), named by the compositor's keymap; overlays are\n"
                "           layer surfaces where the compositor offers the layer shell, X11\n"
                "           windows through XWayland otherwise. VANTREL_OVERLAY=wayland or\n"
                "           VANTREL_OVERLAY=x11 chooses one of the two. Reading the devices needs\n"
                "           the input group, or \"Allow\" in the settings (an administrator's\n"
                "           password starts vantrel-input-helper through pkexec).\n") +
            u'\n' +
            VantrelApp::tr(
                "Privacy: nothing is shown, keys, modifiers and clicks alike, while the session is\n"
                "locked (logind, the screen locker's signals, the X11 screen saver) or while a\n"
                "password field has the focus (followed on the accessibility bus, AT-SPI2).\n"
                "Settings > General > Input Monitoring lists which protections are on.\n"
                "Not covered: a password typed into a terminal (sudo, ssh) has no field to\n"
                "detect; switch Vantrel off first (vantrel --toggle).\n") +
            u'\n' + VantrelApp::tr("Settings: %1").arg(SettingsStore::standardFilePath()) + u'\n');
}

// Vantrel's texts in the desktop's language, for everything printed or shown from here on.
void installLanguage()
{
    UiLanguage::install(QLocale::system().uiLanguages(), UiLanguage::standardFolders());
}

// The remote-control command of each shortcut name, for desktops where keys are bound to
// commands in their own settings.
QHash<QString, QString> desktopCommands()
{
    QHash<QString, QString> commands;
    for (const GlobalShortcutNames::Entry &entry : GlobalShortcutNames::all())
        for (const RemoteOption &option : remoteOptions)
            if (entry.name == QLatin1String(option.method))
                commands.insert(entry.name,
                                QStringLiteral("vantrel ") + QString::fromLatin1(option.option));
    return commands;
}

int callRunningInstance(const char *method)
{
    if (RemoteControl::callRunningInstance(QString::fromLatin1(method)) ==
        RemoteControl::CallResult::notRunning) {
        print(stderr, VantrelApp::tr("Vantrel is not running") + u'\n');
        return 1;
    }
    return 0;
}

} // namespace

int VantrelApp::main(int argc, char *argv[])
{
    // Options that need no display are answered before anything else starts; their texts need
    // an application object with the translators, which goes before the real one comes.
    {
        QCoreApplication core(argc, argv);
        installLanguage();
        const char *remoteMethod = nullptr;
        for (int i = 1; i < argc; ++i) {
            if (!std::strcmp(argv[i], "--help") || !std::strcmp(argv[i], "-h")) {
                printHelp();
                return 0;
            }
            if (!std::strcmp(argv[i], "--version") || !std::strcmp(argv[i], "-v")) {
                std::printf("Vantrel %s (build %s)\n", VANTREL_VERSION, VANTREL_BUILD_NUMBER);
                return 0;
            }
            const auto remote = std::find_if(
                remoteOptions.begin(), remoteOptions.end(),
                [&](const RemoteOption &o) { return !std::strcmp(argv[i], o.option); });
            if (remote == remoteOptions.end() || remoteMethod) {
                const QString option = QString::fromLocal8Bit(argv[i]);
                print(stderr, QStringLiteral("vantrel: ") +
                                  (remoteMethod ? tr("one option at a time, not '%1' (see "
                                                     "vantrel --help)")
                                                : tr("unknown option '%1' (see vantrel --help)"))
                                      .arg(option) +
                                  u'\n');
                return 2;
            }
            remoteMethod = remote->method;
        }
        if (remoteMethod)
            return callRunningInstance(remoteMethod);

        if (const QString problem = Platform::displayProblem(); !problem.isEmpty()) {
            print(stderr, QStringLiteral("vantrel: ") + problem + u'\n');
            return 1;
        }
    }
    // Overlays on layer surfaces need no X11 at all: Qt's own windows (settings, tray) are then
    // Wayland windows too. Otherwise the overlays are X11 windows, through XWayland in a Wayland
    // session.
    Platform::prepareQtPlatform();

    QApplication app(argc, argv);
    Platform::qtPlatformStarted();
    QApplication::setApplicationName(QStringLiteral("Vantrel"));
    QApplication::setOrganizationName(QStringLiteral("Vantrel"));
    QApplication::setApplicationVersion(QStringLiteral(VANTREL_VERSION));
    QApplication::setQuitOnLastWindowClosed(false);
    installLanguage();

    const RemoteControl::Claim claim = RemoteControl::claimServiceName();
    if (claim == RemoteControl::Claim::takenByAnother) {
        // One Vantrel per session: the running one shows its settings instead.
        if (RemoteControl::callRunningInstance(QStringLiteral("showSettings")) ==
            RemoteControl::CallResult::done) {
            print(stdout, tr("Vantrel is already running; its settings window opens.") + u'\n');
            return 0;
        }
        print(stderr, QStringLiteral("vantrel: ") +
                          tr("another Vantrel holds the session but does not answer") + u'\n');
        return 1;
    }
    if (claim == RemoteControl::Claim::noBus)
        print(stderr, QStringLiteral("vantrel: ") +
                          tr("no D-Bus session bus; running alone, without remote control or "
                             "the one-instance check") +
                          u'\n');

    VantrelApp vantrel(SettingsStore::standard(), claim == RemoteControl::Claim::owned);
    Platform::watchTerminationSignals(&vantrel, [&vantrel] { vantrel.quit(); });
    return QApplication::exec();
}

VantrelApp::VantrelApp(SettingsStore &settings, bool remoteControl, QObject *parent)
    : QObject(parent), m_settings(settings), m_appDelegate(std::make_unique<AppDelegate>())
{
    m_layoutSource = Platform::createKeyboardLayoutSource(this);
    KeyboardLayoutTranslator::installSharedSource(m_layoutSource);
    m_compositor = Platform::createCompositorWatcher();

    DisplaySettingsStore &displayStore = DisplaySettingsStore::shared();
    m_windowFactory = std::make_unique<KeyDisplayOverlayWindowFactory>(displayStore, settings,
                                                                       m_compositor.get());
    m_keyManager = std::make_unique<KeyManager>(
        settings, Platform::createCaptureBackend(m_layoutSource),
        KeyboardLayoutTranslator::shared(), &displayStore, m_windowFactory.get());
    m_windowFactory->setKeyManager(m_keyManager.get());
    m_secrecyWatchers = Platform::createSecrecyWatchers();
    for (const std::unique_ptr<SecrecyWatcher> &watcher : m_secrecyWatchers)
        watcher->start(m_keyManager->secrecy());
    if (Platform::drawsOverlaysOnLayerShell())
        m_windowFactory->setSurfaceRendererFactory(
            [](const QString &outputName, const QRect &band) {
                return Platform::createLayerShellKeyRowRenderer(outputName, band);
            });
    else
        m_windowFactory->setRendererFactory(
            [](WId window) { return Platform::createKeyRowRenderer(window); });

    connect(m_keyManager.get(), &KeyManager::isListeningChanged, this,
            &VantrelApp::reportListening);
    if (!m_keyManager->hasInputMonitoringPermission())
        print(stderr, QStringLiteral("vantrel: ") +
                          tr("cannot listen to the keyboard: %1")
                              .arg(m_keyManager->inputMonitoringProblem()) +
                          u'\n');
    else if (!settings.value(AppSettings::isVantrelEnabled))
        print(stdout,
              tr("Vantrel is switched off (\"Show pressed keys on screen\" is off).") + u'\n');
    std::fflush(stdout);

    m_positionCustomizer = std::make_unique<PositionCustomizerWindowController>(
        displayStore, settings, m_compositor.get());
    if (Platform::drawsOverlaysOnLayerShell())
        m_positionCustomizer->setSurfaceFactory([](QWidget &widget, const QString &outputName) {
            return Platform::createLayerShellWidgetSurface(widget, outputName);
        });
    m_launchAtLogin = std::make_unique<LaunchAtLogin>();
    m_actions = std::make_unique<AppActions>(
        settings, *m_keyManager, displayStore.screenList(),
        [this](quint32 displayID) { m_positionCustomizer->showPositioningOverlay(displayID); });
    std::unique_ptr<HotKeyGrabber> grabber = Platform::createHotKeyGrabber();
    m_globalGrabsAvailable = grabber != nullptr;
    m_shortcuts = std::make_unique<KeyboardShortcuts>(settings, std::move(grabber));
    registerGlobalShortcuts();

    m_trayMenu = std::make_unique<TrayMenu>(settings, *m_actions);
    for (const GlobalShortcutNames::Entry &entry : GlobalShortcutNames::all())
        showShortcutInMenu(entry.name);
    connect(m_shortcuts.get(), &KeyboardShortcuts::shortcutByNameDidChange, this,
            &VantrelApp::showShortcutInMenu);
    connect(m_trayMenu.get(), &TrayMenu::settingsRequested, this, &VantrelApp::showSettings);
    connect(m_trayMenu.get(), &TrayMenu::updateCheckRequested, m_appDelegate.get(),
            &AppDelegate::checkForUpdates);
    connect(m_trayMenu.get(), &TrayMenu::quitRequested, this, &VantrelApp::quit);
    watchForTrayHost();

    if (remoteControl) {
        m_remoteControl = std::make_unique<RemoteControl>(
            *m_actions, [this] { showSettings(); }, [this] { quit(); });
        m_remoteControl->exportOnSessionBus();
    }
}

VantrelApp::~VantrelApp()
{
    m_remoteControl.reset();
    m_settingsView.reset();
    m_trayMenu.reset();
    // Global grabs end before the display connection goes.
    m_shortcuts.reset();
    m_positionCustomizer.reset();
    m_secrecyWatchers.clear();
    // The manager stops its capture and closes its windows before the factory goes.
    m_keyManager.reset();
}

void VantrelApp::showSettings()
{
    // Made on first use and kept, so that it opens again where the user left it.
    if (!m_settingsView) {
        m_settingsView = std::make_unique<SettingsView>(
            m_settings, *m_keyManager, DisplaySettingsStore::shared(), *m_launchAtLogin,
            [this](quint32 displayID) { m_positionCustomizer->showPositioningOverlay(displayID); });
        m_settingsView->setAppearanceContent(
            new AppearanceSettingsView(m_settings, CustomKeyStylePresetStore::shared()));
        m_settingsView->setShortcutsContent(new KeyShortcutsSettingsView(
            *m_shortcuts, m_globalGrabsAvailable ? QHash<QString, QString>() : desktopCommands()));
    }
    m_settingsView->showAndRaise();
}

void VantrelApp::registerGlobalShortcuts()
{
    // Each shortcut runs the same action as its tray row, when its keys are released.
    const std::pair<QString, void (AppActions::*)()> handlers[] = {
        {GlobalShortcutNames::toggleVantrel(), &AppActions::toggleVantrel},
        {GlobalShortcutNames::increaseKeySize(), &AppActions::increaseKeySize},
        {GlobalShortcutNames::decreaseKeySize(), &AppActions::decreaseKeySize},
        {GlobalShortcutNames::openPositionCustomizer(), &AppActions::openPositionCustomizer},
        {GlobalShortcutNames::toggleMouseClicks(), &AppActions::toggleMouseClicks},
    };
    for (const auto &[name, action] : handlers)
        m_shortcuts->onKeyUp(name, [this, action = action] { (m_actions.get()->*action)(); });
    // Said once; the Shortcuts tab shows it too, and tries again when it opens.
    for (const GlobalShortcutNames::Entry &entry : GlobalShortcutNames::all())
        if (m_shortcuts->isTakenByAnotherProgram(entry.name))
            print(
                stderr,
                QStringLiteral("vantrel: ") +
                    tr("the shortcut %1 of \"%2\" is already used by another program; "
                       "it does nothing until that program lets it go")
                        .arg(m_shortcuts->shortcut(entry.name).toString(QKeySequence::PortableText),
                             GlobalShortcutNames::title(entry)) +
                    u'\n');
}

void VantrelApp::showShortcutInMenu(const QString &name)
{
    if (QAction *row = m_trayMenu->action(name)) {
        // Shown beside the row; the global grab, not the menu, runs it.
        row->setShortcutContext(Qt::WidgetShortcut);
        row->setShortcut(m_shortcuts->shortcut(name));
    }
}

void VantrelApp::watchForTrayHost()
{
    // Qt tells no one when a tray host appears, so ask a few times before giving up.
    auto *poll = new QTimer(this);
    auto waited = std::make_shared<QElapsedTimer>();
    waited->start();
    connect(poll, &QTimer::timeout, this, [this, poll, waited] {
        if (QSystemTrayIcon::isSystemTrayAvailable()) {
            poll->deleteLater();
        } else if (waited->elapsed() >= trayHostWaitMs) {
            poll->deleteLater();
            print(stderr, QStringLiteral("vantrel: ") +
                              tr("no system tray found; opening the settings window instead of "
                                 "the tray menu") +
                              u'\n');
            showSettings();
        }
    });
    poll->start(trayHostPollMs);
}

void VantrelApp::reportListening(bool listening)
{
    // States only; key labels are never printed.
    if (listening)
        print(stdout, tr("Vantrel is showing pressed keys on screen.") + u'\n');
    else if (!m_quitting)
        print(stdout, tr("Vantrel stopped showing pressed keys.") + u'\n');
    std::fflush(stdout);
}

void VantrelApp::quit()
{
    if (m_quitting)
        return;
    m_quitting = true;
    m_keyManager->stopListening();
    // The stop closes the windows from the event loop; quit once that has run.
    QTimer::singleShot(0, this, [] { QCoreApplication::quit(); });
}
