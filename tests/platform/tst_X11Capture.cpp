#include "VirtualDisplay.h"

#include "capture/KeyManager.h"
#include "capture/KeyboardLayoutTranslator.h"
#include "platform/linux/XkbKeyboardLayoutSource.h"
#include "platform/x11/X11CaptureBackend.h"
#include "settings/AppSettings.h"
#include "settings/SettingsStore.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {

QStringList labels(const QList<KeyPress> &keys)
{
    QStringList result;
    for (const KeyPress &key : keys)
        result.append(key.keyName);
    return result;
}

void run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(program, arguments);
    QVERIFY2(process.waitForFinished(10000), qPrintable(program));
    QCOMPARE(process.exitCode(), 0);
}

} // namespace

// The X11 capture under the engine, against a private Xvfb driven by xdotool.
class tst_X11Capture final : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QString error;
        QVERIFY2(m_xvfb.start(&error), qPrintable(error));
        const QByteArray display = m_xvfb.displayName().toLatin1();
        qputenv("DISPLAY", display); // for xdotool and setxkbmap
        m_store = std::make_unique<SettingsStore>(m_dir.filePath("Vantrel.conf"));
        const std::shared_ptr<XkbKeyboardLayoutSource> layout =
            XkbKeyboardLayoutSource::fromNames("us");
        m_translator = std::make_unique<KeyboardLayoutTranslator>(layout);
        m_manager = std::make_unique<KeyManager>(
            *m_store, std::make_unique<X11CaptureBackend>(display, layout), *m_translator);
        QTRY_VERIFY(m_manager->isListening());
    }

    void cleanupTestCase()
    {
        m_manager.reset();
        m_xvfb.stop();
    }

    void init()
    {
        // Every record goes after the shortest duration; then settings are back to defaults, with
        // records that outlive a slow machine.
        m_store->setValue(AppSettings::keyDisplayDuration, 0.5);
        QTRY_VERIFY(m_manager->currentKeys().isEmpty());
        m_store->remove("showAllKeys");
        m_store->remove("showMouseClicks");
        m_store->setValue(AppSettings::keyDisplayDuration, 10.0);
    }

    void shortcuts_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QStringList>("shown");
        QTest::newRow("ctrl+k") << "ctrl+k" << QStringList{"⌃", "K"};
        QTest::newRow("super+shift+k") << "super+shift+k" << QStringList{"⌘", "⇧", "K"};
        QTest::newRow("alt+x") << "alt+x" << QStringList{"⌥", "X"};
    }
    void shortcuts()
    {
        QFETCH(QString, keys);
        QFETCH(QStringList, shown);
        run("xdotool", {"key", keys});
        QTRY_COMPARE(labels(m_manager->sortedKeysForDisplay()), shown);
    }

    void clicks_data()
    {
        QTest::addColumn<QString>("pointerMapping");
        QTest::addColumn<QStringList>("shown");
        // Each row changes the server's pointer mapping while the capture runs; the last restores
        // it.
        QTest::newRow("swapped") << "3 2 1" << QStringList{"Right Click", "Left Click"};
        QTest::newRow("left disabled") << "0 2 3" << QStringList{"Right Click"};
        QTest::newRow("normal") << "default" << QStringList{"Left Click", "Right Click"};
    }
    void clicks()
    {
        QFETCH(QString, pointerMapping);
        QFETCH(QStringList, shown);
        m_store->setValue(AppSettings::showMouseClicks, true);
        run("xmodmap", {"-e", "pointer = " + pointerMapping});
        run("xdotool", {"click", "1", "click", "3"});
        QTRY_COMPARE(labels(m_manager->currentKeys()), shown);
    }

    void keysTypedWhileStoppedNeverShow()
    {
        // The capture keeps its connection while stopped: what the server sent meanwhile would come
        // before the next key.
        m_store->setValue(AppSettings::showAllKeys, true);
        m_manager->stopListening();
        QTRY_VERIFY(!m_manager->isListening());
        run("xdotool", {"key", "k", "shift+j"});
        m_manager->startListening();
        QTRY_VERIFY(m_manager->isListening());
        run("xdotool", {"key", "m"});
        QTRY_COMPARE(labels(m_manager->currentKeys()), QStringList{"M"});
    }

    void heldKeyRepeats()
    {
        // Held well beyond its lifetime, the key stays on show only if the capture repeats it.
        m_store->setValue(AppSettings::showAllKeys, true);
        m_store->setValue(AppSettings::keyDisplayDuration, 1.0);
        run("xdotool", {"keydown", "k"});
        QTRY_COMPARE(labels(m_manager->currentKeys()), QStringList{"K"});
        const double firstPress = m_manager->currentKeys().first().timestamp;
        QTest::qWait(2000);
        run("xdotool", {"keyup", "k"});
        QCOMPARE(labels(m_manager->currentKeys()), QStringList{"K"});
        QVERIFY(m_manager->currentKeys().first().timestamp > firstPress + 1.0);
        QTRY_VERIFY_WITH_TIMEOUT(m_manager->currentKeys().isEmpty(), 3000);
    }

    void layoutSwitchNamesTheNextKey()
    {
        m_store->setValue(AppSettings::showAllKeys, true);
        run("xdotool", {"key", "y"});
        QTRY_COMPARE(labels(m_manager->currentKeys()), QStringList{"Y"});
        run("setxkbmap", {"de"});
        // On de, z sits where y is on us: named after the old layout it would show "Y" again.
        run("xdotool", {"key", "z"});
        QTRY_COMPARE(labels(m_manager->currentKeys()), (QStringList{"Y", "Z"}));
    }

    void serverGoneEndsListening()
    {
        QTest::ignoreMessage(QtWarningMsg, "Vantrel: the connection to the X server was lost; key "
                                           "capture has stopped.");
        m_xvfb.stop();
        QTRY_VERIFY_WITH_TIMEOUT(!m_manager->isListening(), 3000);
        // Stopping and destroying the manager afterwards is clean.
        m_manager->stopListening();
        m_manager.reset();
    }

private:
    VirtualDisplay m_xvfb;
    QTemporaryDir m_dir;
    std::unique_ptr<SettingsStore> m_store;
    std::unique_ptr<KeyboardLayoutTranslator> m_translator;
    std::unique_ptr<KeyManager> m_manager;
};

QTEST_GUILESS_MAIN(tst_X11Capture)
#include "tst_X11Capture.moc"
