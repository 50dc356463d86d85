#include "FakeScreenList.h"
#include "settings/DisplaySettingsStore.h"
#include "settings/SettingsStore.h"

#include <QCoreApplication>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <sys/resource.h>

#include <memory>

using KeyPosition = AppSettings::KeyPosition;
using Screen = ScreenList::Screen;

Q_DECLARE_METATYPE(KeyPosition)
Q_DECLARE_METATYPE(std::optional<quint32>)

namespace {

// Set in the environment of a child run that loads a settings file and must end the program.
constexpr char childLoadVariable[] = "VANTREL_TEST_LOAD_DISPLAYS";

QByteArray record(quint32 id, const char *name, const char *position = "Bottom Center")
{
    return QByteArray(R"({"id":)") + QByteArray::number(id) + R"(,"name":")" + name +
           R"(","isEnabled":true,"position":")" + position +
           R"(","customOffsetX":0.5,"customOffsetY":0.85})";
}

QByteArray array(const QList<QByteArray> &records)
{
    return '[' + records.join(',') + ']';
}

} // namespace

class tst_DisplaySettingsStore final : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    QString m_path;
    std::unique_ptr<SettingsStore> m_settings;
    std::unique_ptr<FakeScreenList> m_screens;
    std::unique_ptr<DisplaySettingsStore> m_store;

    // The store over `screens`, with `main` as the main display, on the current settings.
    void start(const QList<Screen> &screens, std::optional<quint32> main)
    {
        m_screens->setScreens(screens, main);
        m_store = std::make_unique<DisplaySettingsStore>(*m_settings, *m_screens);
    }

    // What a later run would read: the records in the settings file itself.
    QList<DisplayConfiguration> storedRecords() const
    {
        const SettingsStore file(m_path);
        if (!file.contains(DisplaySettingsStore::userDefaultsKey()))
            return {};
        return DisplaySettingsStore::decode(file.value(AppSettings::displayConfigurations))
            .value_or(QList<DisplayConfiguration>());
    }
    std::optional<DisplayConfiguration> storedRecord(quint32 id) const
    {
        for (const DisplayConfiguration &c : storedRecords())
            if (c.id == id)
                return c;
        return std::nullopt;
    }
    QStringList publishedNames() const
    {
        QStringList names;
        for (const DisplayConfiguration &c : m_store->configurations())
            names.append(c.name);
        return names;
    }

