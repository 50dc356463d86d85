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

using KeyPosition = AppSettings::KeyPosition;
using Flags = QList<bool>;

namespace {

ScreenList::Screen monitor(quint32 id)
{
    const QRect geometry(int(id) * 1920, 0, 1920, 1080);
    return {id, QString(QChar('A' + int(id) - 1)), geometry, geometry};
}

} // namespace

// The Displays tab over fake screens "A" (main), "B", ... and a temporary settings file.
class tst_DisplaySettingsView final : public QObject {
    Q_OBJECT

private slots:
    void cleanup();
    void toggleRules_data();
    void toggleRules();
    void positionChoice_data();
    void positionChoice();
    void customPositionSavedByCustomizerShowsEdit();
    void rowsFollowScreens_data();
    void rowsFollowScreens();

private:
    // `enabled[i]` is stored for screen i + 1 before the tab opens.
    void open(const Flags &enabled);
    Flags storedFlags() const;

    QTemporaryDir m_dir;
    FakeScreenList m_screens;
    std::unique_ptr<SettingsStore> m_store;
    std::unique_ptr<DisplaySettingsStore> m_displays;
    std::unique_ptr<DisplaySettingsView> m_view;
    QList<quint32> m_customizerOpened;
};

void tst_DisplaySettingsView::open(const Flags &enabled)
{
    QFile::remove(m_dir.filePath(QStringLiteral("Vantrel.conf")));
    m_store = std::make_unique<SettingsStore>(m_dir.filePath(QStringLiteral("Vantrel.conf")));
    QList<DisplayConfiguration> stored;
    m_screens.list.clear();
    for (qsizetype i = 0; i < enabled.size(); ++i) {
        m_screens.list.append(monitor(quint32(i + 1)));
        stored.append({quint32(i + 1), m_screens.list.constLast().localizedName, enabled.at(i),
                       KeyPosition::bottomCenter, 0.5, 0.85});
    }
    m_screens.main = 1;
    m_store->setRawValue(DisplaySettingsStore::userDefaultsKey(),
                         *DisplaySettingsStore::encode(stored));
    m_displays = std::make_unique<DisplaySettingsStore>(*m_store, m_screens);
    m_customizerOpened.clear();
    m_view = std::make_unique<DisplaySettingsView>(
        *m_displays, [this](quint32 id) { m_customizerOpened.append(id); });
    m_view->show();
}

Flags tst_DisplaySettingsView::storedFlags() const
{
    Flags flags;
    for (const DisplayConfiguration &configuration : m_displays->configurations())
        flags.append(configuration.isEnabled);
    return flags;
}

void tst_DisplaySettingsView::cleanup()
{
    m_view.reset();
    m_displays.reset();
    m_store.reset();
}

void tst_DisplaySettingsView::toggleRules_data()
{
    QTest::addColumn<Flags>("initial");
    QTest::addColumn<int>("row"); // -1: no change
    QTest::addColumn<bool>("value");
    QTest::addColumn<Flags>("enabled");
    QTest::addColumn<Flags>("usable"); // which toggles can be changed afterwards
    QTest::newRow("only display stays on")
        << Flags{true} << 0 << false << Flags{true} << Flags{false};
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

void tst_DisplaySettingsView::toggleRules()
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
    Flags shown;
    Flags canChange;
    for (const DisplaySettingsView::Row &r : m_view->rows()) {
        shown.append(r.toggle->isChecked());
        canChange.append(r.toggle->isEnabled());
    }
    QCOMPARE(storedFlags(), enabled);
    QCOMPARE(shown, enabled);
    QCOMPARE(canChange, usable);
}

void tst_DisplaySettingsView::positionChoice_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<KeyPosition>("stored");
    QTest::addColumn<bool>("customizerOpened");
    QTest::newRow("Top Left") << 0 << KeyPosition::topLeft << false;
    QTest::newRow("Bottom Right") << 5 << KeyPosition::bottomRight << false;
    QTest::newRow("Custom") << 6 << KeyPosition::bottomCenter << true;
}

void tst_DisplaySettingsView::positionChoice()
{
    QFETCH(int, index);
    QFETCH(KeyPosition, stored);
    QFETCH(bool, customizerOpened);
    open({true});
    m_view->rows().at(0).position->setCurrentIndex(index);
    QCOMPARE(m_displays->configuration(1)->position, stored);
    QCOMPARE(m_customizerOpened == QList<quint32>{1}, customizerOpened);
}

void tst_DisplaySettingsView::customPositionSavedByCustomizerShowsEdit()
{
    open({true});
    m_displays->setCustomOffset(0.3, 0.4, 1);
    const DisplaySettingsView::Row &row = m_view->rows().at(0);
    QVERIFY(row.edit->isVisible() && row.position->currentText() == QStringLiteral("Custom"));
}

void tst_DisplaySettingsView::rowsFollowScreens_data()
{
    QTest::addColumn<int>("screens");
    QTest::addColumn<QStringList>("rows"); // display names, or the empty text
    QTest::newRow("added") << 3 << QStringList{"A", "B", "C"};
    QTest::newRow("removed") << 1 << QStringList{"A"};
    QTest::newRow("none") << 0 << QStringList{"No displays detected"};
}

void tst_DisplaySettingsView::rowsFollowScreens()
{
    QFETCH(int, screens);
    QFETCH(QStringList, rows);
    open({true, false});
    QList<ScreenList::Screen> list;
    for (int i = 1; i <= screens; ++i)
        list.append(monitor(quint32(i)));
    m_screens.update(list);
    m_displays->syncWithConnectedScreens();
    QStringList shown;
    for (const DisplaySettingsView::Row &row : m_view->rows())
        shown.append(row.toggle->text());
    if (m_view->emptyLabel()->isVisible())
        shown.append(m_view->emptyLabel()->text());
    QCOMPARE(shown, rows);
}

QTEST_MAIN(tst_DisplaySettingsView)
#include "tst_DisplaySettingsView.moc"
