#include "FakeHotKeyGrabber.h"

#include "settings/SettingsStore.h"
#include "shortcuts/KeyboardShortcutRecorder.h"
#include "shortcuts/KeyboardShortcuts.h"

#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

namespace {

const QString name = QStringLiteral("toggleVantrel");

} // namespace

class tst_KeyboardShortcutRecorder final : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    std::unique_ptr<SettingsStore> m_store;
    FakeHotKeyGrabber *m_grabber = nullptr;
    std::unique_ptr<KeyboardShortcuts> m_shortcuts;
    std::unique_ptr<KeyboardShortcutRecorder> m_recorder;

    QString stored() const
    {
        return m_shortcuts->shortcut(name).toString(QKeySequence::PortableText);
    }

private slots:
    void init()
    {
        QFile::remove(m_dir.filePath(QStringLiteral("Vantrel.conf")));
        m_store = std::make_unique<SettingsStore>(m_dir.filePath(QStringLiteral("Vantrel.conf")));
        auto grabber = std::make_unique<FakeHotKeyGrabber>();
        m_grabber = grabber.get();
        m_shortcuts = std::make_unique<KeyboardShortcuts>(*m_store, std::move(grabber));
        m_shortcuts->setShortcut(name, QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_K));
        m_recorder = std::make_unique<KeyboardShortcutRecorder>(*m_shortcuts, name);
        m_recorder->show();
        QVERIFY(QTest::qWaitForWindowActive(m_recorder.get()));
    }
    void cleanup()
    {
        m_recorder.reset();
        m_shortcuts.reset();
        m_store.reset();
    }

    void records_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::addColumn<QString>("storedAfter");
        QTest::addColumn<bool>("stillRecording");
        const QString old = QStringLiteral("Ctrl+Alt+K");
        const Qt::KeyboardModifiers none = Qt::NoModifier;
        QTest::newRow("Escape cancels") << int(Qt::Key_Escape) << none << old << false;
        QTest::newRow("Backspace clears") << int(Qt::Key_Backspace) << none << QString() << false;
        QTest::newRow("Delete clears") << int(Qt::Key_Delete) << none << QString() << false;
        QTest::newRow("plain key refused") << int(Qt::Key_K) << none << old << true;
        QTest::newRow("Shift+K refused")
            << int(Qt::Key_K) << Qt::KeyboardModifiers(Qt::ShiftModifier) << old << true;
        QTest::newRow("modifier alone waits")
            << int(Qt::Key_Control) << Qt::KeyboardModifiers(Qt::ControlModifier) << old << true;
        QTest::newRow("F5 alone taken") << int(Qt::Key_F5) << none << QStringLiteral("F5") << false;
        QTest::newRow("Ctrl+Shift+J taken")
            << int(Qt::Key_J) << (Qt::ControlModifier | Qt::ShiftModifier)
            << QStringLiteral("Ctrl+Shift+J") << false;
        QTest::newRow("Super+Alt+1 taken") << int(Qt::Key_1) << (Qt::MetaModifier | Qt::AltModifier)
                                           << QStringLiteral("Meta+Alt+1") << false;
        QTest::newRow("held by another program")
            << int(Qt::Key_T) << (Qt::ControlModifier | Qt::AltModifier) << old << false;
    }
    void records()
    {
        QFETCH(int, key);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        QFETCH(QString, storedAfter);
        QFETCH(bool, stillRecording);
        m_grabber->taken.append(QKeyCombination(Qt::CTRL | Qt::ALT, Qt::Key_T));
        QTest::mouseClick(m_recorder->field(), Qt::LeftButton);
        QVERIFY(m_shortcuts->isRecorderActive());
        QTest::keyClick(m_recorder->field(), Qt::Key(key), modifiers);
        QCOMPARE(stored(), storedAfter);
        QCOMPARE(m_recorder->isRecording(), stillRecording);
        QCOMPARE(m_shortcuts->isRecorderActive(), stillRecording);
    }

    void reportsTakenCombination()
    {
        m_grabber->taken.append(QKeyCombination(Qt::CTRL | Qt::ALT, Qt::Key_T));
        QTest::mouseClick(m_recorder->field(), Qt::LeftButton);
        QTest::keyClick(m_recorder->field(), Qt::Key_T, Qt::ControlModifier | Qt::AltModifier);
        QCOMPARE(m_recorder->message(),
                 QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_T).toString(QKeySequence::NativeText) +
                     QStringLiteral(" is already used by another program"));
        QCOMPARE(m_recorder->text(),
                 QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_K).toString(QKeySequence::NativeText));
    }

    void clearButtonShowsPlaceholder()
    {
        QTest::mouseClick(m_recorder->clearButton(), Qt::LeftButton);
        QCOMPARE(stored(), QString());
        QCOMPARE(m_recorder->text(), QStringLiteral("Record Shortcut"));
        QVERIFY(m_recorder->clearButton()->isHidden());
    }
};

QTEST_MAIN(tst_KeyboardShortcutRecorder)
#include "tst_KeyboardShortcutRecorder.moc"
