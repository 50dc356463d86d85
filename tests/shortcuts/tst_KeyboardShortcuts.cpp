#include "FakeHotKeyGrabber.h"

#include "settings/SettingsStore.h"
#include "shortcuts/KeyboardShortcuts.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QString name = QStringLiteral("toggleVantrel");
const QString otherName = QStringLiteral("increaseKeySize");
const QKeySequence ctrlAltK(Qt::CTRL | Qt::ALT | Qt::Key_K);

} // namespace

class tst_KeyboardShortcuts final : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    std::unique_ptr<SettingsStore> m_store;
    FakeHotKeyGrabber *m_grabber = nullptr;
    std::unique_ptr<KeyboardShortcuts> m_shortcuts;

    void makeShortcuts()
    {
        auto grabber = std::make_unique<FakeHotKeyGrabber>();
        m_grabber = grabber.get();
        m_shortcuts = std::make_unique<KeyboardShortcuts>(*m_store, std::move(grabber));
    }

private slots:
    void init()
    {
        QFile::remove(m_dir.filePath(QStringLiteral("Vantrel.conf")));
        m_store = std::make_unique<SettingsStore>(m_dir.filePath(QStringLiteral("Vantrel.conf")));
        makeShortcuts();
    }
    void cleanup()
    {
        m_shortcuts.reset();
        m_store.reset();
    }

    void storedText_data()
    {
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<QString>("expected");
        QTest::newRow("absent") << QVariant() << QString();
        QTest::newRow("combination")
            << QVariant(QStringLiteral("Ctrl+Alt+K")) << QStringLiteral("Ctrl+Alt+K");
        QTest::newRow("function key alone")
            << QVariant(QStringLiteral("F5")) << QStringLiteral("F5");
        QTest::newRow("empty") << QVariant(QString()) << QString();
        QTest::newRow("garbage") << QVariant(QStringLiteral("Ctrl+Blorp+")) << QString();
        QTest::newRow("words") << QVariant(QStringLiteral("not a shortcut")) << QString();
        QTest::newRow("two combinations")
            << QVariant(QStringLiteral("Ctrl+Alt+K, Ctrl+B")) << QString();
        QTest::newRow("plain key") << QVariant(QStringLiteral("K")) << QString();
        QTest::newRow("shifted key") << QVariant(QStringLiteral("Shift+K")) << QString();
        QTest::newRow("modifiers only") << QVariant(QStringLiteral("Ctrl+Alt")) << QString();
        QTest::newRow("a number") << QVariant(42) << QString();
    }
    void storedText()
    {
        QFETCH(QVariant, stored);
        QFETCH(QString, expected);
        if (stored.isValid())
            m_store->setRawValue(KeyboardShortcuts::settingsKey(name), stored);
        m_shortcuts->onKeyUp(name, [] {});
        QCOMPARE(m_shortcuts->shortcut(name).toString(QKeySequence::PortableText), expected);
    }

    void roundTrip()
    {
        QCOMPARE(m_shortcuts->setShortcut(name, ctrlAltK), KeyboardShortcuts::SetResult::set);
        SettingsStore reread(m_store->filePath());
        QCOMPARE(reread.rawValue(QStringLiteral("KeyboardShortcuts_toggleVantrel"))->toString(),
                 QStringLiteral("Ctrl+Alt+K"));
        QCOMPARE(KeyboardShortcuts(reread, nullptr).shortcut(name), ctrlAltK);
    }

    // p: the combination goes down (again, when repeating), r: it comes up, +/-: a recorder
    // starts or stops recording.
    void firesOnRelease_data()
    {
        QTest::addColumn<QString>("events");
        QTest::addColumn<int>("actions");
        QTest::newRow("press and release") << "pr" << 1;
        QTest::newRow("held, repeating") << "ppppr" << 1;
        QTest::newRow("held, not released") << "ppp" << 0;
        QTest::newRow("release without press") << "r" << 0;
        QTest::newRow("second release") << "prr" << 1;
        QTest::newRow("twice") << "prpr" << 2;
        QTest::newRow("while recording") << "+pr" << 0;
        QTest::newRow("recording starts while held") << "p+r" << 0;
        QTest::newRow("held through recording") << "p+-r" << 0;
        QTest::newRow("after recording") << "+-pr" << 1;
    }
    void firesOnRelease()
    {
        QFETCH(QString, events);
        QFETCH(int, actions);
        m_shortcuts->setShortcut(name, ctrlAltK);
        int count = 0;
        m_shortcuts->onKeyUp(name, [&count] { ++count; });
        const QObject recorder;
        for (const QChar event : events) {
            switch (event.toLatin1()) {
            case 'p':
                m_grabber->press(name);
                break;
            case 'r':
                m_grabber->lift(name);
                break;
            default:
                m_shortcuts->setRecorderActive(&recorder, event == u'+');
            }
        }
        QCOMPARE(count, actions);
    }

    // Only a name with a handler holds a grab, and none while a recorder records.
    void grabsFollowHandlerAndRecording()
    {
        m_shortcuts->setShortcut(name, ctrlAltK);
        QVERIFY(m_grabber->grabs.isEmpty());
        m_shortcuts->onKeyUp(name, [] {});
        QCOMPARE(m_grabber->grabs.value(name), ctrlAltK[0]);
        QSignalSpy status(m_shortcuts.get(), &KeyboardShortcuts::recorderActiveStatusDidChange);
        const QObject recorder;
        m_shortcuts->setRecorderActive(&recorder, true);
        QVERIFY(m_grabber->grabs.isEmpty());
        m_shortcuts->setRecorderActive(&recorder, false);
        QCOMPARE(m_grabber->grabs.value(name), ctrlAltK[0]);
        QCOMPARE(status.count(), 2);
        m_shortcuts->reset(name);
        QVERIFY(m_grabber->grabs.isEmpty());
    }

    void setShortcut_data()
    {
        QTest::addColumn<QKeySequence>("sequence");
        QTest::addColumn<int>("result");
        QTest::addColumn<QString>("storedAfter");
        const QKeySequence ctrlAltJ(Qt::CTRL | Qt::ALT | Qt::Key_J);
        const QKeySequence ctrlAltT(Qt::CTRL | Qt::ALT | Qt::Key_T);
        QTest::newRow("free") << ctrlAltJ << int(KeyboardShortcuts::SetResult::set)
                              << QStringLiteral("Ctrl+Alt+J");
        QTest::newRow("held by another program")
            << ctrlAltT << int(KeyboardShortcuts::SetResult::takenByAnotherProgram)
            << QStringLiteral("Ctrl+Alt+K");
        QTest::newRow("another name's") << QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_L)
                                        << int(KeyboardShortcuts::SetResult::takenByAnotherShortcut)
                                        << QStringLiteral("Ctrl+Alt+K");
        QTest::newRow("not allowed")
            << QKeySequence(Qt::SHIFT | Qt::Key_K) << int(KeyboardShortcuts::SetResult::unavailable)
            << QStringLiteral("Ctrl+Alt+K");
        QTest::newRow("empty clears")
            << QKeySequence() << int(KeyboardShortcuts::SetResult::set) << QString();
    }
    void setShortcut()
    {
        QFETCH(QKeySequence, sequence);
        QFETCH(int, result);
        QFETCH(QString, storedAfter);
        m_grabber->taken.append(QKeyCombination(Qt::CTRL | Qt::ALT, Qt::Key_T));
        m_shortcuts->setShortcut(name, ctrlAltK);
        m_shortcuts->setShortcut(otherName, QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_L));
        m_shortcuts->onKeyUp(name, [] {});
        QCOMPARE(int(m_shortcuts->setShortcut(name, sequence)), result);
        QCOMPARE(m_shortcuts->shortcut(name).toString(QKeySequence::PortableText), storedAfter);
        // A refused combination leaves the old one grabbed.
        QCOMPARE(m_grabber->grabs.value(name), m_shortcuts->shortcut(name).isEmpty()
                                                   ? QKeyCombination()
                                                   : m_shortcuts->shortcut(name)[0]);
    }

    // Changes made elsewhere (a reset of all settings) are announced and let go of the grab.
    void followsTheStore()
    {
        m_shortcuts->setShortcut(name, ctrlAltK);
        m_shortcuts->onKeyUp(name, [] {});
        QSignalSpy changed(m_shortcuts.get(), &KeyboardShortcuts::shortcutByNameDidChange);
        m_store->remove(KeyboardShortcuts::settingsKey(name));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.at(0).at(0).toString(), name);
        QVERIFY(m_grabber->grabs.isEmpty());
    }
};

QTEST_MAIN(tst_KeyboardShortcuts)
#include "tst_KeyboardShortcuts.moc"
