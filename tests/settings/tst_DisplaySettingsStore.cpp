#include "FakeScreenList.h"

#include "settings/DisplaySettingsStore.h"
#include "settings/ScreenList.h"
#include "settings/SettingsStore.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using KeyPosition = AppSettings::KeyPosition;
using Screen = ScreenList::Screen;
using Configs = QList<DisplayConfiguration>;

Q_DECLARE_METATYPE(KeyPosition)

namespace {

Screen monitor(quint32 id, const QString &name)
{
    const QRect geometry(int(id) * 1920, 0, 1920, 1080);
    return {id, name, geometry, geometry.adjusted(0, 32, 0, 0)};
}

DisplayConfiguration config(quint32 id, const char *name, bool enabled,
                            KeyPosition position = KeyPosition::bottomCenter)
{
    return {id, name, enabled, position, 0.5, 0.85};
}

QByteArray json(const Configs &configurations)
{
    return *DisplaySettingsStore::encode(configurations);
}

} // namespace

class tst_DisplaySettingsStore final : public QObject {
    Q_OBJECT

    template <typename... T> static void row(const char *name, const T &...values)
    {
        (QTest::newRow(name) << ... << values);
    }

    QTemporaryDir m_dir;
    const QString m_path = m_dir.filePath(QStringLiteral("settings.conf"));
    std::unique_ptr<SettingsStore> m_settings;
    FakeScreenList m_screens;
    std::unique_ptr<DisplaySettingsStore> m_store;

    // The store over `screens`, with `main` as the main display, on the current settings.
    void start(const QList<Screen> &screens, std::optional<quint32> main)
    {
        m_screens.list = screens;
        m_screens.main = main;
        m_store = std::make_unique<DisplaySettingsStore>(*m_settings, m_screens);
    }
    // What a later run would read: the records in the settings file itself.
    Configs stored() const
    {
        const SettingsStore file(m_path);
        return DisplaySettingsStore::decode(file.value(AppSettings::displayConfigurations)).value();
    }

private slots:
    void init()
    {
        m_store.reset();
        QFile::remove(m_path);
        m_settings = std::make_unique<SettingsStore>(m_path);
    }

    void firstRunSeedsPositionFromFormerSetting_data()
    {
        QTest::addColumn<QString>("former");
        QTest::addColumn<KeyPosition>("seeded");
        row("Top Right", "Top Right", KeyPosition::topRight);
        row("unknown text", "Middle", KeyPosition::bottomCenter);
    }
    void firstRunSeedsPositionFromFormerSetting()
    {
        QFETCH(QString, former);
        QFETCH(KeyPosition, seeded);
        m_settings->setRawValue(QStringLiteral("keyPosition"), former);
        start({monitor(1, "A"), monitor(2, "B")}, 2);
        QVERIFY(!SettingsStore(m_path).contains(QStringLiteral("keyPosition")));
        const Configs expected{config(1, "A", false, seeded), config(2, "B", true, seeded)};
        QCOMPARE(m_store->configurations(), expected);
        QCOMPARE(stored(), expected);
        // Only the first synchronisation uses the former setting.
        m_screens.update({monitor(1, "A"), monitor(2, "B"), monitor(3, "C")});
        QCOMPARE(m_store->configuration(3), config(3, "C", false));
        QVERIFY(stored().contains(config(3, "C", false)));
    }

    void unpluggedDisplayKeepsItsSettingsAndRenameIsSaved()
    {
        start({monitor(1, "Left"), monitor(2, "Right")}, 1);
        m_store->setEnabled(true, 2);
        m_store->setCustomOffset(0.25, 0.1, 2);
        const DisplayConfiguration before = *m_store->configuration(2);
        QSignalSpy changed(m_store.get(), &DisplaySettingsStore::displaySettingsChanged);
        m_screens.update({monitor(1, "Left")});
        QCOMPARE(changed.count(), 1);
        QCOMPARE(m_store->configurations().size(), 1);
        QVERIFY(stored().contains(before));
        DisplayConfiguration renamed = before;
        renamed.name = QStringLiteral("Studio");
        m_screens.update({monitor(1, "Left"), monitor(2, "Studio")});
        QCOMPARE(changed.count(), 2);
        QCOMPARE(m_store->configurations(), (Configs{*m_store->configuration(1), renamed}));
        // A later run finds the display as it was left.
        m_store.reset();
        m_settings = std::make_unique<SettingsStore>(m_path);
        QSignalSpy written(m_settings.get(), &SettingsStore::valueChanged);
        start(m_screens.list, 1);
        QCOMPARE(m_store->configuration(2), renamed);
        QCOMPARE(written.count(), 0);
    }