private slots:
    void init()
    {
        m_path = m_dir.filePath(QStringLiteral("settings.conf"));
        QFile::remove(m_path);
        m_settings = std::make_unique<SettingsStore>(m_path);
        m_screens = std::make_unique<FakeScreenList>();
    }
    void cleanup()
    {
        m_store.reset();
        m_screens.reset();
        m_settings.reset();
    }

    void firstRunSeedsPositionFromFormerSetting_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<KeyPosition>("seeded");
        QTest::newRow("Top Right") << QStringLiteral("Top Right") << KeyPosition::topRight;
        QTest::newRow("Custom") << QStringLiteral("Custom") << KeyPosition::custom;
        QTest::newRow("unknown text") << QStringLiteral("Middle") << KeyPosition::bottomCenter;
        QTest::newRow("nothing stored") << QString() << KeyPosition::bottomCenter;
    }
    void firstRunSeedsPositionFromFormerSetting()
    {
        QFETCH(QString, stored);
        QFETCH(KeyPosition, seeded);
        if (!stored.isNull())
            m_settings->setRawValue(QStringLiteral("keyPosition"), stored);

        start({FakeScreenList::screen(1, QStringLiteral("Built-in")),
               FakeScreenList::screen(2, QStringLiteral("External"))},
              2);

        QVERIFY(!m_settings->contains(QStringLiteral("keyPosition")));
        QVERIFY(!SettingsStore(m_path).contains(QStringLiteral("keyPosition")));
        const QList<DisplayConfiguration> expected{
            {1, QStringLiteral("Built-in"), false, seeded, 0.5, 0.85},
            {2, QStringLiteral("External"), true, seeded, 0.5, 0.85}};
        QCOMPARE(m_store->configurations(), expected);
        QCOMPARE(storedRecords(), expected);

        // Only the first synchronisation uses the former setting.
        m_screens->connectScreen(3, QStringLiteral("Projector"));
        QCOMPARE(m_store->configuration(3)->position, KeyPosition::bottomCenter);
        QCOMPARE(m_store->configuration(3)->isEnabled, false);
        QCOMPARE(storedRecord(3)->position, KeyPosition::bottomCenter);
        QCOMPARE(m_store->configuration(1)->position, seeded);
    }

    void newDisplayIsEnabledOnlyWhenMain_data()
    {
        QTest::addColumn<std::optional<quint32>>("main");
        QTest::addColumn<QList<bool>>("enabled");
        QTest::newRow("first is main") << std::optional<quint32>(10) << QList<bool>{true, false};
        QTest::newRow("second is main") << std::optional<quint32>(20) << QList<bool>{false, true};
        QTest::newRow("no main") << std::optional<quint32>() << QList<bool>{false, false};
        QTest::newRow("main not listed") << std::optional<quint32>(99) << QList<bool>{false, false};
    }
    void newDisplayIsEnabledOnlyWhenMain()
    {
        QFETCH(std::optional<quint32>, main);
        QFETCH(QList<bool>, enabled);
        start({FakeScreenList::screen(10, QStringLiteral("A")),
               FakeScreenList::screen(20, QStringLiteral("B"))},
              main);
        QCOMPARE(m_store->configuration(10)->isEnabled, enabled.at(0));
        QCOMPARE(m_store->configuration(20)->isEnabled, enabled.at(1));
    }

    void unpluggedDisplayKeepsItsSettings()
    {
        start({FakeScreenList::screen(1, QStringLiteral("Left")),
               FakeScreenList::screen(2, QStringLiteral("Right"))},
              1);
        m_store->setEnabled(true, 2);
        m_store->setCustomOffset(0.25, 0.1, 2);
        const DisplayConfiguration before = *m_store->configuration(2);

        QSignalSpy changed(m_store.get(), &DisplaySettingsStore::displaySettingsChanged);
        m_screens->disconnectScreen(2);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(publishedNames(), QStringList{QStringLiteral("Left")});
        QCOMPARE(m_store->configuration(2), before);
        QCOMPARE(storedRecord(2), before);

        m_screens->connectScreen(2, QStringLiteral("Right"));
        QCOMPARE(changed.count(), 2);
        QCOMPARE(m_store->configurations().size(), 2);
        QCOMPARE(m_store->configurations().at(1), before);

        // A later run finds the display as it was left.
        m_store.reset();
        m_settings = std::make_unique<SettingsStore>(m_path);
        start(m_screens->screens(), 1);
        QCOMPARE(m_store->configuration(2), before);
    }

    void renamedDisplayKeepsSettingsAndNameIsSaved()
    {
        start({FakeScreenList::screen(1, QStringLiteral("DELL U2720Q"))}, 1);
        m_store->setPosition(KeyPosition::topLeft, 1);
        QSignalSpy changed(m_store.get(), &DisplaySettingsStore::displaySettingsChanged);

        m_screens->renameScreen(1, QStringLiteral("Studio Display"));

        QCOMPARE(changed.count(), 1);
        const DisplayConfiguration expected{
            1, QStringLiteral("Studio Display"), true, KeyPosition::topLeft, 0.5, 0.85};
        QCOMPARE(m_store->configurations(), QList<DisplayConfiguration>{expected});
        QCOMPARE(storedRecords(), QList<DisplayConfiguration>{expected});
    }

    void listedByNameIgnoringCase_data()
    {
        QTest::addColumn<QStringList>("screenNames");
        QTest::addColumn<QStringList>("listed");
        QTest::newRow("Alpha before beta")
            << QStringList{"beta", "Alpha"} << QStringList{"Alpha", "beta"};
        QTest::newRow("case is no order")
            << QStringList{"bravo", "Alpha", "Charlie"} << QStringList{"Alpha", "bravo", "Charlie"};
        QTest::newRow("accents sort with their letter")
            << QStringList{"Zeta", "Écran", "eagle"} << QStringList{"eagle", "Écran", "Zeta"};
        // Names equal but for case keep the order in which the screens are reported.
        QTest::newRow("stable: b first") << QStringList{"b", "B"} << QStringList{"b", "B"};
        QTest::newRow("stable: B first") << QStringList{"B", "b"} << QStringList{"B", "b"};
        QTest::newRow("same name twice")
            << QStringList{"LG", "Acer", "LG"} << QStringList{"Acer", "LG", "LG"};
    }
    void listedByNameIgnoringCase()
    {
        QFETCH(QStringList, screenNames);
        QFETCH(QStringList, listed);
        QList<Screen> screens;
        for (qsizetype i = 0; i < screenNames.size(); ++i)
            screens.append(FakeScreenList::screen(quint32(i + 1), screenNames.at(i)));
        start(screens, 1);
        QCOMPARE(publishedNames(), listed);
    }

    void storedFormIsSortedById()
    {
        start({FakeScreenList::screen(7, QStringLiteral("b")),
               FakeScreenList::screen(3, QStringLiteral("a\"quoted\""))},
              7);
        m_store->setCustomOffset(0.1, 1.0 / 3.0, 3);
        QCOMPARE(SettingsStore(m_path).value(AppSettings::displayConfigurations),
                 QByteArray("[{\"id\":3,\"name\":\"a\\\"quoted\\\"\",\"isEnabled\":false,"
                            "\"position\":\"Custom\","
                            R"("customOffsetX":0.1,"customOffsetY":0.3333333333333333},)"
                            R"({"id":7,"name":"b","isEnabled":true,"position":"Bottom Center",)"
                            R"("customOffsetX":0.5,"customOffsetY":0.85}])"));
        QCOMPARE(storedRecord(3)->customOffsetY, 1.0 / 3.0);
    }

    void settersWriteOnlyRealChanges_data()
    {
        // Display 1 is connected, enabled and custom at (0.5, 0.85); display 5 is known but
        // disconnected and disabled; display 9 is unknown.
        QTest::addColumn<int>("operation");
        QTest::addColumn<quint32>("display");
        QTest::addColumn<bool>("writes");
        QTest::addColumn<bool>("announces");
        enum { enable, disable, toTopLeft, toCustom, offset };
        QTest::newRow("enable enabled") << int(enable) << 1u << false << false;
        QTest::newRow("disable enabled") << int(disable) << 1u << true << true;
        QTest::newRow("same position") << int(toCustom) << 1u << false << false;
        QTest::newRow("new position") << int(toTopLeft) << 1u << true << true;
        QTest::newRow("offset, same values") << int(offset) << 1u << true << true;
        QTest::newRow("disconnected: new position") << int(toTopLeft) << 5u << true << false;
        QTest::newRow("disconnected: enable") << int(enable) << 5u << true << false;
        QTest::newRow("disconnected: disable disabled") << int(disable) << 5u << false << false;
        QTest::newRow("unknown: enable") << int(enable) << 9u << false << false;
        QTest::newRow("unknown: offset") << int(offset) << 9u << false << false;
    }
    void settersWriteOnlyRealChanges()
    {
        QFETCH(int, operation);
        QFETCH(quint32, display);
        QFETCH(bool, writes);
        QFETCH(bool, announces);

        start({FakeScreenList::screen(1, QStringLiteral("One")),
               FakeScreenList::screen(5, QStringLiteral("Five"))},
              1);
        m_store->setCustomOffset(0.5, 0.85, 1);
        m_screens->disconnectScreen(5);
        const std::optional<DisplayConfiguration> before = m_store->configuration(display);

        QSignalSpy written(m_settings.get(), &SettingsStore::valueChanged);
        QSignalSpy announced(m_store.get(), &DisplaySettingsStore::displaySettingsChanged);
        switch (operation) {
        case 0:
            m_store->setEnabled(true, display);
            break;
        case 1:
            m_store->setEnabled(false, display);
            break;
        case 2:
            m_store->setPosition(KeyPosition::topLeft, display);
            break;
        case 3:
            m_store->setPosition(KeyPosition::custom, display);
            break;
        case 4:
            m_store->setCustomOffset(0.5, 0.85, display);
            break;
        }
        QCOMPARE(written.count(), writes ? 1 : 0);
        QCOMPARE(announced.count(), announces ? 1 : 0);
        if (writes) {
            QCOMPARE(written.first().first().toString(), DisplaySettingsStore::userDefaultsKey());
            QCOMPARE(storedRecord(display), m_store->configuration(display));
            QVERIFY(operation == 4 || m_store->configuration(display) != before);
        } else {
            QCOMPARE(m_store->configuration(display), before);
        }
        if (announces) {
            bool published = false;
            for (const DisplayConfiguration &c : m_store->configurations())
                published |= c == *m_store->configuration(display);
            QVERIFY(published);
        }
    }

    void resetForgetsEverything()
    {
        m_settings->setRawValue(QStringLiteral("keyPosition"), QStringLiteral("Top Right"));
        start({FakeScreenList::screen(1, QStringLiteral("One")),
               FakeScreenList::screen(2, QStringLiteral("Two")),
               FakeScreenList::screen(3, QStringLiteral("Three"))},
              1);
        m_store->setEnabled(true, 2);
        m_store->setCustomOffset(0.1, 0.2, 1);
        m_screens->disconnectScreen(3);

        QSignalSpy announced(m_store.get(), &DisplaySettingsStore::displaySettingsChanged);
        m_store->resetToDefaults();

        QVERIFY(announced.count() >= 1);
        const QList<DisplayConfiguration> expected{
            {1, QStringLiteral("One"), true, KeyPosition::bottomCenter, 0.5, 0.85},
            {2, QStringLiteral("Two"), false, KeyPosition::bottomCenter, 0.5, 0.85}};
        QCOMPARE(m_store->configurations(), expected);
        QCOMPARE(storedRecords(), expected);
        QVERIFY(!m_store->configuration(3));

        // The reset's default position does not linger for displays met later.
        m_screens->connectScreen(3, QStringLiteral("Three"));
        QCOMPARE(m_store->configuration(3)->position, KeyPosition::bottomCenter);
        QCOMPARE(m_store->configuration(3)->isEnabled, false);
    }

    void unreadableStoredDataIsReplaced_data()
    {
        QTest::addColumn<QByteArray>("data");
        QTest::newRow("not JSON") << QByteArray("[{\"id\":1,");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("object, not array") << record(1, "Old");
        QTest::newRow("unknown position") << array({record(1, "Old", "Middle")});
        QTest::newRow("position case differs") << array({record(1, "Old", "top left")});
        QTest::newRow("missing offset") << QByteArray(
            R"([{"id":1,"name":"Old","isEnabled":false,"position":"Top Left","customOffsetX":0.5}])");
        QTest::newRow("negative id") << array({record(1, "Old").replace("\"id\":1", "\"id\":-1")});
        QTest::newRow("id too large")
            << array({record(1, "Old").replace("\"id\":1", "\"id\":4294967296")});
        QTest::newRow("fractional id")
            << array({record(1, "Old").replace("\"id\":1", "\"id\":1.5")});
        QTest::newRow("id as text")
            << array({record(1, "Old").replace("\"id\":1", "\"id\":\"1\"")});
        QTest::newRow("one good, one bad")
            << array({record(2, "Good"), record(1, "Old", "Middle")});
    }
    void unreadableStoredDataIsReplaced()
    {
        QFETCH(QByteArray, data);
        m_settings->setValue(AppSettings::displayConfigurations, data);
        start({FakeScreenList::screen(1, QStringLiteral("One"))}, 1);
        const QList<DisplayConfiguration> fresh{
            {1, QStringLiteral("One"), true, KeyPosition::bottomCenter, 0.5, 0.85}};
        QCOMPARE(m_store->configurations(), fresh);
        QCOMPARE(storedRecords(), fresh);
    }

    void readableStoredDataIsUsed()
    {
        m_settings->setValue(AppSettings::displayConfigurations,
                             array({record(4294967295u, "Max", "Top Left"), record(1, "Old")}));
        QSignalSpy written(m_settings.get(), &SettingsStore::valueChanged);
        start({FakeScreenList::screen(4294967295u, QStringLiteral("Max"))}, std::nullopt);
        QCOMPARE(m_store->configurations(),
                 (QList<DisplayConfiguration>{
                     {4294967295u, QStringLiteral("Max"), true, KeyPosition::topLeft, 0.5, 0.85}}));
        QVERIFY(m_store->configuration(1));
        // Nothing new, nothing renamed: nothing is written.
        QCOMPARE(written.count(), 0);
    }

    void duplicateStoredIdsEndTheProgram_data()
    {
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<bool>("ends");
        QTest::newRow("duplicate")
            << array({record(7, "A"), record(8, "B"), record(7, "C")}) << true;
        QTest::newRow("unique") << array({record(7, "A"), record(8, "B")}) << false;
        // Unreadable data is never checked for duplicates.
        QTest::newRow("duplicate but unreadable")
            << array({record(7, "A"), record(7, "C", "Middle")}) << false;
    }
    void duplicateStoredIdsEndTheProgram()
    {
        QFETCH(QByteArray, data);
        QFETCH(bool, ends);
        m_settings->setValue(AppSettings::displayConfigurations, data);

        QProcess child;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QString::fromLatin1(childLoadVariable), m_path);
        child.setProcessEnvironment(env);
        child.start(QCoreApplication::applicationFilePath(), {});
        QVERIFY(child.waitForFinished(30000));
        const QByteArray errors = child.readAllStandardError();
        if (ends) {
            QCOMPARE(child.exitStatus(), QProcess::CrashExit);
            QVERIFY2(errors.contains("Duplicate values for key: '7"), errors.constData());
        } else {
            QCOMPARE(child.exitStatus(), QProcess::NormalExit);
            QCOMPARE(child.exitCode(), 0);
        }
    }
};

// A child run loads the given settings file with one display connected, then exits.
static int loadDisplaysAndExit(const QString &path)
{
    const rlimit noCoreFile{0, 0};
    setrlimit(RLIMIT_CORE, &noCoreFile);
    SettingsStore settings(path);
    FakeScreenList screens;
    screens.setScreens({FakeScreenList::screen(7, QStringLiteral("A"))}, 7);
    DisplaySettingsStore store(settings, screens);
    return 0;
}

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    if (qEnvironmentVariableIsSet(childLoadVariable))
        return loadDisplaysAndExit(qEnvironmentVariable(childLoadVariable));
    tst_DisplaySettingsStore test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

#include "tst_DisplaySettingsStore.moc"
