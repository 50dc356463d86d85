#include "FakeCaptureBackend.h"
#include "FakeScreenList.h"

#include "app/AppActions.h"
#include "app/TrayMenu.h"
#include "capture/KeyManager.h"
#include "capture/KeyboardLayoutTranslator.h"
#include "platform/linux/XkbKeyboardLayoutSource.h"
#include "settings/AppSettings.h"
#include "settings/SettingsStore.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QSignalSpy>
#include <QSystemTrayIcon>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <memory>

namespace {

// A menu as text: titles, "-" for separators, submenus as "Title>" followed by their rows
// indented, shortcuts after a tab.
QStringList rowsOf(const QMenu &menu, const QString &indent = {})
{
    QStringList rows;
    for (const QAction *action : menu.actions()) {
        if (action->isSeparator()) {
            rows.append(indent + u'-');
        } else if (action->menu()) {
            rows.append(indent + action->text() + u'>');
            rows += rowsOf(*action->menu(), indent + QStringLiteral("  "));
        } else {
            const QString shortcut = action->shortcut().toString();
            rows.append(indent + action->text() +
                        (shortcut.isEmpty() ? QString() : u'\t' + shortcut));
        }
    }
    return rows;
}

} // namespace

class tst_TrayMenu final : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    std::unique_ptr<SettingsStore> m_store;
    KeyboardLayoutTranslator m_translator{XkbKeyboardLayoutSource::fromNames(QStringLiteral("us"))};
    FakeCaptureBackend::Control m_control;
    FakeScreenList m_screens;
    std::unique_ptr<KeyManager> m_manager;
    std::unique_ptr<AppActions> m_actions;
    std::unique_ptr<TrayMenu> m_tray;

private slots:
    void init()
    {
        QFile::remove(m_dir.filePath(QStringLiteral("Vantrel.conf")));
        m_store = std::make_unique<SettingsStore>(m_dir.filePath(QStringLiteral("Vantrel.conf")));
        m_manager = std::make_unique<KeyManager>(
            *m_store, std::make_unique<FakeCaptureBackend>(m_control), m_translator);
        m_actions = std::make_unique<AppActions>(*m_store, *m_manager, m_screens);
        m_tray = std::make_unique<TrayMenu>(*m_store, *m_actions);
    }
    void cleanup()
    {
        m_tray.reset();
        m_actions.reset();
        m_manager.reset();
    }

    void menuHasTheEighteenRows()
    {
        const QStringList expected{
            QStringLiteral("Stop Vantrel"),
            QStringLiteral("-"),
            QStringLiteral("Increase Key Size"),
            QStringLiteral("Decrease Key Size"),
            QStringLiteral("Open Position Customizer"),
            QStringLiteral("Toggle Mouse Clicks"),
            QStringLiteral("-"),
            QStringLiteral("Settings...\tCtrl+,"),
            QStringLiteral("Help>"),
            QStringLiteral("  FAQ"),
            QStringLiteral("  Videos"),
            QStringLiteral("  Support"),
            QStringLiteral("Social>"),
            QStringLiteral("  X"),
            QStringLiteral("  YouTube"),
            QStringLiteral("-"),
            QStringLiteral("Check for Updates..."),
            QStringLiteral("-"),
            QStringLiteral("Website"),
            QStringLiteral("Suggest Idea"),
            QStringLiteral("More Apps"),
            QStringLiteral("-"),
            QStringLiteral("Quit Vantrel\tCtrl+Q"),
        };
        QCOMPARE(rowsOf(m_tray->menu()), expected);
    }

    void firstRowFollowsTheSettingNotListening()
    {
        QAction *toggle = m_tray->action(QStringLiteral("toggleVantrel"));
        toggle->trigger();
        QCOMPARE(toggle->text(), QStringLiteral("Start Vantrel"));
        QTRY_VERIFY(!m_manager->isListening());
        // Written elsewhere (the settings window): the row follows at once.
        m_store->setValue(AppSettings::isVantrelEnabled, true);
        QCOMPARE(toggle->text(), QStringLiteral("Stop Vantrel"));
    }

    void shortcutRowsRunTheirActions_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("after");
        QTest::newRow("increase") << QStringLiteral("increaseKeySize")
                                  << QStringLiteral("Increase Key Size")
                                  << AppSettings::keySize.name() << QVariant(2.0 + 0.1);
        QTest::newRow("decrease") << QStringLiteral("decreaseKeySize")
                                  << QStringLiteral("Decrease Key Size")
                                  << AppSettings::keySize.name() << QVariant(2.0 - 0.1);
        QTest::newRow("mouse clicks")
            << QStringLiteral("toggleMouseClicks") << QStringLiteral("Toggle Mouse Clicks")
            << AppSettings::showMouseClicks.name() << QVariant(true);
    }
    void shortcutRowsRunTheirActions()
    {
        QFETCH(QString, name);
        QFETCH(QString, title);
        QFETCH(QString, key);
        QFETCH(QVariant, after);
        QAction *row = m_tray->action(name);
        QVERIFY(row);
        QCOMPARE(row->text(), title);
        row->trigger();
        QCOMPARE(m_store->rawValue(key).value_or(QVariant()).toString(), after.toString());
    }

    void rowsAskForWindowsAndQuit_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<int>("signal"); // index into `requests` below
        QTest::newRow("settings") << QStringLiteral("Settings...") << 0;
        QTest::newRow("updates") << QStringLiteral("Check for Updates...") << 1;
        QTest::newRow("quit") << QStringLiteral("Quit Vantrel") << 2;
    }
    void rowsAskForWindowsAndQuit()
    {
        QFETCH(QString, title);
        QFETCH(int, signal);
        const std::array requests{&TrayMenu::settingsRequested, &TrayMenu::updateCheckRequested,
                                  &TrayMenu::quitRequested};
        QSignalSpy spy(m_tray.get(), requests.at(signal));
        for (QAction *action : m_tray->menu().actions())
            if (action->text() == title)
                action->trigger();
        QCOMPARE(spy.count(), 1);
    }

    void everyIconNameGivesAnIcon_data()
    {
        QTest::addColumn<QString>("name");
        for (const QString &name : AppSettings::shared().menuBarIconOptions)
            QTest::newRow(qPrintable(name)) << name;
        QTest::newRow("unknown") << QStringLiteral("no.such.symbol");
        QTest::newRow("empty") << QString();
    }
    void everyIconNameGivesAnIcon()
    {
        QFETCH(QString, name);
        m_store->setValue(AppSettings::menuBarIcon, name);
        QVERIFY(!m_tray->trayIcon().icon().pixmap(22, 22).isNull());
    }
};

QTEST_MAIN(tst_TrayMenu)
#include "tst_TrayMenu.moc"
