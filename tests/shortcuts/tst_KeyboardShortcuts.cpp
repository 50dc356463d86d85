#include "FakeHotKeyGrabber.h"

#include "settings/SettingsStore.h"
#include "shortcuts/KeyboardShortcuts.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QString name = QStringLiteral("toggleVantrel");
const QKeySequence ctrlAltK(Qt::CTRL | Qt::ALT | Qt::Key_K);

} // namespace

class tst_KeyboardShortcuts final : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    std::unique_ptr<SettingsStore> m_store;
    FakeHotKeyGrabber *m_grabber = nullptr;
    std::unique_ptr<KeyboardShortcuts> m_shortcuts;

private slots:
    void init()
    {
        QFile::remove(m_dir.filePath(QStringLiteral("Vantrel.conf")));
        m_store = std::make_unique<SettingsStore>(m_dir.filePath(QStringLiteral("Vantrel.conf")));
        auto grabber = std::make_unique<FakeHotKeyGrabber>();
        m_grabber = grabber.get();
        m_shortcuts = std::make_unique<KeyboardShortcuts>(*m_store, std::move(grabber));
    }

    void storedText_data()
    {
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<QString>("expected");
        QTest::newRow("absent") << QVariant() << QString();
        QTest::newRow("combination") << QVariant(u"Ctrl+Alt+K"_qs) << u"Ctrl+Alt+K"_qs;
        QTest::newRow("function key alone") << QVariant(u"F5"_qs) << u"F5"_qs;
        QTest::newRow("garbage") << QVariant(u"Ctrl+Blorp+"_qs) << QString();
        QTest::newRow("two combinations") << QVariant(u"Ctrl+Alt+K, Ctrl+B"_qs) << QString();
        QTest::newRow("shifted key") << QVariant(u"Shift+K"_qs) << QString();
        QTest::newRow("modifiers only") << QVariant(u"Ctrl+Alt"_qs) << QString();
        QTest::newRow("a number") << QVariant(42) << QString();
    }
    void storedText()
    {
        QFETCH(QVariant, stored);
        QFETCH(QString, expected);
        if (stored.isValid())
            m_store->setRawValue(KeyboardShortcuts::settingsKey(name), stored);
        QCOMPARE(m_shortcuts->shortcut(name).toString(QKeySequence::PortableText), expected);
    }

    void roundTrip()
    {
        m_shortcuts->setShortcut(name, ctrlAltK);
        SettingsStore reread(m_store->filePath());
        QCOMPARE(reread.rawValue(u"KeyboardShortcuts_toggleVantrel"_qs)->toString(),
                 u"Ctrl+Alt+K"_qs);
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
        QTest::newRow("second release") << "prr" << 1;
        QTest::newRow("twice") << "prpr" << 2;
        QTest::newRow("while recording") << "+pr" << 0;
        QTest::newRow("recording starts while held") << "p+-r" << 0;
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
            if (event == u'p')
                m_grabber->press(name);
            else if (event == u'r')
                m_grabber->lift(name);
            else
                m_shortcuts->setRecorderActive(&recorder, event == u'+');
        }
        QCOMPARE(count, actions);
    }

    // Only a name with a handler holds a grab, none while a recorder records, and a change
    // made anywhere (a reset of all settings) is followed and announced.
    void grabsFollowHandlerRecordingAndStore()
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
        QSignalSpy changed(m_shortcuts.get(), &KeyboardShortcuts::shortcutByNameDidChange);
        m_store->remove(KeyboardShortcuts::settingsKey(name));
        QCOMPARE(changed.count(), 1);
        QVERIFY(m_grabber->grabs.isEmpty());
    }

    void reportsCombinationTakenAtStart()
    {
        m_grabber->taken.append(ctrlAltK[0]);
        m_store->setRawValue(KeyboardShortcuts::settingsKey(name), u"Ctrl+Alt+K"_qs);
        m_shortcuts->onKeyUp(name, [] {});
        QVERIFY(m_shortcuts->isTakenByAnotherProgram(name));
        // Let go by the other program: taken again after the next keymap change.
        QSignalSpy status(m_shortcuts.get(), &KeyboardShortcuts::takenStatusDidChange);
        m_grabber->taken.clear();
        m_grabber->changeKeymap();
        QVERIFY(!m_shortcuts->isTakenByAnotherProgram(name));
        QCOMPARE(m_grabber->grabs.value(name), ctrlAltK[0]);
        QCOMPARE(status.count(), 1);
    }

    void setShortcut_data()
    {
        QTest::addColumn<QKeySequence>("sequence");
        QTest::addColumn<KeyboardShortcuts::SetResult>("result");
        QTest::addColumn<QString>("storedAfter");
        using Result = KeyboardShortcuts::SetResult;
        QTest::newRow("free") << QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_J) << Result::set
                              << u"Ctrl+Alt+J"_qs;
        QTest::newRow("held by another program")
            << QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_T) << Result::takenByAnotherProgram
            << u"Ctrl+Alt+K"_qs;
        QTest::newRow("another name's") << QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_L)
                                        << Result::takenByAnotherShortcut << u"Ctrl+Alt+K"_qs;
        QTest::newRow("not allowed")
            << QKeySequence(Qt::SHIFT | Qt::Key_K) << Result::unavailable << u"Ctrl+Alt+K"_qs;
        QTest::newRow("empty clears") << QKeySequence() << Result::set << QString();
    }
    void setShortcut()
    {
        QFETCH(QKeySequence, sequence);
        QFETCH(KeyboardShortcuts::SetResult, result);
        QFETCH(QString, storedAfter);
        m_grabber->taken.append(QKeyCombination(Qt::CTRL | Qt::ALT, Qt::Key_T));
        m_shortcuts->setShortcut(name, ctrlAltK);
        m_shortcuts->setShortcut(u"other"_qs, QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_L));
        m_shortcuts->onKeyUp(name, [] {});
        QCOMPARE(m_shortcuts->setShortcut(name, sequence), result);
        QCOMPARE(m_shortcuts->shortcut(name).toString(QKeySequence::PortableText), storedAfter);
        // What stays stored stays grabbed.
        QCOMPARE(QKeySequence(m_grabber->grabs.value(name)).toString(QKeySequence::PortableText),
                 storedAfter);
    }
};

QTEST_MAIN(tst_KeyboardShortcuts)
#include "tst_KeyboardShortcuts.moc"
