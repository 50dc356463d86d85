#include "app/LaunchAtLogin.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

class tst_LaunchAtLogin final : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_config;

    static QByteArray entryText()
    {
        QFile file(LaunchAtLogin::entryPath());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private slots:
    void init()
    {
        m_config = std::make_unique<QTemporaryDir>();
        QVERIFY(m_config->isValid());
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_config->path()));
        QCOMPARE(LaunchAtLogin::entryPath(),
                 m_config->filePath(QStringLiteral("autostart/vantrel.desktop")));
    }

    void enablingWritesTheMenuEntryAndDisablingRemovesIt_data()
    {
        QTest::addColumn<QString>("program");
        QTest::addColumn<QByteArray>("execLine");
        QTest::newRow("plain") << "/usr/bin/vantrel" << QByteArray("Exec=\"/usr/bin/vantrel\"\n");
        QTest::newRow("spaces") << "/opt/My Apps/vantrel"
                                << QByteArray("Exec=\"/opt/My Apps/vantrel\"\n");
        QTest::newRow("reserved characters")
            << "/tmp/50% \"off\"/van$trel"
            << QByteArray("Exec=\"/tmp/50%% \\\\\"off\\\\\"/van\\\\$trel\"\n");
    }
    void enablingWritesTheMenuEntryAndDisablingRemovesIt()
    {
        QFETCH(QString, program);
        QFETCH(QByteArray, execLine);
        LaunchAtLogin launchAtLogin(program);
        QSignalSpy changed(&launchAtLogin, &LaunchAtLogin::enabledChanged);

        launchAtLogin.setEnabled(true);
        QVERIFY(launchAtLogin.isEnabled());
        const QByteArray entry = entryText();
        QVERIFY(entry.contains(QByteArray(QByteArray("\n") + execLine)));
        QCOMPARE(entry.count("Exec"), 1);
        QVERIFY(entry.contains("\nName=Vantrel\n")); // the rest comes from the menu entry
        const QString validator =
            QStandardPaths::findExecutable(QStringLiteral("desktop-file-validate"));
        if (!validator.isEmpty()) {
            QProcess validate;
            validate.start(validator, {LaunchAtLogin::entryPath()});
            QVERIFY(validate.waitForFinished());
            QCOMPARE(validate.readAll(), QByteArray());
            QCOMPARE(validate.exitCode(), 0);
        }

        launchAtLogin.setEnabled(false);
        QVERIFY(!QFileInfo::exists(LaunchAtLogin::entryPath()));
        QVERIFY(!launchAtLogin.isEnabled());
        QCOMPARE(changed.count(), 2);
        QCOMPARE(changed.at(0).first().toBool(), true);
        QCOMPARE(changed.at(1).first().toBool(), false);
    }

    void hiddenEntryCountsAsOff_data()
    {
        QTest::addColumn<QByteArray>("entry");
        QTest::addColumn<bool>("enabled");
        QTest::newRow("hidden") << QByteArray("[Desktop Entry]\nExec=vantrel\nHidden=true\n")
                                << false;
        QTest::newRow("hidden, spaced") << QByteArray("[Desktop Entry]\nHidden = true\n") << false;
        QTest::newRow("not hidden") << QByteArray("[Desktop Entry]\nHidden=false\n") << true;
        QTest::newRow("hidden in another group")
            << QByteArray("[Desktop Entry]\nExec=vantrel\n[Desktop Action x]\nHidden=true\n")
            << true;
    }
    void hiddenEntryCountsAsOff()
    {
        QFETCH(QByteArray, entry);
        QFETCH(bool, enabled);
        QVERIFY(QDir().mkpath(QFileInfo(LaunchAtLogin::entryPath()).absolutePath()));
        QFile file(LaunchAtLogin::entryPath());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(entry);
        file.close();
        QCOMPARE(LaunchAtLogin(QStringLiteral("/usr/bin/vantrel")).isEnabled(), enabled);
    }

    void unwritableDirectoryLeavesItOff()
    {
        // A file where the autostart directory should be: nothing can be written there, even by
        // root.
        QFile blocker(m_config->filePath(QStringLiteral("autostart")));
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        blocker.close();
        LaunchAtLogin launchAtLogin(QStringLiteral("/usr/bin/vantrel"));
        QSignalSpy changed(&launchAtLogin, &LaunchAtLogin::enabledChanged);
        launchAtLogin.setEnabled(true);
        QVERIFY(!launchAtLogin.isEnabled());
        QCOMPARE(changed.count(), 0);
    }
};

QTEST_GUILESS_MAIN(tst_LaunchAtLogin)
#include "tst_LaunchAtLogin.moc"