    void listedByNameIgnoringCase()
    {
        QList<Screen> screens;
        for (const char *name : {"beta", "Zeta", "b", "Écran", "Alpha", "eagle", "B"})
            screens.append(monitor(quint32(screens.size() + 1), name));
        start(screens, 1);
        QStringList listed;
        for (const DisplayConfiguration &c : m_store->configurations())
            listed.append(c.name);
        // Names equal but for case keep the order in which the screens are reported.
        QCOMPARE(listed, (QStringList{"Alpha", "b", "B", "beta", "eagle", "Écran", "Zeta"}));
    }

    void settersWriteOnlyRealChanges_data()
    {
        // Display 1 is connected and enabled; 5 is known but disconnected and disabled; 9 unknown.
        QTest::addColumn<int>("operation"); // 0 enable, 1 disable, 2 top left
        QTest::addColumn<quint32>("display");
        QTest::addColumn<bool>("writes");
        row("enable enabled", 0, 1u, false);
        row("disable enabled", 1, 1u, true);
        row("disconnected: new position", 2, 5u, true);
        row("unknown: enable", 0, 9u, false);
    }
    void settersWriteOnlyRealChanges()
    {
        QFETCH(int, operation);
        QFETCH(quint32, display);
        QFETCH(bool, writes);
        start({monitor(1, "One"), monitor(5, "Five")}, 1);
        m_screens.update({monitor(1, "One")});
        QSignalSpy written(m_settings.get(), &SettingsStore::valueChanged);
        QSignalSpy announced(m_store.get(), &DisplaySettingsStore::displaySettingsChanged);
        if (operation < 2)
            m_store->setEnabled(operation == 0, display);
        else
            m_store->setPosition(KeyPosition::topLeft, display);
        QCOMPARE(written.count(), writes ? 1 : 0);
        // Only changes to connected displays are announced.
        QCOMPARE(announced.count(), writes && display == 1 ? 1 : 0);
        if (writes)
            QVERIFY(stored().contains(*m_store->configuration(display)));
        if (writes && operation == 2)
            QCOMPARE(m_store->configuration(display)->position, KeyPosition::topLeft);
        if (writes && display == 1)
            QVERIFY(m_store->configurations().contains(*m_store->configuration(display)));
    }

    void unreadableStoredDataIsSaidAndReplaced_data()
    {
        QTest::addColumn<QByteArray>("data");
        const QByteArray old = json({config(1, "Old", true)});
        row("not JSON", QByteArray("[{\"id\":1,"));
        row("position case differs", QByteArray(old).replace("Bottom Center", "bottom center"));
        row("negative id", QByteArray(old).replace("\"id\":1", "\"id\":-1"));
        row("id as text", QByteArray(old).replace("\"id\":1", "\"id\":\"1\""));
        row("one good, one bad",
            json({config(1, "Old", true), config(2, "Good", true, KeyPosition::topLeft)})
                .replace("Bottom Center", "Middle"));
        // Unreadable data is never checked for duplicates (which would end the program).
        row("duplicate ids, unreadable", json({config(7, "A", true), config(8, "B", true)})
                                             .replace("\"id\":8", "\"id\":7")
                                             .replace("Bottom Center", "Middle"));
    }
    void unreadableStoredDataIsSaidAndReplaced()
    {
        QFETCH(QByteArray, data);
        m_settings->setValue(AppSettings::displayConfigurations, data);
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral(
                                 ": displayConfigurations is not valid.*; ignoring it$")));
        start({monitor(1, "One")}, 1);
        const Configs fresh{config(1, "One", true)};
        QCOMPARE(m_store->configurations(), fresh);
        QCOMPARE(stored(), fresh);
    }
};

QTEST_GUILESS_MAIN(tst_DisplaySettingsStore)
#include "tst_DisplaySettingsStore.moc"
