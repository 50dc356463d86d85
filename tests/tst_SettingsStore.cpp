#include "settings/AppSettings.h"
#include "settings/SettingsStore.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <atomic>

class tst_SettingsStore final : public QObject {
    Q_OBJECT

    QString path(const QTemporaryDir &dir) const { return dir.filePath(QStringLiteral("Vantrel.conf")); }

    static void writeFile(const QString &path, const QByteArray &bytes)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    static QByteArray readFile(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private slots:
    void missingFileReadsDefaultsAndWritesNothing()
    {
        QTemporaryDir dir;
        SettingsStore store(path(dir));
        QCOMPARE(store.value(AppSettings::keyDisplayDuration), 1.5);
        QCOMPARE(store.value(AppSettings::keyMaxDisplayCount), 4);
        QCOMPARE(store.value(AppSettings::isVantrelEnabled), true);
        QVERIFY(!QFile::exists(path(dir)));
    }

    void valuesPersistAcrossInstances()
    {
        QTemporaryDir dir;
        {
            SettingsStore store(path(dir));
            store.setValue(AppSettings::keyDisplayDuration, 2.25);
            store.setValue(AppSettings::keyMaxDisplayCount, 7);
            store.setValue(AppSettings::showAllKeys, true);
            store.setValue(AppSettings::keyStyle, AppSettings::KeyStyle::neon);
            store.setValue(AppSettings::keyTextColor, QStringLiteral("#FF00FFFF"));
            store.setValue(AppSettings::displayConfigurations, QByteArray(R"([{"id":1}])"));
        }
        SettingsStore store(path(dir));
        QCOMPARE(store.value(AppSettings::keyDisplayDuration), 2.25);
        QCOMPARE(store.value(AppSettings::keyMaxDisplayCount), 7);
        QCOMPARE(store.value(AppSettings::showAllKeys), true);
        QCOMPARE(store.value(AppSettings::keyStyle), AppSettings::KeyStyle::neon);
        QCOMPARE(store.value(AppSettings::keyTextColor), QStringLiteral("#FF00FFFF"));
        QCOMPARE(store.value(AppSettings::displayConfigurations), QByteArray(R"([{"id":1}])"));
        QVERIFY(readFile(path(dir)).contains("[General]"));
    }

    void wrongTypesReadAsDefaults_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::newRow("text for a double") << QByteArray("[General]\nkeyDisplayDuration=soon\n");
        QTest::newRow("text for an integer") << QByteArray("[General]\nkeyMaxDisplayCount=many\n");
        QTest::newRow("text for a bool") << QByteArray("[General]\nisVantrelEnabled=yes please\n");
        QTest::newRow("capitalised style") << QByteArray("[General]\nkeyStyle=Modern\n");
        QTest::newRow("not a number") << QByteArray("[General]\nkeyDisplayDuration=nan\n");
        QTest::newRow("binary garbage") << QByteArray("\x00\xff\xfe[[[=\n\x01\x02=\x03", 15);
        QTest::newRow("empty file") << QByteArray();
    }
    void wrongTypesReadAsDefaults()
    {
        QFETCH(QByteArray, file);
        QTemporaryDir dir;
        writeFile(path(dir), file);
        SettingsStore store(path(dir));
        QCOMPARE(store.value(AppSettings::keyDisplayDuration), 1.5);
        QCOMPARE(store.value(AppSettings::keyMaxDisplayCount), 4);
        QCOMPARE(store.value(AppSettings::isVantrelEnabled), true);
        QCOMPARE(store.value(AppSettings::keyStyle), AppSettings::KeyStyle::modern);
        // Reading never rewrites the file.
        QCOMPARE(readFile(path(dir)), file);
    }

    void unreadablePathDoesNotCrash()
    {
        QTemporaryDir dir;
        QDir(dir.path()).mkdir(QStringLiteral("Vantrel.conf")); // a directory where the file should be
        SettingsStore store(path(dir));
        QCOMPARE(store.value(AppSettings::keySize), 2.0);
    }

    void removeDeletesAndSignalsOnce()
    {
        QTemporaryDir dir;
        SettingsStore store(path(dir));
        QSignalSpy spy(&store, &SettingsStore::valueChanged);
        store.setValue(AppSettings::keySize, 3.0);
        store.remove(AppSettings::keySize.name());
        store.remove(AppSettings::keySize.name()); // absent: nothing happens
        QCOMPARE(spy.count(), 2);
        QCOMPARE(spy.at(0).at(0).toString(), QStringLiteral("keySize"));
        QVERIFY(!store.contains(QStringLiteral("keySize")));
        QCOMPARE(store.value(AppSettings::keySize), 2.0);
        SettingsStore reopened(path(dir));
        QVERIFY(!reopened.contains(QStringLiteral("keySize")));
    }

    void observeCallsOnlyForItsKey()
    {
        QTemporaryDir dir;
        SettingsStore store(path(dir));
        int calls = 0;
        store.observe(QStringLiteral("keySize"), this, [&] { ++calls; });
        store.setValue(AppSettings::keySpacing, 3.0);
        store.setValue(AppSettings::keySize, 3.0);
        QCOMPARE(calls, 1);
    }

    void readsFromAnotherThreadWhileWriting()
    {
        QTemporaryDir dir;
        SettingsStore store(path(dir));
        std::atomic<bool> stop{false};
        std::atomic<int> bad{0};
        QThread *reader = QThread::create([&] {
            while (!stop) {
                const double v = store.value(AppSettings::keyDisplayDuration);
                if (v != 1.5 && v != 3.0)
                    ++bad;
            }
        });
        reader->start();
        for (int i = 0; i < 200; ++i)
            store.setValue(AppSettings::keyDisplayDuration, i % 2 ? 1.5 : 3.0);
        stop = true;
        reader->wait();
        delete reader;
        QCOMPARE(bad.load(), 0);
    }
};

QTEST_GUILESS_MAIN(tst_SettingsStore)
#include "tst_SettingsStore.moc"
