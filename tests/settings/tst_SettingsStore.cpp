#include "settings/AppSettings.h"
#include "settings/SettingsStore.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <atomic>

using KeyPosition = AppSettings::KeyPosition;
using KeyStyle = AppSettings::KeyStyle;

// The settings file and the table of settings read from it.
class tst_SettingsStore final : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    const QString m_path = m_dir.filePath(QStringLiteral("Vantrel.conf"));

private slots:
    void cleanup() { QFile::remove(m_path); }

    void freshStoreWritesOnlyWhatIsSet()
    {
        SettingsStore s(m_path);
        QCOMPARE(s.value(AppSettings::keyStyle), KeyStyle::modern);
        QVERIFY(!QFile::exists(m_path));
        s.setValue(AppSettings::keyStyle, KeyStyle::neon);
        const SettingsStore reopened(m_path);
        QCOMPARE(reopened.value(AppSettings::keyStyle), KeyStyle::neon);
        QVERIFY(!reopened.contains(QStringLiteral("keyAnimationStyle")));
    }

    void corruptFileReadsAsDefaultsAndIsKept_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::newRow("wrong types and texts")
            << QByteArray("[General]\nkeyDisplayDuration=soon\nisVantrelEnabled=yes please\n"
                          "keyStyle=Modern\nkeyPosition=top left\n");
        static const char garbage[] = "\x00\xff\xfe[[[=\n\x01\x02=\x03";
        QTest::newRow("binary garbage") << QByteArray(garbage, sizeof garbage - 1);
    }
    void corruptFileReadsAsDefaultsAndIsKept()
    {
        QFETCH(QByteArray, file);
        QFile f(m_path);
        QVERIFY(f.open(QIODevice::WriteOnly) && f.write(file) == file.size());
        f.close();
        SettingsStore store(m_path);
        QCOMPARE(store.value(AppSettings::keyDisplayDuration), 1.5);
        QCOMPARE(store.value(AppSettings::isVantrelEnabled), true);
        QCOMPARE(store.value(AppSettings::keyStyle), KeyStyle::modern);
        QCOMPARE(store.value(AppSettings::keyPosition), KeyPosition::bottomCenter);
        QVERIFY(f.open(QIODevice::ReadOnly));
        QCOMPARE(f.readAll(), file);
        store.setValue(AppSettings::keySize, 3.0);
        QCOMPARE(SettingsStore(m_path).value(AppSettings::keySize), 3.0);
    }

    // JSON values stand in the file as plain text; the quoted forms of older files still read.
    void structuredValuesReadInEveryForm_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::newRow("plain JSON")
            << QByteArray("displayConfigurations=[{\"id\":7,\"n\":\"a;b\"}]");
        QTest::newRow("byte array") << QByteArray(
            "displayConfigurations=\"@ByteArray([{\\\"id\\\":7,\\\"n\\\":\\\"a;b\\\"}])\"");
        QTest::newRow("quoted text")
            << QByteArray("displayConfigurations=\"[{\\\"id\\\":7,\\\"n\\\":\\\"a;b\\\"}]\"");
    }
    void structuredValuesReadInEveryForm()
    {
        QFETCH(QByteArray, line);
        QFile f(m_path);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write("[General]\nkeySize=2.5\n" + line + "\n");
        f.close();
        SettingsStore store(m_path);
        const QByteArray json = "[{\"id\":7,\"n\":\"a;b\"}]";
        QCOMPARE(store.value(AppSettings::displayConfigurations), json);
        store.setValue(AppSettings::keyFont, QStringLiteral("Say \"hi\", [x]\n"));
        QVERIFY(f.open(QIODevice::ReadOnly));
        QVERIFY(f.readAll().contains(QByteArray("\ndisplayConfigurations=" + json + "\n")));
        const SettingsStore reopened(m_path);
        QCOMPARE(reopened.value(AppSettings::displayConfigurations), json);
        QCOMPARE(reopened.value(AppSettings::keySize), 2.5);
        QCOMPARE(reopened.value(AppSettings::keyFont), QStringLiteral("Say \"hi\", [x]\n"));
    }

    // Hand-edited values read as the settings window would show them, said once per key.
    void valuesOutOfRangeOrOfAnotherTypeAreSaidOnce_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<double>("size");
        QTest::addColumn<QString>("said"); // empty: nothing
        QTest::newRow("below") << QByteArray("keySize=-3") << 1.0
                               << "keySize=-3 is out of range (1 to 10); using 1";
        QTest::newRow("no number")
            << QByteArray("keySize=big") << 2.0 << "keySize is not a number; using the default 2";
        QTest::newRow("within") << QByteArray("keySize=9.5") << 9.5 << "";
        QTest::newRow("whole number below")
            << QByteArray("keyMaxDisplayCount=-1") << 2.0
            << "keyMaxDisplayCount=-1 is out of range (1 to 20); using 1";
    }
    void valuesOutOfRangeOrOfAnotherTypeAreSaidOnce()
    {
        QFETCH(QByteArray, line);
        QFETCH(double, size);
        QFETCH(QString, said);
        // A path per row: QSettings caches files by path, size and time of change.
        const QString path = m_dir.filePath(QString::fromLatin1(QTest::currentDataTag()));
        QFile f(path);
        QVERIFY(f.open(QIODevice::WriteOnly) && f.write("[General]\n" + line + '\n') > 0);
        f.close();
        const SettingsStore store(path);
        if (!said.isEmpty())
            QTest::ignoreMessage(QtWarningMsg,
                                 qPrintable("vantrel: " + path + ": " + said + " instead"));
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
        for (int i = 0; i < 2; ++i) {
            QCOMPARE(store.value(AppSettings::keySize), size);
            QVERIFY(store.value(AppSettings::keyMaxDisplayCount) >= 1);
        }
    }

    void unreadableValuesAreKeptOnceBeforeOneIsReplaced()
    {
        SettingsStore store(m_path);
        for (const char *key : {"displayConfigurations", "customKeyStylePresets"}) {
            store.setRawValue(QString::fromLatin1(key), QByteArray("[{"));
            QTest::ignoreMessage(QtWarningMsg, qPrintable("vantrel: " + m_path + ": " + key +
                                                          " is bad; ignoring it"));
            store.reportUnreadable(QString::fromLatin1(key), QStringLiteral("is bad"));
        }
        const QString copy = m_path + QStringLiteral(".bak");
        store.setValue(AppSettings::keySize, 3.0);
        QVERIFY(!QFile::exists(copy));
        QTest::ignoreMessage(QtWarningMsg,
                             qPrintable("vantrel: " + m_path + ": kept the file as it was in " +
                                        copy + " before replacing displayConfigurations"));
        store.remove(AppSettings::displayConfigurations.name());
        QFile kept(copy);
        QVERIFY(kept.open(QIODevice::ReadOnly));
        QCOMPARE(kept.readAll(), "[General]\ncustomKeyStylePresets=[{\ndisplayConfigurations=[{\n"
                                 "keySize=3\n");
        QVERIFY(kept.remove());
        store.remove(AppSettings::customKeyStylePresets.name());
        QVERIFY(!QFile::exists(copy)); // one copy per run holds every unreadable value
    }

    void unreadablePathDoesNotCrash()
    {
        QVERIFY(QDir(m_dir.path()).mkdir(QStringLiteral("Vantrel.conf"))); // a directory instead
        SettingsStore store(m_path);
        QCOMPARE(store.value(AppSettings::keySize), 2.0);
        store.setValue(AppSettings::keySize, 3.0);
        QVERIFY(QDir(m_dir.path()).rmdir(QStringLiteral("Vantrel.conf")));
    }

    void readsFromAnotherThreadWhileWriting()
    {
        SettingsStore store(m_path);
        std::atomic<bool> stop{false};
        std::atomic<int> bad{0};
        std::unique_ptr<QThread> reader(QThread::create([&] {
            for (double v; !stop;)
                if (v = store.value(AppSettings::keyDisplayDuration); v != 1.5 && v != 3.0)
                    ++bad;
        }));
        reader->start();
        for (int i = 0; i < 200; ++i)
            store.setValue(AppSettings::keyDisplayDuration, i % 2 ? 1.5 : 3.0);
        stop = true;
        reader->wait();
        QCOMPARE(bad.load(), 0);
    }

    void resetsDeleteExactlyTheirKeys()
    {
        const QStringList groups[] = {AppSettings::generalSettingsKeys(),
                                      AppSettings::keyboardSettingsKeys(),
                                      AppSettings::appearanceSettingsKeys()};
        void (*const resets[])(SettingsStore &) = {&AppSettings::resetGeneralSettings,
                                                   &AppSettings::resetKeyboardSettings,
                                                   &AppSettings::resetAppearanceSettings};
        const QStringList all = groups[0] + groups[1] + groups[2] +
                                QStringList{"showMouseClicks", "menuBarIcon",
                                            "customKeyStylePresets", "displayConfigurations"};
        QCOMPARE(all.size(), 4 + 4 + 18 + 4);
        for (int group = 0; group < 3; ++group) {
            SettingsStore store(m_path);
            for (const QString &key : all)
                store.setRawValue(key, QStringLiteral("x"));
            resets[group](store);
            const SettingsStore reopened(m_path);
            for (const QString &key : all)
                QCOMPARE(reopened.contains(key), !groups[group].contains(key));
            QVERIFY(reopened.contains(QStringLiteral("showMouseClicks")));
        }
    }
};

QTEST_GUILESS_MAIN(tst_SettingsStore)
#include "tst_SettingsStore.moc"
