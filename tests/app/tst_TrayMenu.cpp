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
        const QStringList expected =
            QStringLiteral("Stop Vantrel|-|Increase Key Size|Decrease Key Size|"
                           "Open Position Customizer|Toggle Mouse Clicks|-|Settings...\tCtrl+,|"
                           "Help>|  FAQ|  Videos|  Support|Social>|  X|  YouTube|-|"
                           "Check for Updates...|-|Website|Suggest Idea|More Apps|-|"
                           "Quit Vantrel\tCtrl+Q")
                .split(u'|');
        QCOMPARE(rowsOf(m_tray->menu()), expected);
        // The rows that shortcuts also run, found by their names ("-": the separator).
        const QStringList named{"toggleVantrel",          "-",
                                "increaseKeySize",        "decreaseKeySize",
                                "openPositionCustomizer", "toggleMouseClicks"};
        for (qsizetype row = 0; row < named.size(); ++row)
            QCOMPARE(m_tray->action(named[row]),
                     row == 1 ? nullptr : m_tray->menu().actions()[row]);
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

    void everyIconNameGivesAnIcon_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("shown");
        for (const QString &name : AppSettings::shared().menuBarIconOptions)
            QTest::newRow(qPrintable(name)) << name << name;
        // As the settings window's picker shows them.
        QTest::newRow("unknown") << u"no.such.symbol"_qs << AppSettings::menuBarIcon.defaultValue;
    }
    void everyIconNameGivesAnIcon()
    {
        QFETCH(QString, name);
        QFETCH(QString, shown);
        m_store->setValue(AppSettings::menuBarIcon, name);
        const QImage image = m_tray->trayIcon().icon().pixmap(22, 22).toImage();
        QVERIFY(!image.isNull());
        QCOMPARE(image,
                 TrayMenu::iconForName(shown, QApplication::palette()).pixmap(22, 22).toImage());
    }

    // A theme switch changes the palette: every icon follows it, so that a panel that does not
    // recolour icons still shows it in contrast.
    void iconFollowsThePalette_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("own symbol, a mask") << AppSettings::menuBarIcon.defaultValue;
        QTest::newRow("plain symbol") << u"keyboard"_qs;
    }
    void iconFollowsThePalette()
    {
        QFETCH(QString, name);
        m_store->setValue(AppSettings::menuBarIcon, name);
        const QPalette light = QApplication::palette();
        QPalette dark = light;
        dark.setColor(QPalette::Window, Qt::black);
        dark.setColor(QPalette::WindowText, Qt::white);
        QApplication::setPalette(dark);
        const QImage shown = m_tray->trayIcon().icon().pixmap(22, 22).toImage();
        QApplication::setPalette(light);
        QCOMPARE(shown, TrayMenu::iconForName(name, dark).pixmap(22, 22).toImage());
    }

    // An open menu has the keyboard: a row's shortcut runs on its key's release, as the global
    // shortcut does everywhere else.
    void shortcutInOpenMenuRunsOnRelease()
    {
        QAction *row = m_tray->action(u"toggleMouseClicks"_qs);
        row->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_F11));
        QSignalSpy triggered(row, &QAction::triggered);
        m_tray->menu().popup({0, 0});
        QTest::keyPress(&m_tray->menu(), Qt::Key_F11, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(triggered.count(), 0);
        QTest::keyRelease(&m_tray->menu(), Qt::Key_F11, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(triggered.count(), 1);
        QVERIFY(!m_tray->menu().isVisible());
    }
};

QTEST_MAIN(tst_TrayMenu)
#include "tst_TrayMenu.moc"
