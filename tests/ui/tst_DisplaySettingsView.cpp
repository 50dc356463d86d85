#include "FakeScreenList.h"

#include "settings/DisplaySettingsStore.h"
#include "settings/SettingsStore.h"
#include "ui/DisplaySettingsView.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using Flags = QList<bool>;

// The Displays tab over fake screens "A" (main), "B", ... and a temporary settings file.
class tst_DisplaySettingsView final : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    FakeScreenList m_screens;
    std::unique_ptr<SettingsStore> m_store;
    std::unique_ptr<DisplaySettingsStore> m_displays;
    std::unique_ptr<DisplaySettingsView> m_view;
    QList<quint32> m_customizerOpened;

    static QList<ScreenList::Screen> screens(int count)
    {
        QList<ScreenList::Screen> list;
        for (int i = 1; i <= count; ++i)
            list.append({quint32(i), QString(QChar('A' + i - 1)), {i * 800, 0, 800, 600}, {}});
        return list;
    }

    // Opens the tab with `enabled[i]` stored for screen i + 1.
    void open(const Flags &enabled)
    {
        QFile::remove(m_dir.filePath(QStringLiteral("Vantrel.conf")));
        m_store = std::make_unique<SettingsStore>(m_dir.filePath(QStringLiteral("Vantrel.conf")));
        m_screens.list = screens(int(enabled.size()));
        m_screens.main = 1;
        QList<DisplayConfiguration> stored;
        for (const ScreenList::Screen &s : m_screens.list)
            stored.append({s.id, s.localizedName, enabled.at(s.id - 1),
                           AppSettings::KeyPosition::bottomCenter, 0.5, 0.85});
        m_store->setRawValue(DisplaySettingsStore::userDefaultsKey(),
                             *DisplaySettingsStore::encode(stored));
        m_displays = std::make_unique<DisplaySettingsStore>(*m_store, m_screens);
        m_customizerOpened.clear();
        m_view = std::make_unique<DisplaySettingsView>(
            *m_displays, [this](quint32 id) { m_customizerOpened.append(id); });
        m_view->show();
    }

private slots:
    void toggleRules_data()
    {
        QTest::addColumn<Flags>("initial");
        QTest::addColumn<int>("row"); // -1: no change
        QTest::addColumn<bool>("value");
        QTest::addColumn<Flags>("enabled");
        QTest::addColumn<Flags>("usable"); // which toggles can be changed afterwards
        QTest::newRow("only display switched on when shown")
            << Flags{false} << -1 << false << Flags{true} << Flags{false};
        QTest::newRow("last enabled is locked")
            << Flags{true, false} << -1 << false << Flags{true, false} << Flags{false, true};
        QTest::newRow("last enabled stays on")
            << Flags{true, false} << 0 << false << Flags{true, false} << Flags{false, true};
        QTest::newRow("enabling another unlocks")
            << Flags{true, false} << 1 << true << Flags{true, true} << Flags{true, true};
        QTest::newRow("one of two off")
            << Flags{true, true} << 0 << false << Flags{false, true} << Flags{true, false};
    }
    void toggleRules()
    {
        QFETCH(Flags, initial);
        QFETCH(int, row);
        QFETCH(bool, value);
        QFETCH(Flags, enabled);
        QFETCH(Flags, usable);
        open(initial);
        if (row >= 0)
            m_view->rows().at(row).toggle->setChecked(value);
        QCoreApplication::processEvents();
        Flags stored, shown, canChange;
        for (const DisplayConfiguration &c : m_displays->configurations())
            stored.append(c.isEnabled);
        for (const DisplaySettingsView::Row &r : m_view->rows()) {
            shown.append(r.toggle->isChecked());
            canChange.append(r.toggle->isEnabled());
        }
        QCOMPARE(QList<Flags>({stored, shown, canChange}),
                 QList<Flags>({enabled, enabled, usable}));
    }

    // "Custom" opens the customizer and writes nothing; the customizer's save shows "Edit".
    void positionChoice_data()
    {
        QTest::addColumn<int>("index");      // -1: the customizer saves a custom place
        QTest::addColumn<QString>("result"); // stored position, customizer opened, Edit shown
        QTest::newRow("Top Left") << 0 << QStringLiteral("Top Left, 0, 0");
        QTest::newRow("Custom") << 6 << QStringLiteral("Bottom Center, 1, 0");
        QTest::newRow("customizer saves") << -1 << QStringLiteral("Custom, 0, 1");
    }
    void positionChoice()
    {
        QFETCH(int, index);
        QFETCH(QString, result);
        open({true});
        const DisplaySettingsView::Row &row = m_view->rows().at(0);
        if (index >= 0)
            row.position->setCurrentIndex(index);
        else
            m_displays->setCustomOffset(0.3, 0.4, 1);
        QCOMPARE(QStringLiteral("%1, %2, %3")
                     .arg(row.position->currentText())
                     .arg(m_customizerOpened.size())
                     .arg(int(row.edit->isVisible())),
                 result);
        // "Edit" follows the position it edits.
        if (row.edit->isVisible())
            QVERIFY(row.edit->geometry().left() > row.position->geometry().right());
    }

    void rowsFollowScreens_data()
    {
        QTest::addColumn<int>("screens");
        QTest::addColumn<QStringList>("rows"); // display names, or the empty text
        QTest::newRow("added") << 3 << QStringList{"A", "B", "C"};
        QTest::newRow("removed") << 1 << QStringList{"A"};
        QTest::newRow("none") << 0 << QStringList{"No displays detected"};
    }
    void rowsFollowScreens()
    {
        QFETCH(int, screens);
        QFETCH(QStringList, rows);
        open({true, false});
        m_screens.update(tst_DisplaySettingsView::screens(screens));
        m_displays->syncWithConnectedScreens();
        QStringList shown;
        for (const DisplaySettingsView::Row &row : m_view->rows())
            shown.append(row.toggle->text());
        if (m_view->emptyLabel()->isVisible())
            shown.append(m_view->emptyLabel()->text());
        QCOMPARE(shown, rows);
    }
};

QTEST_MAIN(tst_DisplaySettingsView)
#include "tst_DisplaySettingsView.moc"
