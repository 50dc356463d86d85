#include "app/TrayMenu.h"

#include "BuildConfig.h"
#include "app/AppActions.h"
#include "app/Constants.h"
#include "app/PaletteWatcher.h"
#include "settings/AppSettings.h"
#include "settings/SettingsStore.h"
#include "ui/Symbols.h"

#include <QAction>
#include <QApplication>
#include <QCursor>
#include <QDesktopServices>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QPalette>
#include <QSystemTrayIcon>
#include <QUrl>

namespace {

void openLink(const char *address)
{
    QDesktopServices::openUrl(QUrl(QString::fromUtf8(address)));
}

// Drawn when no symbol can be had, so that the tray never shows an empty slot: a rounded
// square with a question mark.
QIcon drawnGenericIcon(const QColor &tint)
{
    QIcon icon;
    for (const int size : {16, 22, 24, 32, 48, 64}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        const qreal pen = qMax(1.5, size / 12.0);
        painter.setPen(QPen(tint, pen));
        painter.drawRoundedRect(QRectF(pen, pen, size - 2 * pen, size - 2 * pen), size / 6.0,
                                size / 6.0);
        QFont font = painter.font();
        font.setBold(true);
        font.setPixelSize(qRound(size * 0.62));
        painter.setFont(font);
        painter.drawText(QRect(0, 0, size, size), Qt::AlignCenter, QStringLiteral("?"));
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace

TrayMenu::TrayMenu(SettingsStore &settings, AppActions &actions, QObject *parent)
    : QObject(parent), m_settings(settings), m_actions(actions), m_menu(std::make_unique<QMenu>()),
      m_trayIcon(std::make_unique<QSystemTrayIcon>()),
      m_paletteWatcher(std::make_unique<PaletteWatcher>())
{
    buildMenu();
    m_trayIcon->setToolTip(QStringLiteral("Vantrel"));
    m_trayIcon->setContextMenu(m_menu.get());
    // A left click opens the same menu: the icon has no other use.
    connect(m_trayIcon.get(), &QSystemTrayIcon::activated, this,
            [this](QSystemTrayIcon::ActivationReason reason) {
                if (reason == QSystemTrayIcon::Trigger && !m_menu->isVisible())
                    m_menu->popup(QCursor::pos());
            });
    // An open popup menu takes the keyboard but does not run its rows' shortcuts by itself.
    m_menu->installEventFilter(this);
    updateIcon();
    m_settings.observe(AppSettings::menuBarIcon.name(), this, [this] { updateIcon(); });
    // Every icon is tinted from the palette, which a switch between light and dark themes
    // changes; hosts that do not recolour icons (XEmbed) keep showing what they were given.
    connect(m_paletteWatcher.get(), &PaletteWatcher::paletteChanged, this,
            [this] { updateIcon(); });
    m_settings.observe(AppSettings::isVantrelEnabled.name(), this, [this] { updateToggleTitle(); });
    m_trayIcon->show();
}

TrayMenu::~TrayMenu() = default;

QAction *TrayMenu::action(const QString &shortcutName) const
{
    return m_shortcutActions.value(shortcutName);
}

bool TrayMenu::eventFilter(QObject *watched, QEvent *event)
{
    const bool press = event->type() == QEvent::KeyPress;
    if (watched != m_menu.get() || (!press && event->type() != QEvent::KeyRelease))
        return false;
    const auto &key = static_cast<const QKeyEvent &>(*event);
    if (press) {
        // As everywhere else, a row's shortcut runs when its key comes up: the press only
        // picks the row.
        const QKeySequence pressed(key.keyCombination());
        for (QAction *row : m_menu->actions()) {
            if (!row->shortcut().isEmpty() && row->shortcut() == pressed && row->isEnabled()) {
                m_heldRow = row;
                return true;
            }
        }
        return key.isAutoRepeat() && m_heldRow;
    }
    if (!m_heldRow || key.isAutoRepeat() || key.key() != m_heldRow->shortcut()[0].key())
        return false;
    const QPointer<QAction> row = std::exchange(m_heldRow, nullptr);
    m_menu->hide();
    if (row)
        row->trigger();
    return true;
}

void TrayMenu::buildMenu()
{
    QMenu &menu = *m_menu;
    const auto addShortcutRow = [this, &menu](const QString &name, const QString &title,
                                              void (AppActions::*run)()) {
        QAction *row = menu.addAction(title);
        connect(row, &QAction::triggered, this, [this, run] { (m_actions.*run)(); });
        m_shortcutActions.insert(name, row);
    };
    addShortcutRow(QStringLiteral("toggleVantrel"), QString(), &AppActions::toggleVantrel);
    updateToggleTitle();
    menu.addSeparator();
    addShortcutRow(QStringLiteral("increaseKeySize"), tr("Increase Key Size"),
                   &AppActions::increaseKeySize);
    addShortcutRow(QStringLiteral("decreaseKeySize"), tr("Decrease Key Size"),
                   &AppActions::decreaseKeySize);
    addShortcutRow(QStringLiteral("openPositionCustomizer"), tr("Open Position Customizer"),
                   &AppActions::openPositionCustomizer);
    addShortcutRow(QStringLiteral("toggleMouseClicks"), tr("Toggle Mouse Clicks"),
                   &AppActions::toggleMouseClicks);
    menu.addSeparator();

    QAction *settings = menu.addAction(tr("Settings..."));
    settings->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Comma));
    connect(settings, &QAction::triggered, this, &TrayMenu::settingsRequested);

    QMenu *help = menu.addMenu(tr("Help"));
    connect(help->addAction(tr("FAQ")), &QAction::triggered, this,
            [] { openLink(BuildConfig::faqUrl); });
    connect(help->addAction(tr("Videos")), &QAction::triggered, this,
            [] { openLink(BuildConfig::videosUrl); });
    connect(help->addAction(tr("Support")), &QAction::triggered, this,
            [] { QDesktopServices::openUrl(QUrl(Constants::supportEmailLink())); });

    QMenu *social = menu.addMenu(tr("Social"));
    connect(social->addAction(QStringLiteral("X")), &QAction::triggered, this,
            [] { openLink(BuildConfig::xProfileUrl); });
    connect(social->addAction(QStringLiteral("YouTube")), &QAction::triggered, this,
            [] { openLink(BuildConfig::youTubeChannelUrl); });
    menu.addSeparator();

    connect(menu.addAction(tr("Check for Updates...")), &QAction::triggered, this,
            &TrayMenu::updateCheckRequested);
    menu.addSeparator();

    connect(menu.addAction(tr("Website")), &QAction::triggered, this,
            [] { openLink(BuildConfig::websiteUrl); });
    connect(menu.addAction(tr("Suggest Idea")), &QAction::triggered, this,
            [] { openLink(BuildConfig::ideasUrl); });
    connect(menu.addAction(tr("More Apps")), &QAction::triggered, this,
            [] { openLink(BuildConfig::moreAppsUrl); });
    menu.addSeparator();

    QAction *quit = menu.addAction(tr("Quit Vantrel"));
    quit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
    connect(quit, &QAction::triggered, this, &TrayMenu::quitRequested);
}

void TrayMenu::updateToggleTitle()
{
    // The title follows the setting, not whether capture runs (without access it still offers
    // to stop).
    m_shortcutActions.value(QStringLiteral("toggleVantrel"))
        ->setText(m_settings.value(AppSettings::isVantrelEnabled) ? tr("Stop Vantrel")
                                                                  : tr("Start Vantrel"));
}

void TrayMenu::updateIcon()
{
    m_trayIcon->setIcon(
        iconForName(m_settings.value(AppSettings::menuBarIcon), QApplication::palette()));
}

QIcon TrayMenu::iconForName(const QString &name, const QPalette &palette)
{
    // Panels usually share the desktop theme's window colour: draw in its contrasting text
    // colour, so the symbol reads on light and dark panels alike.
    const QColor tint = palette.color(QPalette::WindowText);
    const AppSettings::DefaultSettings &defaults = AppSettings::shared();
    // An unknown name shows the default, as the settings window's picker does.
    const QString shown = defaults.menuBarIconOptions.contains(name) && Symbols::exists(name)
                              ? name
                              : AppSettings::menuBarIcon.defaultValue;
    QIcon icon = Symbols::icon(shown, tint);
    // Our own symbol is a mask: desktops that recolour symbolic icons may do so.
    if (defaults.customMenuBarIconNames.contains(shown))
        icon.setIsMask(true);
    // The tray never shows an empty slot.
    return icon.isNull() ? drawnGenericIcon(tint) : icon;
}
